#!/usr/bin/env bash
# Runs all cases of which scripts/test.sh runs a sample, and prints the figures that
# docs/reliability.md explains:
#
# - an upgrade that is killed at every call that changes a disk, and one in which every call fails
#   with every error, each followed by a start with another fault
# - 3,000 random sequences of starts
# - 1,000 runs in a row
# - 8,000,000 log records
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/install-dependencies.sh build test

jobs=$(nproc)
cmake --preset release -DCORVIMO_TESTS=ON >/dev/null
cmake --build --preset release --parallel "$jobs"

failed=0
CORVIMO_WHOLE_MATRIX=1 ctest --preset release --parallel "$jobs" --timeout 36000 --verbose \
    --tests-regex '^(faults|load|LogSoak)' >build/release/matrix.log 2>&1 || failed=1
grep -o 'figure: .*' build/release/matrix.log | sort -V || true  # There may be none.
if ((failed)); then
    echo "There are failures: see build/release/matrix.log" >&2
fi
exit "$failed"
