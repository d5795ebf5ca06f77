// What the workbench's host supplies to attached references, over real files.
#include "standin/references/attach_services.h"

#include "host/app.h"
#include "host/dir_list.h"
#include "host/std_dirs.h"
#include "host/text.h"
#include "host/typed_reads.h"
#include "sdk/db/database.h"
#include "sdk/db/xref_man.h"
#include "standin/console/console.h"
#include "standin/documents/document_manager.h"
#include "standin/events/events.h"
#include "standin/params/application.h"
#include "standin/registry.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace standin;

namespace {

class AttachServicesTest : public testing::Test {
protected:
    AttachServicesTest() { start(); }
    void start() {
        ApplicationSetup setup;
        setup.dataDir = QStringLiteral(SHIPPED_DATA_DIR);
        setup.rootDir = root.filePath("root");
        application = std::make_unique<Application>(setup);
    }
    void restart() {
        application.reset();
        start();
    }
    static Ref<IAttachServices> services() { return appService<IAttachServices>(); }
    OdDbDatabasePtr drawingIn(const QString& file) const {
        const OdDbDatabasePtr drawing = OdDbDatabase::createEmpty();
        drawing->setFilename(hostqt::odString(file));
        return drawing;
    }
    QString put(const QString& file) const {
        const QString path = root.filePath(file);
        QDir().mkpath(QFileInfo(path).absolutePath());
        QFile out(path);
        EXPECT_TRUE(out.open(QIODevice::WriteOnly));
        return path;
    }
    QString find(const QString& saved) const {
        return hostqt::qString(
            OdDbXRefMan::findFile(*drawingIn(root.filePath("site/site.dxf")), hostqt::odString(saved)));
    }

    QTemporaryDir root;
    std::unique_ptr<Application> application;
};

TEST_F(AttachServicesTest, RelativePathsStartFromTheFolderOfASavedDrawing) {
    EXPECT_EQ(hostqt::qString(services()->basePath(drawingIn("/plans/town/site.dxf").get())), "/plans/town");
}

TEST_F(AttachServicesTest, UnsavedDrawingHasNoBase) {
    EXPECT_EQ(hostqt::qString(services()->basePath(drawingIn({}).get())), "");
    EXPECT_EQ(hostqt::qString(services()->basePath(nullptr)), "");
}

TEST_F(AttachServicesTest, SettingsOutliveTheProgram) {
    const CKWVariant row(2, kVtInt);
    Ref<IParam>::take(services()->settings())->setValue("xAttachRefPathType", &row);
    restart();
    int kept = 0;
    readValue(Ref<IParam>::take(services()->settings()).get(), "xAttachRefPathType", &kept);
    EXPECT_EQ(kept, 2);
}

TEST_F(AttachServicesTest, TextsArePrintedWithoutADocumentToo) {
    Console console, other;
    DocumentManager documents(other, SysVarTable());
    services()->report(&console, L"100%s");
    services()->report(nullptr, L"nobody");
    EXPECT_EQ(console.transcript(), QStringList("100%s"));
    EXPECT_EQ(other.transcript(), QStringList("nobody"));
}

TEST_F(AttachServicesTest, RefusalsGoThroughTheEventsAndAreLostWithoutThem) {
    EXPECT_NO_THROW(services()->refuse(L"nobody"));
    QStringList printed;
    const auto events =
        Ref<Events>::share(new Events([&](const QString& text) { printed << text; }, [] { return false; }));
    registry().events = events.get();
    services()->refuse(L"100%s: no");
    registry().events = nullptr;
    EXPECT_EQ(printed, QStringList("100%s: no"));
    EXPECT_TRUE(services()->numbersTakenNames());
}

TEST_F(AttachServicesTest, TextsAreLostWithoutAConsole) {
    ASSERT_TRUE(services());
    EXPECT_NO_THROW(services()->report(nullptr, L"nobody"));
}

TEST_F(AttachServicesTest, FilesAreFoundAsTheyStandBesideTheDrawingAndThenInTheFolders) {
    const QString support = put("root/support/part.dxf");
    EXPECT_EQ(find("gone/part.dxf"), support);
    const QString references = put("root/references/part.dxf");
    EXPECT_EQ(find("gone/part.dxf"), references);
    const QString nested = put("root/references/gone/part.dxf");
    EXPECT_EQ(find("gone/part.dxf"), nested);
    const QString beside = put("site/part.dxf");
    EXPECT_EQ(find("gone/part.dxf"), beside);
    const QString relative = put("site/gone/part.dxf");
    EXPECT_EQ(find("gone/part.dxf"), relative);
    EXPECT_EQ(find("nowhere/at/all.dxf"), "");
}

TEST_F(AttachServicesTest, FoldersAreLookedUpOnlyWhileTheProgramRuns) {
    const QString part = put("root/references/part.dxf");
    ASSERT_EQ(find("part.dxf"), part);
    application.reset();
    EXPECT_EQ(find("part.dxf"), "");
}

} // namespace
