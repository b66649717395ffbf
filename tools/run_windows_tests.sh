#!/bin/bash
# Builds a Windows preset and runs its test programs under Wine, on a display of its own.
#
#   tools/run_windows_tests.sh windows-i686|windows-x86_64
#
# Exit status: 0 all passed; 1 a build or test failed; 77 this machine cannot build or run it (said why).
set -uo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/wine_env.sh"
cd "$project_root"

preset=${1:-}
world=${preset#windows-}
case $preset in
    windows-i686 | windows-x86_64) ;;
    *)
        echo "usage: $0 windows-i686|windows-x86_64" >&2
        exit 2
        ;;
esac

# Two runs in one prefix would end each other's programs.
mkdir -p build
if [ "${WINE_LOCKED:-}" != "$preset" ]; then
    WINE_LOCKED=$preset exec flock --close "build/$preset.lock" tools/run_windows_tests.sh "$@"
fi

skip() {
    echo "skipped: $preset: $*"
    exit 77
}

xvfb_pid=
clean_up() {
    stop_wine
    [ -z "$xvfb_pid" ] || { kill "$xvfb_pid" && wait "$xvfb_pid"; } 2>/dev/null
}

start_display() {
    local number_file
    number_file=$(mktemp)
    Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp 3>"$number_file" >/dev/null 2>&1 &
    xvfb_pid=$!
    # The number appears once the display accepts clients.
    timeout 30 sh -c "until [ -s '$number_file' ]; do sleep 0.1; done"
    DISPLAY=:$(cat "$number_file")
    export DISPLAY
    rm -f "$number_file"
    [ "$DISPLAY" != : ]
}

# The server and the programs it keeps (services, the desktop) run before the first test and outlast the last.
# Were a test to start them, ctest would wait for them, since they hold its output; and by itself the server ends
# soon after a program does: one that starts in that moment is refused. When this script is killed it goes alone.
start_server() {
    stop_wine
    "$WINESERVER" -p600 && timeout 120 "$WINELOADER" cmd /c exit >/dev/null 2>&1
}

tools/install_packages.sh cmake ninja-build googletest libcli11-dev nlohmann-json3-dev \
    "g++-mingw-w64-${world//_/-}-posix" || skip "packages are missing"
cmake --preset "$preset" >"build/$preset.configure.log" || { cat "build/$preset.configure.log"; exit 1; }
cmake --build --preset "$preset" || exit 1

tools/setup_wine.sh "$world"
case $? in
    0) ;;
    77) skip "built, but there is no Wine to run the tests" ;;
    *) exit 1 ;;
esac

use_wine "$world"
trap clean_up EXIT
start_display || { echo "run_windows_tests: no display could be started" >&2; exit 1; }
start_server || { echo "run_windows_tests: Wine's server does not start" >&2; exit 1; }
ctest --preset "$preset" --no-tests=error
status=$?
tools/count_cases.sh "build/$preset"
[ $status -eq 0 ]
