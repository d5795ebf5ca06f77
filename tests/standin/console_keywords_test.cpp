// How typed answers name keywords.
#include "standin/console/keywords.h"

#include <gtest/gtest.h>

using standin::Keywords;

namespace {

const QString insertion =
    QStringLiteral("Scale X Y Z Rotate PScale PX PY PZ PRotate *S *X *Y *Z *R *PS *PX *PY *PZ *PR _ "
                   "Scale X Y Z Rotate PScale PX PY PZ PRotate *S *X *Y *Z *R *PS *PX *PY *PZ *PR");

TEST(ConsoleKeywords, WholeWordMatchesWithoutRegardToCase) {
    EXPECT_EQ(Keywords("Yes No").match("yes"), 0);
    EXPECT_EQ(Keywords("Yes No").match("NO"), 1);
}

TEST(ConsoleKeywords, CapitalsAreAnAbbreviation) {
    const Keywords keywords("Order Add Remove Explode REName Selectable Create");
    EXPECT_EQ(keywords.match("ren"), 4);
    EXPECT_EQ(keywords.match("r"), 2);
    EXPECT_EQ(keywords.match("re"), 2); // the capitals of REName are not complete
    EXPECT_EQ(keywords.match("e"), 3);
}

TEST(ConsoleKeywords, UniqueBeginningMatches) {
    const Keywords keywords("Order Add Remove Explode REName");
    EXPECT_EQ(keywords.match("rena"), 4);
    EXPECT_EQ(keywords.match("rem"), 2);
    EXPECT_EQ(keywords.match("Ex"), 3);
}

TEST(ConsoleKeywords, BeginningOfTwoWordsIsAmbiguousAndNamesBoth) {
    const Keywords keywords("List LAyer");
    EXPECT_EQ(keywords.match("l"), 0); // the capital of List
    const Keywords equal("STart STop");
    EXPECT_EQ(equal.match("s"), Keywords::kAmbiguous);
    EXPECT_EQ(equal.candidates("s"), QStringList({"STart", "STop"}));
}

TEST(ConsoleKeywords, HiddenWordsAreReachedWithTheirStar) {
    const Keywords keywords(insertion);
    EXPECT_EQ(keywords.match("*X"), 11);
    EXPECT_EQ(keywords.match("*z"), 13);
}

TEST(ConsoleKeywords, VisibleWordWinsOverItsHiddenNamesake) {
    const Keywords keywords(insertion);
    EXPECT_EQ(keywords.match("x"), 1);
    EXPECT_EQ(keywords.match("S"), 0);
    EXPECT_EQ(keywords.match("PS"), 5);
    EXPECT_EQ(keywords.match("R"), 4);
}

TEST(ConsoleKeywords, HiddenWordMatchesWithoutStarWhenNothingVisibleDoes) {
    EXPECT_EQ(Keywords("Corner *Q").match("q"), 1);
}

TEST(ConsoleKeywords, HiddenWordsAreNotShown) {
    EXPECT_EQ(Keywords("Yes No *Y *N _ Yes No *Y *N").visible(), QStringList({"Yes", "No"}));
}

TEST(ConsoleKeywords, GlobalWordsNeedTheUnderscore) {
    const Keywords keywords("Ja Nein _ Yes No");
    EXPECT_EQ(keywords.match("_yes"), 0);
    EXPECT_EQ(keywords.match("_N"), 1);
    EXPECT_EQ(keywords.match("yes"), Keywords::kNone);
    EXPECT_EQ(keywords.match("nein"), 1);
}

TEST(ConsoleKeywords, WordsInQuotesHoldBlanks) {
    const Keywords keywords("\"Add objects\" \"Remove objects\" REName");
    EXPECT_EQ(keywords.visible(), QStringList({"Add objects", "Remove objects", "REName"}));
    EXPECT_EQ(keywords.match("remove objects"), 1);
    EXPECT_EQ(keywords.match("\"Remove objects\""), 1);
    EXPECT_EQ(keywords.match("a"), 0);
    EXPECT_EQ(keywords.match("ren"), 2);
    EXPECT_EQ(Keywords("AB AC").match("\"AB\""), 0) << "its last letter counts";
}

TEST(ConsoleKeywords, PrefixOfTheListIsNoKeyword) {
    const Keywords keywords("Kwrd:Corner *C _ Corner *C");
    EXPECT_EQ(keywords.visible(), QStringList({"Corner"}));
    EXPECT_EQ(keywords.match("c"), 0);
}

TEST(ConsoleKeywords, QuestionMarkIsAKeyword) {
    EXPECT_EQ(Keywords("?").match("?"), 0);
    EXPECT_EQ(Keywords("?").match("x"), Keywords::kNone);
}

TEST(ConsoleKeywords, PlaceholderInThePromptIsFilledWithTheVisibleWords) {
    EXPECT_EQ(standin::filledPrompt("Specify insertion point or [%s]", Keywords("Scale X *S")),
              "Specify insertion point or [Scale/X]");
}

TEST(ConsoleKeywords, PromptWithoutKeywordsLosesTheEmptyBrackets) {
    EXPECT_EQ(standin::filledPrompt("Specify X scale factor or [%s] <1>:", Keywords("")),
              "Specify X scale factor <1>:");
}

} // namespace
