// Libraries that are loaded while the program runs.

#include <dlfcn.h>
#include <link.h>
#include <windows.h>

#include <map>
#include <mutex>
#include <vector>

#include "errors.h"
#include "lookup.h"

namespace {

// A module is known by where it lies, which is not what the loader calls it by.
struct Loaded {
    std::mutex mutex;
    std::map<HMODULE, std::vector<void*>> handles;
};

Loaded& TheLoaded() {
    static Loaded& loaded = *new Loaded;
    return loaded;
}

HMODULE BaseOf(void* handle) {
    const link_map* map = nullptr;
    dlinfo(handle, RTLD_DI_LINKMAP, &map);
    return reinterpret_cast<HMODULE>(map->l_addr);
}

}  // namespace

HMODULE WINAPI LoadLibraryA(LPCSTR name) {
    const LookedUp file = LookUp(name);
    if (file.error != 0) {
        SetLastError(ERROR_MOD_NOT_FOUND);
        return nullptr;
    }
    void* const handle = dlopen(file.path.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (!handle) {
        SetLastError(ERROR_BAD_EXE_FORMAT);
        return nullptr;
    }
    const HMODULE module = BaseOf(handle);
    Loaded& loaded = TheLoaded();
    const std::lock_guard lock(loaded.mutex);
    loaded.handles[module].push_back(handle);
    return module;
}

FARPROC WINAPI GetProcAddress(HMODULE module, LPCSTR name) {
    Loaded& loaded = TheLoaded();
    const std::lock_guard lock(loaded.mutex);
    const auto found = loaded.handles.find(module);
    void* const address = found == loaded.handles.end() ? nullptr : dlsym(found->second.back(), name);
    if (!address) SetLastError(ERROR_PROC_NOT_FOUND);
    return reinterpret_cast<FARPROC>(address);
}

BOOL WINAPI FreeLibrary(HMODULE module) {
    void* handle = nullptr;
    {
        Loaded& loaded = TheLoaded();
        const std::lock_guard lock(loaded.mutex);
        const auto found = loaded.handles.find(module);
        if (found == loaded.handles.end()) return Fail(ERROR_MOD_NOT_FOUND);
        handle = found->second.back();
        found->second.pop_back();
        if (found->second.empty()) loaded.handles.erase(found);
    }
    // Runs code of the library.
    dlclose(handle);
    return TRUE;
}
