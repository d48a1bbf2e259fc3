#!/usr/bin/env bash
# Shows an upgrade in a temporary home folder. An older client is running; the launcher stops it,
# installs the client that it carries, and starts that. A second start finds nothing to do.
#
#   demo.sh [--keep]
#
# Installs what the build needs (Debian) and builds the preset `release`. Fails if anything did not
# happen as promised. With --keep the temporary folder stays.
set -euo pipefail

root=$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.." && pwd)
build=$root/build/release
old_build=100
new_build=101
broken_promises=0

usage() {
    echo "usage: demo.sh [--keep]" >&2
    exit 2
}

keep=false
case $* in
'') ;;
--keep) keep=true ;;
*) usage ;;
esac

scratch=$(cd -- "$(mktemp -d -t corvimo-demo.XXXXXX)" && pwd -P)
home=$scratch/home
state=$home/.Corvimo
app=$state/Corvimo.app
client=$app/Contents/MacOS/corvimo-ui
log=$state/log/launcher.log
launcher_app=$scratch/Applications/Corvimo.app

heading() {
    printf '\n\033[1m== %s\033[0m\n' "$1"
}

# promise TEXT COMMAND... - runs the command, which checks what the text claims, and prints the
# result.
promise() {
    if "${@:2}"; then
        echo "  kept    $1"
    else
        echo "  BROKEN  $1"
        broken_promises=$((broken_promises + 1))
    fi
}

# wait_until COMMAND... - gives the command ten seconds to succeed.
wait_until() {
    local tries
    for ((tries = 0; tries < 100; tries++)); do
        "$@" && return 0
        sleep 0.1
    done
    return 1
}

# Prints the processes whose executable is in the scratch folder: all of them are ours. A process
# that has ended has no executable, even if nobody has waited for it yet.
scratch_processes() {
    local process
    for process in /proc/[0-9]*; do
        [[ $(readlink "$process/exe") == "$scratch"/* ]] && echo "${process#/proc/}"
    done 2>/dev/null
    return 0
}

no_scratch_processes() {
    [[ -z $(scratch_processes) ]]
}

clean_up() {
    local pids
    mapfile -t pids < <(scratch_processes)
    ((${#pids[@]} == 0)) || kill "${pids[@]}" || true
    if ! wait_until no_scratch_processes; then
        mapfile -t pids < <(scratch_processes)
        kill -KILL "${pids[@]}" || true
    fi
    if $keep; then
        echo "The scratch folder is $scratch"
    else
        rm -rf -- "$scratch"
    fi
}

client_pid() {
    sed -n 's/^pid=//p' "$state/ui.pid" 2>/dev/null || true
}

is_running() {
    kill -0 "$1" 2>/dev/null && [[ $(readlink "/proc/$1/exe") == "$client" ]]
}

has_ended() {
    ! kill -0 "$1" 2>/dev/null
}

# client_runs_beside PID... - checks that a client runs that is none of these processes.
client_runs_beside() {
    local pid
    pid=$(client_pid)
    [[ -n $pid && " $* " != *" $pid "* ]] && is_running "$pid"
}

installed_build() {
    sed -n 's/^build_version=//p' "$app/Contents/Resources/INFO"
}

installed_equals_package() {
    "$root/scripts/make-package.sh" --verify \
        "$launcher_app/Contents/Resources/package/lumaport.cpk" "$app" >/dev/null
}

# Checks that nothing of it is among the new files, and that there is no backup.
old_copy_is_gone() {
    [[ ! -e $app/Contents/Resources/old-file ]] && ! compgen -G "$app?*" >/dev/null
}

# Prints a list of the installed files that changes when a file is written or replaced.
installed_snapshot() {
    find "$app" -printf '%i %C@ %p\n' | sort
}

log_of_this_run() {
    tail -n "+$((log_lines + 1))" "$log" || true
}

log_has() {
    log_of_this_run | grep -qF -- "$1"
}

# Fails without a log, because that proves nothing.
log_lacks() {
    [[ -s $log ]] && ! log_of_this_run | grep -qE -- "$1"
}

show_folder() {
    heading "$1"
    (cd "$home" && find .Corvimo -printf '  %M %7s  %p -> %l\n' | sed 's/ -> $//' | sort -k 3)
}

# Runs the launcher to its end and sets launcher_status.
run_launcher() {
    log_lines=0
    [[ ! -f $log ]] || log_lines=$(wc -l <"$log")
    launcher_status=0
    HOME=$home timeout 120 "$launcher_app/Contents/MacOS/launcher" >"$scratch/output" 2>&1 ||
        launcher_status=$?
    sed 's/^/  /' "$scratch/output"
    promise "the launcher ends with status 0" test "$launcher_status" -eq 0
}

show_log() {
    heading "What the launcher wrote to its log"
    log_of_this_run | sed 's/^/  /'
}

build_everything() {
    heading "Installing what the build needs, and building"
    "$root/scripts/install-dependencies.sh" build test demo
    (cd "$root" && cmake --preset release && cmake --build --preset release --target bundle example_client)
}

choose_display() {
    if [[ -n ${DISPLAY:-} ]]; then
        echo "Watch the display $DISPLAY: the windows are on it."
    else
        echo "There is no display: the windows are drawn in memory only."
        export QT_QPA_PLATFORM=offscreen
    fi
    # Qt prints a warning without this variable, which a remote shell often lacks.
    if [[ -z ${XDG_RUNTIME_DIR:-} ]]; then
        export XDG_RUNTIME_DIR=$scratch/run
        mkdir -m 700 "$XDG_RUNTIME_DIR"
    fi
}

# Leaves the windows on the display for a moment.
let_watch() {
    [[ -z ${DISPLAY:-} ]] || sleep 3
}

# Copies the bundle to a folder without a build, and sets its log levels: everything but the details
# of file operations.
lay_out() {
    local resources=$launcher_app/Contents/Resources
    mkdir -p "$scratch/Applications" "$state"
    cp -a "$build/bundle/Corvimo.app" "$launcher_app"
    mkdir "$resources/log"
    printf '%s=7\n' launcher_debug service_debug extractor_debug >"$resources/log/launcher.debug"

    cp -a "$build/examples/Corvimo.app" "$app"
    sed -i "s/^build_version=.*/build_version=$old_build/" "$app/Contents/Resources/INFO"
    echo "This file is not in build $new_build." >"$app/Contents/Resources/old-file"
}

start_old_client() {
    heading "An older client, build $old_build, is installed and running"
    # The client is a child of this shell, which waits for its end. Otherwise the ended client would
    # remain as a zombie, and the launcher would wait for it in vain.
    HOME=$home "$client" >/dev/null 2>&1 &
    old_pid=$!
    wait_until client_runs_beside || true
    promise "build $old_build runs as process $old_pid and says so in ui.pid" \
        test "$(client_pid)" = "$old_pid"
}

upgrade() {
    heading "Starting the launcher, which carries build $new_build"
    run_launcher
    promise "the old client, process $old_pid, has been stopped" has_ended "$old_pid"
    promise "build $new_build is installed" test "$(installed_build)" = "$new_build"
    promise "the installed copy equals the package, file by file" installed_equals_package
    promise "nothing of the old copy is left" old_copy_is_gone
    wait_until client_runs_beside "$old_pid" || true
    promise "the new client has been started, as process $(client_pid)" \
        client_runs_beside "$old_pid"
    promise "the log names both builds" \
        log_has "source version = $old_build, target version = $new_build"
    promise "the log holds no error and no warning" log_lacks '\[(ERROR|WARNING)\]'
}

start_again() {
    local before first_pid
    first_pid=$(client_pid)
    before=$(installed_snapshot)
    heading "Starting the launcher again: there is nothing to upgrade"
    run_launcher
    promise "no file of the installed copy was touched" test "$(installed_snapshot)" = "$before"
    promise "the running client, process $first_pid, was left alone" is_running "$first_pid"
    wait_until client_runs_beside "$first_pid" || true
    promise "the client has been opened once more, as process $(client_pid)" \
        client_runs_beside "$first_pid"
    promise "the log says that there was no need to upgrade" log_has 'no need to upgrade'
    promise "the log tells of no installation" log_lacks 'extract package'
}

main() {
    trap clean_up EXIT
    build_everything
    choose_display
    lay_out
    start_old_client
    show_folder "The home folder before"
    let_watch
    upgrade
    show_folder "The home folder after"
    show_log
    start_again
    show_log
    let_watch

    heading "Result"
    if ((broken_promises > 0)); then
        echo "Broken promises: $broken_promises"
        exit 1
    fi
    echo "Everything that was promised has happened."
}

main
