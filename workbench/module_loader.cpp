#include "workbench/module_loader.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <dlfcn.h>

namespace workbench {

namespace {

// The entry point of the library, or null with the reason.
odrxCreateModuleObjectFunction entryOf(const QString& file, QString* problem) {
    void* library = dlopen(QFile::encodeName(file).constData(), RTLD_NOW | RTLD_LOCAL);
    void* entry = library ? dlsym(library, "odrxCreateModuleObject") : nullptr;
    if (!entry)
        *problem = QCoreApplication::translate("ModuleLoader", "The module %1 can't be loaded: %2")
                       .arg(file, QString::fromLocal8Bit(dlerror()));
    return reinterpret_cast<odrxCreateModuleObjectFunction>(entry);
}

} // namespace

LoadedModule::LoadedModule(const QString& file, QString* problem) {
    const auto create = entryOf(file, problem);
    if (!create)
        return;
    module = create(nullptr, QFileInfo(file).completeBaseName().toStdWString().c_str());
    module->initApp();
}

LoadedModule::~LoadedModule() {
    if (!module)
        return;
    module->uninitApp();
    module->deleteModule();
}

} // namespace workbench
