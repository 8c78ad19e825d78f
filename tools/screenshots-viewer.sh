# tools/screenshots-viewer.sh: the pictures of the address book's viewer, and its printed pages. Sourced by
# tools/screenshots.sh, whose functions it uses.

# opens_viewer WIDTH HEIGHT [NAME=VALUE...]: by the second button of the main menu's toolbar, whose buttons share its
# width.
opens_viewer() {
    opens "$@"
    does "mousemove $(($1 * 136 / 1280)) 60 click 1" "mousemove 600 $(($2 - 10))"
}

# clicks X Y: and leaves no hover behind.
clicks() {
    does "mousemove $1 $2 click 1" "mousemove 600 790"
}

# shrinks NAME: grids and pages need few colours.
shrinks() {
    convert "$out/$1.png" +dither -colors 128 -define png:compression-level=9 "PNG8:$out/$1.png"
}

# takes_grid NAME [COMMAND...]
takes_grid() {
    takes "$@"
    shrinks "$1"
}

# takes_sheet NAME [COMMAND...]: the commands end in the dialog that asks for the name of a PDF.
takes_sheet() {
    takes_pdf "$@"
    shrinks "$1"
}

fresh WP1
opens_viewer 1280 800
y=183
for choice in address state home-phone mobile-phone fax email birth anniversary names; do
    clicks 60 $y
    takes_grid "viewer-$choice"
    y=$((y + 28))
done
clicks 60 351
takes_grid viewer-birthdays "mousemove 190 535 click 1" "type April" "key Return" "mousemove 600 790"
clicks 60 379
takes_grid viewer-anniversaries "mousemove 190 601 click 1" "type 10" "key Return" "mousemove 600 790"
clicks 60 474
clicks 150 648
clicks 60 183
takes_grid viewer-search "mousemove 120 112 click 1" "type marburg" "mousemove 600 790"
takes_grid viewer-no-matches "key ctrl+a" "type zeppelin"
does "key Escape"
takes_grid viewer-remove "mousemove 500 255 click 1" "key Delete"
does "key alt+n"
takes_grid viewer-export "key ctrl+Home" "mousemove 323 55 click 1" "mousemove 600 790"
does "key Escape"
takes_grid viewer-print-options "mousemove 430 55 click 1" "mousemove 600 790"
takes_sheet viewer-page-list "key alt+p" "key alt+p"
does "key Escape"
clicks 60 239
for option in 201 239 277 361; do clicks 340 $option; done
takes_sheet viewer-page-telephones "mousemove 1180 714 click 1" "key alt+p"
takes_grid viewer-preview
does "key Escape" "key Escape"
clicks 60 407
takes_sheet viewer-page-pictures "mousemove 430 55 click 1" "sleep 2" "key alt+p"
does "key Escape"
clicks 60 183
clicks 533 55
takes_grid viewer-labels "key Tab" "key ctrl+a" "type 4" "mousemove 600 790"
takes_sheet viewer-page-labels "key alt+p"
does "mousemove 480 187 click 1" "sleep 1" "key End" "key Up" "key Up" "key Up" "key Return" "mousemove 480 320 click 1"
for word in Tessa Kessler 160 High Street Marburg; do
    does "type $word" "key $([[ $word =~ Kessler|Street ]] && echo Return || echo space)"
done
takes_grid viewer-envelope "mousemove 600 790"
takes_sheet viewer-page-envelope "key alt+p"
does "key alt+b"
clicks 671 55
takes_grid viewer-pictures-warning "sleep 1"
takes_grid viewer-pictures "key Return" "sleep 1"
takes_grid viewer-picture-enlarged "key Right" "key Return" "sleep 1"
closes

opens_viewer 1024 768
takes_grid viewer-1024
closes

# Everything twice as large.
opens 1920 1080 QT_SCALE_FACTOR=2
takes_grid viewer-200-percent "mousemove 160 115 click 1" "mousemove 900 1070"
closes

opens_viewer 1280 800 $dark
takes_grid viewer-address-dark
clicks 60 323
takes_grid viewer-search-dark "mousemove 120 112 click 1" "type drummond" "mousemove 600 790"
does "key Escape"
clicks 430 55
takes_grid viewer-print-options-dark
takes_grid viewer-preview-dark "mousemove 1180 714 click 1" "sleep 1"
does "key Escape" "key Escape"
clicks 533 55
takes_grid viewer-labels-dark
clicks 671 55
takes_grid viewer-pictures-dark "key Return" "sleep 1"
closes
