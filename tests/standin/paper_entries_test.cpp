// What the paper dialogs take for lengths and names, and what they say of wrong ones.
#include "tests/standin/paper_dialog_fixture.h"

namespace {

struct WrongEntry {
    const char* edit;
    const char* text;
    const char* error;
    const char* told;
};

class PaperDialogErrors : public PaperDialogTest, public testing::WithParamInterface<WrongEntry> {};

TEST_P(PaperDialogErrors, TheErrorStandsAtItsFieldAndOkStaysInTheDialog) {
    EXPECT_FALSE(modify(QStringLiteral("A4 (210.00 x 297.00 mm)"), [](PaperUser& user) {
        EXPECT_EQ(user.error(GetParam().error), QString());
        user.type(GetParam().edit, QLatin1String(GetParam().text));
        EXPECT_EQ(user.error(GetParam().error), QLatin1String(GetParam().told)) << "while typing";
        user.click("okButton");
        EXPECT_TRUE(QApplication::activeModalWidget()) << "the dialog is still open";
        EXPECT_EQ(QApplication::focusWidget(), user.find<QLineEdit>(GetParam().edit));
    }));
    EXPECT_EQ(standin::paperRowText(paper("Paper00000001").get()), QStringLiteral("A4 (210.00 x 297.00 mm)"));
}

INSTANTIATE_TEST_SUITE_P(
    Entries, PaperDialogErrors,
    testing::Values(WrongEntry{"nameEdit", "  ", "nameError", "Enter a name for the paper."},
                    WrongEntry{"widthEdit", "", "widthError", "Enter a number."},
                    WrongEntry{"widthEdit", "abc", "widthError", "Enter a number."},
                    WrongEntry{"heightEdit", "nan", "heightError", "Enter a number."},
                    WrongEntry{"heightEdit", "1e400", "heightError", "Enter a number."},
                    WrongEntry{"widthEdit", "0", "widthError", "The size must be greater than zero."},
                    WrongEntry{"heightEdit", "-297", "heightError", "The size must be greater than zero."},
                    WrongEntry{"widthEdit", "100001", "widthError",
                               "A paper can't be larger than 100 metres."},
                    WrongEntry{"leftEdit", "-1", "leftError", "A margin can't be less than zero."},
                    WrongEntry{"topEdit", "287", "topError", "The margins leave nothing to print on."}));

struct Limit {
    const char *units, *edit, *text, *error, *told;
};

TEST_F(PaperDialogTest, LimitsOfLengthsAreWhereTheyAreSaidToBe) {
    const char* const large = "A paper can't be larger than 100 metres.";
    const char* const nothing = "The margins leave nothing to print on.";
    for (const Limit& each : {Limit{"mm", "widthEdit", "100000", "widthError", ""},
                              {"mm", "widthEdit", "100000.01", "widthError", large},
                              {"mm", "heightEdit", "100000.01", "heightError", large},
                              {"in", "widthEdit", "3937", "widthError", ""},
                              {"in", "widthEdit", "3937.01", "widthError", large},
                              {"mm", "widthEdit", "0.01", "widthError", ""},
                              {"mm", "leftEdit", "0", "leftError", ""},
                              {"mm", "leftEdit", "-0.01", "leftError", "A margin can't be less than zero."},
                              {"mm", "rightEdit", "197.99", "rightError", ""},
                              {"mm", "rightEdit", "198", "rightError", nothing},
                              {"mm", "leftEdit", "201.99", "leftError", ""},
                              {"mm", "leftEdit", "202", "leftError", nothing},
                              {"mm", "bottomEdit", "286.99", "bottomError", ""},
                              {"mm", "bottomEdit", "287", "bottomError", nothing},
                              {"mm", "topEdit", "286.99", "topError", ""},
                              {"mm", "topEdit", "x", "topError", "Enter a number."},
                              {"mm", "topEdit", "1,5", "topError", ""}})
        modify(QStringLiteral("A4 (210.00 x 297.00 mm)"), [&each](PaperUser& user) {
            user.choose(each.units);
            user.type(each.edit, QLatin1String(each.text));
            EXPECT_EQ(user.error(each.error), QLatin1String(each.told)) << each.edit << " " << each.text;
        });
}

TEST_F(PaperDialogTest, LengthsAreShownWithFourDecimalsAtMost) {
    modify(QStringLiteral("A4 (210.00 x 297.00 mm)"), [](PaperUser& user) {
        EXPECT_EQ(user.text("leftEdit"), QStringLiteral("12"));
        EXPECT_EQ(user.text("rightEdit"), QStringLiteral("8"));
        EXPECT_EQ(user.text("topEdit"), QStringLiteral("10"));
        EXPECT_EQ(user.text("bottomEdit"), QStringLiteral("10"));
        EXPECT_TRUE(user.find<QCheckBox>("usedCheck")->isChecked());
        user.choose("in");
        EXPECT_EQ(user.text("heightEdit"), QStringLiteral("11.6929"));
        EXPECT_EQ(user.text("rightEdit"), QStringLiteral("0.315"));
        EXPECT_EQ(user.text("topEdit"), QStringLiteral("0.3937"));
        user.type("topEdit", QStringLiteral("1"));
        user.choose("mm");
        EXPECT_EQ(user.text("topEdit"), QStringLiteral("25.4"));
        EXPECT_EQ(user.text("bottomEdit"), QStringLiteral("10"));
    });
}

TEST_F(PaperDialogTest, PapersThatSayLittleHaveEqualMargins) {
    host.load(*papers, "Bare: {Size: !rsize [100, 50], PortraitSize: !rsize [80, 40], Used: 0}\n"
                       "Plain: {Size: !rsize [100, 50]}\n");
    const standin::PaperSheet bare = standin::readPaper(paper("Bare").get());
    EXPECT_EQ(bare.name, QStringLiteral("<<Unnamed paper>>"));
    EXPECT_EQ(bare.units, QStringLiteral("mm"));
    EXPECT_EQ(bare.left, 10);
    EXPECT_EQ(bare.right, 10);
    EXPECT_EQ(bare.bottom, 5);
    EXPECT_EQ(bare.top, 5);
    EXPECT_FALSE(bare.used);
    standin::PaperSheet plain = standin::readPaper(paper("Plain").get());
    EXPECT_EQ(plain.width, 100);
    EXPECT_EQ(plain.height, 50);
    EXPECT_EQ(plain.left + plain.right + plain.top + plain.bottom, 0);
    EXPECT_TRUE(plain.used);
    plain.left = 1;
    plain.right = 2;
    plain.top = 3;
    plain.bottom = 4;
    standin::writePaper(paper("Plain").get(), plain);
    EXPECT_EQ(size("Plain", "PortraitSize").cx, 97);
    EXPECT_EQ(size("Plain", "PortraitSize").cy, 43);
    EXPECT_EQ(size("Plain", "LandscapeSize").cx, 43);
    EXPECT_EQ(size("Plain", "LandscapeSize").cy, 97);
    EXPECT_TRUE(standin::readPaper(paper("Plain").get()).sameShape(plain));
    for (double standin::PaperSheet::*side :
         {&standin::PaperSheet::width, &standin::PaperSheet::height, &standin::PaperSheet::left,
          &standin::PaperSheet::right, &standin::PaperSheet::top, &standin::PaperSheet::bottom}) {
        standin::PaperSheet other = plain;
        other.*side += 1;
        EXPECT_FALSE(other.sameShape(plain));
    }
    standin::PaperSheet other = plain;
    other.units = QStringLiteral("in");
    EXPECT_FALSE(other.sameShape(plain));
    EXPECT_EQ(standin::millimetresIn(QStringLiteral("mm")), 1);
    EXPECT_EQ(standin::millimetresIn(QStringLiteral("in")), 25.4);
    EXPECT_EQ(standin::millimetresIn(QStringLiteral("ft")), 0);
}

} // namespace
