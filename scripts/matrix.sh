#!/usr/bin/env bash
# Proves whole what scripts/test.sh proves on a sample: an upgrade killed at every step, every call with every
# error, a thousand runs in a row, eight million log records. Prints the figures; docs/reliability.md says
# what they mean. Takes an hour or two.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/install-dependencies.sh build test

jobs=$(nproc)
cmake --preset dev >/dev/null
cmake --build --preset dev --parallel "$jobs" --target lib_tests e2e_tests fault_library

tests=build/dev/tests/bin
logs=build/dev/matrix
rm -rf "$logs"
mkdir -p "$logs"
export CORVIMO_WHOLE_MATRIX=1 GTEST_TOTAL_SHARDS=$jobs

runs=()
for ((shard = 0; shard < jobs; ++shard)); do
    GTEST_SHARD_INDEX=$shard "$tests/e2e_tests" --gtest_filter='*Matrix*:Load*' >"$logs/$shard.log" 2>&1 &
    runs+=($!)
done
failed=0
for run in "${runs[@]}"; do
    wait "$run" || failed=1
done
GTEST_TOTAL_SHARDS=1 "$tests/lib_tests" --gtest_filter='LogSoak*' >"$logs/soak.log" 2>&1 || failed=1

grep -h '^figure: ' "$logs"/*.log | sort
if ((failed)); then
    echo "There are failures: see $logs" >&2
fi
exit "$failed"
