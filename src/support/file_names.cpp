#include "support/file_names.h"

#include <cstring>
#include <new>
#include <string>

namespace {

const char* OrEmpty(const char* text) {
    return text ? text : "";
}

// A heap copy of `length` bytes and a terminator; null when no memory is left.
char* NewCopy(const char* text, size_t length) {
    char* copy = new (std::nothrow) char[length + 1];
    if (!copy) return nullptr;
    std::memcpy(copy, text, length);
    copy[length] = 0;
    return copy;
}

}  // namespace

fname_t::fname_t() {
    zero();
}

fname_t::fname_t(const char* name) {
    zero();
    fname_t::SetName(name);
}

fname_t::~fname_t() {
    release();
}

const char* fname_t::SetName(const char* name) {
    // Copied first: the name may be a part of this object's own.
    name = OrEmpty(name);
    char* copy = NewCopy(name, std::strlen(name));
    release();
    zero();
    if (!copy) return nullptr;
    DeleteDplSlash(copy);
    fullname = copy;
    actualize_name();
    return fullname;
}

const char* fname_t::SetExt(const char* newExt) {
    if (ext) {
        ext[-1] = 0;
        ext = nullptr;
    }
    newExt = OrEmpty(newExt);
    if (*newExt == '.') ++newExt;
    if (!*newExt) return nullptr;
    std::string joined(OrEmpty(fullname));
    joined.append(1, '.').append(newExt);
    SetName(joined.c_str());
    return ext;
}

const char* fname_t::GetNameNoExt() {
    if (noext || !shortname) return noext;
    const char* dot = std::strrchr(shortname, '.');
    noext = NewCopy(shortname, dot ? static_cast<size_t>(dot - shortname) : std::strlen(shortname));
    return noext;
}

int fname_t::CmpName(const char* name) const {
    name = OrEmpty(name);
    return _stricmp(OrEmpty(std::strchr(name, '\\') ? fullname : shortname), name);
}

int fname_t::TestExt(const char* exts) const {
    if (!exts || !ext) return 0;
    for (const char* dot = std::strchr(exts, '.'); dot; dot = std::strchr(dot + 1, '.')) {
        if (_strnicmp(dot + 1, ext, 3) == 0) return 1;
    }
    return 0;
}

int fname_t::TestExt(const char* name, const char* exts) {
    return fname_t(name).TestExt(exts);
}

void fname_t::FreeTmpMemory() {
    delete[] noext;
    noext = nullptr;
}

void fname_t::DeleteDplSlash(char* path) {
    if (!path || !*path) return;
    char* end = path + 1;
    for (const char* next = path + 1; *next; ++next) {
        if (*next != '\\' || end[-1] != '\\') *end++ = *next;
    }
    *end = 0;
}

void fname_t::SplitPath(const char* dir, const char* name, CString& path) {
    CString joined(dir);
    if (!joined.IsEmpty() && joined[joined.GetLength() - 1] != '\\') joined += '\\';
    joined += name;
    path = joined;
}

void fname_t::SplitPath(const char* dir, const char* name, char* path) {
    if (!path) return;
    // Joined elsewhere first: either text may stand in the buffer already.
    CString joined;
    SplitPath(dir, name, joined);
    std::memcpy(path, joined.GetString(), static_cast<size_t>(joined.GetLength()) + 1);
}

void fname_t::release() {
    delete[] fullname;
    delete[] noext;
}

void fname_t::zero() {
    fullname = nullptr;
    shortname = nullptr;
    ext = nullptr;
    pathlen = 0;
    noext = nullptr;
}

void fname_t::actualize_name() {
    char* backslash = std::strrchr(fullname, '\\');
    shortname = backslash ? backslash + 1 : fullname;
    char* dot = std::strrchr(shortname, '.');
    ext = dot ? dot + 1 : nullptr;
    pathlen = backslash ? static_cast<int>(backslash - fullname) : 0;
}

dname_t::dname_t() : path(nullptr) {}

dname_t::dname_t(const char* dir) : path(nullptr) {
    SetPath(dir);
}

dname_t::~dname_t() {
    release();
}

void dname_t::SetPath(const char* dir) {
    // Copied first: the directory may be this object's own.
    dir = OrEmpty(dir);
    char* copy = NewCopy(dir, std::strlen(dir));
    release();
    path = copy;
    if (!path) return;
    fname_t::DeleteDplSlash(path);
    const size_t length = std::strlen(path);
    if (length > 1 && path[length - 1] == '\\') path[length - 1] = 0;
}

void dname_t::SetPathFromName(const char* name) {
    CFName file(name);
    SetPath(file.GetDir());
}

void dname_t::release() {
    delete[] path;
    path = nullptr;
}

CFName::CFName() = default;

CFName::CFName(const char* name) : fname_t(name) {}

CFName::~CFName() = default;

char CFName::GetDrive() const {
    return pathlen >= 2 && fullname[1] == ':' ? fullname[0] : '\0';
}

const char* CFName::GetDir() {
    if (!fullname || pathlen == 0) return nullptr;
    if (dir.IsEmpty()) dir = CString(fullname, pathlen);
    return dir;
}

void CFName::FreeTmpMemory() {
    fname_t::FreeTmpMemory();
    dir.Empty();
}

// The layout that other tools of the host were built against.
static_assert(sizeof(void*) != 4 || sizeof(fname_t) == 24);
static_assert(sizeof(void*) != 4 || sizeof(dname_t) == 8);
