// Drawings, files and texts that nobody wishes for: the dialog opens on them, and what was in the drawing is
// still there after OK and a save.
#include "dwgprops/dwg_props_command.h"
#include "dwgprops/statistic_tab.h"
#include "tests/dwgprops/dialog_driver.h"

#include <QFile>
#include <QTextEdit>

namespace {

std::string drawingWith(const std::string& headerTags, const std::string& version = "AC1032") {
    return "  0\nSECTION\n  2\nHEADER\n  9\n$ACADVER\n  1\n" + version + "\n" + headerTags +
           "  9\n$HANDSEED\n  5\nFF\n  0\nENDSEC\n  0\nSECTION\n  2\nENTITIES\n  0\nENDSEC\n  0\nEOF\n";
}
std::string dates(const std::string& value) {
    return "  9\n$TDCREATE\n 40\n" + value + "\n  9\n$TDUPDATE\n 40\n" + value + "\n";
}
std::string propertyTags(const std::string& key, const std::string& value) {
    return "  9\n$CUSTOMPROPERTYTAG\n  1\n" + key + "\n  9\n$CUSTOMPROPERTY\n  1\n" + value + "\n";
}

class BadInput : public DrawingProperties {
protected:
    // The drawing is open from a file of the test's own.
    QString openFile(const std::string& bytes = drawingWith({})) {
        const QString path = folder.filePath("house.dxf");
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes.c_str());
        file.close();
        useDrawing(OdDbDatabase::readFile(OdString(path.toStdWString())));
        return path;
    }
    static void setTitleInTheDialog(const QString& title) {
        onNextDialog<dwgProps>([title](dwgProps& dialog) {
            OpenProperties::in<QLineEdit>(&dialog, "titleEdit")->setText(title);
            dialog.onOK();
        });
        runDwgProps();
    }
    void saveAndReadAgain(const QString& path) {
        drawing->writeFile(OdString(path.toStdWString()));
        useDrawing(OdDbDatabase::readFile(OdString(path.toStdWString())));
    }
    QString title() const { return QString::fromStdWString(summary()->getTitle().wide()); }
    static QString label(const OpenProperties& dialog, const char* tab, const char* name) {
        return OpenProperties::in<QLabel>(dialog.control<QWidget>(tab), name)->text();
    }
    QTemporaryDir folder;
};

} // namespace

TEST_F(BadInput, AFileDeletedWhileTheDrawingIsOpenIsWrittenAnewWithTheEdits) {
    const QString path = openFile();
    ASSERT_TRUE(QFile::remove(path));
    setTitleInTheDialog("after all");
    saveAndReadAgain(path);
    EXPECT_EQ(title(), QStringLiteral("after all"));
}

TEST_F(BadInput, AFileRenamedWhileTheDrawingIsOpenStaysAsItIsAndTheOldNameIsShownAndSaved) {
    const QString path = openFile();
    const QString renamed = folder.filePath("other.dxf");
    ASSERT_TRUE(QFile::rename(path, renamed));
    EXPECT_EQ(OpenProperties().windowTitle(), QStringLiteral("Properties: house.dxf"));
    setTitleInTheDialog("for the old name");
    saveAndReadAgain(path);
    EXPECT_EQ(title(), QStringLiteral("for the old name"));
    EXPECT_EQ(OdDbDatabase::readFile(OdString(renamed.toStdWString()))->writeBytes(), drawingWith({}));
}

TEST_F(BadInput, AFileMadeReadOnlyWhileTheDrawingIsOpenTakesNothingFromTheDialogItself) {
    const QString path = openFile();
    ASSERT_TRUE(QFile::setPermissions(path, QFileDevice::ReadOwner));
    setTitleInTheDialog("not yet in the file");
    EXPECT_EQ(title(), QStringLiteral("not yet in the file"));
    EXPECT_EQ(OdDbDatabase::readFile(OdString(path.toStdWString()))->writeBytes(), drawingWith({}));
}

TEST_F(BadInput, AFileReplacedByAFolderWhileTheDrawingIsOpenIsHarmless) {
    const QString path = openFile();
    ASSERT_TRUE(QFile::remove(path));
    ASSERT_TRUE(QDir().mkpath(path));
    setTitleInTheDialog("kept");
    EXPECT_EQ(title(), QStringLiteral("kept"));
}

TEST_F(BadInput, ADrawingNeverSavedTakesTheEdits) {
    host.document.shownTitle = L"Drawing1";
    setTitleInTheDialog("first");
    EXPECT_EQ(title(), QStringLiteral("first"));
    EXPECT_EQ(OpenProperties().windowTitle(), QStringLiteral("Properties: Drawing1"));
}

TEST_F(BadInput, DatesOutOfRangeAreShownSomehowAndStayInTheDrawing) {
    for (const char* value : {"0.0", "-1.0", "1e300", "-1e300", "99999999999.5", "5373484.9999999"}) {
        useDrawing(OdDbDatabase::readBytes(drawingWith(dates(value))));
        EXPECT_NO_THROW(OpenProperties{}) << value;
        setTitleInTheDialog("title");
        EXPECT_NE(drawing->writeBytes().find(std::string("$TDCREATE\n 40\n") + value), std::string::npos)
            << value;
    }
}

TEST_F(BadInput, ANegativeEditingTimeIsShownAsANumberOfHours) {
    useDrawing(OdDbDatabase::readBytes(drawingWith("  9\n$TDINDWG\n 40\n-1.0\n")));
    const OpenProperties dialog(kStatistics);
    EXPECT_TRUE(QRegExp("\\d+ (h|min|sec)").exactMatch(label(dialog, "statisticTab", "editingTimeLabel")));
}

TEST_F(BadInput, DuplicateKeysFromTheFileAreShownAndWrittenEachInItsPlace) {
    const QString path = openFile(
        drawingWith(propertyTags("same", "1") + propertyTags("other", "2") + propertyTags("same", "3")));
    const Properties expected{{"same", "1"}, {"other", "2"}, {"same", "3"}};
    EXPECT_EQ(shownProperties(*OpenProperties(kCustom).customTable()), expected);
    setTitleInTheDialog("title");
    saveAndReadAgain(path);
    EXPECT_EQ(title(), QStringLiteral("title"));
    EXPECT_EQ(properties(), expected);
}

TEST_F(BadInput, OddTextsTypedIntoEveryFieldAreThereAfterASave) {
    const QString path = openFile();
    const QString odd = QString::fromUtf8("%1 %2 %% <b>x</b> &amp; \\U+0041 ^J \xC3\xA9\xE4\xB8\x96");
    const QString lines = "first\n\tsecond\n\nlast";
    onNextDialog<dwgProps>([&](dwgProps& dialog) {
        for (const char* edit : {"titleEdit", "subjectEdit", "authorEdit", "keywordsEdit", "hyperlinkEdit"})
            OpenProperties::in<QLineEdit>(&dialog, edit)->setText(odd);
        OpenProperties::in<QTextEdit>(&dialog, "commentsEdit")->setPlainText(lines);
        dialog.onOK();
    });
    runDwgProps();
    saveAndReadAgain(path);
    const auto text = [](const OdString& read) { return QString::fromStdWString(read.wide()); };
    const OdDbDatabaseSummaryInfoPtr info = summary();
    EXPECT_EQ(text(info->getTitle()), odd);
    EXPECT_EQ(text(info->getSubject()), odd);
    EXPECT_EQ(text(info->getAuthor()), odd);
    EXPECT_EQ(text(info->getKeywords()), odd);
    EXPECT_EQ(text(info->getHyperlinkBase()), odd);
    EXPECT_EQ(text(info->getComments()), lines);
}

TEST_F(BadInput, OddPropertiesAreThereAfterASaveInOldAndNewFiles) {
    const Properties odd{{"%1 %2", "%1"},
                         {"<i>markup</i>", "&lt;"},
                         {"lines\nin\nthe name", "lines\n\tin the value\n"},
                         {QString(256, 'n'), QString(3000, 'v')},
                         {QString::fromUtf8("\xE4\xB8\x96"), QString::fromUtf8("\xF0\x9F\x8F\xA0")}};
    for (const char* version : {"AC1015", "AC1018", "AC1032"}) {
        const QString path = openFile(drawingWith({}, version));
        setProperties(odd);
        setTitleInTheDialog("title");
        saveAndReadAgain(path);
        EXPECT_EQ(title(), QStringLiteral("title")) << version;
        EXPECT_EQ(properties(), odd) << version;
    }
}

TEST_F(BadInput, TenThousandPropertiesAreAddedToAndDeletedInAFile) {
    const QString path = openFile();
    setProperties(numbered(10000));
    saveAndReadAgain(path);
    {
        OpenProperties dialog(kCustom);
        dialog.customTable()->selectAll();
        dialog.click("deleteButton");
        EXPECT_EQ(dialog.customTable()->rowCount(), 10);
        dialog.click("okButton");
    }
    saveAndReadAgain(path);
    EXPECT_EQ(properties(), Properties());
}
