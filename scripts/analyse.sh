#!/usr/bin/env bash
# Runs clang-tidy on the product's sources and cppcheck on all sources, with the settings in
# .clang-tidy and .cppcheck-suppressions. Fails when either finds anything.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/install-dependencies.sh build test analyse
cmake --preset dev >/dev/null
# Both tools read headers that the build generates.
cmake --build --preset dev --target launcher_core >/dev/null

echo "== cppcheck"
cppcheck --project=build/dev/compile_commands.json -i build \
    --enable=warning,performance,portability --suppressions-list=.cppcheck-suppressions \
    --library=googletest --library=posix --library=qt --error-exitcode=1 --quiet

echo "== clang-tidy"
run-clang-tidy -quiet -p build/dev -j "$(nproc)" "^$PWD/(deskui-qt|examples|lib|ui-client)/"
