// Walks the whole option tree that the program ships, row by row.
#include "tests/options/shipped_tree.h"

#include "options/store/option_store.h"

#include <QCheckBox>
#include <set>

namespace {

class ShippedTreeTest : public ShippedTree {
protected:
    // The radio buttons that one click each may turn on: for every group, a button that is off.
    std::vector<TreeItem*> otherRadios() {
        std::map<TreeItem*, TreeItem*> byGroup;
        for (TreeItem* item : options())
            if (editorOf<QRadioButton>(item) && item->state != 1)
                byGroup[item->parentItem()] = item;
        std::vector<TreeItem*> chosen;
        for (const auto& [group, item] : byGroup)
            chosen.push_back(item);
        return chosen;
    }
    // Changes every option that can be changed at once: rows above others are on, so that all are enabled.
    std::vector<std::string> changeEverything() {
        std::vector<std::string> changed;
        for (TreeItem* item : options())
            if (auto* check = editorOf<QCheckBox>(item);
                check && !check->isChecked() && item->childCount() > 0)
                check->click();
        std::vector<TreeItem*> rows = otherRadios();
        for (TreeItem* item : options())
            if (!editorOf<QRadioButton>(item) && !(editorOf<QCheckBox>(item) && item->childCount() > 0))
                rows.push_back(item);
        for (TreeItem* item : rows) {
            if (!item->isEnabled())
                continue;
            const QString before = shown(item);
            change(item);
            EXPECT_NE(shown(item), before) << item->nodeName.constData() << " did not change";
            changed.push_back(item->nodeName.toStdString());
        }
        return changed;
    }
    void expectShown(const std::map<std::string, QString>& expected) {
        for (TreeItem* item : options()) {
            const auto found = expected.find(item->nodeName.toStdString());
            ASSERT_NE(found, expected.end());
            EXPECT_EQ(shown(item), found->second) << item->nodeName.constData();
        }
    }
    // Whether a combo's `Default` is one of its entries: by name, or by the number of a save format.
    bool isOfferedByDefault(TreeItem* item) {
        const auto* box = editorOf<QComboBox>(item);
        int number = 0;
        if (item->optionId == kIdSaveFormats)
            return readValue(nodeOf(item), "Default", &number) && number >= 1 && number <= box->count();
        CXStringW name;
        readValue(nodeOf(item), "Default", &name);
        return box->findData(hostqt::qString(name), Qt::UserRole, Qt::MatchFixedString) >= 0;
    }
    template <class Limits> void expectWithin(TreeItem* item, double value, Limits limits) {
        readValue(nodeOf(item), "Limits", &limits);
        EXPECT_GE(value, limits.cx) << item->nodeName.constData();
        EXPECT_LE(value, limits.cy) << item->nodeName.constData();
    }
};

TEST_F(ShippedTreeTest, HasAtLeast150OptionsIn8To12GroupsAndEveryKindOfRow) {
    open();
    EXPECT_GE(options().size(), 150u);
    const int groups = dialog->tree->topLevelItem(0)->childCount();
    EXPECT_GE(groups, 8);
    EXPECT_LE(groups, 12);
    std::set<int> kinds;
    for (TreeItem* item : options())
        kinds.insert(item->nodeType);
    EXPECT_EQ(kinds, (std::set<int>{0, 1, 2, 4, 5, 7, 8, 9, 10, 11, 12, 13}));
    EXPECT_TRUE(dialog->cursorColorItem);
    EXPECT_TRUE(dialog->paperRootItem);
}

TEST_F(ShippedTreeTest, EveryOptionHasTheEditorOfItsKind) {
    open();
    for (TreeItem* item : options()) {
        ASSERT_TRUE(editorOf(item)) << item->nodeName.constData();
        const bool fits = item->nodeType == kNodeCheck         ? editorOf<QCheckBox>(item) != nullptr
                          : item->nodeType <= kNodeRadioCursor ? editorOf<QRadioButton>(item) != nullptr
                          : item->nodeType <= kNodeAcColor     ? editorOf<QToolButton>(item) != nullptr
                          : item->nodeType == kNodeEditInt     ? editorOf<QSpinBox>(item) != nullptr
                          : item->nodeType == kNodeEditReal    ? editorOf<QDoubleSpinBox>(item) != nullptr
                          : item->nodeType == kNodeCombo       ? editorOf<QComboBox>(item) != nullptr
                                                               : editorOf<QLineEdit>(item) != nullptr;
        EXPECT_TRUE(fits) << item->nodeName.constData();
    }
}

TEST_F(ShippedTreeTest, EveryRowHasATextAndADescription) {
    open();
    for (TreeItem* item : dataRows()) {
        if (item == dialog->tree->topLevelItem(0))
            continue; // the root is the dialog's own row
        const QString label = dialog->rowWidgets.value(item)->label()->text();
        EXPECT_FALSE(label.isEmpty()) << item->nodeName.constData();
        EXPECT_FALSE(item->description.isEmpty()) << item->nodeName.constData();
        EXPECT_NE(item->description, label) << item->nodeName.constData();
    }
}

TEST_F(ShippedTreeTest, NodeNamesAreUniqueSoThatEachBranchRemembersItsOwnExpansion) {
    open();
    std::set<std::string> names;
    for (TreeItem* item : dataRows())
        EXPECT_TRUE(names.insert(item->nodeName.toStdString()).second) << item->nodeName.constData();
}

TEST_F(ShippedTreeTest, EveryOptionHasAStore) {
    open();
    for (TreeItem* item : options()) {
        CXString key, section, store;
        ASSERT_TRUE(findStore(nodeOf(item), dialog->parentNode(item), key, section, store))
            << item->nodeName.constData();
        EXPECT_FALSE(key.isEmpty()) << item->nodeName.constData();
        if (store.Compare(kStoreSysVar) == 0) {
            EXPECT_TRUE(isKnownVariable(key)) << key.c_str();
        } else {
            EXPECT_STREQ(store.c_str(), kStoreProfile) << item->nodeName.constData();
            EXPECT_FALSE(section.isEmpty()) << item->nodeName.constData();
        }
    }
}

TEST_F(ShippedTreeTest, EveryNumberHasADefaultWithinItsLimits) {
    open();
    for (TreeItem* item : options()) {
        if (item->nodeType == kNodeEditInt) {
            int value = 0;
            EXPECT_TRUE(readValue(nodeOf(item), "Default", &value)) << item->nodeName.constData();
            expectWithin(item, value, tagSIZE{0, 0x7FFFFFFF});
        } else if (item->nodeType == kNodeEditReal) {
            double value = 0;
            EXPECT_TRUE(readValue(nodeOf(item), "Default", &value)) << item->nodeName.constData();
            expectWithin(item, value, tagRSIZE{0, 2147483647.0});
        }
    }
}

TEST_F(ShippedTreeTest, EveryOtherOptionHasADefaultOfItsKindThatItsEditorTakes) {
    open();
    for (TreeItem* item : options()) {
        IParam* const node = nodeOf(item);
        const char* const name = item->nodeName.constData();
        int number = 0;
        unsigned int color = 0;
        CKWVariant text;
        switch (item->nodeType) {
        case kNodeCheck:
        case kNodeAcColor:
            EXPECT_TRUE(readValue(node, "Default", &number)) << name;
            break;
        case kNodeColor:
            EXPECT_TRUE(readValue(node, "Default", &color)) << name;
            break;
        case kNodeEdit:
        case kNodeEditFile:
        case kNodeEditMultiFile:
        case kNodeEditDir:
            EXPECT_TRUE(node->getValue("Default", &text)) << name;
            EXPECT_TRUE(text.vt == kVtString || text.vt == kVtWideString) << name;
            break;
        case kNodeCombo:
            EXPECT_TRUE(isOfferedByDefault(item)) << name;
            break;
        default: // numbers have a test of their own, radios have no default
            break;
        }
    }
}

TEST_F(ShippedTreeTest, EveryNumberIsShownAsItIsKept) {
    open();
    for (TreeItem* item : options()) {
        const auto* whole = editorOf<QSpinBox>(item);
        const auto* real = editorOf<QDoubleSpinBox>(item);
        if (whole || real) {
            EXPECT_EQ(whole ? whole->value() : real->value(), item->numberValue)
                << item->nodeName.constData();
        }
    }
}

TEST_F(ShippedTreeTest, EveryComboShowsAnEntryAndEveryRadioGroupHasASelectedOne) {
    open();
    std::map<TreeItem*, int> selected;
    for (TreeItem* item : options()) {
        if (auto* box = editorOf<QComboBox>(item)) {
            EXPECT_GE(box->count(), 2) << item->nodeName.constData();
            EXPECT_GE(box->currentIndex(), 0) << item->nodeName.constData();
        }
        if (editorOf<QRadioButton>(item))
            selected[item->parentItem()] += item->state;
    }
    for (const auto& [group, count] : selected)
        EXPECT_EQ(count, 1) << group->nodeName.constData();
}

TEST_F(ShippedTreeTest, EveryChangeSurvivesOkAndReopening) {
    open();
    const std::vector<std::string> changed = changeEverything();
    EXPECT_GT(changed.size(), 150u);
    const auto expected = shownByName();
    dialog->okButton->click();
    open();
    expectShown(expected);
}

TEST_F(ShippedTreeTest, TheRowsThatSwitchOthersSurviveTooInBothPositions) {
    for (int round = 0; round < 2; ++round) {
        open();
        for (TreeItem* item : options())
            if (auto* check = editorOf<QCheckBox>(item); check && item->isEnabled() && item->childCount() > 0)
                check->click();
        const auto expected = shownByName();
        dialog->okButton->click();
        open();
        expectShown(expected);
    }
}

TEST_F(ShippedTreeTest, OkWithoutAChangeKeepsWhatEveryRowShows) {
    open();
    const auto expected = shownByName();
    dialog->okButton->click();
    open();
    expectShown(expected);
    const QString profile = profileText();
    dialog->okButton->click();
    EXPECT_EQ(profileText(), profile);
}

TEST_F(ShippedTreeTest, CancelWritesNothing) {
    open();
    const QString profile = profileText();
    changeEverything();
    dialog->cancelButton->click();
    EXPECT_EQ(profileText(), profile);
    EXPECT_TRUE(variablesChanged.empty());
    EXPECT_TRUE(host.stdDirs().stored.empty());
}

} // namespace
