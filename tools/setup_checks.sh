#!/bin/bash
# Installs what the checks beyond the native tests need: clang with its sanitizers and fuzzer, its tools, and
# the benchmark library.
set -euo pipefail
cd "$(dirname "$0")"
./install_packages.sh clang clang-tidy clang-format libbenchmark-dev
# The run-time libraries must fit the clang that is there.
version=$(clang -dumpversion)
./install_packages.sh "libclang-rt-${version%%.*}-dev" "llvm-${version%%.*}"
