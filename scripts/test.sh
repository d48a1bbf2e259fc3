#!/usr/bin/env bash
# Installs what the tests need, builds, and runs every check: the format, with the data-race checks what runs
# on several threads without Qt, everything with the address, leak and undefined-behaviour checks, everything
# with the other compiler and the other Qt, what can be checked of the bundle for macOS, the fuzzers for a few
# seconds each, clang-tidy and cppcheck, and everything as built for everyday work.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/install-dependencies.sh build test fuzz qt6 analyse

jobs=$(nproc)

build() {
    local preset=$1
    shift
    echo "== $preset"
    cmake --preset "$preset" >/dev/null
    cmake --build --preset "$preset" --parallel "$jobs" "$@" >build/"$preset".log ||
        { cat build/"$preset".log; return 1; }
}

echo "== Format"
git ls-files '*.cpp' '*.h' | xargs clang-format --dry-run -Werror

build tsan --target lib_tests
build/tsan/tests/bin/lib_tests --gtest_brief=1 --gtest_filter='Log*:TmpNameGen*'

build asan
ctest --preset asan --parallel "$jobs"

build clang-qt6
ctest --preset clang-qt6 --parallel "$jobs"

echo "== macOS"
scripts/check-macos.sh

echo "== fuzz"
scripts/fuzz.sh 10

build dev
scripts/analyse.sh
ctest --preset dev --parallel "$jobs"
