"""One function for each kind of comparison. Each returns two lists, paired run by run: what was measured
of the product, and of its peer."""

import contextlib
import functools
import json
import os
import subprocess
import threading
import time

from comparison import peers
from comparison.stage import (
    NEW_BUILD,
    OLD_BUILD,
    WARM_UPS,
    RunFailed,
    Side,
    command,
    copy_tree,
    do_nothing,
    fresh_folder,
    remove,
)

# Ends at the next of its short sleeps.
RUNNING_CLIENT = "trap 'exit 0' TERM; while :; do sleep 0.02; done"
# An inode and a directory entry in memory, with what belongs to them.
BYTES_OF_EMPTY_FILE = 1_500


def seconds(costs):
    return [[cost.seconds for cost in side] for side in costs]


def inner_seconds(costs):
    return [[cost.inner_seconds() for cost in side] for side in costs]


def mebibytes(costs):
    return [[cost.peak_kib / 1024 for cost in side] for side in costs]


def extraction(stage, kind):
    """Compares whole programs: their start counts on both sides."""
    target = stage.places.memory / "extracted"
    archive = stage.archive(kind)
    passes = [] if kind == "zip" else [peers.listing(archive)]
    sides = [
        Side(lambda: fresh_folder(target), commands)
        for commands in (
            [command(stage.program("service_op"), "extract", archive, target)],
            [*passes, peers.fair_extraction(archive, target)],
        )
    ]
    return seconds(stage.paired(sides, stage.sizes.pairs))


def removal(stage, place, shape, count):
    """Compares whole programs: their start counts on both sides."""
    tree = place / "tree"
    sides = [
        Side(lambda: stage.make_tree(shape, tree, count), [wanted])
        for wanted in (command(stage.program("file_op"), "remove", tree), peers.removal(tree))
    ]
    is_on_disk = place == stage.places.disk
    pairs = stage.sizes.disk_pairs if is_on_disk else stage.sizes.pairs
    return seconds(stage.paired(sides, pairs))


def removal_memory(stage):
    """Compares the peak memory for very many entries in one folder with that for few."""
    sizes = stage.sizes
    stage.require_room(stage.places.memory, sizes.huge, BYTES_OF_EMPTY_FILE)
    tree = stage.places.memory / "tree"
    wanted = command(stage.program("file_op"), "remove", tree)
    sides = [
        Side(functools.partial(stage.make_tree, "empty", tree, count), [wanted])
        for count in (sizes.huge, sizes.base)
    ]
    return mebibytes(stage.paired(sides, sizes.huge_pairs, warm_ups=0))


def copy(stage, place):
    """Compares the operations without the start of the programs, which differ in size."""
    target = place / "copy"
    sides = [
        Side(lambda: remove(target), [wanted])
        for wanted in (
            command(stage.program("service_op"), "copy", stage.client, target),
            peers.plain_copy(stage, stage.client, target),
        )
    ]
    is_on_disk = place == stage.places.disk
    pairs = stage.sizes.disk_pairs if is_on_disk else stage.sizes.pairs
    costs = inner_seconds(stage.paired(sides, pairs))
    remove(target)
    return costs


def move_source(stage):
    """Returns the folder to move from: on another volume than the one in memory."""
    return (stage.places.second_memory or stage.places.disk) / "tree"


def compare_move(stage, destination, peer, pairs):
    source = move_source(stage)

    def prepare():
        remove(destination)
        copy_tree(stage.client, source)

    ours = command(stage.program("file_op"), "move", source, destination)
    costs = stage.paired([Side(prepare, [ours]), Side(prepare, [peer])], pairs)
    remove(destination)
    return costs


def move(stage):
    """Compares the operations without the start of the programs."""
    destination = stage.places.memory / "moved"
    peer = peers.plain_move(stage, move_source(stage), destination)
    return inner_seconds(compare_move(stage, destination, peer, stage.sizes.pairs))


def move_against_mv(stage):
    """Compares whole programs: their start counts on both sides."""
    destination = stage.places.memory / "moved"
    peer = peers.move(move_source(stage), destination)
    return seconds(compare_move(stage, destination, peer, stage.sizes.pairs))


@functools.lru_cache(maxsize=None)
def start_costs(stage):
    stage.install(NEW_BUILD)
    commands = command(stage.launcher), peers.qt_program(stage)
    sides = [Side(do_nothing, [wanted]) for wanted in commands]
    return stage.paired(sides, stage.sizes.start_pairs)


def start(stage):
    return seconds(start_costs(stage))


def start_memory(stage):
    return mebibytes(start_costs(stage))


def upgrade(stage):
    by_hand = [
        peers.removal(stage.app / "Contents"),
        peers.fair_extraction(stage.zip, stage.app),
        peers.qt_program(stage),
    ]
    sides = [
        Side(lambda: stage.install(OLD_BUILD), commands)
        for commands in ([command(stage.launcher)], by_hand)
    ]
    stage.check_upgrade()
    return seconds(stage.paired(sides, stage.sizes.pairs))


def time_to_open(stage):
    """Returns the seconds from the start of the launcher to that of `open`."""
    note = stage.places.memory / "opened"
    note.write_text("")
    begin = time.monotonic()
    environment = {**stage.environment, "NOTE_TIME": str(note)}
    subprocess.run([stage.launcher], env=environment, check=True, stdout=subprocess.DEVNULL)
    for _ in range(1000):  # The launcher does not wait for it.
        if note.read_text().endswith("\n"):
            return float(note.read_text()) - begin
        time.sleep(0.01)
    raise RunFailed("the launcher has not called open")


@contextlib.contextmanager
def running_client(stage):
    """Runs a client as the launcher finds it. Its end is noticed at once, as the system's first process
    does it."""
    client = subprocess.Popen(["sh", "-c", RUNNING_CLIENT])
    pid_file = stage.home / ".Corvimo/ui.pid"
    pid_file.write_text(f"pid={client.pid}\n")
    reaper = threading.Thread(target=client.wait)
    reaper.start()
    try:
        yield
    finally:
        client.kill()
        reaper.join()
        pid_file.unlink()


def stop(stage):
    sides = [[], []]
    for index in range(-WARM_UPS, stage.sizes.pairs):
        for taken, is_running in zip(sides, (True, False)):
            stage.install(OLD_BUILD)
            os.sync()
            with running_client(stage) if is_running else contextlib.nullcontext():
                seconds_taken = time_to_open(stage)
            if index >= 0:
                taken.append(seconds_taken)
    return sides


@functools.lru_cache(maxsize=None)
def part_times(stage, program):
    """Returns what each benchmark of a program took, repetition by repetition."""
    words = [
        stage.program(program),
        f"--benchmark_repetitions={stage.sizes.part_pairs}",
        f"--benchmark_min_time={stage.sizes.part_seconds}",
        "--benchmark_enable_random_interleaving=true",
        "--benchmark_format=json",
    ]
    output = subprocess.run(
        words,
        env=stage.environment,
        check=True,
        stdout=subprocess.PIPE,
        stderr=subprocess.DEVNULL,
    ).stdout
    times = {}
    for entry in json.loads(output)["benchmarks"]:
        if "error_message" in entry:
            raise RunFailed(f"{entry['run_name']}: {entry['error_message']}")
        if entry["run_type"] == "iteration":
            times.setdefault(entry["run_name"], []).append(entry)
    return times


def part(stage, program, ours, peer):
    """Compares the nanoseconds of processor time that each of two benchmarks takes."""
    times = part_times(stage, program)
    return [[entry["cpu_time"] for entry in times[name]] for name in (ours, peer)]


def log_rate(stage, peer, threads):
    """Compares the records of each millisecond; with several threads, waiting for each other counts."""
    times = part_times(stage, "log_bench")
    names = (f"{name}/real_time/threads:{threads}" for name in ("WriteRecord", peer))
    return [[1e6 / entry["real_time"] for entry in times[name]] for name in names]
