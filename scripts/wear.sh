#!/bin/sh
# Runs Qt programs of Debian under the style plugin and beside it under other styles, leads each through its menus, its
# dialogs with all their pages, and its sizes, and takes pictures: PICTURES/PROGRAM/STYLE-STATION.png, and a sheet of all
# stations for each program. Not a test: somebody has to look at them.
#
#   scripts/wear.sh [-b BUILD] [-o PICTURES] [-s SCALE] [-t "STYLE..."] [PROGRAM[=PACKAGE][:FILE...]...]
set -eu

cd "$(dirname "$0")/.."
build=build/release out=wear styles="varn-dark fusion breeze" scale=1
while getopts b:o:s:t: option; do
    case $option in
    b) build=$OPTARG ;;
    o) out=$OPTARG ;;
    s) scale=$OPTARG ;;
    t) styles=$OPTARG ;;
    *) exit 2 ;;
    esac
done
shift $((OPTIND - 1))
[ $# -gt 0 ] || set -- featherpad keepassxc librecad mkvtoolnix-gui qbittorrent qpdfview qterminal smplayer speedcrunch \
    sqlitebrowser wireshark

packages=
for needed in Xvfb=xvfb montage=imagemagick xdotool openbox dbus-run-session=dbus "$@"; do
    needed=${needed%%:*}
    command -v "${needed%%=*}" >/dev/null || packages="$packages ${needed#*=}"
done
# shellcheck disable=SC2086 # a list
[ -z "$packages" ] || scripts/install-dependencies.sh $packages kde-style-breeze

build=$(realpath "$build")
! command -v cmake >/dev/null || cmake --build "$build" --target varn_wear varn_style >/dev/null
home=$(mktemp -d)
display=:$((100 + $$ % 1000))
size=$(awk "BEGIN { printf \"%dx%d\", 1280 * $scale, 960 * $scale }")
Xvfb $display -screen 0 "${size}x24" -dpi 96 -nolisten tcp >/dev/null 2>&1 &
server=$!
trap 'kill $server; rm -rf "$home"' EXIT
sleep 1
export DISPLAY=$display
openbox >/dev/null 2>&1 &

wear() { # PROGRAM STYLE FILES, with ":" between them
    files=$(echo "${3-}" | tr : ' ')
    mkdir -p "$out/$1"
    mkdir -m 700 "$home/$1-$2"
    # shellcheck disable=SC2086 # a list
    env HOME="$home/$1-$2" XDG_CONFIG_HOME="$home/$1-$2" XDG_RUNTIME_DIR="$home/$1-$2" QT_QPA_PLATFORM=xcb \
        QT_FONT_DPI=96 QT_SCALE_FACTOR="$scale" QT_STYLE_OVERRIDE="$2" QT_PLUGIN_PATH="$build/plugins" \
        XDG_DATA_DIRS="$build/share:/usr/local/share:/usr/share" LC_ALL=C.UTF-8 \
        QT_QPA_GENERIC_PLUGINS=varn_wear WEAR_PICTURES="$out/$1/$2-" \
        timeout -k 1 240 dbus-run-session -- "$1" $files >"$out/$1/$2.log" 2>&1 ||
        echo "$1 did not come through under $2: $out/$1/$2.log" >&2
}

out=$(mkdir -p "$out" && realpath "$out")
for argument; do
    case $argument in *:*) files=${argument#*:} ;; *) files= ;; esac
    program=${argument%%[=:]*}
    for style in $styles; do
        wear "$program" "$style" "$files"
        montage -label '%t' "$out/$program/$style"-*.png -trim +repage -tile 4x -geometry '640x560>+4+4' \
            "$out/$program-$style.png" || true
    done
done
echo "The pictures are in $out."
