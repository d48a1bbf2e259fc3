#!/usr/bin/env bash
# Measures the launcher against programs that do the same work; --help tells the rest.
set -euo pipefail

here=$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")" && pwd)
for tool in python3 bsdtar; do
    if ! command -v "$tool" >/dev/null; then
        echo "compare.sh: $tool is missing; Debian's packages are python3 and libarchive-tools" >&2
        exit 1
    fi
done
command=(python3 -B -X utf8 "$here/compare.py")
own_mounts=(unshare --mount --propagation private)
# What root mounts, nobody else sees, and it goes with the process.
if ((EUID == 0)) && "${own_mounts[@]}" true 2>/dev/null; then
    exec "${own_mounts[@]}" "${command[@]}" --may-mount "$@"
fi
exec "${command[@]}" "$@"
