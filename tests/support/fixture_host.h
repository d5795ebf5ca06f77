// A whole host for one test. It is in place from construction to destruction; nothing is read from files and
// nothing is shown.
#pragma once

#include "standin/params/service_hub.h"
#include "standin/registry.h"
#include "tests/support/fixture_document.h"
#include "tests/support/fixture_services.h"

#include <QTemporaryDir>
#include <deque>

class FixtureHost {
public:
    FixtureHost();
    ~FixtureHost();
    FixtureHost(const FixtureHost&) = delete;
    FixtureHost& operator=(const FixtureHost&) = delete;

    // The roots of the stores, empty at first. `plain` is what the application object answers for IParam; it
    // has the section "StdDirsDescriptions".
    IParam& config() { return *configRoot; }
    IParam& profile() { return *profileRoot; }
    IParam& ioParams() { return *ioRoot; }
    IParam& plain() { return *plainRoot; }
    FixturePapers& papers() { return *papersRoot; }
    FixtureStdDirs& stdDirs() { return *dirs; }
    // Puts the tree that a YAML text describes into the option tree's root (or another one), over what is
    // there. Throws with the reason when the text is no tree.
    void loadConfig(const std::string& yaml) { load(config(), yaml); }
    void load(IParam& root, const std::string& yaml);
    // Each store asks its `mayChange` before a change and calls `changed` after it; a test may make one
    // refuse, or fail after some changes. `root` is one of the five above.
    standin::TreeRules& rules(IParam& root);

    // Makes the application object deny an interface, or drops the object as a whole.
    void withhold(const std::type_info& type) { hub->withhold(type); }
    void withholdApplication() { theOnlyIApp = nullptr; }
    IKWUnknown* application() { return hub.get(); }

    void setMode(int mode) { interior->mode = mode; }
    QString rootDir() const { return root.path(); } // what IAppInterior names, a directory of this test's own
    void setTheme(int number);                      // tells the watcher too

    struct Message {
        standin::MessageKind kind;
        QString title;
        QString text;
        EV_MB_RET buttons;
    };
    std::vector<Message> messages;
    // The answers to the coming message boxes, in order. When none is left: OK, or else No, if offered.
    void answer(EV_MB_RET button) { answers.push_back(button); }
    // Called when a box comes up, before it is answered.
    std::function<void(const Message&)> onMessage;

    FixtureVars vars;
    FixtureDocuments documents; // none is open at first
    FixtureDocument document;
    // Makes `document` the current one, with a database if the test has one. The console interface of the
    // application names that database too.
    FixtureDocument& openDocument(const OdDbDatabasePtr& database = {});
    void closeDocument();
    QStringList& helpTopics() { return help->topics; }
    std::vector<FixtureEvents::Notice>& notices() { return events->notices; }
    void answerNotices(int answer) { events->answer = answer; }
    std::map<std::wstring, std::wstring> translations; // a missing text is its own translation

private:
    EV_MB_RET takeAnswer(EV_MB_RET buttons);
    void installRegistry();

    QTemporaryDir root;
    std::deque<EV_MB_RET> answers;
    standin::TreeRulesPtr configRules, profileRules, ioRules, plainRules, papersRules;
    Ref<standin::ParamOf<IConfigParam>> configRoot;
    Ref<standin::ParamOf<IProfile>> profileRoot;
    Ref<standin::ParamOf<IIOParams>> ioRoot;
    Ref<standin::MemParam> plainRoot;
    Ref<FixturePapers> papersRoot;
    Ref<FixtureStdDirs> dirs;
    Ref<FixtureInterior> interior;
    Ref<FixtureHelp> help;
    Ref<FixtureEvents> events;
    FixtureStyles styles;
    Ref<standin::ServiceHub> hub;
    standin::HostRegistry savedRegistry;
    IKWUnknown* savedApplication;
};
