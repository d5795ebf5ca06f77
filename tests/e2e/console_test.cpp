// The console of the window: typing, history, completion, Escape.
#include "tests/e2e/workbench_fixture.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QLabel>
#include <QPlainTextEdit>

namespace {

struct ConsolePanelTest : WorkbenchFixture {
    QString prompt() { return part<QLabel>("promptLabel")->text(); }
    QAbstractItemView* popup() { return line().completer()->popup(); }
};

TEST_F(ConsolePanelTest, TypedCommandRunsAndIsShown) {
    enter({"drawings"});
    EXPECT_EQ(lastLine(), "* Drawing1");
    EXPECT_TRUE(part<QPlainTextEdit>("transcriptView")->toPlainText().endsWith("drawings\n* Drawing1"));
    EXPECT_TRUE(line().text().isEmpty());
}

TEST_F(ConsolePanelTest, PromptOfACommandIsShownBeforeTheLine) {
    QStringList prompts;
    const auto answer = [&](const char* text) {
        return [this, &prompts, text] {
            prompts << prompt();
            submit(text);
        };
    };
    play({answer("SETVAR"), answer("PICKBOX"), answer("7")});
    EXPECT_EQ(
        prompts,
        QStringList({"Command: ", "Enter variable name or [?]: ", "Enter new value for PICKBOX <4>: "}));
    EXPECT_EQ(prompt(), "Command: ");
}

TEST_F(ConsolePanelTest, EscapeCancelsTheCommandAndClearsTheLine) {
    play({[this] { submit("SETVAR"); },
          [this] {
              type("PICK");
              press(Qt::Key_Escape);
          }});
    EXPECT_EQ(lastLine(), "Enter variable name or [?]: *Cancel*");
    EXPECT_TRUE(line().text().isEmpty());
}

TEST_F(ConsolePanelTest, EscapeWithoutACommandClearsTheLine) {
    type("123");
    press(Qt::Key_Escape);
    EXPECT_TRUE(line().text().isEmpty());
}

TEST_F(ConsolePanelTest, HelpTellsOfEachCommandInOneColumn) {
    enter({"FILEDIA", "0", "HELP"});
    const int begin = transcript().lastIndexOf("Command: HELP") + 1;
    const QStringList commands = transcript().mid(begin, bench->commands().names().size());
    for (const QString& name : bench->commands().names())
        EXPECT_EQ(commands.filter(QRegularExpression("^" + name + " {2,}[A-Z]")).size(), 1)
            << qPrintable(name);
    for (const QString& command : commands)
        EXPECT_EQ(command.indexOf(QRegularExpression("(?<=  )[A-Z]")), commands[0].indexOf("Asks"))
            << qPrintable(command);
}

TEST_F(ConsolePanelTest, ArrowsBringBackEarlierLines) {
    enter({"DRAWINGS"});
    enter({"HELP"});
    press(Qt::Key_Up);
    EXPECT_EQ(line().text(), "HELP");
    press(Qt::Key_Up);
    EXPECT_EQ(line().text(), "DRAWINGS");
    press(Qt::Key_Down);
    EXPECT_EQ(line().text(), "HELP");
    press(Qt::Key_Down);
    EXPECT_TRUE(line().text().isEmpty());
}

TEST_F(ConsolePanelTest, EnterRunsTheLastCommandAgain) {
    enter({"NEW"});
    enter({""});
    enter({"DRAWINGS"});
    EXPECT_EQ(lastLine(), "* Drawing3");
}

TEST_F(ConsolePanelTest, MatchingCommandsAreOfferedWhileTyping) {
    type("set");
    EXPECT_TRUE(waitUntil([&] { return popup()->isVisible(); }));
    EXPECT_EQ(popup()->model()->rowCount(), 1);
    EXPECT_EQ(popup()->model()->index(0, 0).data().toString(), "SETVAR");
    press(Qt::Key_Escape);
}

TEST_F(ConsolePanelTest, CommandsOfTheModuleAreOfferedToo) {
    type("qp");
    EXPECT_EQ(popup()->model()->index(0, 0).data().toString(), "QPREF");
}

TEST_F(ConsolePanelTest, TabCompletesTheCommand) {
    type("dr");
    press(Qt::Key_Tab);
    EXPECT_EQ(line().text(), "DRAWINGS");
    EXPECT_TRUE(line().hasFocus());
}

TEST_F(ConsolePanelTest, NothingIsOfferedAtAPrompt) {
    int offered = -1;
    play({[this] { submit("SETVAR"); },
          [this, &offered] {
              type("se");
              offered = popup()->isVisible() ? popup()->model()->rowCount() : 0;
          }});
    EXPECT_EQ(offered, 0);
}

TEST_F(ConsolePanelTest, VariableIsSetByItsOwnName) {
    enter({"gripsize", "9", "gripsize"});
    EXPECT_EQ(lastLine(), "Enter new value for GRIPSIZE <9>: *Cancel*");
}

TEST_F(ConsolePanelTest, ValueOutsideTheLimitsIsAskedAgain) {
    enter({"gripsize", "256", "12"});
    EXPECT_TRUE(transcript().contains("Enter a value from 1 to 255."));
    EXPECT_EQ(lastLine(), "Enter new value for GRIPSIZE <5>: 12");
}

TEST_F(ConsolePanelTest, ReadOnlyVariableIsOnlyShown) {
    enter({"DWGNAME"});
    EXPECT_EQ(lastLine(), "DWGNAME = \"Drawing1\" (read only)");
}

} // namespace
