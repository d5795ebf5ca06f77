// Former versions of open drawings, asked for by the title of the drawing.
#include "standin/history/file_history.h"

#include "host/text.h"
#include "sdk/db/database.h"
#include "standin/console/console.h"
#include "standin/documents/document_manager.h"
#include "standin/history/version_store.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

using namespace standin;

struct FileHistoryTest : testing::Test {
    // A drawing in a folder of its own, with a former version for each reason.
    Document* open(const char* folder, const char* name, const QStringList& reasons) {
        QDir().mkpath(dir.filePath(QLatin1String(folder)));
        const QString path = dir.filePath(QLatin1String(folder) + QLatin1Char('/') + QLatin1String(name));
        for (const QString& reason : reasons) {
            OdDbDatabase::createEmpty()->writeFile(hostqt::odString(path));
            QFile file(path);
            EXPECT_TRUE(file.open(QIODevice::ReadWrite) &&
                        file.setFileTime(QDateTime(QDate(2024, 3, ++day), QTime(12, 0), Qt::UTC),
                                         QFileDevice::FileModificationTime));
            EXPECT_TRUE(store.add(path, reason).has_value());
        }
        return documents.openFile(path);
    }
    QStringList reasonsOf(const QString& title) {
        std::wstring name = title.toStdWString();
        std::vector<std::pair<OdString, OdString>> versions;
        const int count = history.query(name.data(), versions);
        EXPECT_EQ(count, static_cast<int>(versions.size()));
        QStringList reasons;
        for (const auto& version : versions)
            reasons << hostqt::qString(version.second);
        return reasons;
    }
    QTemporaryDir dir;
    Console console;
    DocumentManager documents{console, SysVarTable()};
    VersionStore store{dir.filePath(QStringLiteral("data")), StoreIo()};
    int day = 0;
    KWFileHistoryPE history{documents, store};
};

TEST_F(FileHistoryTest, IsThatOfTheDrawingWithTheTitle) {
    Document* first = open("a", "first.dxf", {"one", "two"});
    Document* second = open("a", "second.dxf", {"three"});
    EXPECT_EQ(reasonsOf(first->displayName()), (QStringList{"one", "two"})) << "another one is current";
    EXPECT_EQ(reasonsOf(second->displayName()), QStringList{"three"});
    EXPECT_EQ(reasonsOf(QStringLiteral("nobody")), QStringList());
    EXPECT_EQ(reasonsOf(documents.openEmpty()->displayName()), QStringList()) << "it was never saved";
}

TEST_F(FileHistoryTest, OfTwoWithOneTitleIsThatOfTheCurrentOne) {
    Document* first = open("a", "plan.dxf", {"one"});
    Document* second = open("b", "plan.dxf", {"two"});
    ASSERT_EQ(first->displayName(), second->displayName());
    EXPECT_EQ(reasonsOf(first->displayName()), QStringList{"two"});
    documents.activate(first);
    EXPECT_EQ(reasonsOf(first->displayName()), QStringList{"one"});
}

TEST_F(FileHistoryTest, HangsOnTheClassOfDrawingsWhileItLives) {
    {
        const OdSmartPtr<HostFileHistory> extension(new KWFileHistoryPE(documents, store));
        const RegisteredFileHistory registered(extension);
        EXPECT_EQ(OdDbDatabase::desc()->getX(OdRxObject::desc()).get(), extension.get());
    }
    EXPECT_TRUE(OdDbDatabase::desc()->getX(OdRxObject::desc()).isNull());
}

} // namespace
