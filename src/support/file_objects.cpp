#include "support/file_objects.h"

#include <share.h>

#include <algorithm>
#include <climits>
#include <cstring>
#include <new>

#include "support/file_ranges.h"
#include "support/path_limit.h"

namespace {

// Rewinds a stream. The result is its length in bytes, or -1 when GetLen could not tell it.
long MeasureStream(FILE* stream) {
    if (std::fseek(stream, 0, SEEK_END) != 0) return -1;
    const long length = std::ftell(stream);
    if (length > INT_MAX || std::fseek(stream, 0, SEEK_SET) != 0) return -1;
    return length;
}

}  // namespace

file_t::file_t() : file_t(nullptr, nullptr, 0, 0) {}

file_t::file_t(const char* fileName, FILE* stream, long length, long)
    : name{}, fp(stream), len(length), pos(0), datum{} {
    CopyPath(name, fileName, kGivenNameLimit);
}

file_t::~file_t() {
    file_t::Close();
}

// The name may be this object's own, which Close clears.
void file_t::CloseAndRename(const char* fileName) {
    char copy[sizeof name] = {};
    CopyPath(copy, fileName, kOpenNameLimit);
    Close();
    std::memcpy(name, copy, sizeof name);
}

bool file_t::OpenWrite(const char* fileName) {
    CloseAndRename(fileName);
    fp = _fsopen(name, "wb", _SH_DENYNO);
    if (fp) return true;
    Close();
    return false;
}

bool file_t::OpenRead(const char* fileName) {
    CloseAndRename(fileName);
    get_file_time(name, &datum);
    fp = _fsopen(name, "rb", _SH_DENYNO);
    const long length = fp ? MeasureStream(fp) : -1;
    if (length >= 0) {
        len = length;
        return true;
    }
    Close();
    return false;
}

void file_t::Close() {
    if (fp) std::fclose(fp);
    std::memset(name, 0, sizeof name);
    fp = nullptr;
    len = 0;
    pos = 0;
}

void file_t::GetText(unsigned char** text, long& length) {
    *text = nullptr;
    length = 0;
    if (!fp || len <= 0) return;
    std::clearerr(fp);
    auto* buffer = new (std::nothrow) unsigned char[static_cast<size_t>(len) + 1];
    if (!buffer) return;
    Seek(0, SEEK_SET);
    // The file may have shrunk since it was measured: only what came is text.
    const long got = Read(buffer, 1, len);
    if (got <= 0) {
        delete[] buffer;
        return;
    }
    buffer[got] = 0;
    *text = buffer;
    length = got;
}

int file_t::Eof() {
    return std::feof(fp);
}

int file_t::Seek(long offset, int whence) {
    return std::fseek(fp, offset, whence);
}

long file_t::Tell() {
    return std::ftell(fp);
}

int file_t::Putc(int ch) {
    return std::putc(ch, fp);
}

int file_t::Getc() {
    return std::getc(fp);
}

int file_t::Puts(char* s) {
    return std::fputs(s, fp);
}

char* file_t::Gets(char* buf, int n) {
    return n > 0 ? std::fgets(buf, n, fp) : nullptr;
}

long file_t::Read(void* buf, long size, long count) {
    if (ByteCount(size, count) == 0) return 0;
    return static_cast<long>(std::fread(buf, static_cast<size_t>(size), static_cast<size_t>(count), fp));
}

long file_t::Write(const void* buf, long size, long count) {
    if (ByteCount(size, count) == 0) return 0;
    return static_cast<long>(std::fwrite(buf, static_cast<size_t>(size), static_cast<size_t>(count), fp));
}

bool file_t::IsLodEntry() {
    return !fp;
}

void file_t::SetFp(FILE*) {}

file_t* file_t::create_part(const char* partName, long length, long offset) {
    if (length == -1) length = len;
    if (length < 0 || offset < 0) return nullptr;
    return new (std::nothrow) partof_file_t(partName, fp, length, offset);
}

long file_t::WriteToFile(file_t* target, int count) {
    char buffer[1024];
    long taken = 0;
    long remaining = count < 0 ? len - pos : count;
    while (remaining > 0) {
        const long from = pos;
        const long got = Read(buffer, 1, std::min<long>(sizeof buffer, remaining));
        if (got <= 0) break;
        pos = from + got;  // a part has moved there by itself
        remaining -= got;
        const long accepted = target->Write(buffer, 1, got);
        taken += accepted;
        if (accepted < got) break;
    }
    return taken;
}

void* file_t::GetMemPtr() {
    return nullptr;
}

partof_file_t::partof_file_t(const char* partName, FILE* stream, long length, long offset_)
    : file_t(partName, stream, length < 0 || offset_ < 0 ? 0 : length, offset_),
      offset(std::max(offset_, 0L)) {}

partof_file_t::~partof_file_t() {
    partof_file_t::Close();
}

bool partof_file_t::OpenWrite(const char*) {
    return false;
}

bool partof_file_t::OpenRead(const char*) {
    return false;
}

void partof_file_t::Close() {
    fp = nullptr;
    offset = 0;
    file_t::Close();
}

int partof_file_t::Eof() {
    return static_cast<int>(pos < len ? 0 : len);
}

int partof_file_t::Seek(long offsetInPart, int whence) {
    const long target = SeekTarget(pos, len, offsetInPart, whence);
    if (target < 0) return -1;
    pos = target;
    return 0;
}

long partof_file_t::Tell() {
    return pos;
}

// The stream is shared, so that it may stand anywhere before a read.
bool partof_file_t::SeekStream() {
    return offset <= LONG_MAX - pos && std::fseek(fp, offset + pos, SEEK_SET) == 0;
}

void partof_file_t::TakeStreamPosition() {
    const long at = std::ftell(fp);
    if (at >= offset) pos = at - offset;
}

int partof_file_t::Putc(int) {
    return 0;
}

int partof_file_t::Getc() {
    if (pos >= len || !SeekStream()) return -1;
    ++pos;
    return std::getc(fp);
}

int partof_file_t::Puts(char*) {
    return 0;
}

char* partof_file_t::Gets(char* buf, int n) {
    if (n < 1 || pos >= len || !SeekStream()) return nullptr;
    const long room = len - pos;
    if (n > room) n = static_cast<int>(room) + 1;
    char* line = std::fgets(buf, n, fp);
    TakeStreamPosition();
    return line;
}

long partof_file_t::Read(void* buf, long size, long count) {
    if (pos >= len || ByteCount(size, count) == 0 || !SeekStream()) return 0;
    const long rest = len - pos;
    long items;
    if (ByteCount(size, count) <= rest) {
        items = static_cast<long>(std::fread(buf, static_cast<size_t>(size), static_cast<size_t>(count), fp));
    } else {
        items = static_cast<long>(std::fread(buf, 1, static_cast<size_t>(rest), fp)) / size;
    }
    TakeStreamPosition();
    return items;
}

long partof_file_t::Write(const void*, long, long) {
    return 0;
}

bool partof_file_t::IsLodEntry() {
    return true;
}

// The layout that other tools of the host were built against.
static_assert(sizeof(void*) != 4 || sizeof(file_t) == 4 + 260 + 3 * 4 + sizeof(FILETIME));
static_assert(sizeof(void*) != 4 || sizeof(partof_file_t) == sizeof(file_t) + 4);
