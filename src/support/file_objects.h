#pragma once

#include <afx.h>

#include <cstdio>

// One file interface over four kinds of storage: a stdio stream (file_t), a byte range of somebody else's
// stream (partof_file_t), a growing buffer (dmemfile_t) and a fixed buffer (smemfile_t).
//
// All lengths, positions and offsets are bytes; nothing here translates line ends. Nothing throws and nothing
// shows a message: a failure is the result of the operation. A negative size, count, length or offset, and a
// size x count above 2^31 - 1, are refused with that result.
//
// Copies are plain member copies: stream and buffer are shared, and assignment does not close what the target
// held. Of the objects that share a stream or an owned buffer exactly one may close or destroy it, and the
// others must not be used after that.

// What FileExist tells of a file.
struct AFX_EXT_CLASS fileinfo_t {
    char name[260];          // absolute form of the name asked for, not the name found
    FILETIME time;           // last write of the first match
    unsigned long sizeHigh;  // size of the first match in bytes, high half
    unsigned long sizeLow;   // and low half
};

// A stdio stream, which the object owns.
class AFX_EXT_CLASS file_t {
public:
    file_t();
    // Owns `stream` from now on. Takes at most 256 bytes of `fileName`, which may be null. The last argument
    // means something for parts only.
    file_t(const char* fileName, FILE* stream, long length, long);
    file_t(const file_t&) = default;
    file_t& operator=(const file_t&) = default;
    virtual ~file_t();

    // Both close the object first, take at most 255 characters of the name and open the file of that
    // shortened name. A failed open leaves the object closed. OpenRead also refuses what GetLen could not
    // tell: a file beyond 2^31 - 1 bytes.
    virtual bool OpenWrite(const char* fileName);
    virtual bool OpenRead(const char* fileName);
    virtual void Close();
    // Hands out the content in a buffer from array new, with a 0 behind it, that the caller frees with
    // delete[]. Null and 0 when there is nothing to read.
    virtual void GetText(unsigned char** text, long& length);
    virtual int Eof();
    virtual int Seek(long offset, int whence);
    virtual long Tell();
    virtual int Putc(int ch);
    virtual int Getc();
    virtual int Puts(char* s);
    virtual char* Gets(char* buf, int n);
    virtual long Read(void* buf, long size, long count);
    virtual long Write(const void* buf, long size, long count);
    // True when the object has no stream of its own; memory files say false all the same.
    virtual bool IsLodEntry();
    // No effect on streams and parts. A memory file keeps the stream and closes it when it is destroyed.
    virtual void SetFp(FILE* stream);
    // A part of this object, for the caller to delete; a length of -1 stands for the whole length. The part
    // lives no longer than this object's stream or buffer. Null when refused.
    virtual file_t* create_part(const char* partName, long length, long offset);
    // Copies `count` bytes from the current position to the target, all up to the end when it is negative.
    // The result is the number of bytes that the target took.
    virtual long WriteToFile(file_t* target, int count);
    // The buffer of a memory file, null for the others. It stays the object's.
    virtual void* GetMemPtr();

    int GetLen() const { return static_cast<int>(len); }
    FILETIME* GetDatum() { return &datum; }
    char* GetName() { return name; }

    // True when the name, or a pattern with wildcards, finds any entry, folders included. A non-null `info`
    // is filled only then; a name whose absolute form does not fit into it gives false.
    static bool FileExist(const char* fileName, fileinfo_t* info);
    // A name that ends in a backslash is no folder's name.
    static bool DirExist(const char* dirName);
    // Makes the folder and all that lead to it; ask DirExist for the outcome.
    static void MakeDir(const char* path);
    // The name below the current directory. Knows drives, leading backslashes and leading "..\"; a name that
    // leads above the root, or any name without a current directory, comes back unchanged.
    static CString AbsPath(const char* fileName);
    // "dd.mm.yyyy  hh:mm" in UTC.
    static CString ConvertFileTime(const FILETIME* time);
    // Last write, stored when `time` is not null; true when the file can be opened.
    static bool get_file_time(const char* fileName, FILETIME* time);
    // Sets creation, last access and last write; true when the file can be opened.
    static bool set_file_time(const char* fileName, FILETIME* time);

protected:
    char name[260];  // empty when closed, zero-filled behind the text
    FILE* fp;
    long len;        // stays 0 on a stream opened for writing
    long pos;        // on a file_t only WriteToFile moves it: the stream knows the real position
    FILETIME datum;  // last write of the file, taken by OpenRead; outlives Close

private:
    void CloseAndRename(const char* fileName);
};

// `len` bytes at `offset` of a stream that somebody else owns and closes. Read-only: the writing operations
// and both opens are refused and change nothing.
class AFX_EXT_CLASS partof_file_t : public file_t {
public:
    // A negative length or offset makes an empty part.
    partof_file_t(const char* partName, FILE* stream, long length, long offset);
    partof_file_t(const partof_file_t&) = default;
    partof_file_t& operator=(const partof_file_t&) = default;
    ~partof_file_t() override;

    bool OpenWrite(const char* fileName) override;
    bool OpenRead(const char* fileName) override;
    void Close() override;
    int Eof() override;
    int Seek(long offsetInPart, int whence) override;
    long Tell() override;
    int Putc(int ch) override;
    int Getc() override;
    int Puts(char* s) override;
    char* Gets(char* buf, int n) override;
    long Read(void* buf, long size, long count) override;
    long Write(const void* buf, long size, long count) override;
    bool IsLodEntry() override;

protected:
    long offset;

private:
    bool SeekStream();
    void TakeStreamPosition();
};

// A buffer that grows as it is written. pos <= len <= capacity holds at all times.
class AFX_EXT_CLASS dmemfile_t : public file_t {
public:
    dmemfile_t();
    dmemfile_t(const dmemfile_t&) = default;
    dmemfile_t& operator=(const dmemfile_t&) = default;
    ~dmemfile_t() override;

    // Always false: a memory file never goes to the disk by itself. See WriteToFile.
    bool OpenWrite(const char* fileName) override;
    // Loads the whole file. What was held before is gone in any case; an empty file counts as a failure.
    bool OpenRead(const char* fileName) override;
    // Drops the content; the next write starts a new buffer.
    void Close() override;
    // As in file_t, but without the 0 behind the content.
    void GetText(unsigned char** text, long& length) override;
    int Eof() override;
    // 0, or -1 with the position unchanged. No seek goes beyond the end.
    int Seek(long offset, int whence) override;
    long Tell() override;
    // -1 when no memory is left.
    int Putc(int ch) override;
    int Getc() override;
    // Stores the terminator too.
    int Puts(char* s) override;
    // Knows LF, CR, CR LF and LF CR, and leaves them in the text. `buf` must hold n + 1 bytes: a two-byte
    // line end that meets the limit is not split.
    char* Gets(char* buf, int n) override;
    long Read(void* buf, long size, long count) override;
    long Write(const void* buf, long size, long count) override;
    bool IsLodEntry() override;
    void SetFp(FILE* stream) override;
    // A view, not a copy: valid as long as this object neither grows nor closes.
    file_t* create_part(const char* partName, long length, long offset) override;
    // One Write of the target; the position moves on even when the target refuses. A count beyond the end
    // gives 0.
    long WriteToFile(file_t* target, int count) override;
    void* GetMemPtr() override;

protected:
    unsigned char* mem;  // from array new, null when closed
    long capacity;       // size of that buffer

private:
    friend class smemfile_t;
    dmemfile_t(unsigned char* buf, long size);
    bool Enlarge(long growth, unsigned char*& outgrown);
};

// A buffer of fixed size. Read-only: the writing operations give 0 and change nothing.
class AFX_EXT_CLASS smemfile_t : public dmemfile_t {
public:
    // Owns a zero-filled buffer, or none for a size of 0 and less.
    explicit smemfile_t(long size = 0);
    // Wraps `buf`. With `foreign` it stays the caller's, else it comes from array new and goes with this
    // object. A null buffer or a size of 0 and less makes an empty object without a name.
    smemfile_t(const char* fileName, unsigned char* buf, long size, bool foreign);
    smemfile_t(const smemfile_t&) = default;
    smemfile_t& operator=(const smemfile_t&) = default;
    ~smemfile_t() override;

    // Lets go of a wrapped buffer. A file opened afterwards has a buffer of the object's own.
    void Close() override;
    int Putc(int ch) override;
    int Puts(char* s) override;
    long Write(const void* buf, long size, long count) override;

protected:
    bool nofree;
};
