#!/usr/bin/env bash
# Installs the Debian packages that this project needs:
#
#   install-dependencies.sh GROUP...
#
# The group build has what compiles the launcher and assembles its bundle. Each other group has what
# one more use needs: test, fuzz, qt6 (clang and Qt 6), analyse, bench, archive, macos, demo and
# pictures (those in docs/). If nothing is missing, the script changes nothing and needs neither
# root nor a network.
set -euo pipefail

packages_of() {
    case $1 in
    build) echo g++ cmake ninja-build python3 qtbase5-dev qttools5-dev qttools5-dev-tools \
        libarchive-dev libicu-dev ;;
    test) echo binutils black clang-format git libgtest-dev ;;
    fuzz) echo clang libclang-rt-dev ;;
    qt6) echo clang qt6-base-dev qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools libgl-dev ;;
    analyse) echo clang-tidy clang-tools cppcheck ;;
    bench) echo libbenchmark-dev libspdlog-dev libarchive-tools e2fsprogs strace valgrind ;;
    archive) echo debootstrap ;;
    macos) echo clang file libc++-14-dev libplist-utils lld llvm openssl ;;
    demo) echo fonts-dejavu-core ;;
    pictures) echo xvfb icnsutils imagemagick fontconfig graphviz \
        fonts-liberation fonts-noto-cjk fonts-thai-tlwg ;;
    *) return 1 ;;
    esac
}

missing_packages() {
    local package
    for package in "$@"; do
        if [[ $(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null) != installed ]]; then
            echo "$package"
        fi
    done
}

as_root() {
    if ((EUID == 0)); then
        "$@"
    else
        sudo "$@"
    fi
}

usage() {
    echo "usage: install-dependencies.sh build|test|fuzz|qt6|analyse|bench|archive|macos|demo|pictures..." >&2
    exit 2
}

(($# > 0)) || usage
wanted=()
for group in "$@"; do
    names=$(packages_of "$group") || usage
    read -ra names <<<"$names"
    wanted+=("${names[@]}")
done

if ! command -v dpkg-query >/dev/null; then
    echo "Not a Debian system: make sure that the counterparts of these are installed: ${wanted[*]}"
    exit 0
fi
mapfile -t missing < <(missing_packages "${wanted[@]}")
if ((${#missing[@]} == 0)); then
    exit 0
fi
echo "Installing ${missing[*]}"
as_root apt-get update
as_root env DEBIAN_FRONTEND=noninteractive \
    apt-get install -y --no-install-recommends "${missing[@]}"
