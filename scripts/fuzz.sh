#!/usr/bin/env bash
# Fuzzes the given targets, or all, for a time:
#
#   fuzz.sh [SECONDS [TARGET...]]
#
# The default is 10 seconds for each target. The results stay in build/fuzz/TARGET: new inputs in
# the folder `corpus`, with which the next run begins, and beside it an input that fails.
set -euo pipefail
cd "$(dirname "$0")/.."

seconds=${1:-10}
targets=("${@:2}")
((${#targets[@]} > 0)) || targets=(config extractor info string_helper)

scripts/install-dependencies.sh build test fuzz
cmake --preset fuzz >/dev/null
cmake --build --preset fuzz --parallel "$(nproc)"

fuzz() {
    local target=$1 found=build/fuzz/$1
    mkdir -p "$found/corpus"
    # Standard error is closed, because printing warnings would take most of the time. Temporary
    # folders are in memory where that is possible. Leaks are searched only at the end: memory that
    # Qt keeps on purpose would cause a search after every input.
    TMPDIR=$([[ -w /dev/shm ]] && echo /dev/shm || echo /tmp) \
        "build/fuzz/tests/fuzz/${target}_fuzz" -max_total_time="$seconds" -timeout=60 -max_len=16384 \
        -close_fd_mask=2 -handle_xfsz=0 -detect_leaks=0 -dict="tests/fuzz/$target.dict" -artifact_prefix="$found/" \
        "$found/corpus" "tests/fuzz/corpus/$target"
}

for target in "${targets[@]}"; do
    log=$(mktemp)
    if ! fuzz "$target" >"$log" 2>&1; then
        cat "$log"
        echo "To see what fails, run build/fuzz/tests/fuzz/${target}_fuzz with the file of that input." >&2
        exit 1
    fi
    echo "$target: $(tail -n 1 "$log")"
    rm "$log"
done
