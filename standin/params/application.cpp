// Puts the stores together.
#include "standin/params/application.h"

#include "host/text.h"
#include "sdk/db/xref_man.h"
#include "standin/documents/property_names.h"
#include "standin/params/profiles.h"
#include "standin/params/std_dirs.h"
#include "standin/params/yaml_tree.h"
#include "standin/references/attach_services.h"
#include "standin/selection/group_selection_step.h"
#include "standin/selection/group_services.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>

namespace standin {

namespace {

class Interior : public CKWUnknownImpl<IAppInterior> {
public:
    Interior(const QString& rootDir, int applicationMode)
        : root(rootDir.toStdWString().c_str()), mode(applicationMode) {}
    const wchar_t* rootDirectory() override { return root.c_str(); }
    int applicationMode() override { return mode; }

private:
    CXStringW root;
    int mode;
};

template <class T> Ref<T> made(T* object) { return Ref<T>::share(object); }

// `wholeDepth` as in StoreFiles.
StoreFiles storeFiles(const ApplicationSetup& setup, const char* name, int wholeDepth) {
    const QString fileName = QLatin1Char('/') + QString::fromLatin1(name) + QStringLiteral(".yaml");
    return {setup.dataDir + fileName, setup.rootDir + fileName, wholeDepth, {}};
}

// The option tree: what can be read of it serves, and nobody changes it.
Ref<ParamOf<IConfigParam>> loadConfig(const ApplicationSetup& setup) {
    auto rules = std::make_shared<TreeRules>();
    auto tree = newTree<IConfigParam>(rules);
    const QString path = setup.dataDir + QStringLiteral("/preftree.yaml");
    QString reason;
    const auto bytes = readWhole(path, reason);
    if (bytes) {
        const YamlResult result =
            parseYaml(bytes->toStdString(), QDir::toNativeSeparators(path).toStdString());
        tree->section().copyFrom(result.tree->section());
        reason = QString::fromStdString(result.report());
    } else {
        reason = QDir::toNativeSeparators(path) + QStringLiteral(": ") + reason;
    }
    if (!reason.isEmpty())
        setup.io.report(reason);
    rules->mayChange = [] { return false; };
    return tree;
}

Ref<FileProfile> openOwnProfile(const ApplicationSetup& setup, IParam* options) {
    const QString shipped = setup.dataDir + QStringLiteral("/profile_defaults.yaml");
    setProfileDefaults({QFileInfo::exists(shipped) ? shipped : QString(), setup.io, setup.remembered,
                        rangesOfProfile(options)});
    return openProfile(setup.rootDir);
}

std::vector<OdString> foldersOfReferences() {
    std::vector<OdString> folders;
    for (const QString& folder : referenceFolders())
        folders.push_back(hostqt::odString(folder));
    return folders;
}

} // namespace

Application::Application(const ApplicationSetup& setup)
    : hub(made(new ServiceHub)), config(loadConfig(setup)), profile(openOwnProfile(setup, config.get())),
      ioParams(made(new InFile<ParamOf<IIOParams>>(storeFiles(setup, "formats", 0), setup.io))),
      papers(made(new InFile<StdPapers>(storeFiles(setup, "papers", 0), setup.io))),
      dirs(made(new InFile<MemParam>(storeFiles(setup, "stddirs", 2), setup.io))), before(theOnlyIApp) {
    hub->add(made(new Interior(setup.rootDir, setup.mode)));
    hub->add(dirs); // first of the trees: it is what answers when a plain one is asked for
    hub->add(made(new StdDirs(dirs, PathWords(setup.dataDir, setup.rootDir))));
    hub->add(config);
    hub->add(ioParams);
    hub->add(papers);
    if (profile) {
        hub->add(profile);
        hub->add(made(new Profiles(profile, setup.remembered)));
    }
    hub->add(made(new AttachServices));
    hub->add(made(new GroupSelectionStep));
    hub->add(made(new GroupServices));
    hub->add(made(new PropertyNames));
    for (const Ref<IKWUnknown>& service : setup.services)
        hub->add(service);
    theOnlyIApp = hub.get();
    OdDbXRefMan::setSearchFolders(foldersOfReferences);
}

Application::~Application() {
    flush();
    OdDbXRefMan::setSearchFolders({});
    theOnlyIApp = before;
    setProfileDefaults({});
}

bool Application::flush() {
    const bool kept[] = {!profile || profile->flush(), ioParams->flush(), papers->flush(), dirs->flush()};
    return std::all_of(std::begin(kept), std::end(kept), [](bool ok) { return ok; });
}

} // namespace standin
