#!/usr/bin/env bash
# Runs what CPack ships where nothing else is: in a root folder that holds Debian 12's base system and the
# run-time packages alone, as an ordinary user, from a folder with a space in its name. Needs root and a
# network. Ends with a status other than 0 when the client that it carries is not installed and started.
set -euo pipefail
cd "$(dirname "$0")/.."

runtime_packages=(libqt5widgets5 libarchive13 libicu72)
suite=bookworm
user=65534

scripts/install-dependencies.sh build archive
cmake --preset release >/dev/null
cmake --build --preset release --parallel "$(nproc)" >/dev/null

root=$(mktemp -d -t corvimo-root.XXXXXX)
chmod 755 "$root"
home=$root/home/person
client=$home/.Corvimo/Corvimo.app/Contents/MacOS/corvimo-ui

# Only what was started in there has it for its root folder.
cleanup() {
    local link
    for link in /proc/[0-9]*/root; do
        if [[ $(readlink "$link" 2>/dev/null) == "$root" ]]; then
            link=${link#/proc/}
            kill -KILL "${link%/root}" || true
        fi
    done
    rm -rf --one-file-system "$root"
}
trap cleanup EXIT

echo "== A bare root folder with ${runtime_packages[*]}"
debootstrap --variant=minbase --include="$(IFS=, && echo "${runtime_packages[*]}")" "$suite" "$root" >/dev/null

echo "== The archive, unpacked and started in it"
cpack --config build/release/CPackConfig.cmake -B build/release/archive >/dev/null
mkdir -p "$home/My Programs"
tar -xzf build/release/archive/*.tar.gz -C "$home/My Programs"
chown -R "$user:$user" "$home"
chroot --userspec="$user:$user" "$root" /usr/bin/env -i HOME=/home/person PATH=/usr/bin:/bin \
    QT_QPA_PLATFORM=offscreen "/home/person/My Programs/Corvimo.app/Contents/MacOS/launcher"

for ((tries = 0; tries < 100; tries++)); do
    if [[ -x $client && -s $home/.Corvimo/ui.pid ]]; then
        echo "The client was installed and has started."
        exit 0
    fi
    sleep 0.1
done
echo "check-archive.sh: the client did not start; the log:" >&2
cat "$home/.Corvimo/log/launcher.log" >&2
exit 1
