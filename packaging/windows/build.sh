#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Makes the program for 64-bit Windows on Debian: a folder and a zip in build/windows.
# The toolkit is built once, which takes an hour or more; README.md beside this file
# tells what is done, and how far it was tried.
set -euo pipefail
cd "$(dirname "$0")/../.."
. packaging/packages.sh

need_packages "${build_packages[@]}" "${windows_packages[@]}"

tree=$PWD
cache=${XDG_CACHE_HOME:-$HOME/.cache}/orvalen-windows
toolkit=$cache/qt
host_modules=/usr/lib/$(dpkg-architecture -qDEB_HOST_MULTIARCH)/cmake
out=build/windows
name="Orvalen Years Calendar"

# Of the toolkit what the program uses, and no library that the system would have to bring.
left_out=(network sql testlib dbus opengl dynamicgl vulkan concurrent xml zstd icu glib
    gif jpeg direct2d textmarkdownreader textmarkdownwriter textodfwriter pkg_config
    system_zlib system_png system_freetype system_harfbuzz system_pcre2 system_doubleconversion)

# apt-get with sources and lists of its own: nothing of the machine's changes.
apt_of_ours() {
    apt-get -q -o Dir::Etc::sourcelist="$cache/apt/sources.list" -o Dir::Etc::sourceparts=/dev/null \
        -o Dir::State::lists="$cache/apt/lists" -o Dir::Cache="$cache/apt/cache" \
        -o APT::Sandbox::User="$(id -un)" "$@"
}

list_sources() {
    local codename
    codename=$(. /etc/os-release && echo "$VERSION_CODENAME")
    mkdir -p "$cache/apt/lists/partial" "$cache/apt/cache/archives/partial"
    printf 'deb-src [signed-by=/usr/share/keyrings/debian-archive-keyring.gpg] %s main\n' \
        "http://deb.debian.org/debian $codename" \
        "http://deb.debian.org/debian-security $codename-security" >"$cache/apt/sources.list"
    apt_of_ours update
}

# The source package $1, of the version of which this machine has $2, into $3.
fetch() {
    local version
    [ -d "$3" ] && return
    version=$(dpkg-query -W -f='${source:Version}' "$2")
    rm -rf "$cache/fetched"
    mkdir -p "$cache/fetched"
    (cd "$cache/fetched" && apt_of_ours source --download-only "$1=$version" && dpkg-source -x ./*.dsc unpacked)
    mv "$cache/fetched/unpacked" "$3"
}

# Configures the sources $1 in $2 with what follows, once, and builds and installs them.
build() {
    local sources=$1 folder=$2
    shift 2
    [ -e "$folder/build.ninja" ] ||
        cmake -G Ninja -S "$sources" -B "$folder" -DCMAKE_BUILD_TYPE=MinSizeRel \
            -DQT_HOST_PATH=/usr -DQT_HOST_PATH_CMAKE_DIR="$host_modules" "$@"
    cmake --build "$folder"
    cmake --install "$folder"
}

build_toolkit() {
    local features=("${left_out[@]/#/-DFEATURE_}")
    list_sources
    fetch qt6-base qt6-base-dev "$cache/source"
    fetch qt6-svg qt6-svg-dev "$cache/svg-source"
    build "$cache/source" "$cache/build" -DCMAKE_INSTALL_PREFIX="$toolkit" \
        -DCMAKE_TOOLCHAIN_FILE="$tree/packaging/windows/toolchain.cmake" \
        -DBUILD_SHARED_LIBS=OFF -DFEATURE_static_runtime=ON -DQT_BUILD_EXAMPLES=OFF \
        -DQT_BUILD_TESTS=OFF -DQT_BUILD_TOOLS_BY_DEFAULT=OFF "${features[@]/%/=OFF}"
    build "$cache/svg-source" "$cache/svg-build" \
        -DCMAKE_TOOLCHAIN_FILE="$toolkit/lib/cmake/Qt6/qt.toolchain.cmake"
}

build_program() {
    cmake -G Ninja -S . -B "$out/program" -DCMAKE_BUILD_TYPE=Release \
        -DCMAKE_COMPILE_WARNING_AS_ERROR=ON -DQT_HOST_PATH=/usr -DQT_HOST_PATH_CMAKE_DIR="$host_modules" \
        -DCMAKE_TOOLCHAIN_FILE="$toolkit/lib/cmake/Qt6/qt.toolchain.cmake"
    cmake --build "$out/program"
    rm -rf "${out:?}/$name"
    cmake --install "$out/program" --prefix "$PWD/$out/$name"
}

# As Windows has its texts: with an ending that opens, and two characters between lines.
add_text() {
    mkdir -p "$(dirname "$out/$name/$1")"
    sed 's/\r*$/\r/' >"$out/$name/$1"
}

add_licences() {
    local part
    add_text Licence.txt <LICENSE
    add_text Licences/Qt.txt <"$cache/source/LICENSES/LGPL-3.0-only.txt"
    add_text Licences/GPL.txt <"$cache/source/LICENSES/GPL-3.0-only.txt"
    for part in freetype/LICENSE.txt harfbuzz-ng/COPYING libpng/LICENSE zlib/LICENSE pcre2/LICENCE \
        double-conversion/LICENSE; do
        add_text "Licences/$(dirname "$part").txt" <"$cache/source/src/3rdparty/$part"
    done
    add_text Licences/mingw-w64.txt </usr/share/doc/mingw-w64-x86-64-dev/copyright
    add_text Licences/gcc.txt </usr/share/doc/gcc-mingw-w64-base/copyright
    add_text "Read me.txt" <<EOF
Orvalen Years Calendar

One day at once in the Julian, Gregorian, Jewish and Moslem calendars. Start
"$name.exe"; nothing has to be installed, and the
folder can stand anywhere. F1 tells the version.

It keeps one file of yours: settings.ini in the folder
%LOCALAPPDATA%\\$name. To be rid of the program, delete both folders.

The program is free: Licence.txt. It contains Qt, used under the GNU Lesser
General Public License, version 3, and parts of others: the folder Licences.
With the program's sources it can be made again with another Qt.
EOF
}

pack() {
    local version
    version=$(sed -n 's/^project(.* VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
    python3 packaging/windows/make_zip.py "$out/$name" "$out/orvalen-years-calendar-$version-windows.zip" \
        "$(git log -1 --format=%ct)"
}

[ -e "$toolkit/lib/cmake/Qt6Svg/Qt6SvgConfig.cmake" ] || build_toolkit
build_program
add_licences
pack
