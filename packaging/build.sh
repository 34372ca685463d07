#!/bin/sh
# build.sh [DIR]: builds the project as the packages hold it, below DIR (default: build/package), and the Debian packages
# into DIR/packages.
set -eu
cd "$(dirname "$0")/.."
build=${1:-build/package}
cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX=/usr -DCMAKE_SKIP_INSTALL_RPATH=ON \
    -DVARN_BUILD_TESTS=OFF "-DCMAKE_CXX_FLAGS=-g0 -D_FORTIFY_SOURCE=2 -fstack-protector-strong" \
    "-DCMAKE_SHARED_LINKER_FLAGS=-Wl,-z,relro,-z,now" "-DCMAKE_MODULE_LINKER_FLAGS=-Wl,-z,relro,-z,now" \
    "-DCMAKE_EXE_LINKER_FLAGS=-Wl,-z,relro,-z,now"
cmake --build "$build"
# Debian's policy wants what is read on paper compressed, without the time of it.
for file in "$build"/packaging/*/changelog "$build"/man/man1/*.1; do
    gzip -9nf "$file"
done
(cd "$build" && cpack -B packages)
