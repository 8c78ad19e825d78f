#!/usr/bin/env bash
# tools/screenshots.sh [--docs] [ALBUM or PICTURE...]: builds tools/pictures and takes the program's pictures into
# build/pictures/, without a screen: all of them, or those named ("planner", "main-menu", "main-menu-dark"). With --docs
# those that stand in docs/screenshots are then replaced; do that once, at the end of a larger change.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. tools/packages.sh

docs=
if [ "${1:-}" = --docs ]; then
    docs=1
    shift
fi
install_missing "${quillery_build_packages[@]}" fonts-dejavu-core
build release pictures
[ $# -gt 0 ] || rm -rf build/pictures
build/release/tools/pictures/pictures build/pictures "$@"
[ -z "$docs" ] || for picture in docs/screenshots/*.png; do
    new=build/pictures/${picture##*/}
    [ ! -f "$new" ] || cp "$new" "$picture"
done
echo "The pictures are in build/pictures."
