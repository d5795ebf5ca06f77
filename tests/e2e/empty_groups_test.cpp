// A drawing without groups in which the group commands are only asked, or left by Escape.
#include "sdk/db/dictionary.h"
#include "sdk/db/group.h"
#include "tests/e2e/drawing_fixture.h"

#include <QFile>

namespace {

// Without a place for groups, as many programs write drawings.
const char* const plainDrawing =
    "  0\nSECTION\n  2\nHEADER\n  9\n$ACADVER\n  1\nAC1015\n  9\n$HANDSEED\n  5\nFF\n  0\nENDSEC\n"
    "  0\nSECTION\n  2\nENTITIES\n"
    "  0\nLINE\n  5\n20\n100\nAcDbEntity\n  8\n0\n100\nAcDbLine\n 10\n0.0\n 20\n0.0\n 11\n9.0\n 21\n9.0\n"
    "  0\nLINE\n  5\n21\n100\nAcDbEntity\n  8\n0\n100\nAcDbLine\n 10\n0.0\n 20\n9.0\n 11\n9.0\n 21\n0.0\n"
    "  0\nENDSEC\n  0\nEOF\n";

} // namespace

class DrawingWithoutGroups : public DrawingFixture {
protected:
    DrawingWithoutGroups() : plain(root.filePath("plain.dxf")) {
        QFile file(plain);
        file.open(QIODevice::WriteOnly);
        file.write(plainDrawing);
        file.close();
        enter({"OPEN", qPrintable(plain)});
    }
    OdDbDatabase& drawing() { return *document().database(); }
    std::string saved() {
        enter({"SAVE"});
        QFile file(plain);
        return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : std::string();
    }
    void makeGroup() { enter({"-GROUP", "Create", "PAIR", "", "20", "21", ""}); }
    void expectUnchanged(const char* command) {
        EXPECT_FALSE(drawing().isModified()) << command << " changes the drawing without making a group";
        EXPECT_FALSE(drawing().hasUndo()) << command << " leaves something to undo";
    }
    QString plain;
};

TEST_F(DrawingWithoutGroups, IsLeftAsItIsByCommandsThatMakeNone) {
    const std::vector<std::vector<const char*>> asked{
        {"-GROUP", "?", "*"}, {"-GROUP"},  {"-GROUP", "Create", "PAIR"},
        {"GROUPSELECTION"},   {"UNGROUP"}, {"GROUPEDIT"}};
    for (const std::vector<const char*>& lines : asked) {
        std::vector<std::function<void()>> steps;
        for (const char* line : lines)
            steps.push_back([this, line] { submit(line); });
        play(std::move(steps)); // what is open after the last line is cancelled
        expectUnchanged(lines.front());
    }
    play({[this] { submit("GROUP"); }, [] { QApplication::activeModalWidget()->close(); }});
    expectUnchanged("GROUP");
    EXPECT_EQ(saved(), plainDrawing);
}

TEST_F(DrawingWithoutGroups, KeepsWhatCanBeDoneAgainWhenGroupsAreListed) {
    makeGroup();
    ASSERT_TRUE(drawing().hasUndo()) << transcript().join('\n').toStdString();
    while (drawing().hasUndo())
        enter({"UNDO"});
    enter({"-GROUP", "?", "*"});
    EXPECT_FALSE(drawing().isModified());
    ASSERT_TRUE(drawing().hasRedo()) << "listing groups takes the way forward away";
    while (drawing().hasRedo())
        enter({"REDO"});
    const auto groups = odrxCast<OdDbDictionary>(drawing().getGroupDictionaryId().safeOpenObject());
    EXPECT_TRUE(groups->has(L"PAIR"));
}

TEST_F(DrawingWithoutGroups, GetsItsFirstGroupInOneStep) {
    enter({"-GROUP", "?", "*"});
    makeGroup();
    EXPECT_TRUE(drawing().isModified());
    enter({"UNDO"});
    EXPECT_FALSE(drawing().hasUndo()) << "a group takes more than one step to undo";
    EXPECT_EQ(saved(), plainDrawing);
}
