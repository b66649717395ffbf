#!/bin/bash
# Makes this machine able to run Windows programs under Wine. What is there already stays, so a second call
# costs nothing.
#
#   tools/setup_wine.sh [i686] [x86_64]      (both when none is named)
#
# Exit status: 0 ready; 77 cannot be had on this machine (the reason is printed: callers skip); 1 a fault.
set -uo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/wine_env.sh"
tools=$project_root/tools
desktop=brlv

unavailable() {
    echo "setup_wine: not available here: $*" >&2
    exit 77
}

as_root() {
    if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo -n "$@"; fi
}

# Debian's 32-bit Wine with all it depends on goes into a folder of its own. The system gets no second
# architecture and none of these packages: apt works here with lists and a state of its own. The C library
# is the exception: it comes from the 64-bit system's libc6-i386, because the loader's path is fixed.
unpack_wine_i386() {
    local folder=$1 apt package
    mkdir -p "$folder"/state/lists/partial "$folder"/cache/archives/partial "$folder"/root
    : >"$folder"/status
    apt=(apt-get -qq -o Acquire::Retries=3 -o APT::Sandbox::User=root -o APT::Architecture=i386
        -o APT::Architectures::=i386
        -o Dir::State="$folder"/state -o Dir::State::status="$folder"/status -o Dir::Cache="$folder"/cache)
    echo "setup_wine: fetching Wine for 32-bit programs"
    # One index that cannot be read does not matter as long as the packages are found in another.
    "${apt[@]}" update >"$folder"/log 2>&1
    "${apt[@]}" install -y --no-install-recommends --download-only wine32 >>"$folder"/log 2>&1 ||
        { tail -n 5 "$folder"/log >&2; return 1; }
    for package in "$folder"/cache/archives/{*_i386,libz-mingw-w64_*}.deb; do
        case $package in */libc6_*) continue ;; esac
        dpkg-deb -x "$package" "$folder"/root || return 1
    done
    mark_as_builtin "$folder"/root/usr/i686-w64-mingw32/lib/zlib1.dll \
        >"$folder"/root/usr/lib/i386-linux-gnu/wine/i386-windows/zlib1.dll
}

# What the package does when it is installed: Wine's modules use this DLL of another package and accept it
# only with their own mark behind the DOS header.
mark_as_builtin() {
    head -c 64 "$1" && printf 'Wine builtin DLL\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0' && tail -c +97 "$1"
}

install_wine_i686() {
    "$tools"/install_packages.sh libc6-i386 fonts-wine xvfb || unavailable "packages are missing"
    /lib/ld-linux.so.2 --version >/dev/null 2>&1 || unavailable "this kernel runs no 32-bit programs"
    [ -x "$WINELOADER" ] && return
    unpack_wine_i386 "$work_folder" || unavailable "the 32-bit Wine cannot be fetched"
    as_root mkdir -p "$(dirname "$wine_i386_root")" && as_root rm -rf "$wine_i386_root" &&
        as_root mv "$work_folder"/root "$wine_i386_root" || unavailable "$wine_i386_root cannot be written"
}

install_wine_x86_64() {
    "$tools"/install_packages.sh wine64 fonts-wine xvfb || unavailable "packages are missing"
    [ -x "$WINELOADER" ] || unavailable "$WINELOADER is missing"
}

set_registry() {
    timeout 60 "$WINELOADER" reg add "HKCU\\Software\\Wine\\$1" /v "$2" /t "$3" /d "$4" /f >/dev/null
}

# One desktop window holds all windows: focus and activation then follow Windows' rules and need no window
# manager; on a bare display no window gets the focus. Wine's own fonts stand in for those of Windows. A crash
# prints its stack and asks nothing.
make_prefix() {
    rm -rf "$WINEPREFIX"
    mkdir -p "$(dirname "$WINEPREFIX")"
    timeout 300 "$WINELOADER" wineboot -i >"$work_folder"/boot.log 2>&1 &&
        cp /usr/share/wine/fonts/* "$WINEPREFIX"/drive_c/windows/Fonts/ &&
        set_registry Explorer Desktop REG_SZ "$desktop" &&
        set_registry 'Explorer\Desktops' "$desktop" REG_SZ 1024x768 &&
        set_registry WineDbg ShowCrashDialog REG_DWORD 0
}

# The command shell must start and hand back the status that it was asked for.
runs_programs() {
    timeout 60 "$WINELOADER" cmd /c exit 42 >/dev/null 2>&1
    [ $? -eq 42 ]
}

prepare_prefix() {
    local ready_mark=$WINEPREFIX/.ready version state
    version=$("$WINELOADER" --version) || { echo "setup_wine: $WINELOADER does not start" >&2; exit 1; }
    state="$version, desktop $desktop"
    if [ "$(cat "$ready_mark" 2>/dev/null)" != "$state" ]; then
        echo "setup_wine: making the prefix $WINEPREFIX"
        if ! { make_prefix && runs_programs; }; then
            tail -n 5 "$work_folder"/boot.log >&2
            echo "setup_wine: Wine is installed, but does not work" >&2
            stop_wine
            exit 1
        fi
        # The registry is written when the last process ends.
        stop_wine
        echo "$state" >"$ready_mark"
    fi
    echo "setup_wine: $world ready, $version"
}

[ "$(uname -m)" = x86_64 ] || unavailable "this needs a 64-bit x86 machine"
work_folder=$(mktemp -d)
trap 'rm -rf "$work_folder"' EXIT
[ $# -gt 0 ] || set -- i686 x86_64
for world in "$@"; do
    # Each world in a shell of its own: their environments must not mix.
    (use_wine "$world" && "install_wine_$world" && prepare_prefix) || exit $?
done
