# tools/screenshots-house.sh: the pictures of the main menu, of what all windows share, and of the address book. Sourced
# by tools/screenshots.sh, whose functions it uses.
fresh WP1

starts 1280 800
sleep 1
takes splash
closes

opens 1280 800
takes main-menu
takes background-selector "key alt+o" "key b"
does "key Escape"
takes main-menu-side-toolbars "mousemove 300 785 click 1" "mousemove 640 790"
takes customize-toolbar "mousemove 54 325 click 1" "mousemove 640 790"
does "key Escape"
takes family-name "mousemove 54 262 click 1" "mousemove 640 790"
does "key Return"
takes main-menu-no-top-toolbar "mousemove 54 390 click 1" "mousemove 640 790"
takes main-menu-no-toolbars "mousemove 54 370 click 1" "mousemove 640 790"
closes

fresh WP1
opens 1280 800
takes password-control "mousemove 780 490 click 1" "mousemove 640 790" "sleep 1" "key alt+t" "type Klavier" "key Tab" \
    "type Klavier" "key Return" "sleep 2" "mousemove 620 218 click 1" "mousemove 620 330 click 1" "mousemove 640 790"
does "key alt+s" "sleep 1" "key Escape" "sleep 1"
closes
opens 1280 800
takes main-menu-protected
takes password-prompt "mousemove 200 250 click 1" "mousemove 640 790" "type Violine"
closes

fresh WP1
opens 1280 800
does "key Return" "mousemove 640 790" "sleep 1"
takes address-book-view
takes picture-panel "key alt+l" "sleep 1" "key Down"
takes print-options "key Escape" "key alt+p"
does "key Escape"
takes page-preview "key alt+o" "key p"
takes page-preview-landscape "key alt+l"
takes message-copied "key alt+c"
does "key Return" "key alt+r" "key Escape"
takes_page address-page-entry "key alt+o" "key p"
takes_page address-page-worksheet "key alt+o" "key w"
for number in 2 4 8; do
    # The print options stand under the page; the choice is a button below the ones before.
    does "key alt+p"
    for ((step = 2; step < number; step *= 2)); do does "key Tab"; done
    takes_page "address-page-$number" "key space" "sleep 1"
    does "key Escape"
done
takes panel-color "key alt+o" "key o"
does "key Escape"
does "key alt+n" "type Novak" "key Tab" "type Jana"
takes address-book-date "key Tab"
takes address-book-entry "key Escape" "type 24 Nov 1978" "key alt+l" "sleep 1" "key Down" "key Down" "key alt+e"
takes manual "key F1" "sleep 1"
closes

# The same on a small screen and on a fine one: SUFFIX WIDTH HEIGHT, pixels of the screen to one of the program, columns
# of cards, then variables.
small_set() {
    local suffix=$1 width=$2 height=$3 scale=$4 columns=$5 control step
    shift 5
    # The card of Password Control is the eleventh.
    control=()
    for ((step = 0; step < 10 / columns; ++step)); do control+=("key Down"); done
    for ((step = 0; step < 10 % columns; ++step)); do control+=("key Right"); done
    fresh WP1
    starts "$width" "$height" "$@"
    sleep 1
    takes "splash-$suffix"
    closes
    opens "$width" "$height" "$@"
    takes "main-menu-$suffix"
    takes "background-selector-$suffix" "key alt+o" "key b"
    does "key Escape"
    takes "main-menu-side-toolbars-$suffix" "mousemove $((300 * scale)) $((height - 15 * scale)) click 1" \
        "mousemove $((width / 2)) $((height - 8))"
    takes "customize-toolbar-$suffix" "mousemove $((54 * scale)) $((325 * scale)) click 1" "sleep 0.5"
    does "key Escape"
    takes "password-control-$suffix" "mousemove $((width / 2)) $((height - 8))" "${control[@]}" "key Return" "sleep 1" \
        "key alt+t" "type Klavier" "key Tab" "type Klavier" "key Return" "sleep 2"
    does "key space" "key alt+s" "sleep 1" # the first mark has the focus
    closes
    opens "$width" "$height" "$@"
    takes "password-prompt-$suffix" "key Return" "type Violine"
    closes
    fresh WP1
    opens "$width" "$height" "$@"
    does "key Return" "sleep 1"
    takes "address-book-view-$suffix"
    takes "picture-panel-$suffix" "key alt+l" "sleep 1" "key Down"
    takes "print-options-$suffix" "key Escape" "key alt+p"
    does "key Escape"
    takes "page-preview-$suffix" "key alt+o" "key p"
    does "key Escape"
    takes "address-book-entry-$suffix" "key alt+n" "type Novak" "key alt+l" "sleep 1" "key Down" "key Down" "key alt+e"
    closes
}

small_set 1024 1024 768 1 4
small_set 200 1920 1080 2 3 QT_SCALE_FACTOR=2

opens 1280 800 $dark
takes main-menu-dark
takes background-selector-dark "key alt+o" "key b"
does "key Escape" "key Return" "sleep 1"
takes address-book-view-dark
takes page-preview-dark "key alt+o" "key p"
closes
