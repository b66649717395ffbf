#!/bin/bash
# Runs clang-tidy over the sources of the library, the platform, the stand-in editor and the command-line tool,
# with the flags of the asan build. Files which that build does not compile belong to Windows and are named.
#
#   tools/check_tidy.sh [FILE...]
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
[ -f build/asan/compile_commands.json ] || cmake --preset asan >/dev/null

if [ $# -gt 0 ]; then
    files=("$@")
else
    mapfile -t files < <(find src platform host cli -name '*.cpp' | sort)
fi
compiled=() left_out=()
for file in "${files[@]}"; do
    if grep -qF "\"file\": \"$PWD/$file\"" build/asan/compile_commands.json; then
        compiled+=("$file")
    else
        left_out+=("$file")
    fi
done
echo "clang-tidy: ${#compiled[@]} files"
[ ${#left_out[@]} -eq 0 ] || echo "clang-tidy: not in the native build: ${left_out[*]}"
# The counts of suppressed warnings say nothing. A status above 125 would end xargs before the other files.
printf '%s\0' "${compiled[@]}" | xargs -0 -P "$(nproc)" -n 1 bash -c '
    clang-tidy --quiet -p build/asan "$1" 2>&1 | grep -vE "^[0-9]+ warnings? (and [0-9]+ errors? )?generated"
    status=${PIPESTATUS[0]}
    [ "$status" -eq 0 ] || { echo "clang-tidy: $1: status $status"; exit 1; }' tidy
