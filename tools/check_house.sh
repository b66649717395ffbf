#!/bin/bash
# The house rules that a machine can check. Each finding is one line with its place; status 1 when there is one.
set -uo pipefail
shopt -s lastpipe # report counts in this shell
cd "$(dirname "${BASH_SOURCE[0]}")/.."

findings=0
# Reads findings from standard input and prints them under their rule.
report() {
    local rule=$1 lines
    lines=$(cat)
    [ -z "$lines" ] && return
    echo "== $rule"
    echo "$lines"
    findings=$((findings + $(wc -l <<<"$lines")))
}

# list PATTERN FOLDER...: the files of these folders with such a name, without build trees.
list() {
    local pattern=$1
    shift
    find "$@" \( -path ./build -o -path ./.git \) -prune -o -type f -regextype posix-extended \
        -regex "$pattern" -print | sed 's|^\./||' | sort
}
sources='.*\.(cpp|h)'
texts='.*(\.(cpp|h|rc|cmake|sh|md)|CMakeLists\.txt|\.ci/run)'

mapfile -t all_sources < <(list "$sources" .)
mapfile -t all_texts < <(list "$texts" .)
mapfile -t product < <(list "$sources" src)

grep -nE '\b(_WIN32|_WIN64|__linux__|__unix__|__MINGW(32|64)__)\b' "${all_sources[@]}" | grep -v '^platform/' |
    report 'the system is asked for in platform/ only'

wc -l "${all_texts[@]}" | awk '$2 != "total" && $1 > 700 { print $2 ": " $1 " lines" }' |
    report 'no file has more than 700 lines'

# The brackets keep this file from finding itself.
grep -nE '\b(TO[D]O|FIX[M]E|XX[X]|HAC[K])\b|not imple[m]ented' "${all_texts[@]}" |
    report 'nothing is left for later'

grep -nP '\t| +$|\r$' "${all_sources[@]}" | report 'no tabs, no blanks or carriage returns at the end of a line'

for header in "${all_sources[@]}"; do
    [[ $header != *.h ]] || grep -qx '#pragma once' "$header" || echo "$header"
done | report 'every header says #pragma once'

# Then every such header is compiled once with nothing before it.
for source in "${all_sources[@]}"; do
    header=${source%.cpp}.h
    [[ $source == *.cpp && -f $header ]] || continue
    grep -m1 '^#include' "$source" | grep -qE "[\"/<]$(basename "$header")[\">]" || echo "$source"
done | report 'a source includes its own header first'

# Published headers declare calls as "...API type WINAPI Name(" or, in the run-time library, without WINAPI.
published=(platform/win32/include/{commctrl,commdlg,crt_text,direct,fileapi,io,process,winbase,winerror,wingdi,winuser,winuser_calls}.h)
mapfile -t calling < <(list "$sources" src platform/mfc platform/win32 tests demo bench | grep -v '^platform/win32/include/')
known=$(cat platform/README.md)
used=$(grep -ohE '&?\b[A-Za-z_][A-Za-z_0-9]*' "${calling[@]}" | sort | uniq -c)
grep -ohE '^WIN[A-Z]+API [^(]*\b[A-Za-z_0-9]+\(' "${published[@]}" | sed -E 's/.*[ *]([A-Za-z_0-9]+)\($/\1/' | sort -u |
    while read -r call; do
        [[ $known == *"\`$call\`"* ]] || echo "$call: not in platform/README.md"
        # Its definition is one use.
        count=$(awk -v call="$call" '$2 == call || $2 == "&" call { sum += $1 } END { print sum + 0 }' <<<"$used")
        ((count > 1)) || echo "$call: nothing calls it"
    done | report 'the calls of the stand-in are listed and used'

grep -nE '#include "(\.\.|/|cli/|host/|tests/|fuzz/|bench/)' "${product[@]}" |
    report 'the product knows nothing outside src/'

# C++ headers have no ending; of the others the product takes those that a Windows machine has.
grep -nE '#include <[^>]*\.[^>]*>' "${product[@]}" | grep -vE \
    '<(afx|afxcmn|afxdlgs|afxext|afxmt|afxwin|commctrl|commdlg|direct|io|process|share|shellapi|shlobj|shlwapi|windows|windowsx)\.h>' |
    report 'the product includes only headers that a Windows machine has'

# Which folders of src/ a folder may include. The floors inside a folder are kept apart by its libraries.
may_include() {
    case $1 in
        support) echo 'support' ;;
        controls | customize) echo 'support controls customize resources' ;;
        catalogue) echo 'support customize catalogue' ;;
        manager) echo 'support controls customize catalogue manager' ;;
        shell) echo 'support controls customize catalogue manager shell' ;;
    esac
}
# The host's interface is ground floor: any folder but support may name it.
grep -noE '^#include "[^"]+"' "${product[@]}" | while IFS=: read -r file line include; do
    include=${include#*\"}
    include=${include%\"}
    from=$(cut -d/ -f2 <<<"$file")
    to=${include%%/*}
    [[ $include == */* ]] || { echo "$file:$line: $include is without its folder"; continue; }
    [[ $include =~ ^shell/(host_|viewer_state) && $from != support ]] && continue
    [[ " $(may_include "$from") " == *" $to "* ]] || echo "$file:$line: $include"
done | report 'no include runs upwards'

grep -oE '^#include "[^"]+"' "${product[@]}" | sed -E 's|^src/([^:]+):#include "([^"]+)"|\1 \2|' |
    tsort 2>&1 >/dev/null | sed -n 's/^tsort: \([^ ]*\)$/\1/p' |
    report 'no files include each other'

echo "house rules: ${#all_texts[@]} files, $findings findings"
[ "$findings" -eq 0 ]
