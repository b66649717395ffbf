#include <algorithm>
#include <climits>
#include <cstring>
#include <new>

#include "support/file_objects.h"
#include "support/file_ranges.h"
#include "support/path_limit.h"

namespace {

constexpr long kFirstCapacity = 1024;
constexpr long kSmallStep = 1024;

// Small writes grow by a fixed step, large ones once by their own size, rounded up past the next 16.
long GrowthFor(long bytes) {
    return bytes > kSmallStep ? (bytes | 15) + 1 : kSmallStep;
}

bool IsLineEnd(unsigned char byte) {
    return byte == '\n' || byte == '\r';
}

// Length of the line at `text`, its line end included. A line ends behind `limit` bytes at the latest, but a
// two-byte line end that begins within the limit stays whole.
long LineLength(const unsigned char* text, long size, long limit) {
    const unsigned char* last = text + std::min(size, limit);
    const unsigned char* end = std::find_if(text, last, IsLineEnd);
    if (end == last) return static_cast<long>(last - text);
    const long length = static_cast<long>(end - text) + 1;
    if (length < size && IsLineEnd(text[length]) && text[length] != *end) return length + 1;
    return length;
}

unsigned char* NewZeroed(long size) {
    return size > 0 ? new (std::nothrow) unsigned char[static_cast<size_t>(size)]() : nullptr;
}

}  // namespace

dmemfile_t::dmemfile_t() : dmemfile_t(new (std::nothrow) unsigned char[kFirstCapacity], kFirstCapacity) {}

dmemfile_t::dmemfile_t(unsigned char* buf, long size) : mem(buf), capacity(buf ? size : 0) {}

dmemfile_t::~dmemfile_t() {
    dmemfile_t::Close();
}

bool dmemfile_t::OpenWrite(const char*) {
    return false;
}

bool dmemfile_t::OpenRead(const char* fileName) {
    // Opened before this object is closed: the name may be its own.
    file_t source;
    const bool opened = source.OpenRead(fileName);
    Close();
    if (!opened) return false;
    std::memcpy(name, source.GetName(), sizeof name);
    datum = *source.GetDatum();
    source.GetText(&mem, capacity);
    len = source.GetLen();
    if (mem && len == capacity) return true;
    Close();
    return false;
}

void dmemfile_t::Close() {
    delete[] mem;
    mem = nullptr;
    capacity = 0;
    std::memset(name, 0, sizeof name);
    len = 0;
    pos = 0;
}

void dmemfile_t::GetText(unsigned char** text, long& length) {
    *text = nullptr;
    length = 0;
    if (len <= 0 || !mem) return;
    *text = new (std::nothrow) unsigned char[static_cast<size_t>(len)];
    if (!*text) return;
    std::memcpy(*text, mem, static_cast<size_t>(len));
    length = len;
    pos = len;
}

int dmemfile_t::Eof() {
    return static_cast<int>(pos < len ? 0 : pos);
}

int dmemfile_t::Seek(long offset, int whence) {
    const long target = SeekTarget(pos, len, offset, whence);
    if (target < 0) return -1;
    pos = target;
    return 0;
}

long dmemfile_t::Tell() {
    return pos;
}

int dmemfile_t::Putc(int ch) {
    unsigned char* outgrown = nullptr;
    if (pos == capacity && !Enlarge(kSmallStep, outgrown)) return -1;
    delete[] outgrown;
    mem[pos++] = static_cast<unsigned char>(ch);
    len = std::max(len, pos);
    return ch;
}

int dmemfile_t::Getc() {
    return pos < len ? mem[pos++] : -1;
}

int dmemfile_t::Puts(char* s) {
    if (!*s) return 0;
    return static_cast<int>(Write(s, static_cast<long>(std::strlen(s)) + 1, 1));
}

char* dmemfile_t::Gets(char* buf, int n) {
    if (n <= 1 || pos >= len) return nullptr;
    const long length = LineLength(mem + pos, len - pos, n - 1);
    std::memcpy(buf, mem + pos, static_cast<size_t>(length));
    buf[length] = 0;
    pos += length;
    return buf;
}

long dmemfile_t::Read(void* buf, long size, long count) {
    if (size == 0) return std::max(count, 0L);
    const long wanted = ByteCount(size, count);
    const long taken = std::min(wanted, len - pos);
    if (taken == 0) return 0;
    std::memcpy(buf, mem + pos, static_cast<size_t>(taken));
    pos += taken;
    return taken / size;
}

long dmemfile_t::Write(const void* buf, long size, long count) {
    const long total = ByteCount(size, count);
    if (total == 0) return 0;
    unsigned char* outgrown = nullptr;
    if (total >= capacity - pos && !Enlarge(GrowthFor(total), outgrown)) return 0;
    std::memmove(mem + pos, buf, static_cast<size_t>(total));
    delete[] outgrown;
    pos += total;
    len = std::max(len, pos);
    return count;
}

// The old buffer is handed out, for the caller to delete: what is to be written may stand in it.
bool dmemfile_t::Enlarge(long growth, unsigned char*& outgrown) {
    if (growth > INT_MAX - capacity) return false;
    auto* larger = new (std::nothrow) unsigned char[static_cast<size_t>(capacity + growth)];
    if (!larger) return false;
    if (mem) std::memcpy(larger, mem, static_cast<size_t>(capacity));
    outgrown = mem;
    mem = larger;
    capacity += growth;
    return true;
}

bool dmemfile_t::IsLodEntry() {
    return false;
}

void dmemfile_t::SetFp(FILE* stream) {
    fp = stream;
}

file_t* dmemfile_t::create_part(const char* partName, long length, long offset) {
    if (length == -1) length = len;
    if (length < 0 || offset < 0 || offset > len || length > len - offset) return nullptr;
    return new (std::nothrow) smemfile_t(partName, mem + offset, length, true);
}

long dmemfile_t::WriteToFile(file_t* target, int count) {
    const long rest = len - pos;
    const long wanted = count < 0 ? rest : count;
    if (wanted <= 0 || wanted > rest) return 0;
    const long end = pos + wanted;
    const long written = target->Write(mem + pos, wanted, 1);
    pos = end;
    return written == 1 ? wanted : 0;
}

void* dmemfile_t::GetMemPtr() {
    return mem;
}

smemfile_t::smemfile_t(long size) : dmemfile_t(NewZeroed(size), size), nofree(false) {
    len = capacity;
}

smemfile_t::smemfile_t(const char* fileName, unsigned char* buf, long size, bool foreign)
    : dmemfile_t(size > 0 ? buf : nullptr, size), nofree(foreign) {
    len = capacity;
    if (mem) CopyPath(name, fileName, kGivenNameLimit);
}

smemfile_t::~smemfile_t() {
    smemfile_t::Close();
}

void smemfile_t::Close() {
    if (nofree) mem = nullptr;
    nofree = false;
    dmemfile_t::Close();
}

int smemfile_t::Putc(int) {
    return 0;
}

int smemfile_t::Puts(char*) {
    return 0;
}

long smemfile_t::Write(const void*, long, long) {
    return 0;
}

// The layout that other tools of the host were built against.
static_assert(sizeof(void*) != 4 || sizeof(dmemfile_t) == sizeof(file_t) + 8);
static_assert(sizeof(void*) != 4 || sizeof(smemfile_t) == sizeof(dmemfile_t) + 4);
