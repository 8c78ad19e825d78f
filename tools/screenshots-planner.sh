# tools/screenshots-planner.sh: the planner's pictures, and its printed pages as pictures. Sourced by
# tools/screenshots.sh, whose place and functions it uses; needs poppler-utils and a C compiler besides.
planner_home=$place/planner-home
planner_display=:$((RANDOM % 400 + 500))

# appointments RECORD "TIME|TEXT"...: writes a day of 2026 into its record.
appointments() {
    local record=$1 times= texts= entry i
    shift
    for ((i = 0; i < 14; ++i)); do
        entry=${1:-|}
        shift || true
        printf -v times '%s%-10s' "$times" "${entry%%|*}"
        printf -v texts '%s%-50s' "$texts" "${entry#*|}"
    done
    printf '%s%s%-10s' "$times" "$texts" Full |
        dd of="$place/program/ 2026.Cal" bs=1 seek=$(((record - 1) * 900)) conv=notrunc status=none
}

# planner_opens WIDTH HEIGHT [NAME=VALUE...]: starts the program with these variables and opens the planner.
planner_opens() {
    local width=$1 height=$2
    shift 2
    Xvfb "$planner_display" -screen 0 "${width}x${height}x24" >/dev/null 2>&1 &
    planner_server=$!
    sleep 1
    env HOME="$planner_home" XDG_CONFIG_HOME="$planner_home/.config" DISPLAY="$planner_display" LANG=C.UTF-8 \
        LC_ALL= LC_TIME=en_US.UTF-8 "$@" "$place/program/quillery" >/dev/null 2>&1 &
    planner_program=$!
    sleep 4
    # The planner's card is the second one.
    planner_does "key Right" "key Return" "mousemove 300 $((height - 60))"
}

planner_does() {
    local command
    for command in "$@"; do
        DISPLAY=$planner_display xdotool $command
        sleep 0.8
    done
}

# planner_shot NAME [COMMAND...]
planner_shot() {
    local name=$1
    shift
    planner_does "$@"
    DISPLAY=$planner_display import -window root "$out/$name.png"
}

# planner_page NAME [COMMAND...]: saves the page that the commands bring into the preview as a PDF, and its first
# sheet as a picture.
planner_page() {
    local name=$1
    shift
    planner_does "$@" "key alt+p" "key ctrl+a" "type $name.pdf" "key Return" "sleep 1" "key Escape"
    pdftoppm -r 75 -png -singlefile "$place/program/$name.pdf" "$out/$name"
}

planner_closes() {
    kill "$planner_program" "$planner_server" 2>/dev/null || true
    wait "$planner_program" "$planner_server" 2>/dev/null || true
}

fresh WP1
mkdir -p "$planner_home/.config"
rm -f "$place/program/SWR2.fil"
appointments 373 "5:30 PM|Gardening group"
appointments 376 "9:00 AM|Window cleaner" "4:30 PM|Parents' evening, room 12"
appointments 377 "7:30 PM|Book club at Karin's"
appointments 378 "|Return library books" "12:00 PM|Lunch with Tessa"
appointments 380 "10:15 AM|Bicycle to the repair shop" "6:00 PM|Dinner with the Linds"
appointments 381 "|Water the ferns" "8:30 AM|Farmers' market with Oskar" \
    "11:30 AM|Dentist, Dr. Moreau (bring the X-ray)" "2:00 PM|Choir rehearsal, St. Olaf hall"
appointments 382 "11:00 AM|Walk around the lake with Anne and the dogs"
appointments 387 "9:00 AM|Board meeting" "1:30 PM|Collect dry cleaning"

planner_opens 1280 800
planner_shot planner-day "type 6:30" "key space" "type PM" "key Tab"
planner_does "key ctrl+3" "key alt+n" # the question before another view
planner_shot planner-month
planner_shot planner-week "key ctrl+2"
planner_shot planner-search "key Escape" "key ctrl+f" "type lunch" "key Return"
planner_shot planner-options "key Escape" "key alt+o" "key c"
planner_shot planner-recurrence "key Escape" "mousemove 900 261 click 1" "key ctrl+r" "mousemove 300 740"
planner_does "key Escape"
planner_page planner-page-day "key alt+o" "key d"
planner_page planner-page-week "key alt+o" "key w"
planner_page planner-page-dates "key alt+o" "key a" "key Return"
planner_page planner-page-week-landscape "key alt+o" "key w" "key alt+l"
planner_page planner-page-month "key alt+o" "key m" "key alt+l"
planner_closes

planner_opens 1024 768
planner_shot planner-day-1024
planner_closes

# Two months, weeks from Monday without numbers.
cp tests/data/household/data/SWR2.fil "$place/program/"
planner_opens 1280 800
planner_shot planner-two-months
planner_closes
rm "$place/program/SWR2.fil"

# A desktop with dark windows.
printf '[Colors:%s]\nBackgroundNormal=42,46,50\nForegroundNormal=252,252,252\n' Window Button View Selection >"$planner_home/.config/kdeglobals"
dark="XDG_CURRENT_DESKTOP=KDE KDE_FULL_SESSION=true KDE_SESSION_VERSION=5 QT_QPA_PLATFORMTHEME=kde"
planner_opens 1280 800 $dark
planner_shot planner-day-dark
planner_shot planner-month-dark "key ctrl+3"
planner_shot planner-week-dark "key ctrl+2"
planner_shot planner-recurrence-dark "key Escape" "mousemove 900 261 click 1" "key ctrl+r" "mousemove 300 740"
rm "$planner_home/.config/kdeglobals"
planner_closes

# A walk is over before it can be seen: its writes are slowed down for the picture.
printf '%s\n' '#define _GNU_SOURCE' '#include <dlfcn.h>' '#include <unistd.h>' \
    'ssize_t write(int file, const void *bytes, size_t size) {' \
    'if (size == 850) usleep(20000);' \
    'return ((ssize_t (*)(int, const void *, size_t))dlsym(RTLD_NEXT, "write"))(file, bytes, size); }' |
    cc -shared -fPIC -x c -o "$place/slow.so" - -ldl
planner_opens 1280 800 LD_PRELOAD="$place/slow.so"
planner_shot planner-recurrence-walk "mousemove 900 261 click 1" "key ctrl+r" "key space" "key Return"
planner_closes
