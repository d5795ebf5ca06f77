// A process that is killed at any call while it writes settings or keeps a former version leaves what was, or
// what was to be, and the next process works on without a complaint.
#include "standin/history/version_store.h"
#include "tests/standin/file_store_fixture.h"
#include "tests/support/kill_at_call.h"

#include <QDateTime>

using namespace standin;

namespace {

using KilledApply = FileStoreTest;

TEST_F(KilledApply, EveryCallLeavesTheOldSettingsOrTheNewOnes) {
    int places = 0;
    const std::string fault = testing_kills::faultOfKills(
        [this] {
            QDir(path("root")).removeRecursively();
            const auto process = start();
            process->set("A", 5);
            process->set("B", 6);
        },
        [this] {
            const auto process = start();
            process->set("A", 7);
            process->set("B", 8);
            process->store.flush();
        },
        [this]() -> std::string {
            const auto next = start();
            const int a = next->value("A"), b = next->value("B");
            if (!(a == 5 && b == 6) && !(a == 7 && b == 8))
                return "A is " + std::to_string(a) + ", B is " + std::to_string(b);
            next->set("A", 9);
            if (!next->store.flush() || start()->value("A") != 9)
                return "the next process cannot write";
            return problems.isEmpty() ? "" : problems[0].toStdString();
        },
        places);
    EXPECT_EQ(fault, "");
    EXPECT_GE(places, 6);
}

struct KilledHistory : testing::Test {
    KilledHistory() {
        io.reportProblem = [this](const QString& text) { problems << text; };
        io.lockTimeout = 50;
    }
    void keep(const QByteArray& content) {
        writeText(drawing, content);
        // Versions are told apart by their times, as a user's are.
        QFile file(drawing);
        EXPECT_TRUE(file.open(QIODevice::ReadWrite));
        EXPECT_TRUE(file.setFileTime(
            QDateTime(QDate(2024, 3, 1), QTime(12, 0), Qt::UTC).addDays(order.indexOf(content)),
            QFileDevice::FileModificationTime));
        file.close();
        VersionStore store(root(), io);
        if (store.add(drawing, "reason of " + content))
            store.settle(drawing, 3);
    }
    QStringList contents() {
        QStringList found;
        for (const FileVersion& version : VersionStore(root(), io).versionsOf(drawing))
            found << QString::fromUtf8(readText(version.file));
        return found;
    }
    QString root() const { return folder.filePath(QStringLiteral("data")); }

    QTemporaryDir folder;
    QString drawing = folder.filePath(QStringLiteral("plan.dxf"));
    QStringList problems;
    StoreIo io;
    const QStringList order{"one", "two", "three", "four", "five"};
};

TEST_F(KilledHistory, EveryCallLeavesTheFormerVersionsWhole) {
    const QStringList before{"one", "two", "three"}, after{"two", "three", "four"},
        between{"one", "two", "three", "four"};
    int places = 0;
    const std::string fault = testing_kills::faultOfKills(
        [this, before] {
            QDir(root()).removeRecursively();
            for (const QString& content : before)
                keep(content.toUtf8());
        },
        [this] { keep("four"); },
        [&]() -> std::string {
            if (const QStringList found = contents(); found != before && found != after && found != between)
                return "the versions are " + found.join(", ").toStdString();
            keep("five");
            const QStringList found = contents();
            if (found.isEmpty() || found.back() != "five" || found.size() > 3)
                return "the next version is not kept: " + found.join(", ").toStdString();
            return problems.isEmpty() ? "" : problems[0].toStdString();
        },
        places);
    EXPECT_EQ(fault, "");
    EXPECT_GE(places, 12) << "a copy and an index are written";
}

} // namespace
