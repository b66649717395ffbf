#pragma once

#include <afx.h>

// Names in the file system, with the backslash as separator.
//
// fname_t and dname_t own heap strings; what the getters hand out stays theirs and is valid until the next
// change. A null name counts as empty. The getters of an object that was never given a name give null.
//
// Copies share the strings, and assignment does not free what the target held: of the objects that share
// strings exactly one may be destroyed or set anew, and the others must not be used after that.

// A path and its parts.
class AFX_EXT_CLASS fname_t {
public:
    fname_t();
    fname_t(const char* name);
    fname_t(const fname_t&) = default;
    fname_t& operator=(const fname_t&) = default;
    virtual ~fname_t();

    // Takes a copy, with runs of backslashes made one.
    virtual const char* SetName(const char* name);
    // Replaces the extension, given with or without its dot; null or empty removes it. The result is the
    // extension as it is now, null when there is none.
    virtual const char* SetExt(const char* newExt);

    const char* GetFullName() const { return fullname; }
    operator const char*() const { return fullname; }
    // What stands behind the last backslash.
    const char* GetShortName() const { return shortname; }
    // What stands behind the last dot of the short name; null when it has no dot.
    const char* GetExt() const { return ext; }
    // The short name in front of its last dot, made at the first call. The same copy stands until SetName or
    // FreeTmpMemory.
    const char* GetNameNoExt();

    // 0 when equal without regard to case, as _stricmp. A name with a backslash is compared with the full
    // name, any other with the short name.
    int CmpName(const char* name) const;
    // 1 when the extension is in a list such as ".bmp.pcx.tga", without regard to case. Three characters
    // count at most; an extension shorter than that is found only at the end of the list.
    int TestExt(const char* exts) const;
    static int TestExt(const char* name, const char* exts);

    void FreeTmpMemory();

    // In place: every run of backslashes shrinks to one.
    static void DeleteDplSlash(char* path);
    // Joins `dir` and `name`, with one backslash put between where `dir` has none at its end. The buffer of
    // the second form must hold the result; it may be that of `dir` or `name`, or null.
    static void SplitPath(const char* dir, const char* name, CString& path);
    static void SplitPath(const char* dir, const char* name, char* path);

protected:
    char* fullname;
    char* shortname;  // into fullname
    char* ext;        // into fullname
    int pathlen;      // length of the directory part, without its last backslash
    char* noext;      // null until GetNameNoExt

private:
    void release();
    void zero();
    void actualize_name();
};

// A directory, kept without a backslash at its end.
class AFX_EXT_CLASS dname_t {
public:
    dname_t();
    dname_t(const char* dir);
    dname_t(const dname_t&) = default;
    dname_t& operator=(const dname_t&) = default;
    virtual ~dname_t();

    void SetPath(const char* dir);
    // The directory part of a file's name; empty when it has none.
    void SetPathFromName(const char* name);

    const char* GetPath() const { return path; }
    operator const char*() const { return path; }

protected:
    char* path;

private:
    void release();
};

// A path that also tells its drive and its directory.
class AFX_EXT_CLASS CFName : public fname_t {
public:
    CFName();
    CFName(const char* name);
    CFName(const CFName&) = default;
    CFName& operator=(const CFName&) = default;
    ~CFName() override;

    // The drive's letter, or 0.
    char GetDrive() const;
    // The directory without its last backslash, or null when the name has none. Kept from the first call on:
    // after SetName it is still the old one until FreeTmpMemory.
    const char* GetDir();
    void FreeTmpMemory();

protected:
    CString dir;
};

// What CFileFinder found a pattern to be made of. Matching does not need the STAR and QUESTION bits.
enum FinderFlags : int {
    FF_EXT_EXACT = 0x1,       // the extension has no wildcards
    FF_NAME_EXACT = 0x2,      // the name has no wildcards, or is empty
    FF_ALL = 0x4,             // every name matches
    FF_EXT_NONE = 0x8,        // the pattern has no extension
    FF_EXT_STAR = 0x10,       // the extension has a *
    FF_EXT_QUESTION = 0x20,   // the extension has a ?
    FF_NAME_STAR = 0x40,      // the name has a *
    FF_NAME_QUESTION = 0x80,  // the name has a ?
    FF_EXT_ANY = 0x100,       // the extension is exactly ".*"
    FF_NAME_ANY = 0x200,      // the name is exactly "*"
};

// Tests file names against a pattern with * and ?. Name and extension are tested apart: a star does not cross
// the dot, and "*" alone finds only names without an extension. A star merely separates texts that must occur
// in this order, so that "b*.txt" finds abc.txt too. Copies are independent.
class AFX_EXT_CLASS CFileFinder {
public:
    CFileFinder();

    // 1, or 0 for a null or empty pattern and one with a part of more than 255 bytes. Replaces the pattern in
    // any case. A directory in the pattern has no say.
    int OpenFinder(const char* pattern);
    // Non-zero for a match. Only the file part of `fileName` counts, except for a pattern without wildcards:
    // it must be the whole. 0 without a pattern and for a part of more than 255 bytes.
    int TestName(const char* fileName);

protected:
    int flags;       // FinderFlags; 0 when no pattern is open
    char name[256];  // lower case; with the extension when the pattern has no wildcards
    char ext[256];   // lower case, with its dot

private:
    void zero();
    int strxcmp(const char* pattern, const char* text, int count) const;
    char* strxstr(const char* text, const char* pattern, int count) const;
    int stern_test(const char* text, const char* pattern, char*) const;
};
