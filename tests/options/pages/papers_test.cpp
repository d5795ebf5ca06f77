// Papers as the page reads, shows and writes them. What the user does to the rows is in papers_edit_test.cpp.
#include "options/pages/papers/paper_format.h"
#include "options/pages/papers/paper_page.h"
#include "options/pages/rows/page_rows.h"
#include "options/window/page_calls.h"
#include "tests/options/pages/paper_fixture.h"
#include "tests/support/comma_locale.h"

#include <QIcon>
#include <QLocale>
#include <cmath>
#include <utility>

namespace {

using Papers = PaperFixture;

// A store that names a section and doesn't open it, or names none.
struct LockedPapers : standin::ParamOf<IStdPapersParam> {
    IParam* openSection(const char* name, int create) override {
        return locked && CXString("Locked").Compare(name) == 0 ? nullptr : ParamOf::openSection(name, create);
    }
    IParamEnum* newEnum() override { return hasNames ? ParamOf::newEnum() : nullptr; }
    bool locked = false;
    bool hasNames = true;
};

// A section that notes the order in which values are set in it.
struct NotingSection : standin::MemParam {
    int setValue(const char* name, const tagKWVARIANT* in) override {
        written << QString(name);
        return standin::MemParam::setValue(name, in);
    }
    QStringList written;
};

PaperFormat filled(tagRSIZE size) {
    PaperFormat paper;
    paper.size = size;
    paper.presentFlags = kPaperSize;
    paper.fillDefaults();
    return paper;
}

} // namespace

TEST_F(Papers, ASectionWithoutValuesIsAnUnnamedPaperOfNoSizeThatIsChecked) {
    section("Anything");
    open();
    ASSERT_EQ(rowsBelow(page()), QStringList{"<<Unnamed paper>> (0.00 x 0.00 mm)"});
    EXPECT_TRUE(checkBoxOf(page()->childItem(0))->isChecked());
    EXPECT_EQ(preferences->paperFormats.front()->presentFlags, 255u);
    EXPECT_EQ(preferences->paperFormats.front()->internalFrame, 0);
}

TEST_F(Papers, LandscapeIsTheSizeTurnedAndTheOriginIsZeroWhenNothingElseIsGiven) {
    const PaperFormat paper = filled({297, 210});
    EXPECT_EQ(paper.portraitSize.cx, 297);
    EXPECT_EQ(paper.portraitSize.cy, 210);
    EXPECT_EQ(paper.landscapeSize.cx, 210);
    EXPECT_EQ(paper.landscapeSize.cy, 297);
    EXPECT_EQ(paper.paperOriginPoint.x, 0);
    EXPECT_EQ(paper.paperOriginPoint.y, 0);
}

TEST_F(Papers, ThePrintableAreaIsCentredOnTheSheet) {
    const Ref<IParam> paper = section("A");
    setValue(paper, "Size", tagRSIZE{100, 200});
    setValue(paper, "PortraitSize", tagRSIZE{80, 180});
    open();
    EXPECT_EQ(preferences->paperFormats[0]->paperOriginPoint.x, 10);
    EXPECT_EQ(preferences->paperFormats[0]->paperOriginPoint.y, 10);
    EXPECT_EQ(preferences->paperFormats[0]->landscapeSize.cx, 200) << "from the size, not the printable size";
}

TEST_F(Papers, AnOriginOfTheStoreIsKeptEvenWhenItNoLongerFits) {
    const Ref<IParam> paper = section("A");
    setValue(paper, "Size", tagRSIZE{100, 200});
    setValue(paper, "PaperOriginPoint", tagRPOINT{500, -3});
    open();
    EXPECT_EQ(preferences->paperFormats[0]->paperOriginPoint.x, 500);
    EXPECT_EQ(preferences->paperFormats[0]->paperOriginPoint.y, -3);
}

TEST_F(Papers, ARowShowsNameAndSizeWithTwoDecimals) {
    addPaper("P", L"A4", 210, 297);
    addPaper("Q", L"Odd", 1.005, 2.346);
    open();
    EXPECT_EQ(rowsBelow(page()), (QStringList{"A4 (210.00 x 297.00 mm)", "Odd (1.00 x 2.35 mm)"}));
}

TEST_F(Papers, TheDecimalPointIsAPointInEveryLocale) {
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German));
    EXPECT_EQ(filled({1.5, 2}).rowText(), "<<Unnamed paper>> (1.50 x 2.00 mm)");
    QLocale::setDefault(before);
}

TEST_F(Papers, TheDecimalPointIsAPointUnderACommaOfTheCLibrary) {
    const CommaLocale comma;
    if (!comma.isInForce())
        GTEST_SKIP() << "this C library does not load the locale: " << comma.whyNot();
    EXPECT_EQ(filled({1.5, 2}).rowText(), "<<Unnamed paper>> (1.50 x 2.00 mm)");
}

TEST_F(Papers, UnitsAreShownTranslatedAndKeptAsTheyAre) {
    host.translations[L"in"] = L"Zoll";
    setValue(addPaper("P", L"Letter", 8.5, 11), "Units", "in");
    setValue(addPaper("Q", L"Field", 3, 4), "Units", "furlong");
    open();
    EXPECT_EQ(rowsBelow(page()), (QStringList{"Letter (8.50 x 11.00 Zoll)", "Field (3.00 x 4.00 furlong)"}));
    apply();
    EXPECT_EQ(textOf(valueOf(host.papers(), "Paper00000001", "Units")), "in");
    EXPECT_EQ(textOf(valueOf(host.papers(), "Paper00000002", "Units")), "furlong");
}

TEST_F(Papers, NamesInAnyScriptAndOfAnyFormAreShownAsTheyAre) {
    const std::wstring name = L"\u7d19 %1 \"x\" %s <b>y</b>\nz";
    addPaper("P", name.c_str(), 1, 2);
    open();
    EXPECT_EQ(rowsBelow(page()).front(), QString::fromStdWString(name) + " (1.00 x 2.00 mm)");
    apply();
    EXPECT_EQ(storedNames(), QStringList{QString::fromStdWString(name)});
}

TEST_F(Papers, ValuesOfAWrongTypeCountAsMissing) {
    const Ref<IParam> paper = section("P");
    setValue(paper, "Name", 5);
    setValue(paper, "Size", tagSIZE{1, 2});
    setValue(paper, "Units", L"in");
    setValue(paper, "Used", "0");
    setValue(paper, "PaperOriginPoint", 1.0);
    open();
    EXPECT_EQ(rowsBelow(page()), QStringList{"<<Unnamed paper>> (0.00 x 0.00 mm)"});
    EXPECT_EQ(preferences->paperFormats[0]->used, 1);
}

TEST_F(Papers, AnEmptyNameGivesTheDefaultName) {
    addPaper("P", L"", 1, 2);
    open();
    EXPECT_EQ(rowsBelow(page()), QStringList{"<<Unnamed paper>> (1.00 x 2.00 mm)"});
}

TEST_F(Papers, SizesThatMakeNoSenseAreShownAndSurviveApply) {
    addPaper("P", L"Minus", -5, 0);
    addPaper("Q", L"Nothing", std::nan(""), 1);
    open();
    EXPECT_EQ(rowsBelow(page()).front(), "Minus (-5.00 x 0.00 mm)");
    EXPECT_TRUE(rowsBelow(page()).back().contains("nan"));
    apply();
    EXPECT_EQ(static_cast<tagRSIZE>(valueOf(host.papers(), "Paper00000001", "Size")).cx, -5);
    EXPECT_TRUE(std::isnan(static_cast<tagRSIZE>(valueOf(host.papers(), "Paper00000002", "Size")).cx));
}

TEST_F(Papers, TheRootOffersAddAndItsRowsOfferEverything) {
    addPaper("P", L"A4", 210, 297);
    open();
    EXPECT_EQ(page()->buttonMask, 4u);
    EXPECT_EQ(page()->nodeType, kNodePaperRoot);
    EXPECT_EQ(preferences->paperRootItem, page());
    const TreeItem* paper = page()->childItem(0);
    EXPECT_EQ(paper->buttonMask, 31u);
    EXPECT_EQ(paper->nodeType, kNodePaper);
    EXPECT_EQ(paper->description, "About the page");
    EXPECT_EQ(paper->payload, preferences->paperFormats[0]);
    EXPECT_EQ(iconOf(paper).cacheKey(), iconOf(page()).cacheKey());
    EXPECT_FALSE(iconOf(paper).isNull());
    EXPECT_TRUE(checkBoxStandsBeforeLabel(page()->childItem(0)));
}

TEST_F(Papers, RowsStandInTheOrderOfTheStore) {
    addPaper("Zeta", L"Z", 1, 1);
    addPaper("Paper00000001", L"A", 1, 1);
    addPaper("Mid", L"M", 1, 1);
    open();
    EXPECT_EQ(names(), (QStringList{"Z", "A", "M"}));
}

TEST_F(Papers, AWriteRenamesEverySectionByPosition) {
    addPaper("Zeta", L"Z", 1, 1);
    addPaper("Alpha", L"A", 1, 1);
    open();
    apply();
    EXPECT_EQ(childrenOf(host.papers()), (QStringList{"Paper00000001", "Paper00000002"}));
    EXPECT_EQ(textOf(valueOf(host.papers(), "Paper00000001", "Name")), "Z");
}

TEST_F(Papers, EveryValueIsWrittenAndUnknownOnesSurvive) {
    const Ref<IParam> paper = addPaper("P", L"A4", 210, 297);
    setValue(paper, "Used", 7);
    setValue(paper, "InternalFrame", 3);
    setValue(paper, "Vendor", L"somebody");
    setValue(sectionOf(*paper, "Margins"), "Left", 2.5);
    open();
    apply();
    const char* written = "Paper00000001";
    EXPECT_EQ(static_cast<int>(valueOf(host.papers(), written, "Used")), 1) << "0 or 1, whatever was read";
    EXPECT_EQ(static_cast<int>(valueOf(host.papers(), written, "InternalFrame")), 3);
    EXPECT_EQ(static_cast<tagRSIZE>(valueOf(host.papers(), written, "LandscapeSize")).cx, 297);
    EXPECT_EQ(static_cast<tagRSIZE>(valueOf(host.papers(), written, "PortraitSize")).cx, 210);
    EXPECT_EQ(valueOf(host.papers(), written, "PaperOriginPoint").vt, kVtRPoint);
    EXPECT_EQ(textOf(valueOf(host.papers(), written, "Vendor")), "somebody");
    EXPECT_EQ(static_cast<double>(valueOf(host.papers(), "Paper00000001\\Margins", "Left")), 2.5);
}

TEST_F(Papers, DefaultsAreWrittenInTheTypesThatAreRead) {
    section("Bare");
    open();
    apply();
    const auto type = [this](const char* name) {
        return int(valueOf(host.papers(), "Paper00000001", name).vt);
    };
    EXPECT_EQ(type("Used"), kVtInt);
    EXPECT_EQ(type("Name"), kVtWideString);
    EXPECT_EQ(type("Size"), kVtRSize);
    EXPECT_EQ(type("Units"), kVtString);
    EXPECT_EQ(type("InternalFrame"), kVtInt);
    EXPECT_EQ(type("PortraitSize"), kVtRSize);
    EXPECT_EQ(type("LandscapeSize"), kVtRSize);
    EXPECT_EQ(type("PaperOriginPoint"), kVtRPoint);
}

TEST_F(Papers, AMissingStoreLeavesThePageEmptyAndSaysNothing) {
    addPaper("P", L"A4", 210, 297);
    host.withhold(typeid(IStdPapersParam));
    open();
    EXPECT_EQ(page()->childCount(), 0);
    EXPECT_EQ(page()->buttonMask, 4u);
    apply();
    EXPECT_TRUE(host.messages.empty());
    EXPECT_EQ(childrenOf(host.papers()), QStringList{"P"});
}

TEST_F(Papers, WritingWithoutAnApplicationDoesNothing) {
    std::vector<PaperFormat*> papers;
    section("P");
    storePaperFormats(nullptr, papers);
    EXPECT_EQ(childrenOf(host.papers()), QStringList{"P"});
}

TEST_F(Papers, ASectionThatCannotBeMadeLeavesAGapInTheNumbers) {
    PaperFormat paper;
    std::vector<PaperFormat*> papers{&paper, nullptr, &paper};
    bool refused = false; // the second section, once
    host.rules(host.papers()).mayChange = [this, &refused] {
        const bool between = childrenOf(host.papers()).size() == 1 &&
                             valueOf(host.papers(), "Paper00000001", "PaperOriginPoint").vt != kVtEmpty;
        return !between || std::exchange(refused, true);
    };
    storePaperFormats(theOnlyIApp, papers);
    EXPECT_EQ(childrenOf(host.papers()), (QStringList{"Paper00000001", "Paper00000003"}));
}

TEST_F(Papers, ASectionThatCannotBeOpenedIsPassedOver) {
    open();
    const auto store = Ref<LockedPapers>::share(new LockedPapers);
    host.load(*store, "Locked: {Name: !wide \"Nowhere\"}\nC: {Name: !wide \"C\"}");
    const auto hub = Ref<standin::ServiceHub>::share(new standin::ServiceHub);
    hub->add(store);
    store->locked = true;
    theOnlyIApp = hub.get();
    reloadPaperRows(*preferences);
    theOnlyIApp = host.application();
    EXPECT_EQ(names(), QStringList{"C"});
    EXPECT_EQ(page()->childCount(), 1);
}

TEST_F(Papers, AStoreThatCannotBeListedLeavesThePageEmpty) {
    addPaper("P", L"A", 1, 1);
    open();
    const auto store = Ref<LockedPapers>::share(new LockedPapers);
    host.load(*store, "C: {Name: !wide \"C\"}");
    store->hasNames = false;
    const auto hub = Ref<standin::ServiceHub>::share(new standin::ServiceHub);
    hub->add(store);
    theOnlyIApp = hub.get();
    reloadPaperRows(*preferences);
    theOnlyIApp = host.application();
    EXPECT_EQ(page()->childCount(), 0);
    EXPECT_TRUE(preferences->paperFormats.empty());
    EXPECT_TRUE(host.messages.empty());
}

TEST_F(Papers, TheValuesOfAPaperAreWrittenInTheirOrder) {
    const auto written = Ref<NotingSection>::share(new NotingSection);
    PaperFormat().writeTo(written.get());
    EXPECT_EQ(written->written, (QStringList{"Used", "Name", "Size", "Units", "InternalFrame", "PortraitSize",
                                             "LandscapeSize", "PaperOriginPoint"}));
}

TEST_F(Papers, AMissingRecordLeavesAnEmptySectionAndAGapInNothing) {
    PaperFormat paper;
    std::vector<PaperFormat*> papers{nullptr, &paper};
    storePaperFormats(theOnlyIApp, papers);
    EXPECT_EQ(childrenOf(host.papers()), (QStringList{"Paper00000001", "Paper00000002"}));
    EXPECT_EQ(valueOf(host.papers(), "Paper00000001", "Name").vt, kVtEmpty);
    EXPECT_EQ(textOf(valueOf(host.papers(), "Paper00000002", "Name")), "<<Unnamed paper>>");
}

TEST_F(Papers, TenThousandPapersOpenAndApply) {
    for (int i = 0; i < 10000; ++i)
        addPaper(("P" + std::to_string(i)).c_str(), L"Sheet", i, 1);
    open();
    EXPECT_EQ(page()->childCount(), 10000);
    apply();
    EXPECT_EQ(childrenOf(host.papers()).size(), 10000);
    EXPECT_EQ(static_cast<tagRSIZE>(valueOf(host.papers(), "Paper00010000", "Size")).cx, 9999);
}
