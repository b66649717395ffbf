#include <fcntl.h>
#include <unistd.h>
#include <windows.h>

#include <algorithm>
#include <cerrno>
#include <utility>

#include "errors.h"
#include "file_time.h"
#include "handle_table.h"
#include "lookup.h"
#include "threads/waitable.h"
#include "write_faults.h"

namespace {

constexpr mode_t kNewFileMode = 0666;

class OpenFile {
public:
    OpenFile(int descriptor, DWORD access) : descriptor_(descriptor), access_(access) {}
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;
    ~OpenFile() { Close(); }

    int Descriptor() const { return descriptor_; }
    bool CanRead() const { return access_ & GENERIC_READ; }
    bool CanWrite() const { return access_ & GENERIC_WRITE; }
    bool Close() {
        const int descriptor = std::exchange(descriptor_, -1);
        return descriptor < 0 || close(descriptor) == 0;
    }

private:
    int descriptor_;
    DWORD access_;
};

HandleTable<OpenFile>& Files() {
    static auto& table = *new HandleTable<OpenFile>(kFirstFileHandle);
    return table;
}

std::shared_ptr<OpenFile> FileOf(HANDLE handle) {
    auto file = Files().Get(handle);
    if (!file) SetLastError(ERROR_INVALID_HANDLE);
    return file;
}

BOOL FailWithErrno() {
    return Fail(ErrorFromErrno(errno));
}

int OpenMode(DWORD access) {
    if (!(access & GENERIC_WRITE)) return O_RDONLY;
    return access & GENERIC_READ ? O_RDWR : O_WRONLY;
}

// What stands against opening the place that a name leads to.
DWORD CheckOpen(const LookedUp& place, DWORD access, DWORD disposition) {
    if (place.error == ERROR_FILE_NOT_FOUND) {
        if (disposition == OPEN_EXISTING) return place.error;
        return place.endsInSeparator ? ERROR_INVALID_NAME : NO_ERROR;
    }
    if (place.error != NO_ERROR) return place.error;
    if (place.IsFolder()) return ERROR_ACCESS_DENIED;
    if (place.endsInSeparator) return ERROR_INVALID_NAME;
    const bool writes = (access & GENERIC_WRITE) || disposition == CREATE_ALWAYS;
    return writes && place.IsReadOnly() ? ERROR_ACCESS_DENIED : NO_ERROR;
}

HANDLE Refuse(DWORD error) {
    SetLastError(error);
    return INVALID_HANDLE_VALUE;
}

// One step of a transfer that POSIX may cut short.
template <typename Call>
ssize_t Repeat(Call call) {
    ssize_t done;
    do {
        done = call();
    } while (done < 0 && errno == EINTR);
    return done;
}

// A time of 0 leaves the file's own as it is.
timespec TimeToSet(const FILETIME* time) {
    const bool given = time && (time->dwLowDateTime | time->dwHighDateTime) != 0;
    return given ? ToTimespec(*time) : timespec{0, UTIME_OMIT};
}

int64_t Joined(LONG high, DWORD low) {
    return static_cast<int64_t>(high) * (int64_t{1} << 32) + low;
}

// The position from which SetFilePointer counts.
DWORD StartOfMove(const OpenFile& file, DWORD method, int64_t& start) {
    struct stat status;
    if (method == FILE_BEGIN) {
        start = 0;
    } else if (method == FILE_CURRENT) {
        start = lseek(file.Descriptor(), 0, SEEK_CUR);
    } else if (method == FILE_END) {
        start = fstat(file.Descriptor(), &status) == 0 ? status.st_size : -1;
    } else {
        return ERROR_INVALID_PARAMETER;
    }
    return start >= 0 ? NO_ERROR : ErrorFromErrno(errno);
}

}  // namespace

HANDLE WINAPI CreateFileA(LPCSTR name, DWORD access, DWORD, LPSECURITY_ATTRIBUTES, DWORD disposition, DWORD,
                          HANDLE) {
    if (disposition < CREATE_ALWAYS || disposition > OPEN_ALWAYS) return Refuse(ERROR_INVALID_PARAMETER);
    const LookedUp place = LookUp(name);
    const DWORD error = CheckOpen(place, access, disposition);
    if (error != NO_ERROR) return Refuse(error);
    int mode = OpenMode(access) | O_CLOEXEC;
    if (disposition != OPEN_EXISTING) mode |= O_CREAT;
    if (disposition == CREATE_ALWAYS) mode |= O_TRUNC;
    const int descriptor = open(place.path.c_str(), mode, kNewFileMode);
    if (descriptor < 0) return Refuse(ErrorFromErrno(errno));
    const HANDLE handle = Files().Add(std::make_shared<OpenFile>(descriptor, access));
    const bool existed = place.error == NO_ERROR;
    SetLastError(existed && disposition != OPEN_EXISTING ? ERROR_ALREADY_EXISTS : NO_ERROR);
    return handle;
}

BOOL WINAPI CloseHandle(HANDLE object) {
    const auto file = Files().Remove(object);
    if (!file) return CloseWaitable(object) || Fail(ERROR_INVALID_HANDLE);
    if (!file->Close()) return FailWithErrno();
    return !CloseIsToFail() || Fail(ERROR_DISK_FULL);
}

BOOL WINAPI ReadFile(HANDLE handle, LPVOID buffer, DWORD size, LPDWORD got, LPOVERLAPPED overlapped) {
    if (!got || overlapped) return Fail(ERROR_INVALID_PARAMETER);
    *got = 0;
    const auto file = FileOf(handle);
    if (!file) return FALSE;
    if (!file->CanRead()) return Fail(ERROR_ACCESS_DENIED);
    if (!buffer && size > 0) return Fail(ERROR_NOACCESS);
    while (*got < size) {
        const ssize_t step =
            Repeat([&] { return read(file->Descriptor(), static_cast<char*>(buffer) + *got, size - *got); });
        if (step < 0) return FailWithErrno();
        if (step == 0) break;
        *got += static_cast<DWORD>(step);
    }
    return TRUE;
}

BOOL WINAPI WriteFile(HANDLE handle, LPCVOID bytes, DWORD size, LPDWORD written, LPOVERLAPPED overlapped) {
    if (!written || overlapped) return Fail(ERROR_INVALID_PARAMETER);
    *written = 0;
    const auto file = FileOf(handle);
    if (!file) return FALSE;
    if (!file->CanWrite()) return Fail(ERROR_ACCESS_DENIED);
    if (!bytes && size > 0) return Fail(ERROR_NOACCESS);
    const WriteAllowance allowance = AskToWrite(size);
    while (*written < allowance.bytes) {
        const ssize_t step = Repeat([&] {
            return write(file->Descriptor(), static_cast<const char*>(bytes) + *written,
                         allowance.bytes - *written);
        });
        if (step < 0) return FailWithErrno();
        if (step == 0) return Fail(ERROR_DISK_FULL);
        *written += static_cast<DWORD>(step);
    }
    return !allowance.fails || Fail(ERROR_DISK_FULL);
}

DWORD WINAPI SetFilePointer(HANDLE handle, LONG distance, PLONG distanceHigh, DWORD method) {
    const auto file = FileOf(handle);
    if (!file) return INVALID_SET_FILE_POINTER;
    const int64_t offset = distanceHigh ? Joined(*distanceHigh, static_cast<DWORD>(distance)) : distance;
    int64_t target = 0;
    DWORD error = StartOfMove(*file, method, target);
    if (error == NO_ERROR) {
        const bool overflows = __builtin_add_overflow(target, offset, &target);
        if (overflows || (!distanceHigh && target > UINT32_MAX)) {
            error = ERROR_INVALID_PARAMETER;
        } else if (target < 0) {
            error = ERROR_NEGATIVE_SEEK;
        } else if (lseek(file->Descriptor(), target, SEEK_SET) < 0) {
            error = ErrorFromErrno(errno);
        }
    }
    SetLastError(error);
    if (error != NO_ERROR) return INVALID_SET_FILE_POINTER;
    if (distanceHigh) *distanceHigh = static_cast<LONG>(target >> 32);
    return static_cast<DWORD>(target);
}

BOOL WINAPI SetEndOfFile(HANDLE handle) {
    const auto file = FileOf(handle);
    if (!file) return FALSE;
    if (!file->CanWrite()) return Fail(ERROR_ACCESS_DENIED);
    const off_t end = lseek(file->Descriptor(), 0, SEEK_CUR);
    return (end >= 0 && ftruncate(file->Descriptor(), end) == 0) || FailWithErrno();
}

DWORD WINAPI GetFileSize(HANDLE handle, LPDWORD sizeHigh) {
    const auto file = FileOf(handle);
    struct stat status;
    if (!file) return INVALID_FILE_SIZE;
    if (fstat(file->Descriptor(), &status) != 0) {
        FailWithErrno();
        return INVALID_FILE_SIZE;
    }
    if (sizeHigh) *sizeHigh = static_cast<DWORD>(static_cast<uint64_t>(status.st_size) >> 32);
    SetLastError(NO_ERROR);
    return static_cast<DWORD>(status.st_size);
}

BOOL WINAPI GetFileTime(HANDLE handle, LPFILETIME creation, LPFILETIME access, LPFILETIME write) {
    const auto file = FileOf(handle);
    struct stat status;
    if (!file) return FALSE;
    if (fstat(file->Descriptor(), &status) != 0) return FailWithErrno();
    if (creation) *creation = ToFileTime(status.st_mtim);
    if (access) *access = ToFileTime(status.st_atim);
    if (write) *write = ToFileTime(status.st_mtim);
    return TRUE;
}

BOOL WINAPI SetFileTime(HANDLE handle, const FILETIME*, const FILETIME* access, const FILETIME* write) {
    const auto file = FileOf(handle);
    if (!file) return FALSE;
    if (!file->CanWrite()) return Fail(ERROR_ACCESS_DENIED);
    const timespec times[] = {TimeToSet(access), TimeToSet(write)};
    return futimens(file->Descriptor(), times) == 0 || FailWithErrno();
}
