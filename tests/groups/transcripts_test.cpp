// Plays the scripts below tests/data/groups and compares what the commands asked, printed and changed with
// the reference beside each script. On a difference the actual text is left beside the reference as *.actual.
#include "groups/command_line_create.h"
#include "groups/command_line_edit.h"
#include "groups/command_line_from_selection.h"
#include "groups/command_line_remove_object.h"
#include "groups/command_line_ungroup.h"
#include "groups/command_line_unified.h"
#include "tests/groups/group_fixture.h"

#include <QDir>
#include <QFile>
#include <fstream>
#include <sstream>
#include <yaml-cpp/yaml.h>

namespace {

std::vector<std::string> caseNames() {
    std::vector<std::string> names;
    const QDir root(QStringLiteral(TEST_DATA_DIR "/groups"));
    for (const QString& name : root.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name))
        names.push_back(name.toStdString());
    return names;
}

OdString wide(const std::string& text) { return OdString(text.c_str(), CP_UTF8); }

std::vector<int> numbersOf(const YAML::Node& node) {
    return node ? node.as<std::vector<int>>() : std::vector<int>();
}

std::string fileText(const std::string& path) {
    const std::ifstream file(path);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

} // namespace

class Transcript : public GroupTest, public testing::WithParamInterface<std::string> {
protected:
    std::string path(const char* file) const {
        return std::string(TEST_DATA_DIR "/groups/") + GetParam() + "/" + file;
    }
    void buildDrawing(const YAML::Node& script) {
        for (const YAML::Node& node : script["groups"]) {
            const OdString name = wide(node["name"].as<std::string>());
            addGroup(name.c_str(), pick(numbersOf(node["members"])),
                     wide(node["description"].as<std::string>("")).c_str());
            group(name.c_str(), OdDb::kForWrite)->setSelectable(node["selectable"].as<bool>(true));
        }
        selection.select(pick(numbersOf(script["selected"])));
        setPickStyle(script["pickstyle"].as<int>(1));
    }
    // "type TEXT", "keyword N", "pick N...", "enter" or "cancel".
    ScriptedAnswer answerOf(const std::string& line) const {
        const std::size_t blank = line.find(' ');
        const std::string word = line.substr(0, blank);
        const std::string rest = blank == std::string::npos ? "" : line.substr(blank + 1);
        if (word == "type")
            return typed(wide(rest).c_str());
        if (word == "keyword")
            return keyword(std::stoi(rest));
        if (word == "enter")
            return enter();
        if (word == "cancel")
            return cancel();
        if (word != "pick")
            throw std::invalid_argument("no answer: " + line);
        return picked(pick(numbersOf(YAML::Load("[" + rest + "]"))));
    }
    int runClass(const std::string& name, IParam* params) {
        if (name == "CCommandLineGroupUnified")
            return run<CCommandLineGroupUnified>(params);
        if (name == "CCommandLineGroupEdit")
            return run<CCommandLineGroupEdit>(params);
        if (name == "CCommandLineGroupCreate")
            return run<CCommandLineGroupCreate>(params);
        if (name == "CCommandLineGroupUngroup")
            return run<CCommandLineGroupUngroup>(params);
        if (name == "CCommandLineGroupFromSelection")
            return run<CCommandLineGroupFromSelection>(params);
        if (name == "CCommandLineGroupRemoveObject")
            return run<CCommandLineGroupRemoveObject>(params);
        throw std::invalid_argument("no class: " + name);
    }
    void play(const YAML::Node& script) {
        for (const YAML::Node& line : script["answers"])
            io.answer(answerOf(line.as<std::string>()));
        const std::string parameter = script["parameter"].as<std::string>("");
        const Ref<IParam> params =
            parameter.empty() ? Ref<IParam>() : groupNameParams(wide(parameter).c_str());
        const int result = runClass(script["class"].as<std::string>(), params.get());
        EXPECT_TRUE(io.allTaken());
        EXPECT_EQ(io.unanswered, 0);
        io.note(L"result " + std::to_wstring(result) + L", status " + std::to_wstring(status) + L"\n");
    }
    // For the judges of tests/interop, which name the folder.
    void leaveDrawing() const {
        const QString folder = qEnvironmentVariable("GROUP_DRAWINGS");
        if (!folder.isEmpty())
            database->writeFile(wide(folder.toStdString() + "/" + GetParam() + ".dxf"));
    }
    void compare(const char* file, const std::wstring& actual) const {
        const std::string text = OdString(actual).toUtf8();
        QFile::remove(QString::fromStdString(path(file) + ".actual"));
        if (fileText(path(file)) == text)
            return;
        std::ofstream(path(file) + ".actual") << text;
        ADD_FAILURE() << path(file) << " differs from " << file << ".actual:\n" << text;
    }
};

TEST_P(Transcript, AsksPrintsAndChangesWhatTheReferenceSays) {
    const YAML::Node script = YAML::LoadFile(path("script.yaml"));
    buildDrawing(script);
    play(script);
    compare("transcript.txt", io.transcript);
    compare("drawing.txt", summary());
    leaveDrawing();
}

TEST_P(Transcript, UndoAndRedoRestoreTheDrawingTagForTag) {
    const YAML::Node script = YAML::LoadFile(path("script.yaml"));
    buildDrawing(script);
    const std::string before = drawingText();
    database->startUndoRecord();
    play(script);
    const std::string after = drawingText();
    if (after == before)
        return;
    EXPECT_TRUE(database->undo());
    EXPECT_TRUE(drawingText() == before);
    EXPECT_TRUE(database->redo());
    EXPECT_TRUE(drawingText() == after);
}

INSTANTIATE_TEST_SUITE_P(Cases, Transcript, testing::ValuesIn(caseNames()),
                         [](const auto& caseInfo) { return caseInfo.param; });
