#!/usr/bin/env bash
# Installs what the tests need, builds, and runs every check:
#
# - the format of all sources
# - the tests of the logger and the random names with data-race checks
# - all tests with address, leak and undefined-behaviour checks
# - all tests with clang and Qt 6
# - the bundle for macOS, as far as Linux can check it
# - each fuzzer for 10 seconds
# - the names of tests in docs/reliability.md
# - clang-tidy and cppcheck
# - all tests in the everyday build
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

# Fails if docs/reliability.md names a test that does not exist. "*" stands for any part of a name.
# shellcheck disable=SC2016 # The backticks are those of Markdown.
check_named_tests() {
    local tests name missing=0
    tests=$(ctest --preset dev --show-only)
    while read -r name; do
        if ! grep -qE ": ${name//\*/.*}\$" <<<"$tests"; then
            echo "docs/reliability.md: there is no test $name" >&2
            missing=1
        fi
    done < <(grep -oE '`([A-Z][A-Za-z]+\.[A-Z*]|[a-z]+_test_|faults_)[A-Za-z0-9_*]*`' docs/reliability.md |
        tr -d '`' | sort -u)
    return "$missing"
}

echo "== Format"
git ls-files '*.cpp' '*.h' | xargs clang-format --dry-run -Werror
git ls-files '*.py' | xargs black --check --line-length 100

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
check_named_tests
scripts/analyse.sh
ctest --preset dev --parallel "$jobs"
