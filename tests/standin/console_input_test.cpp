// The input operations of the console.
#include "host/text.h"
#include "tests/standin/console_driver.h"

#include <cmath>
#include <gtest/gtest.h>

namespace {

struct ConsoleInputTest : testing::Test, ConsoleDriver {
    int getInput(const wchar_t* keywords, int flags) {
        return console.getInput(L"Enter a name", keywords, flags, &text, 0);
    }
    int getPoint(int flags = 6, const wchar_t* keywords = nullptr) {
        return console.getPoint(nullptr, &point, L"Point", keywords, flags, &text, nullptr);
    }
    QString typed() const { return hostqt::qString(text); }
    OdString text;
    OdGePoint3d point;
};

TEST_F(ConsoleInputTest, TypedValueIsGivenBackWithoutBlanksAround) {
    type({"  chairs "});
    EXPECT_EQ(getInput(nullptr, 6), kInputTyped);
    EXPECT_EQ(typed(), "chairs");
}

TEST_F(ConsoleInputTest, FreeTextKeepsItsBlanks) {
    type({" all of the chairs "});
    EXPECT_EQ(getInput(nullptr, 7), kInputTyped);
    EXPECT_EQ(typed(), " all of the chairs ");
}

TEST_F(ConsoleInputTest, EnterIsNoAnswerUnderAnyFlags) {
    for (const int flags : {0, 2, 4, 6, 7, 14}) {
        type({""});
        EXPECT_EQ(getInput(L"Yes No", flags), kInputNone) << flags;
    }
}

TEST_F(ConsoleInputTest, EscapeCancels) {
    EXPECT_EQ(getInput(nullptr, 6), kInputCancelled);
    EXPECT_EQ(unanswered, 1);
    EXPECT_EQ(lastLine(), "Enter a name: *Cancel*");
}

TEST_F(ConsoleInputTest, KeywordNumberCountsFromTwo) {
    type({"No"});
    EXPECT_EQ(getInput(L"Yes No", 4), kInputKeyword + 1);
}

TEST_F(ConsoleInputTest, WhereOnlyKeywordsWillDoOtherTextIsAskedAgain) {
    type({"perhaps", "yes"});
    EXPECT_EQ(console.getInput(L"Sure?", L"Yes No", 4, nullptr, 0), kInputKeyword);
    EXPECT_EQ(console.transcript(),
              QStringList({"Sure? perhaps", "Please answer with one of: Yes, No.", "Sure? yes"}));
}

TEST_F(ConsoleInputTest, WhereAnyTextWillDoOtherTextIsAnAnswer) {
    type({"perhaps"});
    EXPECT_EQ(getInput(L"Yes No", 6), kInputTyped);
    EXPECT_EQ(typed(), "perhaps");
}

TEST_F(ConsoleInputTest, AmbiguousKeywordIsAskedAgain) {
    type({"s", "sto"});
    EXPECT_EQ(getInput(L"STart STop", 4), kInputKeyword + 1);
    EXPECT_TRUE(console.transcript().contains("Ambiguous answer. Which one: STart, STop?"));
}

TEST_F(ConsoleInputTest, ClickAtATextPromptChangesNothing) {
    console.pickPoint({1, 2, 0});
    type({"chairs"});
    EXPECT_EQ(getInput(nullptr, 6), kInputTyped);
    EXPECT_EQ(typed(), "chairs");
}

TEST_F(ConsoleInputTest, InputTextTakesALineAsItIs) {
    type({"*"});
    EXPECT_EQ(console.getInputText(0, 0, 0, &text, 0), kInputTextOk);
    EXPECT_EQ(typed(), "*");
    EXPECT_NE(console.getInputText(0, 0, 0, &text, 0), kInputTextOk); // Escape
}

TEST_F(ConsoleInputTest, PickedPointIsGivenBack) {
    console.pickPoint({3, 4, 5});
    EXPECT_EQ(getPoint(), kInputPicked);
    EXPECT_EQ(point, OdGePoint3d(3, 4, 5));
    EXPECT_EQ(console.inputPoint(), OdGePoint3d(3, 4, 5));
}

TEST_F(ConsoleInputTest, TheInputPointIsWhereTheCursorIsUntilAnAnswerGivesOne) {
    console.pickPoint({3, 4, 5});
    getPoint();
    console.moveCursor({7, 8, 0});
    EXPECT_EQ(console.inputPoint(), OdGePoint3d(7, 8, 0));
    type({"@1,1"});
    getPoint(0);
    EXPECT_EQ(point, OdGePoint3d(4, 5, 5)) << "relative to the last answer, not to the cursor";
    EXPECT_EQ(console.inputPoint(), point);
}

TEST_F(ConsoleInputTest, ControlCharactersAreShownAsTheirNumbers) {
    console.print(QString::fromUtf8("a\x1b[31mb\x07\x7f\xc2\x9b\r \xc3\xa9\tc\nnext"));
    EXPECT_EQ(console.transcript().at(0),
              QString::fromUtf8("a\\U+001B[31mb\\U+0007\\U+007F\\U+009B\\U+000D \xc3\xa9\tc"));
    EXPECT_EQ(lastLine(), "next");
    console.printLine(L"\x1b]0;title\x07");
    EXPECT_EQ(lastLine(), "\\U+001B]0;title\\U+0007");
    console.echo("Name: ", "\x1b[2J");
    EXPECT_EQ(lastLine(), "Name: \\U+001B[2J");
}

TEST_F(ConsoleInputTest, TypedCoordinatesAreAPoint) {
    type({"1.5,-2"});
    EXPECT_EQ(getPoint(0), kInputPicked);
    EXPECT_EQ(point, OdGePoint3d(1.5, -2, 0));
    type({"1,2,3"});
    EXPECT_EQ(getPoint(), kInputPicked);
    EXPECT_EQ(point, OdGePoint3d(1, 2, 3));
}

TEST_F(ConsoleInputTest, RelativeCoordinatesStartAtTheLastPointOrAtTheBase) {
    type({"10,10", "@5,-5"});
    getPoint();
    getPoint();
    EXPECT_EQ(point, OdGePoint3d(15, 5, 0));
    const OdGePoint3d base(100, 100, 0);
    type({"@1,1"});
    console.getPoint(&base, &point, L"Corner", nullptr, 6, &text, nullptr);
    EXPECT_EQ(point, OdGePoint3d(101, 101, 0));
}

TEST_F(ConsoleInputTest, PolarCoordinatesAreAPoint) {
    type({"10<90", "@2<180"});
    getPoint();
    EXPECT_NEAR(point.x, 0, 1e-12);
    EXPECT_NEAR(point.y, 10, 1e-12);
    getPoint();
    EXPECT_NEAR(point.x, -2, 1e-12);
    EXPECT_NEAR(point.y, 10, 1e-12);
}

TEST_F(ConsoleInputTest, TextAtAPointPromptGoesToCallersThatTakeIt) {
    type({"2.5"});
    EXPECT_EQ(getPoint(6), kInputTyped);
    EXPECT_EQ(typed(), "2.5");
}

TEST_F(ConsoleInputTest, TextAtAPointPromptIsRefusedOtherwise) {
    type({"nowhere", "1,1"});
    EXPECT_EQ(getPoint(0), kInputPicked);
    EXPECT_EQ(console.transcript().size(), 3);
}

TEST_F(ConsoleInputTest, KeywordAtAPointPromptWinsOverText) {
    type({"*x"});
    EXPECT_EQ(getPoint(0, L"Scale X *S *X _ Scale X *S *X"), kInputKeyword + 3);
}

TEST_F(ConsoleInputTest, PointIsLeftAloneByEnterAndEscape) {
    point = {7, 7, 7};
    type({""});
    EXPECT_EQ(getPoint(), kInputNone);
    EXPECT_EQ(getPoint(), kInputCancelled);
    EXPECT_EQ(point, OdGePoint3d(7, 7, 7));
}

TEST_F(ConsoleInputTest, AngleIsMeasuredFromTheBase) {
    double angle = 0;
    console.pickPoint({1, 3, 0});
    EXPECT_EQ(console.getAngle({1, 1, 0}, &angle, L"Angle", nullptr, 14, &text, nullptr), kInputPicked);
    EXPECT_NEAR(angle, M_PI / 2, 1e-12);
}

TEST_F(ConsoleInputTest, TypedAngleIsTextOrAValueAsTheCallerTakesIt) {
    double angle = 0;
    type({"45"});
    EXPECT_EQ(console.getAngle({}, &angle, L"Angle", nullptr, 14, &text, nullptr), kInputTyped);
    EXPECT_EQ(typed(), "45");
    EXPECT_EQ(angle, 0);
    type({"45"});
    EXPECT_EQ(console.getAngle({}, &angle, L"Angle", nullptr, 0, &text, nullptr), kInputPicked);
    EXPECT_NEAR(angle, M_PI / 4, 1e-12);
}

TEST_F(ConsoleInputTest, DistanceIsMeasuredInSpace) {
    double distance = 0;
    console.pickPoint({3, 4, 12});
    EXPECT_EQ(console.getDistance({}, &distance, L"Distance", nullptr, 14, &text, nullptr), kInputPicked);
    EXPECT_NEAR(distance, 13, 1e-12);
}

TEST_F(ConsoleInputTest, DistanceIsMeasuredFromTheBaseAlsoToATypedPoint) {
    double distance = 0;
    console.pickPoint({4, 6, 15});
    EXPECT_EQ(console.getDistance({1, 2, 3}, &distance, L"Distance", nullptr, 14, &text, nullptr),
              kInputPicked);
    EXPECT_NEAR(distance, 13, 1e-12);
    type({"@3,4"});
    EXPECT_EQ(console.getDistance({1, 2, 3}, &distance, L"Distance", nullptr, 14, &text, nullptr),
              kInputPicked);
    EXPECT_NEAR(distance, 5, 1e-12);
    EXPECT_EQ(console.inputPoint(), OdGePoint3d(4, 6, 3));
}

TEST_F(ConsoleInputTest, WhatIsNoValueIsRefusedWithWhatIsNeeded) {
    double value = 7;
    type({"x", "1"});
    EXPECT_EQ(console.getDistance({}, &value, L"D", nullptr, 0, &text, nullptr), kInputPicked);
    type({"x", "1"});
    EXPECT_EQ(console.getAngle({}, &value, L"A", nullptr, 0, &text, nullptr), kInputPicked);
    console.pickPoint({1, 2, 0});
    type({"1"});
    EXPECT_EQ(console.getReal(&value, L"R", nullptr, 4, 0, 0), kInputPicked);
    EXPECT_EQ(value, 1);
    EXPECT_EQ(console.transcript(), QStringList({"D: x", "A distance or a point is needed.", "D: 1", "A: x",
                                                 "An angle or a point is needed.", "A: 1", "R: 1,2",
                                                 "A number is needed.", "R: 1"}));
}

TEST_F(ConsoleInputTest, PromptsEndInAMarkAndABlank) {
    for (const auto& [prompt, shown] :
         {std::pair(L"Name", "Name: x"), {L"Name:", "Name: x"}, {L"Sure? \n ", "Sure? x"}, {L"", "x"}}) {
        type({"x"});
        console.getInput(prompt, nullptr, 6, nullptr, 0);
        EXPECT_EQ(lastLine(), shown);
    }
}

TEST_F(ConsoleInputTest, CoordinatesOfTheWrongNumberAreNoPoint) {
    for (const char* wrong : {"1", "1,2,3,4", "1,x", "1<2<3", "x<1", "1<x"}) {
        type({wrong, "5,6"});
        EXPECT_EQ(getPoint(0), kInputPicked) << wrong;
        EXPECT_EQ(point, OdGePoint3d(5, 6, 0)) << wrong;
        EXPECT_TRUE(console.transcript().at(console.transcript().size() - 2).startsWith("A point is needed"))
            << wrong;
    }
    type({"@"});
    point = {};
    EXPECT_EQ(getPoint(0), kInputPicked);
    EXPECT_EQ(point, OdGePoint3d(5, 6, 0)) << "the last one again";
}

TEST_F(ConsoleInputTest, PickedPointsAreWrittenWithTheirHeightIfTheyHaveOne) {
    console.pickPoint({3.5, -4, 0});
    getPoint();
    EXPECT_EQ(lastLine(), "Point: 3.5,-4");
    console.pickPoint({3, 4, 5});
    getPoint();
    EXPECT_EQ(lastLine(), "Point: 3,4,5");
}

TEST_F(ConsoleInputTest, TypedDistanceIsTextOrAValueAsTheCallerTakesIt) {
    double distance = 1;
    type({"0"});
    EXPECT_EQ(console.getDistance({}, &distance, L"Distance", nullptr, 14, &text, nullptr), kInputTyped);
    EXPECT_EQ(distance, 1);
    type({"2.5"});
    EXPECT_EQ(console.getDistance({}, &distance, L"Distance", nullptr, 0, &text, nullptr), kInputPicked);
    EXPECT_EQ(distance, 2.5);
}

TEST_F(ConsoleInputTest, RealIsReadAndOtherTextRefused) {
    double value = 0;
    type({"wide", "1e1"});
    EXPECT_EQ(console.getReal(&value, L"Enter a factor", nullptr, 4, 0, 0), kInputPicked);
    EXPECT_EQ(value, 10);
    type({""});
    EXPECT_EQ(console.getReal(&value, L"Enter a factor", nullptr, 4, 0, 0), kInputNone);
}

TEST_F(ConsoleInputTest, PromptTellsWhoeverShowsItWhatItWants) {
    const OdGePoint3d base(1, 2, 0);
    bool seen = false;
    QObject::connect(&console, &standin::Console::promptChanged, &console, [&] {
        if (!console.openPrompt())
            return;
        seen = console.openPrompt()->wantsPoint() && console.openPrompt()->rubberBand &&
               console.openPrompt()->base == base && console.openPrompt()->text == "Second point: ";
    });
    console.getPoint(&base, &point, L"Second point:", nullptr, 14, &text, nullptr);
    EXPECT_TRUE(seen);
    EXPECT_EQ(console.openPrompt(), nullptr);
}

TEST_F(ConsoleInputTest, ExceptionThroughAPromptClosesIt) {
    bool thrown = false;
    QObject::connect(&console, &standin::Console::promptChanged, &console, [&] {
        if (!thrown && console.openPrompt()) {
            thrown = true;
            throw 7;
        }
    });
    EXPECT_THROW(getPoint(), int);
    EXPECT_EQ(console.openPrompt(), nullptr);
    EXPECT_FALSE(console.isWaiting());
}

TEST_F(ConsoleInputTest, FormattedTextPrintsAsItStands) {
    console.printFormatted(L"Group '%s' has %d members of 100%", L"X", 3);
    console.printFormatted(L"\n");
    console.printLine(L"done");
    EXPECT_EQ(console.transcript(), QStringList({"Group '%s' has %d members of 100%", "done"}));
}

TEST_F(ConsoleInputTest, UnfinishedLineEndsBeforeTheNextMessageOrPrompt) {
    console.printFormatted(L"Not found");
    type({"x"});
    getInput(nullptr, 6);
    EXPECT_EQ(console.transcript(), QStringList({"Not found", "Enter a name: x"}));
}

TEST_F(ConsoleInputTest, LineFeedPrintsAnEmptyLine) {
    console.printLine(L"Group name is invalid.");
    console.printLine(L"\n");
    EXPECT_EQ(console.transcript(), QStringList({"Group name is invalid.", ""}));
}

} // namespace
