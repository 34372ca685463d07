#!/bin/sh
# Installs what building, running and testing need on a Debian machine, and the packages given as arguments; does nothing
# when all of it is there.
set -eu

packages="
    g++ cmake ninja-build make pkg-config
    qtbase5-dev libqt5svg5
    fonts-dejavu-core fontconfig
    python3 clang-format
    dbus-daemon
    $*
"

missing=
for package in $packages; do
    dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing="$missing $package"
done
[ -n "$missing" ] || exit 0

if ! command -v apt-get >/dev/null; then
    echo "Please install the equivalents of:$missing" >&2
    exit 1
fi
as_root=
[ "$(id -u)" -eq 0 ] || as_root=sudo
echo "Installing:$missing" >&2
$as_root apt-get update -qq
# shellcheck disable=SC2086 # the list is meant to be split
DEBIAN_FRONTEND=noninteractive $as_root apt-get install -y -qq --no-install-recommends $missing >&2
