#!/bin/bash
# Installs what is missing on a Debian machine, builds the native target and shows it at work on the samples.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"

tools/setup_native.sh || echo "run.sh: going on with what is there" >&2
cmake --preset native
# Everything but the tests, in the build folder that test.sh uses too.
cmake --build --preset native --target platform/all src/all host/all cli/all
tools/demo.sh
