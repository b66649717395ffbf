#include <file_faults.h>

#include <algorithm>
#include <mutex>
#include <utility>

#include "write_faults.h"

namespace {

struct FaultState {
    std::mutex mutex;
    FileFaults faults;
    unsigned writes = 0;
    bool failing = false;
};

FaultState& State() {
    static FaultState state;
    return state;
}

}  // namespace

void SetFileFaults(const FileFaults& faults) {
    FaultState& state = State();
    const std::lock_guard lock(state.mutex);
    state.faults = faults;
    state.writes = 0;
    state.failing = false;
}

WriteAllowance AskToWrite(DWORD size) {
    FaultState& state = State();
    const std::lock_guard lock(state.mutex);
    FileFaults& faults = state.faults;
    DWORD fitting = 0;
    if (!state.failing) {
        const bool numbered = ++state.writes == faults.failingWrite;
        state.failing = numbered || size > faults.goodBytes;
        fitting = numbered ? 0 : static_cast<DWORD>(std::min<uint64_t>(size, faults.goodBytes));
        faults.goodBytes -= fitting;
    }
    if (!state.failing || faults.failures == 0) return {size, false};
    --faults.failures;
    return {fitting, true};
}

bool CloseIsToFail() {
    FaultState& state = State();
    const std::lock_guard lock(state.mutex);
    return std::exchange(state.faults.closeFails, false);
}
