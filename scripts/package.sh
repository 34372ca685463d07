#!/bin/sh
# package.sh [DIR]: builds the Debian packages of libraries, development files, themes, programs and plugin into DIR/packages
# (default: build/package), with the compiler's flags of Debian. Their description is packaging/packages.cmake.
set -eu
cd "$(dirname "$0")/.."
build=${1:-build/package}

./scripts/install-dependencies.sh dpkg-dev file
export DEB_BUILD_MAINT_OPTIONS=hardening=+all DEB_CXXFLAGS_MAINT_STRIP=-g
eval "$(dpkg-buildflags --export=sh)"
CXXFLAGS="$CXXFLAGS $CPPFLAGS"
cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX=/usr -DCMAKE_SKIP_INSTALL_RPATH=ON \
    -DVARN_BUILD_TESTS=OFF
cmake --build "$build"
cd "$build"
SOURCE_DATE_EPOCH=$(dpkg-parsechangelog -l packaging/libvarn-dev/changelog -S Timestamp)
export SOURCE_DATE_EPOCH
cpack -B packages
