#include "file_time.h"

#include <windows.h>

#include <algorithm>

#include "errors.h"

namespace {

constexpr int64_t kTicksPerSecond = 10'000'000;
constexpr int64_t kNanosecondsPerTick = 100;
constexpr int64_t kSecondsFrom1601To1970 = 11'644'473'600;
constexpr int64_t kLatestSecond = INT64_MAX / kTicksPerSecond - kSecondsFrom1601To1970 - 1;

constexpr int kFirstDosYear = 1980;
constexpr int kLastDosYear = 2107;

int64_t Ticks(const FILETIME& time) {
    const uint64_t ticks = static_cast<uint64_t>(time.dwHighDateTime) << 32 | time.dwLowDateTime;
    return static_cast<int64_t>(std::min(ticks, static_cast<uint64_t>(INT64_MAX)));
}

}  // namespace

FILETIME ToFileTime(const timespec& time) {
    const int64_t second = std::clamp<int64_t>(time.tv_sec, -kSecondsFrom1601To1970, kLatestSecond);
    const auto ticks = static_cast<uint64_t>((second + kSecondsFrom1601To1970) * kTicksPerSecond +
                                             time.tv_nsec / kNanosecondsPerTick);
    return {static_cast<DWORD>(ticks), static_cast<DWORD>(ticks >> 32)};
}

timespec ToTimespec(const FILETIME& time) {
    const int64_t ticks = Ticks(time);
    timespec result{};
    result.tv_sec = ticks / kTicksPerSecond - kSecondsFrom1601To1970;
    result.tv_nsec = ticks % kTicksPerSecond * kNanosecondsPerTick;
    return result;
}

BOOL WINAPI FileTimeToDosDateTime(const FILETIME* time, LPWORD dosDate, LPWORD dosTime) {
    if (!time || !dosDate || !dosTime) return Fail(ERROR_INVALID_PARAMETER);
    const timespec instant = ToTimespec(*time);
    tm parts{};
    if (!gmtime_r(&instant.tv_sec, &parts)) return Fail(ERROR_INVALID_PARAMETER);
    const int year = parts.tm_year + 1900;
    if (year < kFirstDosYear || year > kLastDosYear) return Fail(ERROR_INVALID_PARAMETER);
    *dosDate = static_cast<WORD>((year - kFirstDosYear) << 9 | (parts.tm_mon + 1) << 5 | parts.tm_mday);
    *dosTime = static_cast<WORD>(parts.tm_hour << 11 | parts.tm_min << 5 | parts.tm_sec / 2);
    return TRUE;
}
