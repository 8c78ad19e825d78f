#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# tools/screenshots.sh [--docs] [ALBUM or PICTURE...]: builds tools/pictures and takes the program's pictures into
# build/pictures/, without a screen: all of them, or those named ("planner", "main-menu", "main-menu-dark"). With --docs
# those that stand in docs/screenshots are then replaced; do that once, at the end of a larger change.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. tools/packages.sh

# What the documents show and a newcomer wants to see: a few for each function, forty at most.
documents=(main-menu main-menu-dark main-menu-200 background-selector message-save-changes page-preview password-control
    manual address-book-view address-book-view-1024 address-book-modify address-book-date viewer-address viewer-labels
    viewer-pictures planner-day planner-day-dark planner-week planner-month planner-recurrence
    budget-sheet budget-totals cars-due cars-information car-fuel
    weight-household weight-graph-50 todo-list journal-day keeper-shown calendar-month
    backup backup-disk-question backup-restore backup-bring-back backup-bring-back-dark backup-1024 backup-200
    main-menu-backup-overdue main-menu-empty)

docs=
if [ "${1:-}" = --docs ]; then
    docs=1
    shift
fi
install_missing "${quillery_build_packages[@]}" fonts-dejavu-core
build release pictures
[ $# -gt 0 ] || rm -rf build/pictures
build/release/tools/pictures/pictures build/pictures "$@"
if [ -n "$docs" ]; then
    for name in "${documents[@]}"; do
        [ ! -f "build/pictures/$name.png" ] || cp "build/pictures/$name.png" docs/screenshots/
    done
fi
echo "The pictures are in build/pictures."
