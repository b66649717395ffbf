#!/bin/bash
# Installs what the checks beyond the native tests need: clang with its sanitizers and fuzzer, its tools, the
# benchmark library and the opponents in the benchmarks.
set -euo pipefail
cd "$(dirname "$0")"
./install_packages.sh clang clang-tidy clang-format libbenchmark-dev libpugixml-dev libtinyxml2-dev libstb-dev
# The run-time libraries must fit the clang that is there.
version=$(clang -dumpversion)
./install_packages.sh "libclang-rt-${version%%.*}-dev" "llvm-${version%%.*}"
