// A host that throws while the dialog is being built: what was acquired until then is given back.
#include "host/std_dirs.h"
#include "options/pages/directories/std_dir_info.h"
#include "options/pages/rows/page_records.h"
#include "tests/options/options_fixture.h"

#include <QApplication>
#include <stdexcept>

namespace {

// Counts calls and throws at one of them.
class Fuse {
public:
    void setTo(int call) { left = call; }
    void burn() {
        if (left > 0 && --left == 0)
            throw std::runtime_error("the host has failed");
    }
    bool isWhole() const { return left > 0; }

private:
    int left = 0;
};

class FailingStyles : public HostQtStyleManager {
public:
    explicit FailingStyles(Fuse& burnt) : fuse(burnt) {}
    hostui::qt::style::hostQtThemeChangeWatcher* themeWatcher() override { return &watcher; }
    int themeNumber() override { return fuse.burn(), 0; }

private:
    hostui::qt::style::hostQtThemeChangeWatcher watcher;
    Fuse& fuse;
};

// Notes how the walk is told of.
class WalkNotes : public FixtureVars {
public:
    void openOptionTree(IParam*) override { notes << "open"; }
    void closeOptionTree(IParam*) override {
        notes << "close";
        if (closeFails)
            throw std::logic_error("the host cannot close");
    }
    QStringList notes;
    bool closeFails = false;
};

class FailingHost : public OptionsFixture {
protected:
    void SetUp() override {
        host.documents.vars = &vars;
        addRows();
        addPages();
    }
    void TearDown() override { host.documents.vars = &host.vars; }
    void addRows() {
        const wchar_t* const types[] = {L"Check",         L"Radio",    L"Color",    L"AcColor",
                                        L"EditInt",       L"EditReal", L"EditFile", L"Edit",
                                        L"EditMultiFile", L"EditDir",  L"Combo"};
        for (const wchar_t* type : types) {
            const QByteArray name = QString::fromWCharArray(type).toLatin1();
            vars.set(name.toStdString(), 1);
            node(name).type(type).variable(name).set("Name", type);
        }
    }
    void addPages() {
        node("Raster").set("ID", int(kIdRasterFormats));
        node("Dirs").set("ID", int(kIdStdDirs));
        node("Papers").set("ID", int(kIdPapers));
        const OptionTreeWriter io(Ref<IParam>::share(&host.ioParams()));
        io.node("Raster").set("Format1", CXString("png")).set("Format2", CXString("tif"));
        for (const char* format : {"png", "tif"})
            io.node("Formats")
                .node(format)
                .set("Description", L"Picture")
                .set("LongDescription", L"A picture");
        const OptionTreeWriter plain(Ref<IParam>::share(&host.plain()));
        plain.node("StdDirsDescriptions").node("Support").set("Name", L"Support files");
        host.stdDirs().set("Support", {L"/support", L"/more"});
        for (const char* paper : {"Paper00000001", "Paper00000002"})
            OptionTreeWriter(openChild(&host.papers(), paper, 1))
                .set("Name", L"A4")
                .set("Units", CXString("mm"));
    }
    std::vector<std::int64_t> referenceCounts() {
        std::vector<std::int64_t> counts;
        for (IKWUnknown* object :
             std::initializer_list<IKWUnknown*>{&host.config(), &host.profile(), &host.ioParams(),
                                                &host.plain(), &host.papers(), &host.stdDirs()})
            counts.push_back((object->AddRef(), object->Release()));
        return counts;
    }
    // Opens the dialog again and again, each time with a failure one call later, until one comes through.
    int failAtEveryCall() {
        for (int call = 1;; ++call) {
            SCOPED_TRACE(testing::Message() << "failure at call " << call);
            fuse.setTo(call);
            const auto counts = referenceCounts();
            const int widgets = QApplication::allWidgets().size();
            try {
                const Preferences opened(nullptr);
            } catch (const std::runtime_error&) {
            }
            EXPECT_EQ(QApplication::allWidgets().size(), widgets) << "an editor or a row is left behind";
            EXPECT_EQ(referenceCounts(), counts);
            EXPECT_EQ(vars.notes.count("open"), vars.notes.count("close"));
            if (fuse.isWhole() || testing::Test::HasFailure())
                return call - 1;
        }
    }

    WalkNotes vars;
    Fuse fuse;
};

} // namespace

TEST_F(FailingHost, AFailingVariableLeavesNothingBehind) {
    vars.beforeRead = [this](const std::string&) { fuse.burn(); };
    EXPECT_EQ(failAtEveryCall(), 11) << "one read for each row";
}

TEST_F(FailingHost, AFailingTranslationLeavesNothingBehind) {
    standin::registry().translate = [this](const wchar_t* text) { return fuse.burn(), text; };
    EXPECT_GT(failAtEveryCall(), 14) << "rows, formats, papers and directories are translated";
}

TEST_F(FailingHost, AFailingThemeLeavesNothingBehind) {
    FailingStyles styles(fuse);
    standin::registry().styles = &styles;
    EXPECT_GT(failAtEveryCall(), 20) << "every row and every icon asks for it";
}

TEST_F(FailingHost, TheTreeIsClosedAfterAFailureAndTheFailureGoesOn) {
    vars.beforeRead = [](const std::string&) { throw std::runtime_error("the host has failed"); };
    EXPECT_THROW(Preferences(nullptr), std::runtime_error);
    EXPECT_EQ(vars.notes, QStringList({"open", "close"}));
}

TEST_F(FailingHost, AClosingThatFailsTooDoesNotHideTheFirstFailure) {
    vars.closeFails = true;
    EXPECT_THROW(Preferences(nullptr), std::logic_error) << "a closing that fails alone is passed on";
    vars.beforeRead = [](const std::string&) { throw std::runtime_error("the host has failed"); };
    EXPECT_THROW(Preferences(nullptr), std::runtime_error);
    EXPECT_EQ(vars.notes, QStringList({"open", "close", "open", "close"})) << "closed once each time";
}

TEST_F(FailingHost, ADialogThatCouldNotBeBuiltOpensAtTheNextTry) {
    vars.beforeRead = [this](const std::string&) { fuse.burn(); };
    fuse.setTo(5);
    EXPECT_THROW(Preferences(nullptr), std::runtime_error);
    open();
    EXPECT_EQ(dialog->paperFormats.size(), 2u);
    EXPECT_EQ(dialog->rasterFormats.size(), 2);
    EXPECT_EQ(item("Dirs")->childItem(0)->childCount(), 2);
}
