#!/bin/sh
# Installs what is missing, builds, and opens the gallery in the Dark theme. Arguments go to the gallery. Without a
# display every page is rendered to a PNG instead, and the paths are printed.
set -eu
root=$(cd "$(dirname "$0")/.." && pwd)
build=$root/build/release

(
    cd "$root"
    ./scripts/install-dependencies.sh
    cmake --preset release -DVARN_BUILD_BENCHMARKS=OFF -DVARN_BUILD_TESTS=OFF
    cmake --build --preset release --parallel --target varn-gallery
) >&2

# The gallery is started where the caller is, so that relative paths are the caller's.
if [ -z "${DISPLAY:-}${WAYLAND_DISPLAY:-}${QT_QPA_PLATFORM:-}" ]; then
    case " $* " in
    *" --render "*) ;;
    *) set -- --render "$build/gallery" "$@" ;;
    esac
fi
exec "$build/bin/varn-gallery" "$@"
