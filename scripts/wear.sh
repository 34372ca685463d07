#!/bin/sh
# Runs Qt programs of Debian under the style plugin and under Fusion and takes pictures of them: the window at start, its
# first menus, and the dialogs that common shortcuts open. Not a test: somebody has to look at them.
#
#   scripts/wear.sh [-b BUILD] [-o PICTURES] [-t THEME] [-s SCALE] [PROGRAM...]
set -eu

cd "$(dirname "$0")/.."
build=build/release out=wear theme=varn-dark scale=1
while getopts b:o:t:s: option; do
    case $option in
    b) build=$OPTARG ;;
    o) out=$OPTARG ;;
    t) theme=$OPTARG ;;
    s) scale=$OPTARG ;;
    *) exit 2 ;;
    esac
done
shift $((OPTIND - 1))
[ $# -gt 0 ] || set -- featherpad keepassxc mkvtoolnix-gui qpdfview qterminal smplayer speedcrunch sqlitebrowser

packages=
for program; do
    command -v "$program" >/dev/null || packages="$packages $program"
done
# shellcheck disable=SC2086 # a list
scripts/install-dependencies.sh xvfb xdotool imagemagick openbox $packages

build=$(realpath "$build")
home=$(mktemp -d)
display=:97
mkdir -p "$out"
Xvfb $display -screen 0 1600x1200x24 -dpi 96 -nolisten tcp >/dev/null 2>&1 &
server=$!
trap 'kill $server; rm -rf "$home"' EXIT
sleep 1
export DISPLAY=$display
openbox >/dev/null 2>&1 &

picture() {
    sleep 0.7
    import -silent -window root "$out/$1.png"
}

press() {
    xdotool key --clearmodifiers "$1" 2>/dev/null || true
}

wear() { # PROGRAM STYLE
    name=$1-$2
    mkdir -m 700 "$home/$name"
    env HOME="$home/$name" XDG_CONFIG_HOME="$home/$name" XDG_RUNTIME_DIR="$home/$name" QT_QPA_PLATFORM=xcb \
        QT_FONT_DPI=96 QT_SCALE_FACTOR="$scale" QT_STYLE_OVERRIDE="$2" QT_PLUGIN_PATH="$build/plugins" \
        XDG_DATA_DIRS="$build/share:/usr/share" "$1" >"$out/$name.log" 2>&1 &
    process=$!
    xdotool search --sync --onlyvisible --pid $process >/dev/null 2>&1 &
    search=$!
    for _ in 1 2 3 4 5 6 7 8 9 10; do
        sleep 0.5
        kill -0 $search 2>/dev/null || break
    done
    kill $search 2>/dev/null || true
    picture "$name-start"
    for menu in 1 2 3; do
        press Alt_L
        for _ in $(seq 2 $menu); do press Right; done
        press Down
        picture "$name-menu$menu"
        press Escape
        press Escape
    done
    for dialog in ctrl+o ctrl+comma ctrl+p F1; do
        press $dialog
        picture "$name-$dialog"
        press Escape
    done
    kill $process 2>/dev/null || echo "$1 has ended by itself under $2" >&2
    wait $process 2>/dev/null || true
}

for program; do
    for style in "$theme" fusion; do
        wear "$program" "$style"
    done
done
echo "The pictures are in $out."
