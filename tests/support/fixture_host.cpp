// Puts the fixture host in place and takes it away again.
#include "tests/support/fixture_host.h"

#include "standin/params/yaml_tree.h"
#include "tests/support/test_application.h"

#include <stdexcept>

namespace {

standin::TreeRulesPtr newRules() { return std::make_shared<standin::TreeRules>(); }

template <class T> Ref<T> made(T* object) { return Ref<T>::share(object); }

} // namespace

FixtureHost::FixtureHost()
    : configRules(newRules()), profileRules(newRules()), ioRules(newRules()), plainRules(newRules()),
      papersRules(newRules()), configRoot(standin::newTree<IConfigParam>(configRules)),
      profileRoot(standin::newTree<IProfile>(profileRules)), ioRoot(standin::newTree<IIOParams>(ioRules)),
      plainRoot(standin::newTree<IParam>(plainRules)), papersRoot(made(new FixturePapers(papersRules))),
      dirs(made(new FixtureStdDirs)), interior(made(new FixtureInterior)), help(made(new FixtureHelp)),
      events(made(new FixtureEvents)), hub(made(new standin::ServiceHub)), savedRegistry(standin::registry()),
      savedApplication(theOnlyIApp) {
    interior->root = CXStringW(root.path().toStdWString().c_str());
    plainRoot->section().openSection("StdDirsDescriptions", true);
    // The plain tree comes first: the others answer IParam too.
    for (const Ref<IKWUnknown>& service : std::initializer_list<Ref<IKWUnknown>>{
             interior, plainRoot, configRoot, profileRoot, ioRoot, papersRoot, dirs})
        hub->add(service);
    documents.vars = &vars;
    installRegistry();
    theOnlyIApp = hub.get();
}

FixtureHost::~FixtureHost() {
    closeDocument();
    TestApplication::self()->testServices.reader = nullptr;
    theOnlyIApp = savedApplication;
    standin::registry() = savedRegistry;
}

void FixtureHost::installRegistry() {
    standin::HostRegistry& registry = standin::registry();
    registry.documents = &documents;
    registry.styles = &styles;
    registry.help = help.get();
    registry.events = events.get();
    registry.translate = [this](const wchar_t* text) {
        const auto found = translations.find(text);
        return found == translations.end() ? text : found->second.c_str();
    };
    registry.messageBox = [this](standin::MessageKind kind, const QString& title, const QString& text,
                                 EV_MB_RET buttons) {
        messages.push_back({kind, title, text, buttons});
        if (onMessage)
            onMessage(Message(messages.back()));
        return takeAnswer(buttons);
    };
}

EV_MB_RET FixtureHost::takeAnswer(EV_MB_RET buttons) {
    if (answers.empty())
        return buttons & EV_MB_OK ? EV_MB_OK : EV_MB_NO;
    const EV_MB_RET button = answers.front();
    answers.pop_front();
    return button;
}

FixtureDocument& FixtureHost::openDocument(const OdDbDatabasePtr& database) {
    document.databaseObject = database;
    documents.current = &document;
    TestApplication::self()->console.database = database.get();
    return document;
}

void FixtureHost::closeDocument() {
    documents.current = nullptr;
    TestApplication::self()->console.database = nullptr;
    document.databaseObject.release();
}

void FixtureHost::setTheme(int number) {
    styles.number = number;
    emit styles.themeWatcher()->clicked();
}

standin::TreeRules& FixtureHost::rules(IParam& tree) {
    const std::pair<IParam*, standin::TreeRules*> all[] = {{configRoot.get(), configRules.get()},
                                                           {profileRoot.get(), profileRules.get()},
                                                           {ioRoot.get(), ioRules.get()},
                                                           {plainRoot.get(), plainRules.get()},
                                                           {papersRoot.get(), papersRules.get()}};
    for (const auto& [known, treeRules] : all)
        if (known == &tree)
            return *treeRules;
    throw std::invalid_argument("no root of the fixture host");
}

void FixtureHost::load(IParam& tree, const std::string& yaml) {
    const standin::YamlResult parsed = standin::parseYaml(yaml, "test");
    if (parsed.problem)
        throw std::invalid_argument(parsed.problem->text());
    Param_CopyTo(parsed.tree.get(), &tree);
}
