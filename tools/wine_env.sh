# Sourced: how this project runs Wine.
#
# Two Wines serve the two Windows targets. 64-bit programs run on the one that is installed. 32-bit programs
# run on Debian's 32-bit one, unpacked into a folder of its own: by itself the installed one runs 32-bit
# programs too, but in Wine 8 that mode has no fonts and draws nothing.
project_root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
wine_i386_root=${WINE_I386_ROOT:-/opt/wine-i386}
# A program that hangs is ended after this many seconds.
wine_time_limit=${WINE_TIME_LIMIT:-120}

# use_wine i686|x86_64 sets the environment; afterwards "$WINELOADER" PROGRAM.exe runs a program.
use_wine() {
    case $1 in
        i686)
            export WINELOADER=$wine_i386_root/usr/lib/wine/wine
            export WINESERVER=$wine_i386_root/usr/lib/wine/wineserver32
            export LD_LIBRARY_PATH=$wine_i386_root/usr/lib/i386-linux-gnu:$wine_i386_root/lib/i386-linux-gnu
            export WINEARCH=win32
            ;;
        x86_64)
            export WINELOADER=/usr/lib/wine/wine64
            export WINESERVER=/usr/lib/wine/wineserver64
            export WINEARCH=win64
            ;;
        *)
            echo "use_wine: i686 or x86_64, not '$1'" >&2
            return 1
            ;;
    esac
    # The prefix lies in the build folder: nothing is left in the home folder.
    export WINEPREFIX=$project_root/build/wine-prefix-$1
    export WINEDEBUG=${WINEDEBUG:--all}
    # Without this Wine asks whether to download its .NET and HTML engines.
    export WINEDLLOVERRIDES=mscoree,mshtml=
    # Wine derives the code page and the number formats from the locale.
    export LC_ALL=C.UTF-8
}

# Ends every process of the prefix and waits until the last one is gone.
stop_wine() {
    "$WINESERVER" -k >/dev/null 2>&1
    timeout 30 "$WINESERVER" -w >/dev/null 2>&1
}
