"""The work of compare.sh. Needs Python 3.9 and nothing but its standard library."""

import argparse
import contextlib
import dataclasses
import json
import os
import pathlib
import re
import shutil
import statistics
import subprocess
import sys
import tempfile
import threading
import time
from typing import Callable

import make_client

DESCRIPTION = """\
Compares the launcher and its parts with programs of the system that do the same work, in paired
runs A B A B, and prints for each pair the medians, the median of the ratios A/B, their middle half,
the target and whether it holds. Makes its own data. BUILD is a build folder of the preset `bench`.

Exits 0 when every target holds, 1 when one is missed, 2 on wrong usage or when a run fails."""

OLD_BUILD = 100
NEW_BUILD = 101
WARM_UPS = 1
STARTS_PER_RUN = 5  # A start is short, and so more easily disturbed.
GROWTH_COUNTS = (1_000, 10_000, 100_000)
GROWTH_LIMIT = 1.15
FILES_PER_FOLDER = 100
# What stands in for the system's tools.
TOOLS = {
    "System/Library/Frameworks/CoreServices.framework/Frameworks/LaunchServices.framework/Support"
    "/lsregister": "return_at_once",
    "usr/bin/open": "note_time",
}
# Ends at the next of its short sleeps.
RUNNING_CLIENT = "trap 'exit 0' TERM; while :; do sleep 0.02; done"


class RunFailed(Exception):
    """A measured program failed, in words for the person who ran us."""


@dataclasses.dataclass(frozen=True)
class Cost:
    """What a program, or several in a row, have cost."""

    seconds: float = 0
    peak_kib: float = 0
    output: str = ""

    def __add__(self, other):
        peak = max(self.peak_kib, other.peak_kib)
        return Cost(self.seconds + other.seconds, peak, self.output + other.output)


@dataclasses.dataclass(frozen=True)
class Side:
    """One of the two that are compared: what is put in place untimed, then what is run."""

    prepare: Callable[[], None]
    commands: list


@dataclasses.dataclass(frozen=True)
class Result:
    """What was measured of the two sides, run by run."""

    what: str
    peer: str
    ours: list
    peers: list
    unit: str
    limit: float
    at_least: bool = False

    def ratios(self):
        return [a / b for a, b in zip(self.ours, self.peers)]

    def holds(self):
        ratio = statistics.median(self.ratios())
        return ratio >= self.limit if self.at_least else ratio <= self.limit

    def row(self):
        low, ratio, high = statistics.quantiles(self.ratios(), n=4)
        ours, peers = statistics.median(self.ours), statistics.median(self.peers)
        bound = "at least" if self.at_least else "at most"
        verdict = "yes" if self.holds() else "**no**"
        return (
            f"| {self.what} | {self.peer} | {ours:.3g} / {peers:.3g} {self.unit} |"
            f" {ratio:.2f} | {low:.2f} to {high:.2f} | {bound} {self.limit:.2f} | {verdict} |"
        )


@dataclasses.dataclass(frozen=True)
class Difference(Result):
    """The same with the difference of the two sides in the place of the ratio."""

    def ratios(self):
        return [a - b for a, b in zip(self.ours, self.peers)]


HEADER = """\
| What | Peer | Medians | Ratio | Middle half | Target | Holds |
|---|---|---|---|---|---|---|"""


def fresh_folder(path):
    shutil.rmtree(path, ignore_errors=True)
    path.mkdir(parents=True)


def copy_tree(source, destination):
    shutil.rmtree(destination, ignore_errors=True)
    destination.parent.mkdir(parents=True, exist_ok=True)
    subprocess.run(["cp", "-a", source, destination], check=True)


class Stage:
    """The data and the places of all comparisons."""

    def __init__(self, build, folder, other_volume):
        self.build = build
        self.folder = folder
        self.other_volume = other_volume
        self.client = folder / "client"
        self.home = other_volume / "home"  # In memory, where a disk disturbs nothing.
        self.app = self.home / ".Corvimo/Corvimo.app"
        self.bundle = folder / "Launcher.app"
        self.resources = self.bundle / "Contents/Resources"
        self.launcher = self.bundle / "Contents/MacOS/launcher"
        self.zip = self.resources / "package/lumaport.cpk"
        self.environment = {
            "HOME": str(self.home),
            "LANG": "C.UTF-8",
            "PATH": os.environ["PATH"],
            "QT_QPA_PLATFORM": "offscreen",
            "XDG_RUNTIME_DIR": str(folder),
        }

    def program(self, name):
        return self.build / "bench" / name

    def run(self, command):
        """Runs a program to its end and gives its cost."""
        result = subprocess.run(
            [self.program("measure"), *command],
            env=self.environment,
            stdin=subprocess.DEVNULL,
            stdout=subprocess.PIPE,
            text=True,
        )
        if result.returncode != 0:
            words = " ".join(str(part) for part in command)
            raise RunFailed(f"'{words}' ended with status {result.returncode}")
        *output, cost = result.stdout.splitlines()
        seconds, peak_kib = cost.split()
        return Cost(float(seconds), int(peak_kib), "\n".join(output))

    def set_up(self):
        print("Making a client to install...", file=sys.stderr)
        make_client.make_client(self.client, NEW_BUILD)
        shutil.copytree(self.build / "bundle/Corvimo.app", self.bundle, symlinks=True)
        for tool, stand_in in TOOLS.items():
            place = self.bundle / "Contents/PlatformTools" / tool
            shutil.copy(self.program(stand_in), place)
        packer = pathlib.Path(__file__).parent.parent / "scripts/make-package.sh"
        subprocess.run([packer, self.client, self.resources], check=True, stdout=subprocess.DEVNULL)

    def archive(self, name, option):
        path = self.folder / name
        if not path.exists():
            command = ["bsdtar", option, "-cf", path, "-C", self.client, "Contents"]
            subprocess.run(command, check=True)
        return path

    def install(self, build):
        copy_tree(self.client, self.app)
        make_client.write_info(self.app, build)

    def check_upgrade(self):
        """That what is measured as an upgrade is one."""
        self.install(OLD_BUILD)
        self.run([self.launcher])
        subprocess.run(["diff", "-r", self.client, self.app], check=True, stdout=sys.stderr)


def paired(stage, sides, runs):
    """The costs of each side in paired runs A B A B, after warming up."""
    costs = [[] for _ in sides]
    for index in range(-WARM_UPS, runs):
        for side, taken in zip(sides, costs):
            side.prepare()
            os.sync()  # What was written before does not slow down what is timed.
            cost = sum((stage.run(command) for command in side.commands), Cost())
            if index >= 0:
                taken.append(cost)
    return costs


def seconds(costs):
    return [[cost.seconds for cost in side] for side in costs]


def mebibytes(costs):
    return [[cost.peak_kib / 1024 for cost in side] for side in costs]


def compare_extraction(stage, runs):
    target = stage.folder / "extracted"
    ours = [stage.program("service_op"), "extract"]
    bsdtar = ["bsdtar", "-C", target, "-xf"]
    unzip = ["unzip", "-q", "-d", target]
    tar_gz = stage.archive("client.tar.gz", "--gzip")
    tar_zst = stage.archive("client.tar.zst", "--zstd")
    for kind, archive, peer, command, limit in (
        ("zip", stage.zip, "`bsdtar -xf`", bsdtar, 1.00),
        ("zip", stage.zip, "`unzip -q`", unzip, 0.95),
        ("tar.gz", tar_gz, "`bsdtar -xf`", bsdtar, 1.10),
        ("tar.zst", tar_zst, "`bsdtar -xf`", bsdtar, 1.05),
    ):
        commands = ours + [archive, target], command + [archive]
        sides = [Side(lambda: fresh_folder(target), [command]) for command in commands]
        costs = paired(stage, sides, runs)
        yield Result(f"`Extract`, {kind}", peer, *seconds(costs), "s", limit)


def compare_removal(stage, runs):
    tree = stage.folder / "tree"
    commands = [stage.program("file_op"), "remove", tree], ["rm", "-rf", tree]
    sides = [Side(lambda: copy_tree(stage.client, tree), [command]) for command in commands]
    costs = paired(stage, sides, runs)
    yield Result("`FSRemove`", "`rm -rf`", *seconds(costs), "s", 1.25)


def compare_copy(stage, runs):
    copy = stage.folder / "copy"
    commands = (
        [stage.program("service_op"), "copy", stage.client, copy],
        ["rsync", "-r", "--fsync", f"{stage.client}/", copy],
    )
    sides = [
        Side(lambda: shutil.rmtree(copy, ignore_errors=True), [command]) for command in commands
    ]
    costs = paired(stage, sides, runs)
    yield Result("`FSCopyPath`", "`rsync -r --fsync`", *seconds(costs), "s", 1.00)


def compare_move(stage, runs):
    source, destination = stage.other_volume / "tree", stage.folder / "moved"

    def prepare():
        shutil.rmtree(destination, ignore_errors=True)
        copy_tree(stage.client, source)

    file_op, service_op = stage.program("file_op"), stage.program("service_op")
    sides = [
        Side(prepare, [[file_op, "move", source, destination]]),
        Side(prepare, [[service_op, "copy", source, destination], [file_op, "remove", source]]),
    ]
    costs = paired(stage, sides, runs)
    peer = "`FSCopyPath`, `FSRemove`"
    yield Result("`FSRename` across volumes", peer, *seconds(costs), "s", 1.05)


def compare_start(stage, runs):
    stage.install(NEW_BUILD)
    programs = stage.launcher, stage.program("qt_peer")
    sides = [Side(lambda: None, [[program]]) for program in programs]
    costs = paired(stage, sides, STARTS_PER_RUN * runs)
    peer = "a Qt program with a progress dialog"
    yield Result("start with nothing to do", peer, *seconds(costs), "s", 1.35)
    yield Result("its peak memory", peer, *mebibytes(costs), "MiB", 1.15)


def compare_upgrade(stage, runs):
    by_hand = [
        ["rm", "-rf", stage.app / "Contents"],
        ["bsdtar", "-C", stage.app, "-xf", stage.zip],
        [stage.launcher],
    ]
    sides = [
        Side(lambda: stage.install(OLD_BUILD), commands)
        for commands in ([[stage.launcher]], by_hand)
    ]
    stage.check_upgrade()
    costs = paired(stage, sides, runs)
    peer = "`rm -rf`, `bsdtar -xf`, a start"
    yield Result("a whole upgrade", peer, *seconds(costs), "s", 1.05)


def time_to_open(stage):
    """The seconds from the start of the launcher to that of `open`."""
    note = stage.folder / "opened"
    note.write_text("")
    begin = time.monotonic()
    environment = stage.environment | {"NOTE_TIME": str(note)}
    subprocess.run([stage.launcher], env=environment, check=True, stdout=subprocess.DEVNULL)
    for _ in range(1000):  # The launcher does not wait for it.
        if note.read_text().endswith("\n"):
            return float(note.read_text()) - begin
        time.sleep(0.01)
    raise RunFailed("the launcher has not called open")


@contextlib.contextmanager
def running_client(stage):
    """A client as the launcher finds it: its end is noticed at once, as the system's first process does
    it."""
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


def compare_stop(stage, runs):
    sides = [[], []]
    for index in range(-WARM_UPS, runs):
        for taken, client in zip(sides, (running_client(stage), contextlib.nullcontext())):
            stage.install(OLD_BUILD)
            os.sync()
            with client:
                seconds_taken = time_to_open(stage)
            if index >= 0:
                taken.append(seconds_taken)
    what = "an upgrade until `open` is called, of a running client (difference)"
    yield Difference(what, "without a running client", *sides, "s", 0.15)


def part_times(stage, program, runs, clock):
    """The nanoseconds of each benchmark of a program, repetition by repetition. The `cpu_time` of
    one thread tells of its work alone, the `real_time` also of waiting for others."""
    command = [
        stage.program(program),
        f"--benchmark_repetitions={runs}",
        "--benchmark_enable_random_interleaving=true",
        "--benchmark_format=json",
    ]
    output = subprocess.run(
        command, check=True, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL
    ).stdout
    times = {}
    for entry in json.loads(output)["benchmarks"]:
        if entry["run_type"] == "iteration":
            times.setdefault(entry["run_name"], []).append(entry[clock])
    return times


def compare_log(stage, runs):
    times = part_times(stage, "log_bench", runs, "real_time")
    for threads in (1, 4):
        rates = [
            [1e6 / time for time in times[f"{name}/real_time/threads:{threads}"]]
            for name in ("WriteRecord", "WriteRecordPeer")
        ]
        what = f"written records, threads: {threads}"
        yield Result(what, "spdlog", *rates, "per ms", 1.00, at_least=True)
    times = part_times(stage, "log_bench", runs, "cpu_time")
    ours, peers = times["SuppressRecord"], times["SuppressRecordPeer"]
    yield Result("a suppressed record", "`std::map` lookup", ours, peers, "ns", 1.30)


def compare_existence(stage, runs):
    times = part_times(stage, "file_bench", runs, "cpu_time")
    ours, peers = times["ExistExactly"], times["ExistExactlyPeer"]
    yield Result("`IsFileExist` exact, 8 levels", "`realpath()`", ours, peers, "ns", 1.20)


def compare_normalization(stage, runs):
    times = part_times(stage, "string_helper_bench", runs, "cpu_time")
    for kind in ("composed", "decomposed"):
        ours, peers = times[f"Normalize/{kind}"], times[f"NormalizePeer/{kind}"]
        yield Result(f"`Normalize`, {kind}", "ICU directly", ours, peers, "ns", 1.05)
    ours, peers = times["Normalize/ascii"], times["NormalizePeer/ascii"]
    yield Result("`Normalize`, ASCII", "ICU directly", ours, peers, "ns", 1 / 3)


def spread_tree(folder, count):
    for index in range(count):
        if index % FILES_PER_FOLDER == 0:
            parent = folder / f"folder-{index // FILES_PER_FOLDER:04}"
            parent.mkdir(parents=True)
        (parent / f"file-{index:06}").write_bytes(b"content\n")


def flat_folder(folder, count):
    folder.mkdir(parents=True)
    for index in range(count):
        (folder / f"file-{index:06}").touch()


# In memory where that is the other volume: what is compared with itself shall not also wait for a disk,
# which takes the more time for each file the more of them it has to write.
def growth_place(stage, count):
    place = stage.other_volume / f"growth-{count}"
    spread_tree(place / "spread", count)
    flat_folder(place / "flat", count)
    for kind in ("zip", "ustar"):
        archive = place / f"spread.{kind}"
        command = ["bsdtar", "--format", kind, "-cf", archive, "-C", place, "spread"]
        subprocess.run(command, check=True)
    return place


def growth_operations(stage, place):
    """By name, in the order of a round. What is removed is what was extracted last, in the round before
    (the first of them warms up), so that the next extraction finds the memory still in use."""
    target = place / "extracted"
    extract = [stage.program("service_op"), "extract"]
    file_op = stage.program("file_op")
    return {
        "listing": Side(lambda: None, [[file_op, "list", place / "flat"]]),
        "removal": Side(lambda: None, [[file_op, "remove", target]]),
        "extraction, tar": Side(
            lambda: fresh_folder(target), [extract + [place / "spread.ustar", target]]
        ),
        "extraction, zip": Side(
            lambda: fresh_folder(target), [extract + [place / "spread.zip", target]]
        ),
    }


def compare_growth(stage, runs):
    operations = [growth_operations(stage, growth_place(stage, count)) for count in GROWTH_COUNTS]
    rounds = {name: [[] for _ in GROWTH_COUNTS] for name in operations[0]}
    for index in range(-WARM_UPS, runs):
        for name, costs in rounds.items():
            for sides, taken in zip(operations, costs):
                cost = paired_once(stage, sides[name])
                if index >= 0:
                    taken.append(cost)
    for name, costs in rounds.items():
        # Without the start of the program, which would count for more the fewer entries there are.
        micros = [
            [float(cost.output) / count * 1e6 for cost in taken]
            for count, taken in zip(GROWTH_COUNTS, costs)
        ]
        memory = mebibytes(costs)
        for i in (1, 2):
            what = f"{name}: time per entry, {GROWTH_COUNTS[i]} entries"
            yield Result(what, "1000 entries", micros[i], micros[0], "µs", GROWTH_LIMIT)
        what = f"{name}: peak memory, {GROWTH_COUNTS[-1]} entries"
        yield Result(what, "1000 entries", memory[-1], memory[0], "MiB", GROWTH_LIMIT)


def paired_once(stage, side):
    side.prepare()
    os.sync()
    return stage.run(side.commands[0])


COMPARISONS = {
    "extraction": compare_extraction,
    "removal": compare_removal,
    "copy": compare_copy,
    "move": compare_move,
    "start": compare_start,
    "upgrade": compare_upgrade,
    "stop": compare_stop,
    "log": compare_log,
    "existence": compare_existence,
    "normalization": compare_normalization,
    "growth": compare_growth,
}


def parse_arguments():
    parser = argparse.ArgumentParser(
        prog="compare.sh",
        description=DESCRIPTION,
        formatter_class=argparse.RawDescriptionHelpFormatter,
    )
    parser.add_argument("build", type=pathlib.Path, metavar="BUILD")
    parser.add_argument("--runs", type=int, default=7, help="paired runs of each (default 7)")
    parser.add_argument(
        "--only", default="", metavar="PATTERN", help="of " + ", ".join(COMPARISONS)
    )
    parser.add_argument(
        "--other-volume",
        type=pathlib.Path,
        default=pathlib.Path("/dev/shm"),
        metavar="FOLDER",
        help="on another volume than the temporary folder (default /dev/shm)",
    )
    arguments = parser.parse_args()
    if not (arguments.build / "bench/service_op").exists():
        parser.error(f"'{arguments.build}' holds no benchmarks; build the preset bench")
    if arguments.runs < 2:
        parser.error("a spread needs at least 2 runs")
    return arguments


def main():
    arguments = parse_arguments()
    results = []
    with tempfile.TemporaryDirectory() as folder, tempfile.TemporaryDirectory(
        dir=arguments.other_volume
    ) as other_volume:
        stage = Stage(arguments.build.resolve(), pathlib.Path(folder), pathlib.Path(other_volume))
        stage.set_up()
        print(HEADER)
        for name, compare in COMPARISONS.items():
            if re.search(arguments.only, name):
                for result in compare(stage, arguments.runs):
                    print(result.row(), flush=True)
                    results.append(result)
    return 0 if all(result.holds() for result in results) else 1


if __name__ == "__main__":
    try:
        sys.exit(main())
    except (RunFailed, OSError, subprocess.CalledProcessError) as error:
        print(f"compare.sh: {error}", file=sys.stderr)
        sys.exit(2)
