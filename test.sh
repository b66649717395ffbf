#!/bin/bash
# Builds the native target and runs all its tests. On a Debian machine it installs what is missing first.
# It needs neither a display nor Wine; for the Windows targets see tools/run_windows_tests.sh.
set -uo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"

tools/setup_native.sh || echo "test.sh: going on with what is there" >&2

fail() {
    echo "test.sh: $* FAILED"
    exit 1
}

cmake --preset native || fail "configuring"
cmake --build --preset native || fail "building"

mkdir -p build
log=build/native-tests.log
ctest --preset native --no-tests=error --parallel "$(nproc)" 2>&1 | tee "$log"
status=${PIPESTATUS[0]}

echo
tools/count_cases.sh build/native
grep -E '% tests passed' "$log"
[ "$status" -eq 0 ] || fail "testing"
echo "test.sh: native build and tests passed"
