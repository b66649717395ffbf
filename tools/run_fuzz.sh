#!/bin/bash
# Builds the fuzz targets and runs each for a short time from its seeds.
#
#   tools/run_fuzz.sh [SECONDS]      per target, 20 when not given
#
# The seeds are copied first, so the checkout stays as it is. An input that breaks a target is left in
# build/fuzz/findings; once understood it belongs into fuzz/corpus/<name>.
set -uo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
export seconds=${1:-20}

mapfile -t names < <(sed -n 's/^brlv_fuzz(\([a-z0-9_]*\).*/\1/p' fuzz/CMakeLists.txt)
cmake --preset fuzz >/dev/null && cmake --build --preset fuzz --target "${names[@]/%/_fuzz}" || exit 1

export findings=$PWD/build/fuzz/findings
rm -rf "$findings"
mkdir -p "$findings"
export UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1

fuzz_one() {
    local name=$1 work log executions status dictionary=()
    if ! ls fuzz/corpus/"$name"/* >/dev/null 2>&1; then
        echo "  $name: no seeds in fuzz/corpus/$name"
        return 1
    fi
    work=$(mktemp -d)
    cp -r fuzz/corpus/"$name" "$work"/corpus
    log=$work/log
    [ -f "fuzz/$name.dict" ] && dictionary=(-dict="fuzz/$name.dict")
    build/fuzz/bin/"$name"_fuzz -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 \
        -print_final_stats=1 -artifact_prefix="$findings/$name-" "${dictionary[@]}" "$work"/corpus \
        >"$log" 2>&1
    status=$?
    executions=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log")
    if [ $status -eq 0 ] && [ "${executions:-0}" -gt 0 ]; then
        echo "  $name: $executions executions"
    else
        tail -n 60 "$log"
        echo "  $name: FAILED after ${executions:-0} executions"
        status=1
    fi
    rm -rf "$work"
    return $status
}
export -f fuzz_one

echo "fuzzing ${#names[@]} targets for $seconds s each"
printf '%s\n' "${names[@]}" | xargs -P "$(nproc)" -I{} bash -c 'fuzz_one {}'
