// A process that is killed while it saves leaves the old drawing or the new one.
#include "tests/sdk/dxf/drawing_texts.h"

#include <QTemporaryDir>
#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

namespace {

// Saves two states of a drawing in turn until it is killed; says when the first one stands.
[[noreturn]] void saveForEver(OdDbDatabase& small, OdDbDatabase& large, const OdString& path, int started) {
    small.writeFile(path);
    if (write(started, "x", 1) != 1)
        _exit(1);
    while (true) {
        large.writeFile(path);
        small.writeFile(path);
    }
}

} // namespace

TEST(KilledSave, AHundredTimesNothingIsLost) {
    QTemporaryDir folder;
    const OdString path = folder.filePath("plan.dxf").toStdWString();
    const OdDbDatabasePtr small = OdDbDatabase::readBytes(sampleDrawing());
    const OdDbDatabasePtr large = OdDbDatabase::readBytes(sampleDrawing());
    for (int i = 0; i < 2000; ++i) {
        OdDbLinePtr line(new OdDbLine);
        modelSpaceOf(*large, OdDb::kForWrite)->appendOdDbEntity(line.get());
    }
    for (int round = 0; round < 100; ++round) {
        int started[2];
        ASSERT_EQ(pipe(started), 0);
        const pid_t child = fork();
        ASSERT_GE(child, 0);
        if (child == 0)
            saveForEver(*small, *large, path, started[1]);
        char sign = 0;
        ASSERT_EQ(read(started[0], &sign, 1), 1);
        // The moment is part of the test: each round kills somewhere else in a save.
        usleep(static_cast<useconds_t>(round * 337 % 20000));
        kill(child, SIGKILL);
        ASSERT_EQ(waitpid(child, nullptr, 0), child);
        close(started[0]);
        close(started[1]);
        const std::size_t count = modelSpaceOf(*OdDbDatabase::readFile(path))->entityIds().size();
        ASSERT_TRUE(count == 3 || count == 2003) << count;
    }
}
