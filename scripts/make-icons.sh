#!/usr/bin/env bash
# Makes the icons of both bundles for macOS from their pictures. Run it after a change of a picture,
# and commit the icons. Installs what it needs (Debian).
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/install-dependencies.sh pictures
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

# make_icon PICTURE ICON
make_icon() {
    local size
    for size in 16 32 48 128; do
        convert "$1" -filter Lanczos -resize "${size}x$size" -strip "PNG32:$scratch/$size.png"
    done
    png2icns "$2" "$scratch"/{16,32,48,128}.png >/dev/null
}

launcher=ui-client/launcher/resources client=examples/client/resources
make_icon "$launcher/images/ico_72_lumaport.png" "$launcher/corvimo.icns"
make_icon "$client/images/corvimo.png" "$client/corvimo.icns"
