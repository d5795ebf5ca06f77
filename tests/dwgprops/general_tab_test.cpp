// The General tab: texts of sizes and kinds of files, and what the tab shows of a file.
#include "dwgprops/db_text.h"
#include "dwgprops/elided_label.h"
#include "dwgprops/general_tab.h"
#include "tests/dwgprops/dialog_driver.h"

#include <QCheckBox>
#include <QFile>
#include <QFileInfo>
#include <QGridLayout>
#include <QMimeDatabase>
#include <QTextDocument>
#include <sys/stat.h>
#include <unistd.h>

namespace {

class GeneralPage : public DrawingProperties {
protected:
    // A file of `size` bytes below the test's own folder, as the drawing's file.
    QString useFile(const QString& name, int size = 2048) {
        const QString path = folder.filePath(name);
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(QByteArray(size, ' '));
        drawing->setFilename(OdString(path.toStdWString()));
        return path;
    }
    static QString label(const OpenProperties& dialog, const char* name) {
        return OpenProperties::in<QLabel>(dialog.control<QWidget>("generalTab"), name)->text();
    }
    static QStringList checked(const QWidget& page) {
        QStringList names;
        for (const QCheckBox* box : page.findChildren<QCheckBox*>()) {
            EXPECT_FALSE(box->isEnabled());
            if (box->isChecked())
                names << box->text();
        }
        return names;
    }
    QTemporaryDir folder;
};

// Run in a child process that has given up its rights: who may do everything sees no file as read-only. The
// status is 0 when nothing is ticked, 1 for "Read Only" alone, 2 for anything else.
[[noreturn]] void exitTellingWhatIsTicked(const QString& path) {
    if (geteuid() == 0 && setuid(65534) != 0)
        _exit(3);
    const GeneralTab tab{QFileInfo(path)};
    const auto ticked = [&tab](const char* name) { return tab.findChild<QCheckBox*>(name)->isChecked(); };
    if (ticked("hiddenCheck") || ticked("archiveCheck") || ticked("systemCheck"))
        _exit(2);
    _exit(ticked("readOnlyCheck") ? 1 : 0);
}

} // namespace

TEST(FileSize, ZeroIsEmpty) { EXPECT_EQ(GeneralTab::formatFileSize(0), QString()); }

TEST(FileSize, Below1024HasATrailingBlankAndNoBracket) {
    EXPECT_EQ(GeneralTab::formatFileSize(123), QStringLiteral("123.00 bytes "));
    EXPECT_EQ(GeneralTab::formatFileSize(1023), QStringLiteral("1023.00 bytes "));
}

TEST(FileSize, From1024OnHasTheByteCount) {
    EXPECT_EQ(GeneralTab::formatFileSize(1024), QStringLiteral("1.00 KB (1024 bytes)"));
    EXPECT_EQ(GeneralTab::formatFileSize(2048), QStringLiteral("2.00 KB (2048 bytes)"));
    EXPECT_EQ(GeneralTab::formatFileSize(1572864), QStringLiteral("1.50 MB (1572864 bytes)"));
    EXPECT_EQ(GeneralTab::formatFileSize(qint64(3) << 30), QStringLiteral("3.00 GB (3221225472 bytes)"));
}

TEST(FileSize, StaysInTerabytes) {
    EXPECT_EQ(GeneralTab::formatFileSize(qint64(1024) << 40),
              QStringLiteral("1024.00 TB (1125899906842624 bytes)"));
}

TEST(FileSize, LosesDigitsInSinglePrecisionButTellsEveryByte) {
    // In double precision this would read 1023.99 MB.
    EXPECT_EQ(GeneralTab::formatFileSize((qint64(1) << 30) - 10),
              QStringLiteral("1.00 GB (1073741814 bytes)"));
}

TEST(FileType, IsTheSystemsWordForTheKind) {
    EXPECT_EQ(GeneralTab::formatFileType("a.txt"), QMimeDatabase().mimeTypeForName("text/plain").comment());
}

TEST_F(GeneralPage, ShowsTheFactsOfTheFile) {
    const QString path = useFile("house.txt");
    const OpenProperties dialog;
    auto* const name = OpenProperties::in<QLineEdit>(dialog.control<QWidget>("generalTab"), "nameEdit");
    EXPECT_EQ(name->text(), QStringLiteral("house.txt"));
    EXPECT_EQ(name->toolTip(), QStringLiteral("house.txt"));
    EXPECT_TRUE(name->isReadOnly());
    EXPECT_EQ(label(dialog, "typeLabel"), GeneralTab::formatFileType("house.txt"));
    EXPECT_EQ(label(dialog, "sizeLabel"), QStringLiteral("2.00 KB (2048 bytes)"));
    EXPECT_EQ(label(dialog, "accessedLabel"), formatDate(QFileInfo(path).lastRead()));
    EXPECT_FALSE(label(dialog, "accessedLabel").isEmpty());
    EXPECT_EQ(dialog.control<QLabel>("iconLabel")->pixmap(Qt::ReturnByValue).isNull(), false);
}

TEST_F(GeneralPage, KindIsAskedOfTheBareNameAndNotOfTheContents) {
    const QString path = folder.filePath("house");
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("%PDF-1.4\n");
    file.close();
    drawing->setFilename(OdString(path.toStdWString()));
    ASSERT_NE(GeneralTab::formatFileType(path), GeneralTab::formatFileType("house"));
    EXPECT_EQ(label(OpenProperties(), "typeLabel"), GeneralTab::formatFileType("house"));
}

TEST_F(GeneralPage, LocationIsTheRealFolderBehindALink) {
    ASSERT_TRUE(QDir(folder.path()).mkpath("real"));
    ASSERT_TRUE(QFile::link(folder.filePath("real"), folder.filePath("link")));
    useFile("link/house.txt");
    const OpenProperties dialog;
    EXPECT_EQ(dialog.control<QLabel>("locationLabel")->toolTip(),
              QDir(folder.filePath("real")).canonicalPath());
}

TEST_F(GeneralPage, DatesAreTheDrawingsAndNotTheFiles) {
    useDrawing(OdDbDatabase::readBytes("0\nSECTION\n2\nHEADER\n9\n$ACADVER\n1\nAC1032\n"
                                       "9\n$TDCREATE\n40\n2460377.586909722\n"
                                       "9\n$TDUPDATE\n40\n2460378.0\n0\nENDSEC\n0\nEOF\n"));
    useFile("house.txt");
    const OpenProperties dialog;
    EXPECT_EQ(label(dialog, "createdLabel"), QStringLiteral("07 March 2024 14:05:09"));
    EXPECT_EQ(label(dialog, "modifiedLabel"), QStringLiteral("08 March 2024 00:00:00"));
}

TEST_F(GeneralPage, PictureOfAFileIs32By32) {
    useFile("house.txt");
    EXPECT_EQ(OpenProperties().control<QLabel>("iconLabel")->pixmap(Qt::ReturnByValue).size(), QSize(32, 32));
}

TEST_F(GeneralPage, PictureStandsBesideTheNameAndTheFactsBelow) {
    useFile("house.txt");
    const OpenProperties dialog;
    const auto place = [&dialog](const char* name) {
        return dialog.control<QWidget>("generalTab")->findChild<QWidget*>(name)->pos();
    };
    EXPECT_LT(place("iconLabel").x(), place("nameEdit").x());
    EXPECT_LT(place("nameEdit").y(), place("typeLabel").y());
}

TEST_F(GeneralPage, NamesInToolTipsAreNeverTakenForMarkup) {
    ASSERT_TRUE(QDir(folder.path()).mkpath("a <b>bold</b>  place"));
    useFile("a <b>bold</b>  place/<i>house<i> &lt;.txt");
    const OpenProperties dialog;
    auto* const page = dialog.control<QWidget>("generalTab");
    for (const auto& [name, shown] :
         {std::pair("nameEdit", QStringLiteral("<i>house<i> &lt;.txt")),
          std::pair("locationLabel", QDir(folder.filePath("a <b>bold</b>  place")).canonicalPath())}) {
        QTextDocument document;
        const QString tip = page->findChild<QWidget*>(name)->toolTip();
        ASSERT_TRUE(Qt::mightBeRichText(tip)) << tip.toStdString();
        document.setHtml(tip);
        QString text = document.toPlainText();
        EXPECT_EQ(text.replace(QChar::Nbsp, ' '), shown);
    }
}

TEST_F(GeneralPage, NothingIsLeftWhenTheDrawingGivesNoDates) {
    host.closeDocument();
    const int widgets = QApplication::allWidgets().size();
    EXPECT_THROW(GeneralTab{QFileInfo(useFile("house.txt"))}, OdError);
    EXPECT_EQ(QApplication::allWidgets().size(), widgets);
}

TEST_F(GeneralPage, AnUnsavedDrawingHasNoNameKindSizeOrPicture) {
    const OpenProperties dialog;
    for (const char* name : {"typeLabel", "sizeLabel", "accessedLabel", "locationLabel"})
        EXPECT_EQ(label(dialog, name), QString()) << name;
    const QPixmap picture = dialog.control<QLabel>("iconLabel")->pixmap(Qt::ReturnByValue);
    EXPECT_EQ(picture.size(), QSize(32, 32));
    EXPECT_EQ(picture.toImage().pixelColor(16, 16).alpha(), 0);
}

TEST_F(GeneralPage, LocationIsElidedOnResizeWithTheWholePathInTheToolTip) {
    ASSERT_TRUE(QDir(folder.path()).mkpath(QString(120, 'd')));
    const QString path = useFile(QString(120, 'd') + "/house.txt");
    OpenProperties dialog;
    const QString whole = QFileInfo(path).canonicalPath();
    const auto* location = dialog.control<QLabel>("locationLabel");
    EXPECT_EQ(location->toolTip(), whole);
    EXPECT_EQ(location->sizePolicy(), QSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed));
    EXPECT_TRUE(location->text().endsWith(QChar(0x2026))) << location->text().toStdString();
    const QString narrow = location->text();
    dialog.resize(4000, dialog.height());
    EXPECT_TRUE(waitUntil([&] { return location->text() == whole; }));
    dialog.resize(400, dialog.height());
    EXPECT_TRUE(waitUntil([&] { return location->text() == narrow; }));
}

TEST(ElidedText, IsShortenedAtOnce) {
    const ElidedLabel label(QString(300, 'x'), nullptr);
    EXPECT_TRUE(label.text().endsWith(QChar(0x2026))) << label.text().toStdString();
}

TEST_F(GeneralPage, ALongNameIsShownFromItsFirstCharacterAfterEveryResize) {
    useFile(QString(200, 'n') + ".txt");
    OpenProperties dialog;
    auto* const name = OpenProperties::in<QLineEdit>(dialog.control<QWidget>("generalTab"), "nameEdit");
    EXPECT_EQ(name->cursorPosition(), 0);
    name->end(false);
    dialog.resize(dialog.width() + 50, dialog.height());
    EXPECT_TRUE(waitUntil([&] { return name->cursorPosition() == 0; }));
}

TEST_F(GeneralPage, NothingIsTickedForAnOrdinaryFile) {
    useFile("house.txt");
    const OpenProperties dialog;
    EXPECT_EQ(checked(*dialog.control<QWidget>("generalTab")), QStringList());
}

TEST_F(GeneralPage, HiddenIsTickedForAHiddenFile) {
    useFile(".house.txt");
    const OpenProperties dialog;
    EXPECT_EQ(checked(*dialog.control<QWidget>("generalTab")), QStringList{"&Hidden"});
}

TEST_F(GeneralPage, ReadOnlyIsTickedForAFileMadeReadOnly) {
    const QString path = useFile("house.txt");
    ASSERT_EQ(chmod(path.toLocal8Bit(), 0444), 0);
    ASSERT_EQ(chmod(folder.path().toLocal8Bit(), 0755), 0);
    EXPECT_EXIT(exitTellingWhatIsTicked(path), testing::ExitedWithCode(1), "");
}

TEST_F(GeneralPage, ReadOnlyIsNotTickedForAFileThatMayNotEvenBeRead) {
    const QString path = useFile("house.txt");
    ASSERT_EQ(chmod(path.toLocal8Bit(), 0), 0);
    ASSERT_EQ(chmod(folder.path().toLocal8Bit(), 0755), 0);
    EXPECT_EXIT(exitTellingWhatIsTicked(path), testing::ExitedWithCode(0), "");
}

TEST_F(GeneralPage, AttributesStandInTwoByTwo) {
    const OpenProperties dialog;
    const auto* facts = dialog.control<QWidget>("generalTab")->layout()->itemAt(1)->layout();
    const auto* grid = qobject_cast<const QGridLayout*>(facts);
    const auto* boxes = qobject_cast<const QGridLayout*>(grid->itemAtPosition(9, 1)->layout());
    const auto text = [boxes](int row, int column) {
        return qobject_cast<QCheckBox*>(boxes->itemAtPosition(row, column)->widget())->text();
    };
    EXPECT_EQ(text(1, 1), QStringLiteral("Read Only"));
    EXPECT_EQ(text(1, 2), QStringLiteral("&Hidden"));
    EXPECT_EQ(text(2, 1), QStringLiteral("Archive"));
    EXPECT_EQ(text(2, 2), QStringLiteral("System"));
}

TEST_F(GeneralPage, RowsAndSpacersStandInTheirPlaces) {
    const OpenProperties dialog;
    const auto* grid = qobject_cast<const QGridLayout*>(
        dialog.control<QWidget>("generalTab")->layout()->itemAt(1)->layout());
    const std::pair<int, const char*> rows[] = {{1, "Type:"},      {2, "Location:"}, {3, "Size:"},
                                                {5, "Created:"},   {6, "Modified:"}, {7, "Accessed:"},
                                                {9, "Attributes:"}};
    for (const auto& [row, text] : rows)
        EXPECT_EQ(qobject_cast<QLabel*>(grid->itemAtPosition(row, 0)->widget())->text(), QLatin1String(text));
    const std::pair<int, const char*> values[] = {{1, "typeLabel"},     {2, "locationLabel"},
                                                  {3, "sizeLabel"},     {5, "createdLabel"},
                                                  {6, "modifiedLabel"}, {7, "accessedLabel"}};
    for (const auto& [row, name] : values)
        EXPECT_EQ(grid->itemAtPosition(row, 1)->widget()->objectName(), QLatin1String(name));
    for (const int row : {0, 4, 8}) {
        const QSpacerItem* spacer = grid->itemAtPosition(row, 1)->spacerItem();
        EXPECT_EQ(spacer->sizeHint(), QSize(40, 20));
        EXPECT_EQ(spacer->sizePolicy(), QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed));
    }
    const QSpacerItem* last = grid->itemAtPosition(10, 1)->spacerItem();
    EXPECT_EQ(last->sizeHint(), QSize(20, 40));
    EXPECT_EQ(last->sizePolicy(), QSizePolicy(QSizePolicy::Minimum, QSizePolicy::Expanding));
    EXPECT_EQ(grid->rowStretch(2), 1);
}

TEST_F(GeneralPage, MarkupInTheLocationIsShownAsItIs) {
    ASSERT_TRUE(QDir(folder.path()).mkpath("<b>x"));
    useFile("<b>x/house.txt");
    const OpenProperties dialog;
    EXPECT_EQ(dialog.control<QLabel>("locationLabel")->textFormat(), Qt::PlainText);
}
