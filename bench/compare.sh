#!/usr/bin/env bash
# Measures the launcher against programs of the system that do the same work; --help tells the rest.
set -euo pipefail

here=$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")" && pwd)
for tool in python3 bsdtar unzip rsync; do
    if ! command -v "$tool" >/dev/null; then
        echo "compare.sh: $tool is missing; Debian's packages are" \
            "python3, libarchive-tools, unzip and rsync" >&2
        exit 1
    fi
done
exec python3 -B -X utf8 "$here/compare.py" "$@"
