#!/bin/bash
# Installs the Debian packages named on the command line, as far as they are missing.
#
#   tools/install_packages.sh cmake ninja-build ...
#
# Needs root, or sudo that asks for no password. Exit status: 0 when every package is there at the end,
# 1 when some are not (they are named).
set -uo pipefail

is_installed() {
    [ "$(dpkg-query -W -f='${db:Status-Status}' "$1" 2>/dev/null)" = installed ]
}

list_missing() {
    local package
    for package in "$@"; do
        is_installed "$package" || echo "$package"
    done
}

as_root() {
    if [ "$(id -u)" -eq 0 ]; then
        env DEBIAN_FRONTEND=noninteractive "$@"
    else
        sudo -n env DEBIAN_FRONTEND=noninteractive "$@"
    fi
}

apt_install() {
    as_root apt-get install -y -qq --no-install-recommends -o DPkg::Lock::Timeout=300 -o Acquire::Retries=3 \
        -o Dpkg::Use-Pty=0 "$@" </dev/null
}

if ! command -v apt-get >/dev/null || ! command -v dpkg-query >/dev/null; then
    echo "install_packages: this is no Debian system; please provide yourself: $*" >&2
    exit 1
fi

mapfile -t missing < <(list_missing "$@")
[ ${#missing[@]} -eq 0 ] && exit 0

if [ "$(id -u)" -ne 0 ] && ! sudo -n true 2>/dev/null; then
    echo "install_packages: not root and no sudo; please install: ${missing[*]}" >&2
    exit 1
fi

log=$(mktemp)
trap 'rm -f "$log"' EXIT
echo "install_packages: installing ${missing[*]}"
# An index that cannot be refreshed is no reason to stop: the one at hand may do.
as_root apt-get update -qq -o DPkg::Lock::Timeout=300 </dev/null >"$log" 2>&1 ||
    { echo "install_packages: apt-get update failed, going on with the lists at hand:"; tail -n 3 "$log"; } >&2
if ! apt_install "${missing[@]}" >"$log" 2>&1; then
    # One unknown name makes apt-get refuse all of them.
    for package in "${missing[@]}"; do
        apt_install "$package" >"$log" 2>&1 || tail -n 3 "$log" >&2
    done
fi

mapfile -t missing < <(list_missing "$@")
if [ ${#missing[@]} -ne 0 ]; then
    echo "install_packages: could not be installed: ${missing[*]}" >&2
    exit 1
fi
