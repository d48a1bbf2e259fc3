#!/usr/bin/env bash
# Takes pictures of the launcher's progress dialog in every language and at three display scales,
# and combines them into sheets.
#
#   contact-sheet.sh [BUNDLE.app]
#
# The launcher of the bundle runs on an X server and in a home folder of its own. Without BUNDLE.app
# the script builds the preset `release`. It installs what it needs (Debian) and writes to
# docs/images: contact-sheet-100.png, -125.png and -200.png, named after the scale in percent, and
# dialog-CODE.png for the languages that the README shows.
set -euo pipefail

root=$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.." && pwd)
images=$root/docs/images
translations=$root/ui-client/launcher/texts/translations
shown_languages=(enu ger jpn tha trk)

design_dpi=96
design_width=400
design_height=80

# The launcher unpacks empty files. Each of them takes one block of the archive, so the script knows
# where each one ends.
entries=100
entries_in_picture=64
block=512

if (($# > 1)); then
    echo "usage: contact-sheet.sh [BUNDLE.app]" >&2
    exit 2
fi
bundle=${1:-$root/build/release/bundle/Corvimo.app}

scratch=$(cd -- "$(mktemp -d -t corvimo-pictures.XXXXXX)" && pwd -P)
home=$scratch/home
launcher_app=$scratch/Corvimo.app
package=$launcher_app/Contents/Resources/package/lumaport.cpk
archive=$scratch/package.tar
resume=$scratch/resume

clean_up() {
    local pids
    mapfile -t pids < <(jobs -p)
    ((${#pids[@]} == 0)) || kill "${pids[@]}" 2>/dev/null || true
    rm -rf -- "$scratch"
}

# wait_until COMMAND... - gives the command 20 seconds to succeed.
wait_until() {
    local tries
    for ((tries = 0; tries < 200; tries++)); do
        "$@" && return 0
        sleep 0.1
    done
    echo "contact-sheet.sh: gave up waiting for: $*" >&2
    return 1
}

start_display() {
    Xvfb -displayfd 3 -screen 0 1000x300x24 3>"$scratch/display" >"$scratch/xvfb.log" 2>&1 &
    wait_until test -s "$scratch/display"
    DISPLAY=:$(<"$scratch/display")
    export DISPLAY
}

# The package holds no client. So every start installs it again, and no client is started
# afterwards.
make_package() {
    mkdir "$scratch/client"
    (cd "$scratch/client" && seq "$entries" | xargs touch && seq "$entries" |
        tar --create --format=ustar --files-from=- --file="$archive")
}

lay_out() {
    mkdir -p "$home" "$scratch/pictures"
    cp -a "$bundle" "$launcher_app"
    mkfifo "$resume"
    make_package
}

# The launcher reads its package twice: to count the entries, and to unpack them. Each time the
# package is a pipe. The second pipe pauses until somebody writes to $resume.
# shellcheck disable=SC2094 # The archive is read, and the package is written.
serve_package() {
    local held=$((entries_in_picture * block))
    {
        mkfifo "$package.next"
        mv -f "$package.next" "$package" # The first reading has begun; the second opens this pipe.
        cat "$archive"
    } >"$package"
    {
        head -c "$held" "$archive"
        read -r <"$resume" || true
        tail -c "+$((held + 1))" "$archive"
    } >"$package"
}

# take_picture LOCALE PERCENT FILE - runs the launcher and takes a picture in the middle of the run.
take_picture() {
    local locale=$1 percent=$2 file=$3 server launcher
    rm -rf -- "$home/.Corvimo" "$package"
    mkfifo "$package"
    serve_package &
    server=$!
    HOME=$home XDG_RUNTIME_DIR=$scratch QT_QPA_PLATFORM=xcb \
        QT_FONT_DPI=$((design_dpi * percent / 100)) LC_ALL=$locale.UTF-8 LANGUAGE=$locale \
        "$launcher_app/Contents/MacOS/launcher" >"$scratch/output" 2>&1 &
    launcher=$!

    wait_until test -e "$home/.Corvimo/Corvimo.app/$entries_in_picture"
    sleep 0.5 # The window needs time to draw itself.
    import -silent -window "Corvimo Client" +dither -colors 64 -depth 8 -strip "PNG8:$file"
    check_size "$percent" "$file"

    echo >"$resume"
    wait "$launcher"
    wait "$server"
}

# check_size PERCENT FILE - checks that the dialog has the size of the scale.
check_size() {
    local percent=$1 file=$2 wanted found
    wanted=$((design_width * percent / 100))x$((design_height * percent / 100))
    found=$(identify -format %wx%h "$file")
    if [[ $found != "$wanted" ]]; then
        echo "contact-sheet.sh: $file measures $found instead of $wanted" >&2
        return 1
    fi
}

# Prints a line "CODE LOCALE" for each language. English has no file, since the catalogue is
# English.
languages() {
    local file
    echo "enu en_US"
    for file in "$translations"/*.ts; do
        echo "$(basename "$file" .ts) $(sed -n 's/^<TS .* language="\([^"]*\)".*/\1/p' "$file")"
    done
}

make_sheet() {
    local percent=$1 code locale
    local -a cells=()
    while read -r code locale; do
        echo "$percent % $code"
        take_picture "$locale" "$percent" "$scratch/pictures/$code.png"
        cells+=(-label "$code" "$scratch/pictures/$code.png")
        if ((percent == 100)) && [[ " ${shown_languages[*]} " == *" $code "* ]]; then
            cp "$scratch/pictures/$code.png" "$images/dialog-$code.png"
        fi
    done < <(languages | sort)
    montage -background '#b0b8c0' -font "$(fc-match -f '%{file}' Arial)" -pointsize 16 \
        "${cells[@]}" -tile 3x -geometry +12+8 miff:- |
        convert - +dither -colors 256 -strip "PNG8:$images/contact-sheet-$percent.png"
}

main() {
    local percent
    trap clean_up EXIT
    if (($# == 0)); then
        "$root/scripts/install-dependencies.sh" build test
        (cd "$root" && cmake --preset release && cmake --build --preset release --target bundle)
    fi
    "$root/scripts/install-dependencies.sh" pictures
    mkdir -p "$images"
    lay_out
    start_display
    for percent in 100 125 200; do
        make_sheet "$percent"
    done
}

main "$@"
