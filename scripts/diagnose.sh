#!/usr/bin/env bash
# Tells what state a person's installation is in and what happened in each start; --help tells the rest.
set -euo pipefail

here=$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")" && pwd)
if ! command -v python3 >/dev/null; then
    echo "diagnose.sh: python3 is missing; install it (Debian: apt-get install python3)" >&2
    exit 1
fi
exec python3 -B -X utf8 "$here/diagnose" "$@"
