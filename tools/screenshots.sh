#!/usr/bin/env bash
# tools/screenshots.sh [house|planner|viewer]...: takes the pictures of docs/screenshots from the built program under a
# virtual display, on a copy of the sample household; all of them, or those of the parts named. Needs xvfb, xdotool,
# imagemagick, poppler-utils and a C compiler.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
out=$PWD/docs/screenshots
place=$(mktemp -d)
trap 'rm -rf "$place"' EXIT
home=$place/home
display=:$((RANDOM % 400 + 100))
# A desktop with dark windows: variables for `opens`.
dark="XDG_CURRENT_DESKTOP=KDE KDE_FULL_SESSION=true KDE_SESSION_VERSION=5 QT_QPA_PLATFORMTHEME=kde"

# fresh [WPn]: a new copy of the program with the household's data, full screen, with one of our backgrounds.
fresh() {
    rm -rf "$place/program" "$home"
    mkdir -p "$home/.config"
    cp -r build/Quillery "$place/program"
    (cd "$place/program" && rm -f ./*.Fil ./*.FIL ./*.fil ./*.Cal)
    cp -r tests/data/household/data/. "$place/program/"
    cp build/Quillery/WP*.jpg "$place/program/"
    # Designed colours, the whole screen, and the chosen background.
    rm -f "$place/program"/GColor[123].Fil
    printf '\0%.0s' {1..20} >"$place/program/GHINV1.Fil"
    printf '\x08\0\x03\0%s' "${1:-WP1}" >>"$place/program/GHINV1.Fil"
    printf '[Colors:%s]\nBackgroundNormal=42,46,50\nForegroundNormal=252,252,252\n' Window Button View Selection \
        >"$home/.config/kdeglobals"
}

# starts WIDTH HEIGHT [NAME=VALUE...]: starts the program with these variables on a screen of this size.
starts() {
    local width=$1 height=$2
    shift 2
    Xvfb "$display" -screen 0 "${width}x${height}x24" >/dev/null 2>&1 &
    server=$!
    sleep 1
    env HOME="$home" XDG_CONFIG_HOME="$home/.config" DISPLAY="$display" LANG=C.UTF-8 LC_ALL= LC_TIME=en_US.UTF-8 \
        "$@" "$place/program/quillery" >/dev/null 2>&1 &
    program=$!
}

# opens WIDTH HEIGHT [NAME=VALUE...]: the same, and waits for the main menu; the pointer rests where it marks nothing.
opens() {
    starts "$@"
    sleep 4
    does "mousemove $(($1 / 2)) $(($2 - 8))"
}

# does COMMAND...: each is an xdotool line.
does() {
    local command
    for command in "$@"; do
        DISPLAY=$display xdotool $command
        sleep 0.8
    done
}

# takes NAME [COMMAND...]: the picture of the screen after the commands.
takes() {
    local name=$1
    shift
    does "$@"
    DISPLAY=$display import -window root "$out/$name.png"
}

# takes_page NAME [COMMAND...]: saves the page that the commands bring into the preview as a PDF, and its first sheet as
# a picture.
takes_page() {
    local name=$1
    shift
    takes_pdf "$name" "$@" "key alt+p"
    does "key Escape"
}

# takes_pdf NAME [COMMAND...]: the commands end in the dialog that asks for the name of a PDF.
takes_pdf() {
    local name=$1
    shift
    does "$@" "key ctrl+a" "type $name.pdf" "key Return" "sleep 1"
    pdftoppm -r 75 -png -singlefile "$place/program/$name.pdf" "$out/$name"
}

closes() {
    kill "$program" "$server" 2>/dev/null || true
    wait "$program" "$server" 2>/dev/null || true
}

[ $# -gt 0 ] || set -- house planner viewer
for part in "$@"; do
    . "tools/screenshots-$part.sh"
done
