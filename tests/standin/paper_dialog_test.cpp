// The host's paper dialogs, worked as a user does.
#include "standin/params/std_papers.h"

#include "host/text.h"
#include "host/typed_reads.h"
#include "standin/dialogs/length_edit.h"
#include "standin/dialogs/paper_dialog.h"
#include "standin/dialogs/paper_sheet.h"
#include "tests/support/fixture_host.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <functional>
#include <gtest/gtest.h>

using standin::PaperDialog;

namespace {

// What a user does with the dialog that is open.
class User {
public:
    explicit User(QWidget* window) : dialog(window) {}
    template <class W = QWidget> W* find(const char* name) {
        W* widget = dialog->findChild<W*>(QLatin1String(name));
        EXPECT_TRUE(widget) << name;
        return widget;
    }
    void type(const char* name, const QString& text) {
        auto* edit = find<QLineEdit>(name);
        edit->setFocus();
        edit->selectAll();
        QTest::keyClick(edit, Qt::Key_Delete);
        QTest::keyClicks(edit, text);
    }
    void click(const char* name) { QTest::mouseClick(find<QPushButton>(name), Qt::LeftButton); }
    void choose(const char* units) {
        auto* combo = find<QComboBox>("unitsCombo");
        combo->setCurrentIndex(combo->findData(QLatin1String(units)));
    }
    QString text(const char* name) { return find<QLineEdit>(name)->text(); }
    QString error(const char* name) {
        auto* label = find<QLabel>(name);
        return label->isVisibleTo(dialog) ? label->text() : QString();
    }

private:
    QWidget* dialog;
};

// How many dialogs are awaited that have not come up. None may be at the end of a test.
int awaitedDialogs = 0;

// Runs `work` on the next modal dialog; the dialog is closed if the work has left it open.
void onNextDialog(const std::function<void(User& user)>& work) {
    ++awaitedDialogs;
    QTimer::singleShot(0, qApp, [work] {
        --awaitedDialogs;
        QWidget* dialog = QApplication::activeModalWidget();
        ASSERT_TRUE(dialog);
        EXPECT_TRUE(QTest::qWaitForWindowActive(dialog));
        User user(dialog);
        work(user);
        if (dialog->isVisible())
            dialog->close();
    });
}

class PaperDialogTest : public testing::Test {
protected:
    FixtureHost host;
    Ref<standin::StdPapers> papers = Ref<standin::StdPapers>::share(new standin::StdPapers);
    void TearDown() override {
        EXPECT_EQ(awaitedDialogs, 0) << "a dialog that the test waits for did not come up";
    }
    void SetUp() override {
        host.load(*papers,
                  "Paper00000001: {Name: !wide \"A4\", Size: !rsize [210, 297], Units: \"mm\",\n"
                  "  PortraitSize: !rsize [190, 277], PaperOriginPoint: !rpoint [12, 10],\n"
                  "  LandscapeSize: !rsize [270, 180], InternalFrame: 4, Tray: \"2\", Sub: {x: 1}}\n"
                  "Paper00000002: {Name: !wide \"Letter\", Size: !rsize [8.5, 11.0], Units: \"in\"}\n");
    }
    Ref<IParam> paper(const char* name) { return openChild(papers.get(), name); }
    bool add(const std::function<void(User& user)>& work) {
        onNextDialog(work);
        return papers->AddPaper(nullptr);
    }
    bool modify(const QString& row, const std::function<void(User& user)>& work) {
        onNextDialog(work);
        return papers->ModifyPaper(row.toStdWString().c_str(), nullptr);
    }
    tagRSIZE size(const char* section, const char* value) {
        tagRSIZE read{-1, -1};
        EXPECT_EQ(readValue(paper(section).get(), value, &read), 1) << value;
        return read;
    }
};

const char marks[] = "<span style=\"background-color: green\"><font color=\"white\">%1</font></span>";

TEST_F(PaperDialogTest, AddingStoresANewSectionWithEverythingThatWasEntered) {
    EXPECT_TRUE(add([](User& user) {
        user.type("nameEdit", QStringLiteral("Banner"));
        user.type("widthEdit", QStringLiteral("300"));
        user.type("heightEdit", QStringLiteral("900.5"));
        user.type("leftEdit", QStringLiteral("10"));
        user.type("rightEdit", QStringLiteral("20"));
        user.type("topEdit", QStringLiteral("30"));
        user.type("bottomEdit", QStringLiteral("0,5"));
        user.find<QCheckBox>("usedCheck")->setChecked(false);
        user.click("okButton");
    }));
    ASSERT_TRUE(paper("Paper00000003"));
    CXStringW name;
    CXString units;
    int used = -1;
    tagRPOINT origin{};
    readValue(paper("Paper00000003").get(), "Name", &name);
    readValue(paper("Paper00000003").get(), "Units", &units);
    readValue(paper("Paper00000003").get(), "Used", &used);
    readValue(paper("Paper00000003").get(), "PaperOriginPoint", &origin);
    EXPECT_STREQ(name.c_str(), L"Banner");
    EXPECT_STREQ(units.c_str(), "mm");
    EXPECT_EQ(used, 0);
    EXPECT_EQ(size("Paper00000003", "Size").cy, 900.5);
    EXPECT_EQ(size("Paper00000003", "PortraitSize").cx, 270);
    EXPECT_EQ(size("Paper00000003", "PortraitSize").cy, 870);
    EXPECT_EQ(size("Paper00000003", "LandscapeSize").cx, 870);
    EXPECT_EQ(origin.x, 10);
    EXPECT_EQ(origin.y, 0.5);
}

TEST_F(PaperDialogTest, CancelAddsNothing) {
    EXPECT_FALSE(add([](User& user) {
        user.type("nameEdit", QStringLiteral("Banner"));
        user.click("cancelButton");
    }));
    EXPECT_EQ(childNames(papers.get()).size(), 2u);
}

TEST_F(PaperDialogTest, ANewPaperTakesANumberThatIsFree) {
    papers->removeEntry("Paper00000001");
    EXPECT_TRUE(add([](User& user) {
        user.type("nameEdit", QStringLiteral("X"));
        user.click("okButton");
    }));
    EXPECT_EQ(childNames(papers.get()), (std::vector<std::string>{"Paper00000002", "Paper00000003"}));
}

TEST_F(PaperDialogTest, ModifyingShowsThePaperAndOkWithoutAChangeLeavesItsShape) {
    EXPECT_TRUE(modify(QStringLiteral("A4 (210.00 x 297.00 mm)"), [](User& user) {
        EXPECT_EQ(user.text("nameEdit"), QStringLiteral("A4"));
        EXPECT_EQ(user.text("leftEdit"), QStringLiteral("12"));
        EXPECT_EQ(user.text("rightEdit"), QStringLiteral("8"));
        EXPECT_EQ(user.text("topEdit"), QStringLiteral("10"));
        user.click("okButton");
    }));
    EXPECT_EQ(size("Paper00000001", "LandscapeSize").cx, 270) << "not derived anew";
}

TEST_F(PaperDialogTest, ModifyingKeepsValuesAndSectionsThatItDoesNotKnow) {
    EXPECT_TRUE(modify(QStringLiteral("A4 (210.00 x 297.00 mm)"), [](User& user) {
        user.type("nameEdit", QStringLiteral("A4 wide"));
        user.type("widthEdit", QStringLiteral("220"));
        user.click("okButton");
    }));
    CXString tray;
    int frame = 0;
    readValue(paper("Paper00000001").get(), "Tray", &tray);
    readValue(paper("Paper00000001").get(), "InternalFrame", &frame);
    EXPECT_STREQ(tray.c_str(), "2");
    EXPECT_EQ(frame, 4);
    EXPECT_TRUE(openChild(paper("Paper00000001").get(), "Sub"));
    EXPECT_EQ(size("Paper00000001", "PortraitSize").cx, 200);
    EXPECT_EQ(standin::paperRowText(paper("Paper00000001").get()),
              QStringLiteral("A4 wide (220.00 x 297.00 mm)"));
}

TEST_F(PaperDialogTest, SearchMarksInTheRowTextAreOverlooked) {
    const QString marked = QString::fromLatin1(marks).arg(QStringLiteral("A4")) + " (2" +
                           QString::fromLatin1(marks).arg(QStringLiteral("1")) + "0.00 x 297.00 mm)";
    EXPECT_TRUE(modify(marked, [](User& user) { user.click("okButton"); }));
    EXPECT_EQ(host.messages.size(), 0u);
}

TEST_F(PaperDialogTest, TheColoursOfTheMarksDoNotMatter) {
    const QString marked =
        QString::fromLatin1(marks).replace("green", "#ffee00").replace("white", "#000").arg("A4");
    EXPECT_TRUE(modify(marked + " (210.00 x 297.00 mm)", [](User& user) { user.click("okButton"); }));
    EXPECT_EQ(host.messages.size(), 0u);
}

TEST_F(PaperDialogTest, ANameThatLooksLikeASearchMarkIsFoundAsItStands) {
    const QString name = QString::fromLatin1(marks).arg(QStringLiteral("A4"));
    CKWVariant value;
    value = hostqt::cxStringW(name);
    paper("Paper00000002")->setValue("Name", &value);
    EXPECT_TRUE(modify(name + QStringLiteral(" (8.50 x 11.00 in)"), [name](User& user) {
        EXPECT_EQ(user.text("nameEdit"), name);
        user.click("okButton");
    }));
}

TEST_F(PaperDialogTest, ANameWithBlanksAroundItIsFoundByTheRowThatShowsItWithoutThem) {
    const QString marked = QString::fromLatin1(marks).arg("A4");
    for (const QString& shown : {QStringLiteral("A4"), marked}) {
        CKWVariant value;
        value = CXStringW(L"  A4 ");
        paper("Paper00000002")->setValue("Name", &value);
        EXPECT_TRUE(modify(shown + "  (8.50 x 11.00 in)", [](User& user) { user.click("okButton"); }))
            << shown.toStdString();
    }
    EXPECT_EQ(host.messages.size(), 0u);
}

TEST_F(PaperDialogTest, APaperThatIsGoneIsTold) {
    EXPECT_FALSE(papers->ModifyPaper(L"A9 (1.00 x 2.00 mm)", nullptr));
    EXPECT_FALSE(papers->ModifyPaper(nullptr, nullptr));
    ASSERT_EQ(host.messages.size(), 2u);
    EXPECT_TRUE(host.messages[0].text.contains(QStringLiteral("A9 (1.00 x 2.00 mm)")));
}

TEST_F(PaperDialogTest, ThePapersUnitIsTranslatedInItsRowText) {
    host.translations[L"in"] = L"inch";
    EXPECT_EQ(standin::paperRowText(paper("Paper00000002").get()),
              QStringLiteral("Letter (8.50 x 11.00 inch)"));
}

TEST_F(PaperDialogTest, ASectionWithoutValuesIsAnUnnamedPaper) {
    const auto empty = Ref<IParam>::take(papers->createChild("P"));
    EXPECT_EQ(standin::paperRowText(empty.get()), QStringLiteral("<<Unnamed paper>> (0.00 x 0.00 mm)"));
}

TEST_F(PaperDialogTest, ChangingTheUnitConvertsAllLengthsAtOnceAndBackLosesNothing) {
    EXPECT_TRUE(modify(QStringLiteral("A4 (210.00 x 297.00 mm)"), [](User& user) {
        EXPECT_EQ(user.find<QLabel>("otherUnitLabel")->text(), QStringLiteral("= 8.27 x 11.69 in"));
        user.choose("in");
        EXPECT_EQ(user.text("widthEdit"), QStringLiteral("8.2677"));
        EXPECT_EQ(user.text("leftEdit"), QStringLiteral("0.4724"));
        EXPECT_EQ(user.find<QLabel>("otherUnitLabel")->text(), QStringLiteral("= 210.00 x 297.00 mm"));
        user.choose("mm");
        EXPECT_EQ(user.text("widthEdit"), QStringLiteral("210"));
        user.click("okButton");
    }));
    EXPECT_EQ(standin::paperRowText(paper("Paper00000001").get()), QStringLiteral("A4 (210.00 x 297.00 mm)"));
}

TEST_F(PaperDialogTest, TheOtherUnitFollowsTheTyping) {
    modify(QStringLiteral("Letter (8.50 x 11.00 in)"), [](User& user) {
        user.type("widthEdit", QStringLiteral("10"));
        EXPECT_EQ(user.find<QLabel>("otherUnitLabel")->text(), QStringLiteral("= 254.00 x 279.40 mm"));
    });
}

TEST_F(PaperDialogTest, AnUnknownUnitStaysAndIsNeverConverted) {
    CKWVariant units;
    units = "furlong";
    paper("Paper00000002")->setValue("Units", &units);
    EXPECT_TRUE(modify(QStringLiteral("Letter (8.50 x 11.00 furlong)"), [](User& user) {
        EXPECT_EQ(user.find<QLabel>("otherUnitLabel")->text(), QString());
        user.choose("mm");
        EXPECT_EQ(user.text("widthEdit"), QStringLiteral("8.5"));
        user.choose("furlong");
        user.click("okButton");
    }));
    CXString kept;
    readValue(paper("Paper00000002").get(), "Units", &kept);
    EXPECT_STREQ(kept.c_str(), "furlong");
}

struct WrongEntry {
    const char* edit;
    const char* text;
    const char* error;
    const char* told;
};

class PaperDialogErrors : public PaperDialogTest, public testing::WithParamInterface<WrongEntry> {};

TEST_P(PaperDialogErrors, TheErrorStandsAtItsFieldAndOkStaysInTheDialog) {
    EXPECT_FALSE(modify(QStringLiteral("A4 (210.00 x 297.00 mm)"), [](User& user) {
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
        modify(QStringLiteral("A4 (210.00 x 297.00 mm)"), [&each](User& user) {
            user.choose(each.units);
            user.type(each.edit, QLatin1String(each.text));
            EXPECT_EQ(user.error(each.error), QLatin1String(each.told)) << each.edit << " " << each.text;
        });
}

TEST_F(PaperDialogTest, LengthsAreShownWithFourDecimalsAtMost) {
    modify(QStringLiteral("A4 (210.00 x 297.00 mm)"), [](User& user) {
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

TEST_F(PaperDialogTest, AnEmptyNameIsNotHeldAgainstTheUserBeforeOk) {
    add([](User& user) {
        EXPECT_EQ(user.error("nameError"), QString());
        user.click("okButton");
        EXPECT_EQ(user.error("nameError"), QStringLiteral("Enter a name for the paper."));
    });
}

TEST_F(PaperDialogTest, ASizeThatCameWrongFromTheStoreIsShownAtOnce) {
    CKWVariant value;
    value = tagRSIZE{-5, 0};
    paper("Paper00000002")->setValue("Size", &value);
    modify(QStringLiteral("Letter (-5.00 x 0.00 in)"), [](User& user) {
        EXPECT_EQ(user.error("widthError"), QStringLiteral("The size must be greater than zero."));
        EXPECT_EQ(user.error("heightError"), QStringLiteral("The size must be greater than zero."));
    });
}

TEST_F(PaperDialogTest, ReturnAcceptsAndEscapeCancels) {
    EXPECT_TRUE(add([](User& user) {
        user.type("nameEdit", QStringLiteral("X"));
        QTest::keyClick(user.find<QLineEdit>("nameEdit"), Qt::Key_Return);
    }));
    EXPECT_FALSE(add([](User& user) {
        user.type("nameEdit", QStringLiteral("Y"));
        QTest::keyClick(user.find<QLineEdit>("nameEdit"), Qt::Key_Escape);
    }));
    EXPECT_EQ(childNames(papers.get()).size(), 3u);
}

TEST_F(PaperDialogTest, NamesWithMarkupAndPercentSignsAreKeptAsTyped) {
    const QString name = QStringLiteral("<b>\"%1\" & %s</b>");
    EXPECT_TRUE(add([name](User& user) {
        user.type("nameEdit", name);
        user.click("okButton");
    }));
    EXPECT_TRUE(modify(standin::paperRowText(paper("Paper00000003").get()), [name](User& user) {
        EXPECT_EQ(user.text("nameEdit"), name);
        user.click("okButton");
    }));
}

} // namespace
