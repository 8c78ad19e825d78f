# tools/screenshots-planner.sh: the planner's pictures, and its printed pages. Sourced by tools/screenshots.sh, whose
# functions it uses.

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

# opens_planner WIDTH HEIGHT [NAME=VALUE...]: the planner's card is the second one.
opens_planner() {
    opens "$@"
    does "key Right" "key Return" "mousemove 350 $(($2 - 60))"
}

fresh WP1
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

opens_planner 1280 800
takes planner-day "type 6:30" "key space" "type PM" "key Tab"
does "key ctrl+3" "key alt+n" # the question before another view
takes planner-month
takes planner-week "key ctrl+2"
takes planner-search "key Escape" "key ctrl+f" "type lunch" "key Return"
takes planner-options "key Escape" "key alt+o" "key c"
takes planner-recurrence "key Escape" "mousemove 900 261 click 1" "key ctrl+r" "mousemove 300 740"
does "key Escape"
takes_page planner-page-day "key alt+o" "key d"
takes_page planner-page-week "key alt+o" "key w"
takes_page planner-page-dates "key alt+o" "key a" "key Return"
takes_page planner-page-week-landscape "key alt+o" "key w" "key alt+l"
takes_page planner-page-month "key alt+o" "key m" "key alt+l"
closes

opens_planner 1024 768
takes planner-day-1024
closes

opens_planner 1920 1080 QT_SCALE_FACTOR=2
takes planner-day-200-percent
closes

# Two months, weeks from Monday without numbers.
cp tests/data/household/data/SWR2.fil "$place/program/"
opens_planner 1280 800
takes planner-two-months
closes
opens_planner 1280 800 $dark
takes planner-two-months-dark
closes
rm "$place/program/SWR2.fil"

opens_planner 1280 800 $dark
takes planner-day-dark
takes planner-month-dark "key ctrl+3"
takes planner-week-dark "key ctrl+2"
takes planner-search-dark "key Escape" "key ctrl+f" "type lunch" "key Return"
takes planner-options-dark "key Escape" "key alt+o" "key c"
takes planner-recurrence-dark "key Escape" "mousemove 900 261 click 1" "key ctrl+r" "mousemove 300 740"
closes

# A walk is over before it can be seen: its writes are slowed down for the picture.
printf '%s\n' '#define _GNU_SOURCE' '#include <dlfcn.h>' '#include <unistd.h>' \
    'ssize_t write(int file, const void *bytes, size_t size) {' \
    'if (size == 850) usleep(20000);' \
    'return ((ssize_t (*)(int, const void *, size_t))dlsym(RTLD_NEXT, "write"))(file, bytes, size); }' |
    cc -shared -fPIC -x c -o "$place/slow.so" - -ldl
opens_planner 1280 800 $dark LD_PRELOAD="$place/slow.so"
takes planner-recurrence-walk-dark "mousemove 900 261 click 1" "key ctrl+r" "key space" "key Return"
closes
opens_planner 1280 800 LD_PRELOAD="$place/slow.so"
takes planner-recurrence-walk "mousemove 900 261 click 1" "key ctrl+r" "key space" "key Return"
closes
