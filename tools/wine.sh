#!/bin/bash
# Runs one Windows program under Wine, with a time limit. CMake calls it as the emulator of the Windows
# presets, so that ctest and people get the same environment.
#
#   tools/wine.sh i686|x86_64 PROGRAM.exe [ARGUMENT...]
set -u
source "$(dirname "${BASH_SOURCE[0]}")/wine_env.sh"
use_wine "$1" || exit 1
shift
exec timeout --kill-after=10 "$wine_time_limit" "$WINELOADER" "$@"
