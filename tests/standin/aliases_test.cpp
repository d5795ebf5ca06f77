// The data file of short names of commands.
#include "standin/console/aliases.h"
#include "tests/support/text_file.h"

#include <QTemporaryDir>

namespace {

using standin::readAliases;

struct AliasesTest : testing::Test {
    QMap<QString, QString> read(const QByteArray& text) {
        writeText(path, text);
        return readAliases(path, &problems);
    }
    const QTemporaryDir folder;
    const QString path = folder.filePath("aliases.yaml");
    QStringList problems;
};

TEST_F(AliasesTest, AreReadInAnyCase) {
    EXPECT_EQ(read("z: Zoom\nQU: quit\n"), (QMap<QString, QString>{{"Z", "ZOOM"}, {"QU", "QUIT"}}));
    EXPECT_EQ(problems, QStringList());
}

TEST_F(AliasesTest, AMissingFileIsTold) {
    EXPECT_TRUE(readAliases(path, &problems).isEmpty());
    EXPECT_EQ(problems, QStringList{path + ": No such file or directory"});
}

TEST_F(AliasesTest, AFaultIsToldWithItsLine) {
    for (const auto& [text, line] :
         {std::pair("a: b\nc: d\ne: [f, g]\n", 3), {"a: b\n- c\n", 2}, {"- a\n", 1}}) {
        problems.clear();
        EXPECT_TRUE(read(text).isEmpty()) << text;
        ASSERT_EQ(problems.size(), 1) << text;
        EXPECT_TRUE(problems[0].startsWith(QString("%1:%2: ").arg(path).arg(line)))
            << problems[0].toStdString();
    }
}

} // namespace
