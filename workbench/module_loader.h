// Loads a plug-in module at run time, as the host does.
#pragma once

#include "host/cmd_process.h"
#include "sdk/rx/rx_module.h"

#include <QString>

namespace workbench {

class LoadedModule {
public:
    // Loads the library, asks for its version, makes its module object and starts it. On failure `problem`
    // says why, and the plug-in is left out.
    LoadedModule(const QString& file, QString* problem);
    // Stops and destroys the module object. The library stays: objects made by it may live on.
    ~LoadedModule();
    LoadedModule(const LoadedModule&) = delete;
    LoadedModule& operator=(const LoadedModule&) = delete;
    bool isLoaded() const { return module != nullptr; }
    // A new command object of the module by its class name; null when it has none of that name.
    Ref<ICmdProcess> command(const char* className) const;

private:
    void load(const QString& file);
    void leave();

    OdRxModule* module = nullptr;
    ICmdProcess* (*makeCommand)(const char* className) = nullptr;
};

} // namespace workbench
