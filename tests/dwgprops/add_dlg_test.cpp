// Adding a custom property, with the checks of its name.
#include "tests/dwgprops/dialog_driver.h"

#include "dwgprops/add_dlg.h"
#include "host/property_names.h"

namespace {

class AddProperty : public DrawingProperties {
protected:
    // Opens the dialog, types and presses OK; when it stays open, cancels it.
    void add(const QString& name, const QString& value) {
        onNextDialog<AddDlg>([=](AddDlg& add) {
            waitUntil([&add] { return add.isActiveWindow(); });
            EXPECT_EQ(add.findChild<QLineEdit*>("nameEdit"), add.nameEdit);
            EXPECT_EQ(add.findChild<QLineEdit*>("valueEdit"), add.valueEdit);
            EXPECT_EQ(add.findChild<QPushButton*>("okButton"), add.okButton);
            EXPECT_EQ(add.findChild<QPushButton*>("cancelButton"), add.cancelButton);
            add.nameEdit->setText(name);
            add.valueEdit->setText(value);
            add.valueEdit->setFocus();
            QTest::mouseClick(add.okButton, Qt::LeftButton);
            stayedOpen = add.isVisible();
            nameHadFocus = add.nameEdit->hasFocus();
            if (stayedOpen)
                add.reject();
        });
        QTest::mouseClick(dialog.control<QAbstractButton>("addButton"), Qt::LeftButton);
    }
    void expectRefusal(const QString& name, const QString& text) {
        host.messages.clear();
        const Properties before = shown();
        add(name, "value");
        ASSERT_EQ(host.messages.size(), 1U);
        EXPECT_EQ(host.messages[0].kind, standin::MessageKind::Critical);
        EXPECT_EQ(host.messages[0].title, QStringLiteral("Warning"));
        EXPECT_EQ(host.messages[0].text, text);
        EXPECT_EQ(host.messages[0].buttons, 0x400);
        EXPECT_TRUE(stayedOpen);
        EXPECT_TRUE(nameHadFocus);
        EXPECT_EQ(shown(), before);
    }
    Properties shown() const { return shownProperties(*dialog.customTable()); }

    OpenProperties dialog{kCustom};
    bool stayedOpen = false;
    bool nameHadFocus = false;
};

const QString forbiddenText = QStringLiteral("The name contains unsupported characters.\n"
                                             "The following characters are not supported:\n<>/\\\":;?*|,=`");

} // namespace

TEST_F(AddProperty, NewPropertyStandsAfterTheNamedRows) {
    add("first", "1");
    add("second", "2");
    EXPECT_FALSE(stayedOpen);
    EXPECT_EQ(shown(), (Properties{{"first", "1"}, {"second", "2"}}));
    EXPECT_EQ(dialog.customTable()->rowCount(), 10);
}

TEST_F(AddProperty, NewPropertyReachesTheDrawingOnOk) {
    add("%1", "%2 <b>");
    dialog.click("okButton");
    EXPECT_EQ(properties(), (Properties{{"%1", "%2 <b>"}}));
}

TEST_F(AddProperty, TheEleventhPropertyAddsARow) {
    for (int i = 0; i < 11; ++i)
        add(QStringLiteral("n%1").arg(i), {});
    EXPECT_EQ(dialog.customTable()->rowCount(), 11);
    EXPECT_EQ(shown().size(), 11U);
}

TEST_F(AddProperty, APropertyAddedInTheSelectedBlankRowCanBeDeletedAtOnce) {
    dialog.customTable()->selectRow(0);
    EXPECT_FALSE(dialog.control<QWidget>("deleteButton")->isEnabled());
    add("first", "1");
    EXPECT_TRUE(dialog.control<QWidget>("deleteButton")->isEnabled());
}

TEST_F(AddProperty, CancelAddsNothing) {
    onNextDialog<AddDlg>([](AddDlg& add) {
        add.nameEdit->setText("name");
        QTest::mouseClick(add.cancelButton, Qt::LeftButton);
    });
    dialog.click("addButton");
    EXPECT_EQ(shown(), Properties());
}

TEST_F(AddProperty, DialogOpensWithItsTitleAndSizeAndTheFocusOnTheName) {
    QString title;
    QSize size;
    bool helpHint = true, nameFocused = false;
    onNextDialog<AddDlg>([&](AddDlg& add) {
        waitUntil([&] { return add.nameEdit->hasFocus(); });
        title = add.windowTitle();
        size = add.size();
        helpHint = add.windowFlags() & Qt::WindowContextHelpButtonHint;
        nameFocused = add.nameEdit->hasFocus();
        add.reject();
    });
    dialog.click("addButton");
    EXPECT_EQ(title, QStringLiteral("Add Custom Property"));
    EXPECT_EQ(size, QSize(290, 180));
    EXPECT_FALSE(helpHint);
    EXPECT_TRUE(nameFocused);
}

TEST_F(AddProperty, DialogHasItsTextsFromTopToBottom) {
    QStringList texts;
    int okAt = 0, cancelAt = 0;
    bool inOrder = false;
    onNextDialog<AddDlg>([&](AddDlg& add) {
        for (const QLabel* label : add.findChildren<QLabel*>())
            texts << label->text();
        texts << add.okButton->text() << add.cancelButton->text();
        const auto labels = add.findChildren<QLabel*>();
        inOrder = labels[0]->y() < add.nameEdit->y() && add.nameEdit->y() < labels[1]->y() &&
                  labels[1]->y() < add.valueEdit->y() && add.valueEdit->y() < add.okButton->y();
        okAt = add.okButton->x();
        cancelAt = add.cancelButton->x();
        add.reject();
    });
    dialog.click("addButton");
    EXPECT_EQ(texts, QStringList({"Custom property name:", "Value:", "OK", "Cancel"}));
    EXPECT_TRUE(inOrder);
    EXPECT_GT(okAt, 290 / 4) << "the buttons stand at the right";
    EXPECT_GT(cancelAt, okAt);
}

TEST_F(AddProperty, ANameOf255CharactersPasses) {
    add(QString(255, 'n'), "value");
    EXPECT_TRUE(host.messages.empty());
    EXPECT_EQ(shown(), (Properties{{QString(255, 'n'), "value"}}));
}

TEST_F(AddProperty, ANameOf256CharactersFailsAndTheTextTellsTheNumber255) {
    expectRefusal(QString(256, 'n'), "This name is too long. Maximum length is 255 characters.");
}

TEST_F(AddProperty, LengthIsCheckedBeforeEverythingElse) {
    expectRefusal(QString(256, ' '), "This name is too long. Maximum length is 255 characters.");
}

TEST_F(AddProperty, AnEmptyOrBlankNameFails) {
    expectRefusal("", "This name must be at least one char long.");
    expectRefusal("   ", "This name must be at least one char long.");
}

TEST_F(AddProperty, ANameOfATabIsNotBlankAndIsTrimmedAway) {
    add("\t", "value");
    EXPECT_TRUE(host.messages.empty());
    EXPECT_EQ(shown(), (Properties{{"", "value"}}));
}

TEST_F(AddProperty, ANameThatTheHostDoesNotTakeIsRefusedAsBlank) {
    class OnlyX : public CKWUnknownImpl<IPropertyNames> {
        bool isName(const wchar_t* text) override { return text == std::wstring(L"x"); }
    };
    static_cast<standin::ServiceHub*>(host.application())->add(Ref<IPropertyNames>::share(new OnlyX));
    expectRefusal("\t", "This name must be at least one char long.");
    add("x", "value");
    EXPECT_EQ(shown(), (Properties{{"x", "value"}}));
}

TEST_F(AddProperty, ANameInUseFailsWithItsText) {
    add("a%1", "1");
    expectRefusal("a%1", "The name,a%1, is already in use.\nYou will need to enter a different name.");
}

// As many rows count as have names, from the first row on, wherever the named ones stand.
TEST_F(AddProperty, BehindARowWithoutANameTheLastNameIsNeitherComparedNorKept) {
    setProperties({{"a", "1"}, {"b", "2"}});
    OpenProperties other(kCustom);
    other.customTable()->item(0, 0)->setText("");
    onNextDialog<AddDlg>([](AddDlg& add) {
        add.nameEdit->setText("b");
        QTest::mouseClick(add.okButton, Qt::LeftButton);
        if (add.isVisible())
            add.reject();
    });
    other.click("addButton");
    EXPECT_TRUE(host.messages.empty());
    EXPECT_EQ(shownProperties(*other.customTable()), (Properties{{"", "1"}, {"b", ""}}));
}

TEST_F(AddProperty, NamesAreComparedExactlyAndWithCase) {
    add("name", "1");
    add("Name", "2");
    EXPECT_EQ(shown(), (Properties{{"name", "1"}, {"Name", "2"}}));
}

TEST_F(AddProperty, ANameInUseIsToldBeforeItsForbiddenCharacters) {
    setProperties({{"a:b", "1"}});
    OpenProperties other(kCustom);
    onNextDialog<AddDlg>([](AddDlg& add) {
        add.nameEdit->setText("a:b");
        QTest::mouseClick(add.okButton, Qt::LeftButton);
        add.reject();
    });
    other.click("addButton");
    ASSERT_EQ(host.messages.size(), 1U);
    EXPECT_TRUE(host.messages[0].text.startsWith("The name,a:b, is already in use."));
}

TEST_F(AddProperty, EachOfTheThirteenForbiddenCharactersFails) {
    for (const QChar c : QStringLiteral("<>/\\\":;?*|,=`"))
        expectRefusal(QStringLiteral("a") + c, forbiddenText);
}

TEST_F(AddProperty, OtherSignsPass) {
    add("!#$%&'()+-.@[]^_{}~ \u00e9\u0416", "1");
    EXPECT_TRUE(host.messages.empty());
    EXPECT_EQ(shown().size(), 1U);
}

TEST_F(AddProperty, ANameWithALeadingBlankPassesBesideTheSameNameAndBothReadAlike) {
    add("name", "1");
    add(" name", "2");
    EXPECT_TRUE(host.messages.empty());
    EXPECT_EQ(shown(), (Properties{{"name", "1"}, {"name", "2"}}));
}

TEST_F(AddProperty, ValueIsTrimmedUnlessItIsAllBlanks) {
    add("a", "  1 ");
    add("b", "   ");
    EXPECT_EQ(shown(), (Properties{{"a", "1"}, {"b", "   "}}));
}

TEST_F(AddProperty, ARefusedNameCanBeMended) {
    onNextDialog<AddDlg>([](AddDlg& add) {
        QTest::mouseClick(add.okButton, Qt::LeftButton);
        QTest::keyClicks(add.nameEdit, "mended");
        QTest::keyClick(add.nameEdit, Qt::Key_Return);
    });
    dialog.click("addButton");
    EXPECT_EQ(host.messages.size(), 1U);
    EXPECT_EQ(shown(), (Properties{{"mended", ""}}));
}

TEST_F(AddProperty, TheDialogLivesUntilItsTabGoes) {
    QPointer<AddDlg> kept;
    onNextDialog<AddDlg>([&](AddDlg& add) {
        kept = &add;
        add.reject();
    });
    dialog.click("addButton");
    EXPECT_FALSE(kept.isNull());
    EXPECT_EQ(kept->parentWidget(), dialog.control<QWidget>("customTab"));
}
