#!/usr/bin/env bash
# tools/screenshots.sh: takes the pictures of docs/screenshots from the built program under a virtual display, on a copy
# of the sample household. Needs xvfb, xdotool and imagemagick.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
out=$PWD/docs/screenshots
place=$(mktemp -d)
trap 'rm -rf "$place"' EXIT

# shot NAME WIDTH HEIGHT [COMMAND...]: starts the program on a screen of this size, runs each COMMAND (an xdotool line),
# and takes the picture.
shot() {
    local name=$1 width=$2 height=$3 display=:$((RANDOM % 400 + 100)) server program
    shift 3
    Xvfb "$display" -screen 0 "${width}x${height}x24" >/dev/null 2>&1 &
    server=$!
    sleep 1
    HOME=$place/home DISPLAY=$display LC_ALL=C LC_TIME=en_US "$place/program/quillery" >/dev/null 2>&1 &
    program=$!
    sleep 4
    while [ $# -gt 0 ]; do
        DISPLAY=$display xdotool $1
        sleep 1.2
        shift
    done
    DISPLAY=$display import -window root "$out/$name.png"
    kill $program 2>/dev/null || true
    wait $program 2>/dev/null || true
    kill $server
    wait $server 2>/dev/null || true
}

# fresh [WPn]: a new copy of the program with the household's data, full screen, with one of our backgrounds.
fresh() {
    rm -rf "$place/program" "$place/home"
    mkdir -p "$place/home"
    cp -r build/Quillery "$place/program"
    (cd "$place/program" && rm -f ./*.Fil ./*.FIL ./*.fil ./*.Cal)
    cp -r tests/data/household/data/. "$place/program/"
    cp build/Quillery/WP*.jpg "$place/program/"
    # Designed colours, the whole screen, and the chosen background.
    rm -f "$place/program"/GColor[123].Fil
    printf '\0%.0s' {1..20} >"$place/program/GHINV1.Fil"
    printf '\x08\0\x03\0%s' "${1:-WP1}" >>"$place/program/GHINV1.Fil"
}

address="mousemove 200 250 click 1"
fresh WP1
shot main-menu 1280 800
shot main-menu-1024 1024 768
shot main-menu-side-toolbars 1280 800 "mousemove 300 785 click 1"
shot background-selector 1280 800 "key alt+o" "key b"
shot address-book-view 1280 800 "$address"
shot address-book-view-1024 1024 768 "$address"
shot address-book-entry 1280 800 "$address" "key alt+n" "type Novak"
shot address-book-date 1280 800 "$address" "key alt+n" "type Novak" "key Tab" "type Jana" "key Tab"
shot page-preview 1280 800 "$address" "mousemove 330 55 click 1"
shot password-control 1280 800 "mousemove 780 490 click 1"

. tools/screenshots-planner.sh
