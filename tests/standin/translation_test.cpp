// Texts of the option data in the user's language.
#include "standin/translation/translation.h"

#include "host/app.h"
#include "standin/registry.h"

#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>
#include <QTranslator>
#include <array>
#include <gtest/gtest.h>

using standin::Catalogues;

namespace {

// Answers one text of the context "HostData".
class OneWord : public QTranslator {
public:
    OneWord() { QCoreApplication::installTranslator(this); }
    ~OneWord() override { QCoreApplication::removeTranslator(this); }
    QString translate(const char* context, const char* source, const char*, int) const override {
        const bool known = QByteArray(context) == "HostData" && QByteArray(source) == "Display";
        return known ? QStringLiteral("Größe") : QString();
    }
    bool isEmpty() const override { return false; }
};

TEST(Translation, TextOfTheOptionDataIsTranslated) {
    const Catalogues catalogues;
    const OneWord word;
    EXPECT_STREQ(Supp_Translate(L"Display"), L"Größe");
    EXPECT_STREQ(Supp_Translate("Display"), L"Größe");
}

TEST(Translation, UnknownTextIsItsOwnTranslation) {
    const Catalogues catalogues;
    EXPECT_STREQ(Supp_Translate(L"Größe 1%"), L"Größe 1%");
}

TEST(Translation, NullAndEmptyTextComeBackAsTheyAre) {
    const Catalogues catalogues;
    EXPECT_EQ(Supp_Translate(static_cast<const wchar_t*>(nullptr)), nullptr);
    EXPECT_STREQ(Supp_Translate(L""), L"");
}

TEST(Translation, ResultOutlivesTheTextAndOtherCalls) {
    const Catalogues catalogues;
    const wchar_t* kept;
    {
        const std::wstring text = L"short-lived";
        kept = Supp_Translate(text.c_str());
    }
    for (int i = 0; i < 1000; ++i)
        Supp_Translate(std::to_wstring(i).c_str());
    EXPECT_STREQ(kept, L"short-lived");
    EXPECT_EQ(kept, Supp_Translate(L"short-lived"));
}

TEST(Translation, FolderWithoutCataloguesLoadsNone) {
    const QTemporaryDir folder;
    Catalogues catalogues;
    EXPECT_EQ(catalogues.load(folder.path(), "de_DE"), 0);
}

QString fileFilter() {
    return QCoreApplication::translate("OdQCmd_hostAttachExternalReferenceCommand", "Drawing (*.dwg;)");
}

TEST(Translation, ShippedEnglishCatalogueServesEveryLanguageAndGoesWithTheHost) {
    ASSERT_EQ(fileFilter(), "Drawing (*.dwg;)");
    for (const QString language : {"en_US", "de_DE", "C"}) {
        Catalogues catalogues;
        EXPECT_EQ(catalogues.load(SHIPPED_CATALOGUES, language), 1) << qPrintable(language);
        EXPECT_EQ(fileFilter(), "Drawings (*.dxf);;All files (*)") << qPrintable(language);
    }
    EXPECT_EQ(fileFilter(), "Drawing (*.dwg;)");
}

TEST(Translation, CataloguesOfALanguageServeItsCountries) {
    const QTemporaryDir folder;
    const QString shipped = QDir(SHIPPED_CATALOGUES).entryList({"*_en.qm"}, QDir::Files).value(0);
    const auto provide = [&](const char* name) {
        return QFile::copy(QString(SHIPPED_CATALOGUES) + '/' + shipped, folder.filePath(name));
    };
    ASSERT_TRUE(provide("words_de.qm"));
    EXPECT_EQ(Catalogues().load(folder.path(), "de_AT"), 1);
    ASSERT_TRUE(provide("words_de_AT.qm"));
    EXPECT_EQ(Catalogues().load(folder.path(), "de_AT"), 2);
    EXPECT_EQ(Catalogues().load(folder.path(), "de"), 1);
}

TEST(Translation, ShippedCatalogueWordsTheTextsOfTheJobsWell) {
    const std::array<const char*, 3> wordings[] = {
        {"CustomTab", "The name,%1, is already in use.\nYou will need to enter a different name.",
         "There is a property with the name \"%1\" already.\nChoose another name."},
        {"CustomTab", "This name must be at least one char long.",
         "The name needs at least one character that is no blank."},
        {"DirsDialog", "Path \"%1\" does not exists.\nAre you sure you want to use this value?",
         "The folder \"%1\" does not exist.\nUse it all the same?"},
        {"QObject", "Pick a member of a group.", "Pick a member of a group"},
        {"QObject", "[HelpGroupName] getInputText() returned false or canceled.",
         "No groups are listed: the question was cancelled."}};
    Catalogues catalogues;
    catalogues.load(SHIPPED_CATALOGUES, "C");
    for (const auto& [context, source, wording] : wordings)
        EXPECT_EQ(QCoreApplication::translate(context, source), QString(wording)) << source;
}

TEST(Translation, HostFunctionIsFreeAgainAfterwards) {
    {
        const Catalogues catalogues;
        EXPECT_TRUE(standin::registry().translate);
    }
    EXPECT_FALSE(standin::registry().translate);
}

} // namespace
