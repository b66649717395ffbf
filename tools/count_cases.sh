#!/bin/bash
# Prints what the test programs of the last ctest run in a build folder did: their cases passed, failed and
# skipped. ctest itself knows only programs.
#
#   tools/count_cases.sh build/native
log=$1/Testing/Temporary/LastTest.log
[ -f "$log" ] || exit 0
tr -d '\r' <"$log" | awk '
    function row(name, p, f, s) { printf "  %-24s %6d passed %4d failed %4d skipped\n", name, p, f, s }
    / Testing: / { name = $NF; programs++; names[programs] = name }
    /^\[  PASSED  \] [0-9]+ test/ { passed[name] += $4 }
    /^\[  FAILED  \] [0-9]+ test/ { failed[name] += $4 }
    /^\[  SKIPPED \] [0-9]+ test/ { skipped[name] += $4 }
    END {
        for (i = 1; i <= programs; i++) {
            name = names[i]
            row(name, passed[name], failed[name], skipped[name])
            p += passed[name]; f += failed[name]; s += skipped[name]
        }
        row("all cases", p, f, s)
    }'
