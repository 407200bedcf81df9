# SPDX-License-Identifier: MIT
# What the project needs from Debian 12, and how it is installed. Sourced by the
# commands at the top of the tree.

build_packages=(cmake ninja-build g++ qt6-base-dev qt6-svg-dev libfontconfig-dev librsvg2-bin)
run_packages=(libfontconfig1 libqt6widgets6 libqt6svg6 libqt6printsupport6 fonts-dejavu-core)
screen_packages=(xvfb openbox xdotool x11-utils xclip imagemagick libfaketime)
test_packages=(adwaita-qt6 fonts-noto-core libgtest-dev libbenchmark-dev libicu-dev qt6-base-private-dev
    clang-22 libclang-rt-22-dev lld-22 clang-tidy-22 clang-format iwyu python3 python3-gi git appstream
    desktop-file-utils man-db lintian fakeroot dpkg-dev debhelper file autopkgtest at-spi2-core
    dbus-daemon gir1.2-atspi-2.0 poppler-utils weston xwayland qt6-wayland orca python3-pyatspi)
windows_packages=(g++-mingw-w64-x86-64-posix dpkg-dev python3 git) # for packaging/windows

is_installed() {
    [ "$(dpkg-query -W -f='${db:Status-Status}' "$1" 2>/dev/null)" = installed ]
}

as_root() {
    if [ "$(id -u)" = 0 ]; then "$@"; else sudo "$@"; fi
}

# Installs those of the packages named that are missing.
need_packages() {
    local missing=() package
    for package in "$@"; do
        is_installed "$package" || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return
    echo "Installing: ${missing[*]}"
    as_root apt-get update -qq
    as_root env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

# Builds a preset, which is configured anew when the presets have changed.
build_preset() {
    local preset=$1
    shift
    [ "build/$preset/build.ninja" -nt CMakePresets.json ] || cmake --fresh --preset "$preset" >/dev/null
    cmake --build --preset "$preset" "$@"
}
