#!/usr/bin/env bash
# Proves whole what scripts/test.sh proves on a sample: an upgrade killed at every step and every call with
# every error, each followed by a start with another fault; three thousand random sequences of starts; a
# thousand runs in a row; eight million log records. Prints the figures; docs/reliability.md says what they
# mean.
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
