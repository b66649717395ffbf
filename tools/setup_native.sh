#!/bin/bash
# Installs what the native build, its tests and the demonstration need.
exec "$(dirname "$0")"/install_packages.sh build-essential cmake ninja-build googletest libcli11-dev \
    nlohmann-json3-dev libfreetype-dev libpng-dev fonts-dejavu-core
