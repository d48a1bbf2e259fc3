#!/usr/bin/env bash
# Makes, lists and verifies the package that the launcher carries; --help tells the rest.
set -euo pipefail

here=$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")" && pwd)
if ! command -v python3 >/dev/null; then
    echo "make-package.sh: python3 is missing; install it (Debian: apt-get install python3)" >&2
    exit 1
fi
trap '' INT # While Python starts, it would answer Ctrl-C with a traceback.
exec python3 -B -S -X utf8 "$here/make_package.py" "$@"
