#!/bin/bash
# Fails when clang-format would change a source file. With --fix it changes them.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
mapfile -t files < <(find . \( -path ./build -o -path ./.git \) -prune -o \( -name '*.cpp' -o -name '*.h' \) -print)
if [ "${1:-}" = --fix ]; then
    clang-format -i "${files[@]}"
    exit
fi
# One finding for each file is enough to send someone to --fix.
printf '%s\0' "${files[@]}" | xargs -0 -P "$(nproc)" -n 1 clang-format --dry-run -Werror -ferror-limit=1 || {
    echo "clang-format: tools/check_format.sh --fix changes these files" >&2
    exit 1
}
echo "clang-format: ${#files[@]} files"
