// The jobs done from start to end in the real workbench without a mouse: every key goes to whatever has the
// focus.
#include "sdk/db/block_reference.h"
#include "sdk/db/block_table.h"
#include "sdk/db/dictionary.h"
#include "sdk/db/group.h"
#include "sdk/db/summary_info.h"
#include "tests/e2e/workbench_fixture.h"
#include "tests/support/letters.h"

#include <QComboBox>
#include <QLineEdit>
#include <QSpinBox>
#include <QTreeWidget>

namespace {

struct KeyboardTest : WorkbenchFixture {
    using Steps = std::vector<std::function<void()>>;

    static QWidget* window() {
        QWidget* const dialog = QApplication::activeModalWidget();
        return dialog ? dialog : QApplication::activeWindow();
    }
    static QWidget* focused() {
        QWidget* const focus = window()->focusWidget();
        if (!focus)
            throw std::logic_error("nothing has the focus");
        return focus;
    }
    static QString focusName() { return focused()->objectName(); }
    static void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(focused(), Qt::Key(key), modifiers);
        QCoreApplication::processEvents();
    }
    // Later, so that what the key starts may wait for the next step.
    void pressLater(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTimer::singleShot(0, bench.get(), [key, modifiers] { press(key, modifiers); });
    }
    // In place of what the field holds.
    static void typeAnew(const QString& text) {
        press(Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(focused(), text);
    }
    static void tabTo(const char* name) {
        for (int steps = 0; focusName() != QLatin1String(name) && steps < 60; ++steps)
            press(Qt::Key_Tab);
        ASSERT_EQ(focusName().toStdString(), name)
            << "Tab does not get there but to " << focused()->metaObject()->className();
    }
    static void chooseFile(const QString& path) {
        tabTo("fileNameEdit");
        QTest::keyClicks(focused(), path);
        press(Qt::Key_Return);
    }
};

TEST_F(KeyboardTest, AReferenceIsChosenTurnedAndPlaced) {
    QTemporaryDir drawings;
    const QString part = drawings.filePath("part.dxf");
    QFile::copy(SHIPPED_DATA_DIR "/samples/part.dxf", part);
    QString unit;
    play({[this] { submit("XATTACH"); }, [&part] { chooseFile(part); },
          [this, &unit] {
              expectLetters(*window());
              tabTo("angleEdit");
              typeAnew("90");
              unit = window()->findChild<QLineEdit*>("unitEdit")->text();
              tabTo("okButton");
              pressLater(Qt::Key_Space);
          },
          [this] { submit("3,4"); }});
    EXPECT_NE(unit, "");
    const auto space = odrxCast<OdDbBlockTableRecord>(
        HostDocManager()->currentDocument()->database()->getModelSpaceId().safeOpenObject());
    const OdDbObjectIdArray ids = space->entityIds();
    ASSERT_EQ(ids.size(), 1u);
    const auto reference = odrxCast<OdDbBlockReference>(ids[0].safeOpenObject());
    EXPECT_NEAR(reference->rotation(), 1.5707963267948966, 1e-12);
    EXPECT_EQ(reference->position(), OdGePoint3d(3, 4, 0));
}

TEST_F(KeyboardTest, AnOptionIsSoughtChangedAndKept) {
    play({[this] { submit("QPREF"); },
          [] {
              expectLetters(*window());
              tabTo("searchEdit");
              QTest::keyClicks(focused(), "*ConsoleFontSize*");
              auto* const tree = window()->findChild<QTreeWidget*>("tree");
              ASSERT_TRUE(waitUntil([tree] { return tree->topLevelItem(0)->child(0)->isHidden(); }))
                  << "the search does not begin by itself";
              press(Qt::Key_Down);
              for (int rows = 0; focusName() == "tree" && rows < 40; ++rows) {
                  press(Qt::Key_Down);
                  if (tree->itemWidget(tree->currentItem(), 0)->findChild<QSpinBox*>("ConsoleFontSize"))
                      press(Qt::Key_F2);
              }
              ASSERT_EQ(focusName(), "ConsoleFontSize");
              typeAnew("19");
              press(Qt::Key_Return);
              ASSERT_EQ(focusName(), "tree");
              tabTo("okButton");
              press(Qt::Key_Space);
          }});
    EXPECT_EQ(part<QWidget>("transcriptView")->font().pointSize(), 19);
}

TEST_F(KeyboardTest, AProfileIsChosenAndLeftAgain) {
    const auto toolBarIsShown = [] {
        int shown = 1;
        readValue(openChild(appService<IProfile>().get(), "Workbench").get(), "ShowToolBar", &shown);
        return shown != 0;
    };
    const auto chooseProfile = [](int key) {
        tabTo("profileCombo");
        press(key);
        tabTo("cancelButton");
        press(Qt::Key_Space);
    };
    play({[this] { submit("QPREF"); }, [&] { chooseProfile(Qt::Key_End); }});
    part<QAction>("ShowToolBar")->trigger();
    EXPECT_FALSE(toolBarIsShown());
    play({[this] { submit("QPREF"); }, [&] { chooseProfile(Qt::Key_Home); }});
    EXPECT_TRUE(toolBarIsShown());
    EXPECT_TRUE(part<QWidget>("toolBar")->isVisible()) << "the window follows the profile";
    play({[this] { submit("QPREF"); }, [&] { chooseProfile(Qt::Key_End); }});
    EXPECT_FALSE(part<QWidget>("toolBar")->isVisible());
}

TEST_F(KeyboardTest, AProfileIsMadeFromTheMenuOfItsButton) {
    QStringList profiles;
    play({[this] { submit("QPREF"); },
          [this] {
              tabTo("profileButton");
              pressLater(Qt::Key_Space);
          },
          [this] {
              ASSERT_NE(QApplication::activePopupWidget(), nullptr) << "Space opens the menu";
              QTimer::singleShot(0, bench.get(),
                                 [] { QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_N); });
          },
          [] {
              QTest::keyClicks(focused(), "Plans");
              press(Qt::Key_Return);
          },
          [&] {
              const auto* const combo = window()->findChild<QComboBox*>("profileCombo");
              for (int i = 0; i < combo->count(); ++i)
                  profiles << combo->itemText(i);
              EXPECT_EQ(combo->currentText(), "Plans");
              tabTo("cancelButton");
              press(Qt::Key_Space);
          }});
    EXPECT_TRUE(profiles.contains("Plans")) << profiles.join(' ').toStdString();
}

TEST_F(KeyboardTest, APropertyIsAddedChangedAndKept) {
    play({[this] { submit("DWGPROPS"); },
          [this] {
              for (int tab = 0; tab < 5; ++tab) {
                  expectLetters(*window());
                  press(Qt::Key_Tab, Qt::ControlModifier);
              }
              press(Qt::Key_PageDown, Qt::ControlModifier);
              tabTo("titleEdit");
              typeAnew("Plan");
              press(Qt::Key_PageDown, Qt::ControlModifier);
              press(Qt::Key_PageDown, Qt::ControlModifier);
              tabTo("addButton");
              pressLater(Qt::Key_Space);
          },
          [] {
              expectLetters(*window());
              QTest::keyClicks(focused(), "Project");
              press(Qt::Key_Tab);
              QTest::keyClicks(focused(), "old");
              press(Qt::Key_Return);
          },
          [] {
              tabTo("table");
              press(Qt::Key_F2);
              typeAnew("new");
              press(Qt::Key_Return);
              tabTo("okButton");
              press(Qt::Key_Space);
          }});
    const OdDbDatabaseSummaryInfoPtr info =
        oddbGetSummaryInfo(HostDocManager()->currentDocument()->database().get());
    OdString name, text;
    ASSERT_EQ(info->numCustomInfo(), 1);
    info->getCustomSummaryInfo(0, name, text);
    EXPECT_EQ(info->getTitle(), OdString(L"Plan"));
    EXPECT_EQ(name, OdString(L"Project"));
    EXPECT_EQ(text, OdString(L"new"));
}

TEST_F(KeyboardTest, AGroupIsMadeOrderedAndRenamed) {
    play({[this] { submit("OPEN"); }, [] { chooseFile(SHIPPED_DATA_DIR "/samples/part.dxf"); },
          [this] { submit("GROUP"); },
          [this] {
              expectLetters(*window());
              ASSERT_EQ(focusName(), "nameEdit");
              typeAnew("all");
              tabTo("newButton");
              pressLater(Qt::Key_Space);
          },
          [this] { submit("All"); }, [this] { submit(""); },
          [this] {
              tabTo("nameEdit");
              EXPECT_EQ(window()->findChild<QLineEdit*>("nameEdit")->text(), "ALL");
              typeAnew("whole");
              tabTo("renameButton");
              press(Qt::Key_Space);
              tabTo("reorderButton");
              pressLater(Qt::Key_Space);
          },
          [this] {
              expectLetters(*window());
              tabTo("reverseButton");
              press(Qt::Key_Space);
              tabTo("okButton");
              pressLater(Qt::Key_Space);
          },
          [this] {
              tabTo("okButton");
              pressLater(Qt::Key_Space);
          }});
    const OdDbDatabasePtr drawing = HostDocManager()->currentDocument()->database();
    const auto groups = odrxCast<OdDbDictionary>(drawing->getGroupDictionaryId(true).safeOpenObject());
    ASSERT_TRUE(groups->has(L"WHOLE"));
    const auto space = odrxCast<OdDbBlockTableRecord>(drawing->getModelSpaceId().safeOpenObject());
    OdDbObjectIdArray members, reversed = space->entityIds();
    odrxCast<OdDbGroup>(groups->getAt(L"WHOLE").safeOpenObject())->allEntityIds(members);
    std::reverse(reversed.begin(), reversed.end());
    EXPECT_EQ(members, reversed);
}

} // namespace
