#!/bin/sh
# Installs what is missing, builds, and opens the gallery in the Dark theme. Arguments go to the gallery; a later
# --theme or --theme-repository is the one that counts. Without a display every page is rendered to a PNG instead.
set -eu
cd "$(dirname "$0")/.."
build=build/release

./scripts/install-dependencies.sh >&2
cmake --preset release -DVARN_BUILD_BENCHMARKS=OFF -DVARN_BUILD_TESTS=OFF >&2
cmake --build --preset release --parallel --target varn-gallery varn_themes >&2

case " $* " in *" --theme "*) ;; *) set -- --theme Dark "$@" ;; esac
case " $* " in *" --theme-repository "*) ;; *) set -- --theme-repository "$build/share/varn/themes" "$@" ;; esac
case " $* " in
*" --render "*) ;;
*)
    if [ -z "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ] && [ -z "${QT_QPA_PLATFORM:-}" ]; then
        set -- --render "$build/gallery" "$@"
    fi
    ;;
esac
case " $* " in *" --render "*) export QT_QPA_PLATFORM="${QT_QPA_PLATFORM:-offscreen}" ;; esac
exec "$build/bin/varn-gallery" "$@"
