// The host's paper dialogs, worked as a user does.
#include "tests/standin/paper_dialog_fixture.h"

namespace {

const char marks[] = "<span style=\"background-color: green\"><font color=\"white\">%1</font></span>";

TEST_F(PaperDialogTest, AddingStoresANewSectionWithEverythingThatWasEntered) {
    EXPECT_TRUE(add([](PaperUser& user) {
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
    EXPECT_FALSE(add([](PaperUser& user) {
        user.type("nameEdit", QStringLiteral("Banner"));
        user.click("cancelButton");
    }));
    EXPECT_EQ(childNames(papers.get()).size(), 2u);
}

TEST_F(PaperDialogTest, ANewPaperTakesANumberThatIsFree) {
    papers->removeEntry("Paper00000001");
    EXPECT_TRUE(add([](PaperUser& user) {
        user.type("nameEdit", QStringLiteral("X"));
        user.click("okButton");
    }));
    EXPECT_EQ(childNames(papers.get()), (std::vector<std::string>{"Paper00000002", "Paper00000003"}));
}

TEST_F(PaperDialogTest, ModifyingShowsThePaperAndOkWithoutAChangeLeavesItsShape) {
    EXPECT_TRUE(modify(QStringLiteral("A4 (210.00 x 297.00 mm)"), [](PaperUser& user) {
        EXPECT_EQ(user.text("nameEdit"), QStringLiteral("A4"));
        EXPECT_EQ(user.text("leftEdit"), QStringLiteral("12"));
        EXPECT_EQ(user.text("rightEdit"), QStringLiteral("8"));
        EXPECT_EQ(user.text("topEdit"), QStringLiteral("10"));
        user.click("okButton");
    }));
    EXPECT_EQ(size("Paper00000001", "LandscapeSize").cx, 270) << "not derived anew";
}

TEST_F(PaperDialogTest, ModifyingKeepsValuesAndSectionsThatItDoesNotKnow) {
    EXPECT_TRUE(modify(QStringLiteral("A4 (210.00 x 297.00 mm)"), [](PaperUser& user) {
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
    EXPECT_TRUE(modify(marked, [](PaperUser& user) { user.click("okButton"); }));
    EXPECT_EQ(host.messages.size(), 0u);
}

TEST_F(PaperDialogTest, TheColoursOfTheMarksDoNotMatter) {
    const QString marked =
        QString::fromLatin1(marks).replace("green", "#ffee00").replace("white", "#000").arg("A4");
    EXPECT_TRUE(modify(marked + " (210.00 x 297.00 mm)", [](PaperUser& user) { user.click("okButton"); }));
    EXPECT_EQ(host.messages.size(), 0u);
}

TEST_F(PaperDialogTest, ANameThatLooksLikeASearchMarkIsFoundAsItStands) {
    const QString name = QString::fromLatin1(marks).arg(QStringLiteral("A4"));
    CKWVariant value;
    value = hostqt::cxStringW(name);
    paper("Paper00000002")->setValue("Name", &value);
    EXPECT_TRUE(modify(name + QStringLiteral(" (8.50 x 11.00 in)"), [name](PaperUser& user) {
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
        EXPECT_TRUE(modify(shown + "  (8.50 x 11.00 in)", [](PaperUser& user) { user.click("okButton"); }))
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
    EXPECT_TRUE(modify(QStringLiteral("A4 (210.00 x 297.00 mm)"), [](PaperUser& user) {
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
    modify(QStringLiteral("Letter (8.50 x 11.00 in)"), [](PaperUser& user) {
        user.type("widthEdit", QStringLiteral("10"));
        EXPECT_EQ(user.find<QLabel>("otherUnitLabel")->text(), QStringLiteral("= 254.00 x 279.40 mm"));
    });
}

TEST_F(PaperDialogTest, AnUnknownUnitStaysAndIsNeverConverted) {
    CKWVariant units;
    units = "furlong";
    paper("Paper00000002")->setValue("Units", &units);
    EXPECT_TRUE(modify(QStringLiteral("Letter (8.50 x 11.00 furlong)"), [](PaperUser& user) {
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

TEST_F(PaperDialogTest, AnEmptyNameIsNotHeldAgainstTheUserBeforeOk) {
    add([](PaperUser& user) {
        EXPECT_EQ(user.error("nameError"), QString());
        user.click("okButton");
        EXPECT_EQ(user.error("nameError"), QStringLiteral("Enter a name for the paper."));
    });
}

TEST_F(PaperDialogTest, ASizeThatCameWrongFromTheStoreIsShownAtOnce) {
    CKWVariant value;
    value = tagRSIZE{-5, 0};
    paper("Paper00000002")->setValue("Size", &value);
    modify(QStringLiteral("Letter (-5.00 x 0.00 in)"), [](PaperUser& user) {
        EXPECT_EQ(user.error("widthError"), QStringLiteral("The size must be greater than zero."));
        EXPECT_EQ(user.error("heightError"), QStringLiteral("The size must be greater than zero."));
    });
}

TEST_F(PaperDialogTest, ReturnAcceptsAndEscapeCancels) {
    EXPECT_TRUE(add([](PaperUser& user) {
        user.type("nameEdit", QStringLiteral("X"));
        QTest::keyClick(user.find<QLineEdit>("nameEdit"), Qt::Key_Return);
    }));
    EXPECT_FALSE(add([](PaperUser& user) {
        user.type("nameEdit", QStringLiteral("Y"));
        QTest::keyClick(user.find<QLineEdit>("nameEdit"), Qt::Key_Escape);
    }));
    EXPECT_EQ(childNames(papers.get()).size(), 3u);
}

TEST_F(PaperDialogTest, NamesWithMarkupAndPercentSignsAreKeptAsTyped) {
    const QString name = QStringLiteral("<b>\"%1\" & %s</b>");
    EXPECT_TRUE(add([name](PaperUser& user) {
        user.type("nameEdit", name);
        user.click("okButton");
    }));
    EXPECT_TRUE(modify(standin::paperRowText(paper("Paper00000003").get()), [name](PaperUser& user) {
        EXPECT_EQ(user.text("nameEdit"), name);
        user.click("okButton");
    }));
}

} // namespace
