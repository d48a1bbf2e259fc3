#!/usr/bin/env bash
# Runs the archive that CPack makes in a new root folder, which holds only Debian 12's base system
# and the run-time packages. The launcher runs there as an ordinary user, from a folder with a space
# in its name. Needs root and a network. Fails if the carried client is not installed and started.
set -euo pipefail
cd "$(dirname "$0")/.."

runtime_packages=libqt5widgets5,libarchive13,libicu72
suite=bookworm
user=65534

scripts/install-dependencies.sh build test archive
cmake --preset release >/dev/null
cmake --build --preset release --parallel "$(nproc)" >/dev/null
rm -rf build/release/archive
cpack --config build/release/CPackConfig.cmake -B build/release/archive >/dev/null

root=$(mktemp -d -t corvimo-root.XXXXXX)
trap 'rm -rf --one-file-system "$root"' EXIT
chmod 755 "$root"
home=$root/home/person

echo "== A bare root folder with $runtime_packages"
debootstrap --variant=minbase --include="$runtime_packages" "$suite" "$root" >/dev/null
mkdir -p "$home/My Programs"
tar -xzf build/release/archive/*.tar.gz -C "$home/My Programs"
chown -R "$user:$user" "$home"

echo "== The launcher in it"
# The shell is the first process of a PID namespace. When it ends, everything that was started there
# ends.
# shellcheck disable=SC2016 # The inner shell expands the variables.
unshare --pid --fork --mount-proc="$root/proc" chroot --userspec="$user:$user" "$root" \
    /usr/bin/env -i HOME=/home/person PATH=/usr/bin:/bin QT_QPA_PLATFORM=offscreen sh -c '
        contents="$HOME/My Programs/Corvimo.app/Contents"
        if ldd "$contents/Frameworks/plugins/platforms/"* | grep "not found"; then
            exit 1
        fi
        "$contents/MacOS/launcher" || exit
        for _ in $(seq 100); do
            if kill -0 "$(sed -n "s/^pid=//p" "$HOME/.Corvimo/ui.pid" 2>/dev/null)" 2>/dev/null; then
                echo "The client was installed and runs."
                exit 0
            fi
            sleep 0.1
        done
        echo "The client does not run; the log:" >&2
        cat "$HOME/.Corvimo/log/launcher.log" >&2
        exit 1'
