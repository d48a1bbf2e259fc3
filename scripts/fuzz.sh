#!/usr/bin/env bash
# Fuzzes every target, or the ones named, each for a time:
#
#   fuzz.sh [SECONDS [TARGET...]]
#
# Without arguments every target for 10 seconds. What is found stays in build/fuzz/TARGET: new inputs in
# the folder `corpus`, from which the next run goes on, and an input that fails beside it.
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
    # Warnings of the code under test would be most of its work, so its standard error is closed. The
    # folders that a target makes for an input need no disk. Leaks are looked for at the end, since
    # what Qt keeps on purpose would have them looked for after every input.
    TMPDIR=$([[ -w /dev/shm ]] && echo /dev/shm || echo /tmp) \
        "build/fuzz/tests/fuzz/${target}_fuzz" -max_total_time="$seconds" -timeout=60 -max_len=16384 \
        -close_fd_mask=2 -handle_xfsz=0 -detect_leaks=0 -dict="tests/fuzz/$target.dict" -artifact_prefix="$found/" \
        "$found/corpus" "tests/fuzz/corpus/$target"
}

for target in "${targets[@]}"; do
    log=$(mktemp)
    if ! fuzz "$target" >"$log" 2>&1; then
        cat "$log"
        echo "build/fuzz/tests/fuzz/${target}_fuzz FILE tells which property fails with such a file" >&2
        exit 1
    fi
    echo "$target: $(tail -n 1 "$log")"
    rm "$log"
done
