// The order in which Apply comes to the stores.
#include "tests/options/options_fixture.h"

namespace {

class ApplyOrder : public OptionsFixture {
protected:
    void SetUp() override {
        addPages();
        host.vars.set("VAR", 1);
        node("Row").type(L"EditInt").variable("VAR");
        store("Dialogs\\QPref\\ExpandedSections", "Stale", 1);
    }
    // The three pages, each with one record.
    void addPages() {
        node("Raster").set("ID", int(kIdRasterFormats));
        node("Dirs").set("ID", int(kIdStdDirs));
        node("Papers").set("ID", int(kIdPapers));
        const OptionTreeWriter io(Ref<IParam>::share(&host.ioParams()));
        io.node("Raster").set("Format1", CXString("png"));
        io.node("Formats").node("png").set("Description", L"Picture");
        const OptionTreeWriter plain(Ref<IParam>::share(&host.plain()));
        plain.node("StdDirsDescriptions").node("Support").set("Name", L"Support files");
        host.stdDirs().set("Support", {L"/support"});
        const OptionTreeWriter papers(Ref<IParam>::share(&host.papers()));
        papers.node("Paper00000001").set("Name", L"A4");
    }
    void watchStores() {
        host.rules(host.ioParams()).changed = [this] { note("raster formats"); };
        host.rules(host.papers()).changed = [this] { note("papers"); };
        host.rules(host.profile()).changed = [this] { note("profile"); };
        host.vars.beforeRead = [this](const std::string&) { note("row"); };
    }
    // The directories tell nobody of a change: they are seen at the next change elsewhere.
    void note(const QString& store) {
        if (!host.stdDirs().stored.empty() && !stores.contains("directories"))
            stores << "directories";
        if (stores.isEmpty() || stores.last() != store)
            stores << store;
    }

    QStringList stores; // as Apply has come to them
};

TEST_F(ApplyOrder, ThePagesComeBeforeTheRowsAndTheSavedExpansionGoesFirstAndComesLast) {
    open();
    watchStores();
    apply();
    EXPECT_EQ(stores, (QStringList{"raster formats", "directories", "papers", "profile", "row", "profile"}));
}

TEST_F(ApplyOrder, TheOldExpansionIsGoneBeforeTheFirstRowIsWritten) {
    open();
    bool wasThere = true;
    host.vars.beforeRead = [&](const std::string&) {
        wasThere = static_cast<bool>(openChild(&host.profile(), "Dialogs\\QPref\\ExpandedSections"));
    };
    apply();
    EXPECT_FALSE(wasThere);
    EXPECT_TRUE(isStored("Dialogs\\QPref\\ExpandedSections", "")); // that of the root
}

TEST_F(ApplyOrder, APageThatIsMissingDoesNotStopTheOthers) {
    open();
    host.withhold(typeid(IStdDirs));
    watchStores();
    apply();
    EXPECT_EQ(stores, (QStringList{"raster formats", "papers", "profile", "row", "profile"}));
}

} // namespace
