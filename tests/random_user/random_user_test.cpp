// A random user works on the samples for some thousand steps. Nothing ends the program; after every twenty
// commands undoing everything gives the first bytes and redoing it the same again; windows and files that
// were opened are gone at the end. RANDOM_USER_SEED and RANDOM_USER_STEPS replay a run, or make a longer one.
#include "host/documents.h"
#include "sdk/db/database.h"
#include "standin/documents/document_manager.h"
#include "tests/e2e/workbench_fixture.h"
#include "tests/random_user/random_user.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>

namespace {

int fromEnvironment(const char* name, int otherwise) {
    bool isNumber = false;
    const int value = qEnvironmentVariableIntValue(name, &isNumber);
    return isNumber ? value : otherwise;
}

// Without what Qt keeps for good from its first use on: the list of file types, and the events of its
// threads.
QStringList openFiles() {
    QStringList targets;
    for (const QFileInfo& file :
         QDir(QStringLiteral("/proc/self/fd")).entryInfoList(QDir::Files | QDir::System))
        targets += file.symLinkTarget();
    const auto isKept = [](const QString& target) {
        return target.contains("/mime") || target.contains("[eventfd]");
    };
    targets.erase(std::remove_if(targets.begin(), targets.end(), isKept), targets.end());
    return targets;
}

class RandomUserTest : public WorkbenchFixture, public testing::WithParamInterface<unsigned> {
protected:
    RandomUserTest()
        : user(*bench,
               static_cast<unsigned>(fromEnvironment("RANDOM_USER_SEED", static_cast<int>(GetParam())))) {
        QDir::setCurrent(root.path());
        for (const char* sample : {"house.dxf", "part.dxf", "site.dxf"})
            QFile::copy(QStringLiteral(SHIPPED_DATA_DIR "/samples/") + sample, root.filePath(sample));
        documents().openFile(root.filePath("house.dxf"));
        remember();
    }
    static standin::DocumentManager& documents() {
        return dynamic_cast<standin::DocumentManager&>(*HostDocManager());
    }
    void remember() {
        firstBytes.clear();
        if (standin::Document* document = documents().currentOne())
            firstBytes = document->database()->writeBytes();
        watched = documents().currentOne();
    }
    // Each turn first arranges the next one, since what it does may run a loop of its own until a later turn
    // ends it.
    void turn() {
        if (done)
            return;
        QTimer::singleShot(0, bench.get(), [this] { turn(); });
        if (resting)
            return rest();
        if (stepsLeft-- > 0 && !HasFailure())
            user.act();
        resting = stepsLeft <= 0 || HasFailure() || user.commandsGiven() >= checkedAt + 20;
    }
    void rest() {
        done = ++restTurns >= 10000;
        ASSERT_FALSE(done) << "a dialog or a command does not end\n" << user.lastSteps();
        if (!user.comeToRest())
            return;
        restTurns = 0;
        resting = false;
        checkedAt = user.commandsGiven();
        if (!HasFailure())
            checkUndo();
        done = stepsLeft <= 0 || HasFailure();
    }
    // Undoes and redoes all of the drawing that was opened; a drawing that was saved or left meanwhile is
    // taken anew.
    void checkUndo() {
        standin::Document* document = documents().currentOne();
        if (!document || document != watched || document->path().isEmpty() || !isOnDisk(*document))
            return openAnew();
        OdDbDatabase& drawing = *document->database();
        const std::string last = drawing.writeBytes();
        int steps = 0;
        for (; drawing.hasUndo(); ++steps)
            ASSERT_TRUE(drawing.undo());
        EXPECT_TRUE(drawing.writeBytes() == firstBytes)
            << "undoing everything does not give the first drawing\n"
            << user.lastSteps();
        for (; steps > 0; --steps) // what was undone before stays so
            ASSERT_TRUE(drawing.redo());
        EXPECT_TRUE(drawing.writeBytes() == last) << "redoing everything does not give the last drawing\n"
                                                  << user.lastSteps();
    }
    // Whether the file still holds what was opened.
    bool isOnDisk(const standin::Document& document) const {
        QFile file(document.path());
        return file.open(QIODevice::ReadOnly) && file.readAll().toStdString() == firstBytes;
    }
    void openAnew() {
        for (standin::Document* open : documents().all())
            documents().close(open);
        QFile::remove(root.filePath("house.dxf"));
        QFile::copy(QStringLiteral(SHIPPED_DATA_DIR "/samples/house.dxf"), root.filePath("house.dxf"));
        documents().openFile(root.filePath("house.dxf"));
        remember();
    }

    RandomUser user;
    std::string firstBytes;
    const standin::Document* watched = nullptr;
    int stepsLeft = 0, checkedAt = 0, restTurns = 0;
    bool resting = false, done = false;
};

} // namespace

TEST_P(RandomUserTest, NothingEndsTheProgramAndUndoIsWhole) {
    const QStringList filesBefore = openFiles();
    const int windowsBefore = QApplication::topLevelWidgets().size();
    stepsLeft = fromEnvironment("RANDOM_USER_STEPS", 1000);
    turn();
    // Every turn counts; the clock only ends a program that hangs.
    ASSERT_TRUE(waitUntil([this] { return done; }, 280000)) << "the program hangs\n" << user.lastSteps();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_LE(openFiles().size(), filesBefore.size())
        << "files stay open: " << openFiles().join(' ').toStdString() << " beside "
        << filesBefore.join(' ').toStdString() << "\n"
        << user.lastSteps();
    EXPECT_LE(QApplication::topLevelWidgets().size(), windowsBefore + 4) << "windows stay\n"
                                                                         << user.lastSteps();
    if (HasFailure())
        std::printf("seed %u; the last steps:\n%s", GetParam(), user.lastSteps().c_str());
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomUserTest, testing::Values(1u, 2u, 3u));
