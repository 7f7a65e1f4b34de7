#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# One script for a fresh Debian 12 machine:
#   ./build.sh run    install what is missing, build an optimised program and start it
#   ./build.sh test   install what is missing, build with sanitizers and run every test
#   ./build.sh deb    install what is missing, build a Debian package (build-deb/lumbridle_*.deb)
set -euo pipefail
cd "$(dirname "$0")"

packages=(g++ cmake ninja-build pkg-config ccache
    qt6-base-dev qt6-base-dev-tools qt6-multimedia-dev qt6-svg-dev qt6-qpa-plugins libgl-dev
    fonts-comic-neue fonts-liberation2)
test_packages=(poppler-utils nodejs desktop-file-utils appstream man-db clang libclang-rt-dev)

install_missing() {
    local missing=()
    for package in "$@"; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q "install ok installed" ||
            missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    echo "Installing: ${missing[*]}"
    local sudo=()
    [ "$(id -u)" -eq 0 ] || sudo=(sudo)
    "${sudo[@]}" apt-get update -qq
    DEBIAN_FRONTEND=noninteractive "${sudo[@]}" apt-get install -y -qq --no-install-recommends \
        "${missing[@]}"
}

jobs=$(nproc 2>/dev/null || echo 2)

case "${1:-}" in
run)
    install_missing "${packages[@]}"
    cmake -S . -B build-release -G Ninja -DCMAKE_BUILD_TYPE=Release -DLUMBRIDLE_TESTS=OFF \
        -DLUMBRIDLE_BENCH=OFF
    cmake --build build-release --parallel "$jobs" --target lumbridle
    shift
    exec build-release/bin/lumbridle "$@"
    ;;
test)
    install_missing "${packages[@]}" "${test_packages[@]}"
    cmake -S . -B build-test -G Ninja -DCMAKE_BUILD_TYPE=Debug -DLUMBRIDLE_SANITIZE=ON
    cmake --build build-test --parallel "$jobs"
    node --test tools/assets/test/
    QT_QPA_PLATFORM=offscreen ctest --test-dir build-test --output-on-failure --parallel "$jobs"
    tools/fuzz/run 15
    ;;
deb)
    install_missing "${packages[@]}" dpkg-dev file
    cmake -S . -B build-deb -G Ninja -DCMAKE_BUILD_TYPE=Release -DLUMBRIDLE_TESTS=OFF \
        -DLUMBRIDLE_BENCH=OFF -DCMAKE_INSTALL_PREFIX=/usr
    cmake --build build-deb --parallel "$jobs"
    (cd build-deb && cpack -G DEB)
    ;;
*)
    echo "usage: ./build.sh run | ./build.sh test | ./build.sh deb" >&2
    exit 2
    ;;
esac
