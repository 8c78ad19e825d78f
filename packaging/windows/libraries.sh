# SPDX-License-Identifier: GPL-3.0-or-later
# Sourced by packaging/windows/build: what the program links, built from Debian's sources into one folder, which is named
# after a hash of everything that decides how Qt is built. The other libraries beside it are built again one by one, when
# their own recipe has changed. Only that folder need be kept between runs.

mingw=x86_64-w64-mingw32
windows_packages=(g++-mingw-w64-x86-64-posix mingw-w64-tools wine wine64 nsis dpkg-dev patch perl autoconf automake libtool
    autopoint gettext fonts-dejavu-core python3 xvfb openbox xdotool x11-xkb-utils imagemagick advancecomp)

# Only what the program uses. direct2d without direct2d1_1: the other way does not link.
qt_options=(-DBUILD_SHARED_LIBS=ON -DQT_BUILD_TESTS=OFF -DQT_BUILD_EXAMPLES=OFF -DFEATURE_pkg_config=OFF
    -DFEATURE_system_zlib=OFF -DFEATURE_system_png=OFF -DFEATURE_system_jpeg=OFF -DFEATURE_system_freetype=OFF
    -DFEATURE_system_harfbuzz=OFF -DFEATURE_system_pcre2=OFF -DFEATURE_system_doubleconversion=OFF
    -DFEATURE_ssl=OFF -DFEATURE_openssl=OFF -DFEATURE_schannel=OFF -DFEATURE_opengl=OFF -DINPUT_opengl=no
    -DFEATURE_vulkan=OFF -DFEATURE_sql=OFF -DFEATURE_dbus=OFF -DFEATURE_icu=OFF -DFEATURE_glib=OFF -DFEATURE_zstd=OFF
    -DFEATURE_xml=OFF -DFEATURE_concurrent=OFF -DFEATURE_brotli=OFF -DFEATURE_gssapi=OFF -DFEATURE_style_windowsvista=OFF
    -DFEATURE_direct2d=ON -DFEATURE_direct2d1_1=OFF -DFEATURE_tabletevent=OFF)
sodium_options=(--host=$mingw --enable-shared --disable-static)
qcustomplot_options=(-DUSE_QT_VERSION=6)
hunspell_options=(--host=$mingw --enable-shared --disable-static --disable-nls)
hunspell_patch=packaging/windows/hunspell-paths.patch
mythes_options=(--host=$mingw --enable-shared --disable-static --disable-werror)
mythes_patch=packaging/windows/mythes-paths.patch
libarchive_options=(--host=$mingw --enable-shared --disable-static --with-zlib --without-bz2lib --without-libb2
    --without-iconv --without-lz4 --without-zstd --without-lzma --without-cng --without-openssl --without-nettle
    --without-xml2 --without-expat --disable-bsdtar --disable-bsdcat --disable-bsdcpio --disable-acl --disable-xattr)
# Those beside Qt, each after what it needs; named as their source packages are.
other_libraries=(libsodium qcustomplot hunspell mythes zlib libarchive)

# source_of PACKAGE: the source package of an installed one, and its version, as "name version".
source_of() {
    dpkg-query -W -f='${source:Package} ${source:Version}\n' "$1"
}

# recipe_of SOURCE: what decides how that library is built.
recipe_of() {
    case $1 in
        qt6-base)
            local package
            for package in qt6-base-dev gcc-mingw-w64-x86-64-posix-runtime mingw-w64-x86-64-dev; do
                echo "source: $(source_of $package)"
            done
            echo "compiler: $(dpkg-query -W -f='${Package} ${Version}' g++-mingw-w64-x86-64-posix)"
            echo "qt6-base: ${qt_options[*]}" ;;
        libsodium) recipe libsodium-dev libsodium "${sodium_options[*]}" ;;
        qcustomplot) recipe libqcustomplot-dev qcustomplot "${qcustomplot_options[*]}" ;;
        hunspell) recipe libhunspell-dev hunspell "${hunspell_options[*]}" "$hunspell_patch" ;;
        zlib) recipe zlib1g-dev zlib "" ;;
        libarchive) recipe libarchive-dev libarchive "${libarchive_options[*]}" ;;
        mythes) recipe libmythes-dev mythes "${mythes_options[*]}" "$mythes_patch" ;;
    esac
}

# recipe PACKAGE SOURCE OPTIONS [PATCH]
recipe() {
    echo "source: $(source_of "$1")"
    echo "$2: $3${4:+, with $(sha256sum <"$4" | head -c 16) of ${4##*/}}"
}

# name_libraries: sets `libraries` to the folder; once all packages are installed.
name_libraries() {
    [ -n "${libraries:-}" ] && return
    recipe_of qt6-base >"$work/recipe"
    libraries=$cache/$(sha256sum <"$work/recipe" | head -c 16)
    local name
    for name in "${other_libraries[@]}"; do
        recipe_of "$name"
    done >>"$work/recipe"
    mkdir -p "$libraries/licenses"
    cmp -s "$work/recipe" "$libraries/recipe" || cp "$work/recipe" "$libraries/recipe"
    export QUILLERY_WINDOWS_LIBRARIES=$libraries
}

# is_built SOURCE: whether the library is there, built as its recipe says now.
is_built() { recipe_of "$1" | cmp -s - "$libraries/$1.done"; }

# build_library SOURCE
build_library() {
    fetch "$1"
    "build_$1"
    recipe_of "$1" >"$libraries/$1.done"
    rm -rf "${work:?}/$1"*
}

# fetch SOURCE: unpacks the source package of that name into $work/SOURCE, patched. Debian's addresses are those of the
# machine; its list of sources is kept aside.
fetch() {
    local name=$1 version apt=$work/apt options
    version=$(awk -v name="$name" '$1 == "source:" && $2 == name {print $3}' "$work/recipe")
    mkdir -p "$apt/sources" "$apt/lists/partial"
    local list
    for list in /etc/apt/sources.list.d/*.sources /etc/apt/sources.list; do
        [ -f "$list" ] || continue
        case $list in
            *.sources) sed 's/^Types:.*/Types: deb-src/' "$list" >"$apt/sources/${list##*/}" ;;
            *) sed -n 's/^deb /deb-src /p' "$list" >"$apt/sources/main.list" ;;
        esac
    done
    options=(-qq -o Dir::Etc::SourceList=/dev/null -o Dir::Etc::SourceParts="$apt/sources" -o Dir::State::Lists="$apt/lists"
        -o APT::Sandbox::User=root)
    rm -rf "${work:?}/$name"
    ( cd "$work" && { [ -e apt/updated ] || { apt-get "${options[@]}" update && touch apt/updated; } } &&
        apt-get "${options[@]}" source --download-only "$name=$version" &&
        dpkg-source --no-check -x "${name}_${version#*:}.dsc" "$name" )
    mkdir -p "$libraries/licenses/$name"
    cp "$work/$name/debian/copyright" "$libraries/licenses/$name/"
}

# cross SOURCE OPTION...: configures, builds and installs the CMake project of that source.
cross() {
    local name=$1
    shift
    cmake -S "$work/$name" -B "$work/$name-build" -G Ninja -DCMAKE_BUILD_TYPE=Release \
        -DCMAKE_TOOLCHAIN_FILE="$PWD/cmake/mingw-w64.cmake" -DQUILLERY_WINDOWS_LIBRARIES="$libraries" \
        -DCMAKE_INSTALL_PREFIX="$libraries" -DQT_HOST_PATH=/usr \
        -DQT_HOST_PATH_CMAKE_DIR="/usr/lib/$(dpkg-architecture -qDEB_HOST_MULTIARCH)/cmake" "$@"
    cmake --build "$work/$name-build"
    cmake --install "$work/$name-build" --strip
}

build_qt6-base() {
    cross qt6-base "${qt_options[@]}"
    cp "$work"/qt6-base/LICENSES/*.txt "$libraries/licenses/qt6-base/"
}

# cross_autotools SOURCE OPTION...: the same for one that comes with a `configure`, and is known to pkg-config by its name.
cross_autotools() {
    local name=$1
    shift
    ( cd "$work/$name" && autoreconf -fi && PKG_CONFIG_LIBDIR=$libraries/lib/pkgconfig ./configure "$@" \
        --prefix="$libraries" CC=$mingw-gcc-posix CXX=$mingw-g++-posix && make -j"$CMAKE_BUILD_PARALLEL_LEVEL" &&
        make install-strip )
    sed -i 's|^prefix=.*|prefix=${pcfiledir}/../..|' "$libraries/lib/pkgconfig/$name.pc"
}

build_libsodium() {
    cross_autotools libsodium "${sodium_options[@]}"
    cp "$work/libsodium/LICENSE" "$libraries/licenses/libsodium/"
}

build_hunspell() {
    patch -d "$work/hunspell" -p1 <"$hunspell_patch"
    cross_autotools hunspell "${hunspell_options[@]}"
    cp "$work"/hunspell/COPYING* "$work"/hunspell/license.hunspell "$hunspell_patch" "$libraries/licenses/hunspell/"
}

build_mythes() {
    patch -d "$work/mythes" -p1 <"$mythes_patch"
    cross_autotools mythes "${mythes_options[@]}"
    cp "$work/mythes/COPYING" "$mythes_patch" "$libraries/licenses/mythes/"
}

build_qcustomplot() {
    cross qcustomplot "${qcustomplot_options[@]}"
}

# Debian's source comes without the folder for Windows, from which only the words in the DLL's properties are missed.
build_zlib() {
    mkdir -p "$work/zlib/win32"
    printf '1 VERSIONINFO\nBEGIN\nEND\n' >"$work/zlib/win32/zlib1.rc"
    cross zlib -DINSTALL_PKGCONFIG_DIR="$libraries/lib/pkgconfig"
    cp "$libraries/lib/libzlib.dll.a" "$libraries/lib/libz.dll.a" # as others ask for it
    cp "$work/zlib/README" "$libraries/licenses/zlib/"
}

build_libarchive() {
    CPPFLAGS=-I$libraries/include LDFLAGS=-L$libraries/lib cross_autotools libarchive "${libarchive_options[@]}"
    cp "$work/libarchive/COPYING" "$libraries/licenses/libarchive/"
}
