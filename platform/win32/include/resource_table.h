#pragma once

#include <windef.h>

#include <cstddef>

// The resources of a program or library. The build makes one table of its script; it stands for the module
// that it was linked into, from the moment that this is loaded until it is unloaded.

struct ResourceEntry {
    WORD type;
    WORD name;
    const unsigned char* data;
    size_t size;
};

class WINBASEAPI ResourceTable {
public:
    ResourceTable(const ResourceEntry* entries, size_t count);
    ResourceTable(const ResourceTable&) = delete;
    ResourceTable& operator=(const ResourceTable&) = delete;
    ~ResourceTable();

    // Null when there is none.
    const ResourceEntry* Find(WORD type, WORD name) const;
    bool HasType(WORD type) const;
    // The size of the resource that begins there; 0 when none does.
    size_t SizeAt(const void* data) const;

private:
    const ResourceEntry* entries_;
    size_t count_;
};
