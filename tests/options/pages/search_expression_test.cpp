// What the text of the search box matches.
#include "options/pages/search/search_expression.h"

#include <gtest/gtest.h>

namespace {

bool matches(const QString& typed, const QString& text) {
    return buildSearchExpression(typed).match(text).hasMatch();
}

QString captured(const QString& typed, const QString& text) {
    return buildSearchExpression(typed).match(text).captured();
}

TEST(SearchExpression, PlainTextMatchesTheWholeWordOnly) {
    EXPECT_TRUE(matches("abc", "x abc y"));
    EXPECT_FALSE(matches("abc", "abcd"));
    EXPECT_FALSE(matches("abc", "xabc"));
}

TEST(SearchExpression, CaseDoesNotMatter) {
    EXPECT_TRUE(matches("abc", "ABC"));
    EXPECT_TRUE(matches(QString::fromUtf8("größe"), QString::fromUtf8("GRÖßE")));
}

TEST(SearchExpression, WordsAreThoseOfUnicode) {
    EXPECT_FALSE(matches("farb", QString::fromUtf8("farbübergang")));
    EXPECT_FALSE(matches("farb", QString::fromUtf8("farbä")));
    EXPECT_EQ(captured("farb*", QString::fromUtf8("farbäöü 1")), QString::fromUtf8("farbäöü"));
}

TEST(SearchExpression, QuestionMarkIsAnyOneCharacter) {
    EXPECT_TRUE(matches("a?c", "abc"));
    EXPECT_TRUE(matches("a?c", "a-c"));
    EXPECT_FALSE(matches("a?c", "ac"));
    EXPECT_FALSE(matches("a?c", "abbc"));
}

TEST(SearchExpression, QuestionMarkCannotCrossALineEnd) { EXPECT_FALSE(matches("a?c", "a\nc")); }

TEST(SearchExpression, QuestionMarkIsAWildcardWhereverStarsStand) {
    EXPECT_EQ(captured("*a?c", "xxabc"), "xxabc");
    EXPECT_EQ(captured("a?c*", "abcxx"), "abcxx");
    EXPECT_EQ(captured("*a?c*", "xabcx"), "xabcx");
    EXPECT_EQ(captured("a?*c", "abxxc"), "abxxc");
    EXPECT_EQ(captured("a*b*?", "a*b*z"), "a*b*z");
}

TEST(SearchExpression, StarAtTheEndLoosensTheEnd) {
    EXPECT_EQ(captured("auto*", "the autosave"), "autosave");
    EXPECT_EQ(captured("auto*", "auto"), "auto");
    EXPECT_FALSE(matches("auto*", "semiauto"));
}

TEST(SearchExpression, StarAtTheStartLoosensTheStart) {
    EXPECT_EQ(captured("*save", "the autosave"), "autosave");
    EXPECT_FALSE(matches("*save", "saved"));
}

TEST(SearchExpression, StarsAtBothEndsMatchAWordWithLettersAroundIt) {
    EXPECT_EQ(captured("*abc*", "xxabcyy"), "xxabcyy");
    EXPECT_EQ(captured("*abc*", "abc"), "abc");
}

TEST(SearchExpression, StarsAtBothEndsDoNotMatchADigitInTheirPlace) {
    EXPECT_FALSE(matches("*abc*", "1abc"));
    EXPECT_FALSE(matches("*abc*", "abc2"));
    EXPECT_FALSE(matches("*abc*", "x1abc"));
    EXPECT_FALSE(matches("*abc*", "x_abc"));
}

TEST(SearchExpression, OneStarInsideJoinsTwoPartsByLetters) {
    EXPECT_TRUE(matches("a*b", "axyzb"));
    EXPECT_TRUE(matches("a*b", "ab"));
    EXPECT_FALSE(matches("a*b", "a1b"));
    EXPECT_FALSE(matches("a*b", "xab"));
}

TEST(SearchExpression, TwoStarsTogetherInsideAreAsOne) {
    EXPECT_EQ(buildSearchExpression("a**b").pattern(), buildSearchExpression("a*b").pattern());
    EXPECT_TRUE(matches("a**b", "axyzb"));
}

TEST(SearchExpression, ThreePartsAreSearchedLiterally) {
    EXPECT_TRUE(matches("a*b*c", "a*b*c"));
    EXPECT_FALSE(matches("a*b*c", "abc"));
    EXPECT_FALSE(matches("a*b*c", "axbxc"));
    EXPECT_TRUE(matches("a*b*c", "xxa*b*cxx")); // without word boundaries
}

TEST(SearchExpression, AFurtherStarBesideOneAtAnEndIsLiteral) {
    EXPECT_FALSE(matches("*a*b", "xab"));
    EXPECT_TRUE(matches("*a*b", "xa*b"));
    EXPECT_FALSE(matches("a*b*", "axb"));
    EXPECT_TRUE(matches("a*b*", "a*bx"));
    EXPECT_TRUE(matches("*a*b*", "xa*bx"));
    EXPECT_FALSE(matches("*a*b*", "xaxbx"));
}

TEST(SearchExpression, EverythingElseIsLiteral) {
    EXPECT_TRUE(matches("a.b", "a.b"));
    EXPECT_FALSE(matches("a.b", "axb"));
    EXPECT_FALSE(matches("a|b", "a"));
    EXPECT_TRUE(matches("a\\b", "a\\b"));
}

TEST(SearchExpression, IsValidForAnyText) {
    for (const char* typed :
         {"", "*", "**", "***", "?", "??*", "\\", "(", "[a", "a{2", "*(*", "\\?", "\\*", "%1"})
        EXPECT_TRUE(buildSearchExpression(typed).isValid()) << typed;
}

} // namespace
