#include "workbench/module_loader.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <dlfcn.h>

namespace workbench {

namespace {

// The entry point of the library, or null with the reason.
odrxCreateModuleObjectFunction entryOf(void* library, const QString& file, QString* problem) {
    void* entry = library ? dlsym(library, "odrxCreateModuleObject") : nullptr;
    if (!entry)
        *problem = QCoreApplication::translate("ModuleLoader", "The module %1 can't be loaded: %2")
                       .arg(file, QString::fromLocal8Bit(dlerror()));
    return reinterpret_cast<odrxCreateModuleObjectFunction>(entry);
}

} // namespace

LoadedModule::LoadedModule(const QString& file, QString* problem) {
    void* library = dlopen(QFile::encodeName(file).constData(), RTLD_NOW | RTLD_LOCAL);
    const auto create = entryOf(library, file, problem);
    if (!create)
        return;
    makeCommand = reinterpret_cast<decltype(makeCommand)>(dlsym(library, "createHostCommand"));
    module = create(nullptr, QFileInfo(file).completeBaseName().toStdWString().c_str());
    module->initApp();
}

Ref<ICmdProcess> LoadedModule::command(const char* className) const {
    return Ref<ICmdProcess>::take(makeCommand ? makeCommand(className) : nullptr);
}

LoadedModule::~LoadedModule() {
    if (!module)
        return;
    module->uninitApp();
    module->deleteModule();
}

} // namespace workbench
