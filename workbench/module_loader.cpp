#include "workbench/module_loader.h"

#include "sdk/rx/od_error.h"
#include "standin/console/error_text.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <cstdio>
#include <dlfcn.h>

namespace workbench {

namespace {

struct ApiVersion {
    int major = 0, minor = 0, a = 0, b = 0;
};
const ApiVersion ownVersion{24, 8, 0, 0}; // of the host's interfaces

QString tr(const char* text) { return QCoreApplication::translate("ModuleLoader", text); }

template <class Function> Function entryOf(void* library, const char* name) {
    void* const entry = library ? dlsym(library, name) : nullptr;
    if (!entry)
        throw OdError(QString::fromLocal8Bit(dlerror()).toStdWString());
    return reinterpret_cast<Function>(entry);
}

// Another minor version may have other interfaces, too.
void checkVersion(void* library) {
    ApiVersion its;
    entryOf<odrxGetAPIVersionFunction>(library, "odrxGetAPIVersion")(&its.major, &its.minor, &its.a, &its.b);
    if (its.major != ownVersion.major || its.minor != ownVersion.minor)
        throw OdError(tr("it is made for version %1.%2 of the program, which has version %3.%4")
                          .arg(its.major)
                          .arg(its.minor)
                          .arg(ownVersion.major)
                          .arg(ownVersion.minor)
                          .toStdWString());
}

OdRxModule* created(void* library, const QString& file) {
    const auto create = entryOf<odrxCreateModuleObjectFunction>(library, "odrxCreateModuleObject");
    OdRxModule* const made = create(nullptr, QFileInfo(file).completeBaseName().toStdWString().c_str());
    if (!made)
        throw OdError(tr("it gives no module").toStdWString());
    return made;
}

} // namespace

// A plug-in that fails is left out; its library stays loaded, since its code may be in use.
LoadedModule::LoadedModule(const QString& file, QString* problem) {
    const QString reason = standin::errorTextOf([&] { load(file); });
    if (reason.isNull())
        return;
    leave();
    *problem = tr("The module %1 can't be loaded: %2").arg(file, reason);
}

void LoadedModule::load(const QString& file) {
    void* const library = dlopen(QFile::encodeName(file).constData(), RTLD_NOW | RTLD_LOCAL);
    if (!library)
        throw OdError(QString::fromLocal8Bit(dlerror()).toStdWString());
    checkVersion(library);
    module = created(library, file);
    module->initApp();
    makeCommand = reinterpret_cast<decltype(makeCommand)>(dlsym(library, "createHostCommand"));
}

Ref<ICmdProcess> LoadedModule::command(const char* className) const {
    return Ref<ICmdProcess>::take(makeCommand ? makeCommand(className) : nullptr);
}

LoadedModule::~LoadedModule() { leave(); }

void LoadedModule::leave() {
    OdRxModule* const leaving = std::exchange(module, nullptr);
    if (!leaving)
        return;
    for (const auto end : {&OdRxModule::uninitApp, &OdRxModule::deleteModule}) {
        const QString problem = standin::errorTextOf([&] { (leaving->*end)(); });
        if (!problem.isNull())
            std::fprintf(stderr, "%s\n", qPrintable(problem));
    }
}

} // namespace workbench
