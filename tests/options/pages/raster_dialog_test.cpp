// The dialog for one raster format.
#include "options/pages/raster/raster_dialog.h"

#include "host/mnemonics.h"
#include "host/typed_reads.h"
#include "tests/options/pages/raster_fixture.h"
#include "tests/support/letters.h"
#include "tests/support/test_habits.h"

#include <QLabel>
#include <QLayout>
#include <QTranslator>

namespace {

class RasterDialogs : public RasterFixture {
protected:
    RasterDialogs() : params(Ref<IParam>::take(new_MemParam())) {
        setValue(params, "Description", L"Tagged");
        setValue(params, "DefExt", "tif");
    }
    RasterFormat make() { return RasterFormat("old", params); }
    void press(RasterDialog& dialog, const char* button) { clickOn(dialog, button); }

    Ref<IParam> params;
};

const QString allNameCharacters = "\t\r\n/\\:.+-*=,~!@#$%^&(){}[]|?'\"`";

// Translates every text to its context.
class ContextTranslator : public QTranslator {
public:
    QString translate(const char* context, const char*, const char*, int) const override { return context; }
    bool isEmpty() const override { return false; }
};

} // namespace

TEST_F(RasterDialogs, ShowsTheRecordWithTheCursorsAtTheStart) {
    RasterFormat format = make();
    RasterDialog dialog(nullptr, &format, false);
    EXPECT_EQ(editText(dialog, "nameEdit"), "old");
    EXPECT_EQ(editText(dialog, "descriptionEdit"), "Tagged");
    EXPECT_EQ(editText(dialog, "extensionEdit"), "tif");
    for (const QLineEdit* edit : {dialog.nameEdit, dialog.descriptionEdit, dialog.extensionEdit})
        EXPECT_EQ(edit->cursorPosition(), 0);
    EXPECT_EQ(dialog.minimumSize(), QSize(400, 100));
    EXPECT_EQ(dialog.maximumSize(), QSize(400, 100));
    EXPECT_FALSE(dialog.windowFlags() & Qt::WindowContextHelpButtonHint);
}

TEST_F(RasterDialogs, LabelsAndButtonsReadAsTheyShould) {
    RasterFormat format = make();
    RasterDialog dialog(nullptr, &format, true);
    QStringList labels;
    for (const QLabel* label : dialog.findChildren<QLabel*>())
        labels << label->text();
    EXPECT_EQ(labels, (QStringList{"Name:", "Description:", "Extension:"}));
    EXPECT_EQ(dialog.okButton->text(), "OK");
    EXPECT_EQ(dialog.cancelButton->text(), "Cancel");
    EXPECT_EQ(dialog.optionsButton->text(), "Options...");
}

TEST_F(RasterDialogs, EachEditHasALetterInAHostThatWantsThem) {
    const TestHabits habits{{DialogHabit::Mnemonics}};
    RasterFormat format = make();
    RasterDialog dialog(nullptr, &format, true);
    giveMnemonics(dialog);
    dialog.show();
    EXPECT_EQ(textsWithLetters(dialog).size(), 6);
    expectLetters(dialog);
}

TEST_F(RasterDialogs, EachEditStandsBehindItsLabelAndTheButtonsStandInAColumnBehindTheEdits) {
    RasterFormat format = make();
    RasterDialog dialog(nullptr, &format, true);
    dialog.show();
    const QList<QLabel*> labels = dialog.findChildren<QLabel*>();
    const QList<QLineEdit*> edits{dialog.nameEdit, dialog.descriptionEdit, dialog.extensionEdit};
    const QList<QPushButton*> buttons{dialog.okButton, dialog.cancelButton, dialog.optionsButton};
    for (int i = 0; i < 3; ++i) {
        EXPECT_LT(labels[i]->geometry().right(), edits[i]->geometry().left());
        EXPECT_TRUE(labels[i]->geometry().intersects(edits[i]->geometry().adjusted(-400, 0, 0, 0)));
        EXPECT_GT(buttons[i]->geometry().left(), edits[i]->geometry().right());
        if (i == 0)
            continue;
        EXPECT_EQ(edits[i]->geometry().left(), edits[0]->geometry().left());
        EXPECT_GT(edits[i]->geometry().top(), edits[i - 1]->geometry().bottom());
        EXPECT_GT(buttons[i]->geometry().top(), buttons[i - 1]->geometry().bottom());
    }
    const QLayout* column = dialog.layout()->itemAt(1)->layout();
    EXPECT_TRUE(column->itemAt(3)->spacerItem()) << "the buttons stay at the top";
}

TEST_F(RasterDialogs, ItsWordsAreTranslatedAsThoseOfAPlainDialog) {
    ContextTranslator translator;
    QCoreApplication::installTranslator(&translator);
    RasterFormat format = make();
    RasterDialog dialog(nullptr, &format, true);
    EXPECT_EQ(dialog.okButton->text(), "QDialog");
    QCoreApplication::removeTranslator(&translator);
}

TEST_F(RasterDialogs, TheNameOfAnExistingFormatCannotBeEdited) {
    RasterFormat format = make();
    RasterDialog dialog(nullptr, &format, false);
    QTest::keyClicks(dialog.nameEdit, "new");
    press(dialog, "okButton");
    EXPECT_FALSE(dialog.nameEdit->isEnabled());
    EXPECT_STREQ(format.name, "old");
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
}

TEST_F(RasterDialogs, TheExtensionOfAGenericFormatCannotBeEdited) {
    RasterFormat format = make();
    EXPECT_FALSE(RasterDialog(nullptr, &format, false).extensionEdit->isEnabled());
    format.generic = 0;
    EXPECT_TRUE(RasterDialog(nullptr, &format, false).extensionEdit->isEnabled());
}

TEST_F(RasterDialogs, AFormatWithoutSettingsOffersNoOptions) {
    RasterFormat format = make();
    EXPECT_TRUE(RasterDialog(nullptr, &format, false).optionsButton->isEnabled());
    format.canSetup = 0;
    EXPECT_FALSE(RasterDialog(nullptr, &format, false).optionsButton->isEnabled());
}

TEST_F(RasterDialogs, ADotInANewNameIsRefusedAndTheMessageListsAllCharacters) {
    RasterFormat format = make();
    RasterDialog dialog(nullptr, &format, true);
    typeInto(dialog, "nameEdit", "a.b");
    press(dialog, "okButton");
    ASSERT_EQ(host.messages.size(), 1u);
    EXPECT_EQ(allNameCharacters.size(), 31);
    EXPECT_EQ(host.messages[0].kind, standin::MessageKind::Critical);
    EXPECT_EQ(host.messages[0].title, "Error!");
    EXPECT_EQ(host.messages[0].text,
              "Format name \"a.b\" is invalid. Please choose another one.\nThe following "
              "characters are not allowed: " +
                  allNameCharacters);
    EXPECT_EQ(int(host.messages[0].buttons), EV_MB_OK);
    EXPECT_STREQ(format.name, "old");
    EXPECT_EQ(dialog.result(), 0);
}

TEST_F(RasterDialogs, EachForbiddenCharacterOfANameIsRefused) {
    RasterFormat format = make();
    RasterDialog dialog(nullptr, &format, true);
    std::size_t refused = 0;
    for (const QChar character : allNameCharacters) {
        dialog.nameEdit->setText(QString("a") + character);
        press(dialog, "okButton");
        // A line edit turns line breaks into blanks as it takes them.
        if (dialog.nameEdit->text().contains(character))
            EXPECT_EQ(host.messages.size(), ++refused) << character.unicode();
        else
            EXPECT_EQ(host.messages.size(), refused) << character.unicode();
    }
    EXPECT_GE(refused, 29u);
}

TEST_F(RasterDialogs, EachForbiddenCharacterOfAnExtensionIsRefused) {
    RasterFormat format = make();
    format.generic = 0;
    RasterDialog dialog(nullptr, &format, false);
    std::size_t refused = 0;
    for (const QChar character : QStringLiteral("/\\:.*|?")) {
        dialog.extensionEdit->setText(QString("x") + character);
        press(dialog, "okButton");
        ASSERT_EQ(host.messages.size(), ++refused);
        EXPECT_EQ(host.messages.back().text,
                  QString("Format extension \"x") + character +
                      "\" is invalid. Please choose another one.\nThe following characters are not allowed: "
                      "/\\:.*|?");
    }
    EXPECT_EQ(dialog.result(), 0);
}

TEST_F(RasterDialogs, APlaceholderInWhatWasTypedDoesNotSpoilTheMessage) {
    RasterFormat format = make();
    RasterDialog dialog(nullptr, &format, true);
    typeInto(dialog, "nameEdit", "%2");
    press(dialog, "okButton");
    ASSERT_EQ(host.messages.size(), 1u);
    EXPECT_TRUE(host.messages[0].text.startsWith("Format name \"%2\" is invalid."));
}

TEST_F(RasterDialogs, ARefusedExtensionLeavesTheNewNameInTheRecord) {
    RasterFormat format = make();
    format.generic = 0;
    RasterDialog dialog(nullptr, &format, true);
    typeInto(dialog, "nameEdit", "new");
    typeInto(dialog, "descriptionEdit", "Other");
    typeInto(dialog, "extensionEdit", "a/b");
    press(dialog, "okButton");
    EXPECT_STREQ(format.name, "new");
    EXPECT_STREQ(format.defExt, "tif");
    EXPECT_EQ(hostqt::qString(format.description), "Tagged");
}

TEST_F(RasterDialogs, ABadExtensionIsRefusedEvenWhenItCannotBeEdited) {
    RasterFormat format = make();
    format.defExt = "a.b";
    RasterDialog dialog(nullptr, &format, false);
    press(dialog, "okButton");
    EXPECT_EQ(host.messages.size(), 1u);
    EXPECT_EQ(dialog.result(), 0);
}

TEST_F(RasterDialogs, OkTakesNameExtensionAndDescription) {
    RasterFormat format = make();
    format.generic = 0;
    RasterDialog dialog(nullptr, &format, true);
    typeInto(dialog, "nameEdit", "new name");
    typeInto(dialog, "extensionEdit", "x");
    typeInto(dialog, "descriptionEdit", "Other. Words/too");
    press(dialog, "okButton");
    EXPECT_STREQ(format.name, "new name");
    EXPECT_STREQ(format.defExt, "x");
    EXPECT_EQ(hostqt::qString(format.description), "Other. Words/too");
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_TRUE(host.messages.empty());
}

TEST_F(RasterDialogs, CancelTakesNothing) {
    RasterFormat format = make();
    RasterDialog dialog(nullptr, &format, true);
    typeInto(dialog, "nameEdit", "new");
    typeInto(dialog, "descriptionEdit", "Other");
    press(dialog, "cancelButton");
    EXPECT_STREQ(format.name, "old");
    EXPECT_EQ(hostqt::qString(format.description), "Tagged");
    EXPECT_EQ(dialog.result(), QDialog::Rejected);
}

TEST_F(RasterDialogs, OptionsMakesItsSectionAndShowsNothing) {
    RasterFormat format = make();
    RasterDialog dialog(nullptr, &format, false);
    EXPECT_FALSE(openChild(params.get(), "Options"));
    press(dialog, "optionsButton");
    EXPECT_TRUE(openChild(params.get(), "Options"));
    EXPECT_TRUE(host.messages.empty());
    EXPECT_EQ(dialog.result(), 0);
}

TEST_F(RasterDialogs, OptionsLooksUpTheFormatAndKeepsNothing) {
    // A node that is its own section "Options" and notes what is read from it.
    struct NotingOptions : standin::MemParam {
        IParam* openSection(const char* name, int) override {
            opened << QString(name);
            return Ref<IParam>::share(this).detach();
        }
        int getValue(const char* name, tagKWVARIANT* out) override {
            read << QString(name);
            return standin::MemParam::getValue(name, out);
        }
        QStringList opened, read;
    };
    const auto node = Ref<NotingOptions>::share(new NotingOptions);
    RasterFormat format("old", Ref<IParam>::share(node.get()));
    RasterDialog dialog(nullptr, &format, false);
    node->read.clear();
    press(dialog, "optionsButton");
    EXPECT_EQ(node->opened, QStringList{"Options"});
    EXPECT_EQ(node->read, QStringList{"Format"});
    EXPECT_EQ(node->AddRef(), 3) << "of this test, the format and this call";
    node->Release();
}

TEST_F(RasterDialogs, TheModuleOfTheSettingsIsFoundInAnyLetterCase) {
    EXPECT_STREQ(rasterSettingsModule("JPG"), "jpegqt.dll");
    EXPECT_STREQ(rasterSettingsModule("jpeg"), "jpegqt.dll");
    EXPECT_STREQ(rasterSettingsModule("Ecw"), "ecwqt.dll");
    EXPECT_STREQ(rasterSettingsModule("tif"), "tiffqt.dll");
    EXPECT_EQ(rasterSettingsModule("tiff"), nullptr);
    EXPECT_EQ(rasterSettingsModule(""), nullptr);
}

TEST_F(RasterDialogs, ANewFormatStartsWithWordsThatTellWhatToType) {
    host.translations[L"<< Put new format name here >>"] = L"<< Name >>";
    addFormat(1, "tif");
    open();
    select(row("tif"));
    whenDialogOpens([this](QDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "Add Raster Format");
        EXPECT_EQ(dialog.parentWidget(), preferences.get());
        EXPECT_EQ(editText(dialog, "nameEdit"), "<< Name >>");
        EXPECT_EQ(editText(dialog, "descriptionEdit"), "<< Put new format description here >>");
        EXPECT_EQ(editText(dialog, "extensionEdit"), "tif");
        EXPECT_TRUE(named<QLineEdit>(dialog, "nameEdit")->isEnabled());
        EXPECT_TRUE(named<QLineEdit>(dialog, "extensionEdit")->isEnabled());
        clickOn(dialog, "cancelButton");
    });
    click(preferences->addButton);
    EXPECT_EQ(dialogsOpened, 1);
}
