// The real shared library, loaded as the host loads it.
#pragma once

#include "sdk/rx/rx_module.h"

#include <dlfcn.h>
#include <stdexcept>
#include <string>

class LoadedModule {
public:
    LoadedModule() : library(dlopen(MODULE_FILE, RTLD_NOW | RTLD_LOCAL)) {
        if (!library)
            throw std::runtime_error(dlerror());
    }
    LoadedModule(const LoadedModule&) = delete;
    LoadedModule& operator=(const LoadedModule&) = delete;

    template <class Function> Function symbol(const std::string& name) const {
        void* const found = dlsym(library, name.c_str());
        if (!found)
            throw std::runtime_error("the module exports no " + name);
        return reinterpret_cast<Function>(found);
    }
    OdRxModule* create(void* systemHandle = nullptr, const wchar_t* name = L"module") const {
        return symbol<odrxCreateModuleObjectFunction>("odrxCreateModuleObject")(systemHandle, name);
    }

private:
    void* library; // never unloaded: its Qt resources and type information stay in use
};
