# SPDX-License-Identifier: GPL-3.0-or-later
# Sourced by ./run, ./test and .ci/run: installs the Debian packages that are missing, and says so in one line.

quillery_build_packages=(g++ cmake ninja-build pkg-config python3 qt6-base-dev libsodium-dev libqcustomplot-dev librsvg2-bin
    libhunspell-dev hunspell-en-us libmythes-dev mythes-en-us libzxcvbn-dev libqrencode-dev libexiv2-dev
    libheif-dev libarchive-dev)
quillery_test_packages=(poppler-utils python3-nacl libimage-exiftool-perl libarchive-tools unzip)
quillery_benchmark_packages=(libbenchmark-dev)

# install_missing PACKAGE...: quick when nothing is missing; needs root or sudo otherwise.
install_missing() {
    local missing=() package
    command -v dpkg-query >/dev/null || { echo "No dpkg here: install by hand what README.md lists."; return 0; }
    for package in "$@"; do
        dpkg-query -W -f='${db:Status-Status}\n' "$package" 2>/dev/null | grep -qx installed || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || { echo "Missing packages: ${missing[*]}. Install them as root."; return 1; }
        as_root=(sudo)
    fi
    echo "Installing missing packages: ${missing[*]}"
    local log
    log=$(mktemp)
    if ! { "${as_root[@]}" apt-get update &&
           "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends \
               "${missing[@]}"; } >"$log" 2>&1 </dev/null; then
        tail -n 20 "$log"
        echo "The packages could not be installed."
        return 1
    fi
    rm -f "$log"
}

# heed_new_headers PRESET: lists the files again; where that finds a new header, the target's moc step has to run again,
# which it does not by itself.
heed_new_headers() {
    cmake --build --preset "$1" --target build.ninja
    local info stamp
    find "build/$1" -name AutogenInfo.json | while read -r info; do
        stamp=${info/CMakeFiles\/}
        stamp=${stamp%.dir/AutogenInfo.json}/timestamp
        [ "$stamp" -nt "$info" ] || rm -f "$stamp"
    done
}

# build PRESET [TARGET...]: configures when the presets have changed, then builds what changed; quiet unless something
# fails.
build() {
    local preset=$1 log
    shift
    log=$(mktemp)
    if ! { { [ "build/$preset/build.ninja" -nt CMakePresets.json ] || cmake --preset "$preset"; } &&
           heed_new_headers "$preset" && cmake --build --preset "$preset" ${1:+--target "$@"}; } >"$log" 2>&1 </dev/null; then
        tail -n 60 "$log"
        echo "The build failed."
        return 1
    fi
    rm -f "$log"
}
