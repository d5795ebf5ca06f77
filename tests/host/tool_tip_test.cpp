// A tool tip shows the characters of a name, whatever they look like.
#include "host/tool_tip.h"

#include "tests/support/tool_tip_text.h"

#include <gtest/gtest.h>

TEST(PlainToolTip, ATextThatLooksLikeMarkupIsShownAsItStands) {
    for (const char* name : {"<b>bold</b>", "/a/<i>x</i>/b", "a &lt;b", "<p>two  blanks", "<b>&amp;\"'</b>",
                             "a < b > c", "<b>two\nlines</b>"}) {
        const QString tip = hostqt::plainToolTip(name);
        EXPECT_TRUE(Qt::mightBeRichText(tip)) << name;
        EXPECT_EQ(shownAsToolTip(tip), name);
    }
}

TEST(PlainToolTip, AnyOtherTextComesBackAsItIs) {
    for (const char* name : {"", "/home/me", "a < 1 > c", "AT&T", "two\nlines <b>", "<mm>"})
        EXPECT_EQ(hostqt::plainToolTip(name), name);
}
