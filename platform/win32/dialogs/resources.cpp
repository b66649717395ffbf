// Resources of modules, icons and cursors.

#include <dlfcn.h>
#include <resource_table.h>
#include <sys/auxv.h>
#include <windows.h>

#include <map>
#include <mutex>

#include "resource_size.h"

namespace {

struct Tables {
    std::mutex mutex;
    std::multimap<HINSTANCE, const ResourceTable*> by_module;
};

Tables& TheTables() {
    static Tables& tables = *new Tables;
    return tables;
}

// A module is known by where it was loaded.
HINSTANCE ModuleOf(const void* address) {
    Dl_info info = {};
    dladdr(const_cast<void*>(address), &info);
    return static_cast<HINSTANCE>(info.dli_fbase);
}

WORD NumberOf(LPCSTR name) {
    return static_cast<WORD>(reinterpret_cast<ULONG_PTR>(name));
}

// Calls back with the tables of a module, null for the program's own, until one call is true.
template <typename Visit>
void VisitTables(HMODULE module, Visit visit) {
    if (!module) module = GetModuleHandleA(nullptr);
    Tables& tables = TheTables();
    const std::lock_guard lock(tables.mutex);
    const auto [first, last] = tables.by_module.equal_range(module);
    for (auto at = first; at != last; ++at)
        if (visit(*at->second)) return;
}

// Null with the error when there is none.
const ResourceEntry* FindEntry(HMODULE module, LPCSTR type, LPCSTR name) {
    const ResourceEntry* found = nullptr;
    bool has_type = false;
    if (IS_INTRESOURCE(type) && IS_INTRESOURCE(name))
        VisitTables(module, [&](const ResourceTable& table) {
            has_type |= table.HasType(NumberOf(type));
            found = table.Find(NumberOf(type), NumberOf(name));
            return found != nullptr;
        });
    if (!found) SetLastError(has_type ? ERROR_RESOURCE_NAME_NOT_FOUND : ERROR_RESOURCE_TYPE_NOT_FOUND);
    return found;
}

}  // namespace

ResourceTable::ResourceTable(const ResourceEntry* entries, size_t count) : entries_(entries), count_(count) {
    Tables& tables = TheTables();
    const std::lock_guard lock(tables.mutex);
    tables.by_module.emplace(ModuleOf(entries), this);
}

ResourceTable::~ResourceTable() {
    Tables& tables = TheTables();
    const std::lock_guard lock(tables.mutex);
    for (auto at = tables.by_module.begin(); at != tables.by_module.end(); ++at)
        if (at->second == this) {
            tables.by_module.erase(at);
            return;
        }
}

const ResourceEntry* ResourceTable::Find(WORD type, WORD name) const {
    for (size_t i = 0; i < count_; ++i)
        if (entries_[i].type == type && entries_[i].name == name) return entries_ + i;
    return nullptr;
}

bool ResourceTable::HasType(WORD type) const {
    for (size_t i = 0; i < count_; ++i)
        if (entries_[i].type == type) return true;
    return false;
}

size_t ResourceTable::SizeAt(const void* data) const {
    for (size_t i = 0; i < count_; ++i)
        if (entries_[i].data == data) return entries_[i].size;
    return 0;
}

size_t ResourceSizeAt(const void* data) {
    Tables& tables = TheTables();
    const std::lock_guard lock(tables.mutex);
    for (const auto& [module, table] : tables.by_module)
        if (const size_t size = table->SizeAt(data)) return size;
    return 0;
}

HMODULE WINAPI GetModuleHandleA(LPCSTR name) {
    if (name) {
        SetLastError(ERROR_FILE_NOT_FOUND);
        return nullptr;
    }
    // The program's own headers lie in its image.
    return ModuleOf(reinterpret_cast<const void*>(getauxval(AT_PHDR)));
}

HRSRC WINAPI FindResourceA(HMODULE module, LPCSTR name, LPCSTR type) {
    return reinterpret_cast<HRSRC>(const_cast<ResourceEntry*>(FindEntry(module, type, name)));
}

HGLOBAL WINAPI LoadResource(HMODULE, HRSRC resource) {
    return resource;
}

LPVOID WINAPI LockResource(HGLOBAL resource) {
    const auto* const entry = static_cast<const ResourceEntry*>(resource);
    return entry ? const_cast<unsigned char*>(entry->data) : nullptr;
}

DWORD WINAPI SizeofResource(HMODULE, HRSRC resource) {
    const auto* const entry = reinterpret_cast<const ResourceEntry*>(resource);
    return entry ? static_cast<DWORD>(entry->size) : 0;
}

// Icons and cursors are handed on and never drawn: a handle stands for the resource.
HICON WINAPI LoadIconA(HINSTANCE module, LPCSTR name) {
    if (!module && name == IDI_APPLICATION) return reinterpret_cast<HICON>(const_cast<char*>(name));
    return reinterpret_cast<HICON>(const_cast<ResourceEntry*>(FindEntry(module, RT_GROUP_ICON, name)));
}

HCURSOR WINAPI LoadCursorA(HINSTANCE module, LPCSTR name) {
    if (!module && name == IDC_ARROW) return reinterpret_cast<HCURSOR>(const_cast<char*>(name));
    SetLastError(ERROR_RESOURCE_NAME_NOT_FOUND);
    return nullptr;
}
