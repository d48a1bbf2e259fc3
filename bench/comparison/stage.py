"""The data and the places of all comparisons, and the running of programs."""

import dataclasses
import os
import pathlib
import shutil
import subprocess
import sys
from typing import Callable, Optional

import make_client

OLD_BUILD = 100
NEW_BUILD = 101
WARM_UPS = 1
# What stands in for the system's tools.
TOOLS = {
    "System/Library/Frameworks/CoreServices.framework/Frameworks/LaunchServices.framework/Support"
    "/lsregister": "return_at_once",
    "usr/bin/open": "note_time",
}


class RunFailed(Exception):
    """A measured program failed, in words for the person who ran us."""


class Skipped(Exception):
    """A comparison cannot be made here, in words for the table."""


@dataclasses.dataclass(frozen=True)
class Sizes:
    """How much is measured: numbers of entries, and numbers of paired runs."""

    base: int = 1_000  # Entries, for the memory that does not depend on them.
    small: int = 10_000
    large: int = 100_000
    huge: int = 1_000_000
    depth: int = 1_900
    client_files: int = 3_000
    client_folders: int = 400
    client_bytes: int = 85_000_000
    pairs: int = 11
    disk_pairs: int = 7
    start_pairs: int = 35  # A start is short, and so more easily disturbed.
    part_pairs: int = 21
    part_seconds: float = 0.1
    growth_pairs: int = 11
    disk_growth_pairs: int = 3
    huge_pairs: int = 3


QUICK = Sizes(
    base=100,
    small=200,
    large=2_000,
    huge=5_000,
    depth=190,
    client_files=300,
    client_folders=40,
    client_bytes=8_500_000,
    pairs=2,
    disk_pairs=2,
    start_pairs=2,
    part_pairs=2,
    part_seconds=0.01,
    growth_pairs=2,
    disk_growth_pairs=2,
    huge_pairs=2,
)


@dataclasses.dataclass(frozen=True)
class Places:
    """Folders to work in. `second_memory` is on another volume than `memory`, where there is one."""

    memory: pathlib.Path
    disk: pathlib.Path
    second_memory: Optional[pathlib.Path] = None


@dataclasses.dataclass(frozen=True)
class Cost:
    """What a program, or several in a row, have cost."""

    seconds: float = 0
    peak_kib: float = 0
    output: str = ""

    def __add__(self, other):
        peak = max(self.peak_kib, other.peak_kib)
        return Cost(self.seconds + other.seconds, peak, self.output + other.output)

    def inner_seconds(self):
        """Returns what the program itself has measured: without its start and its end."""
        return float(self.output)


@dataclasses.dataclass(frozen=True)
class Command:
    """A program with its arguments; with `is_quiet`, what it prints goes to /dev/null."""

    words: tuple
    is_quiet: bool = False


def command(*words, is_quiet=False):
    return Command(tuple(str(word) for word in words), is_quiet)


@dataclasses.dataclass(frozen=True)
class Side:
    """One of the two that are compared: what is put in place untimed, then what is run."""

    prepare: Callable[[], None]
    commands: list


def do_nothing():
    pass


def remove(*paths):
    """Removes trees, by a program that is quicker than Python."""
    subprocess.run(["rm", "-rf", *paths], check=True)


def fresh_folder(path):
    remove(path)
    path.mkdir(parents=True)


def copy_tree(source, destination):
    remove(destination)
    destination.parent.mkdir(parents=True, exist_ok=True)
    subprocess.run(["cp", "-a", source, destination], check=True)


def available_memory():
    """Returns the bytes that the system can still give; None where it does not tell."""
    try:
        lines = pathlib.Path("/proc/meminfo").read_text().splitlines()
    except OSError:
        return None
    fields = dict(line.split(":", 1) for line in lines)
    return int(fields["MemAvailable"].split()[0]) * 1024


class Stage:
    """The data and the places of all comparisons."""

    def __init__(self, build, places, sizes):
        self.build = build
        self.places = places
        self.sizes = sizes
        self.client = places.memory / "client"
        self.home = places.memory / "home"
        self.app = self.home / ".Corvimo/Corvimo.app"
        self.bundle = places.memory / "Launcher.app"
        self.resources = self.bundle / "Contents/Resources"
        self.launcher = self.bundle / "Contents/MacOS/launcher"
        self.zip = self.resources / "package/lumaport.cpk"
        self.environment = {
            "HOME": str(self.home),
            "LANG": "C.UTF-8",
            "PATH": os.environ["PATH"],
            "QT_QPA_PLATFORM": "offscreen",
            "TMPDIR": str(places.memory),
            "XDG_RUNTIME_DIR": str(places.memory),
        }

    def program(self, name):
        return self.build / "bench" / name

    def run(self, wanted):
        """Runs a command to its end and returns its cost."""
        quiet = ["--quiet"] if wanted.is_quiet else []
        result = subprocess.run(
            [self.program("measure"), *quiet, *wanted.words],
            env=self.environment,
            stdin=subprocess.DEVNULL,
            stdout=subprocess.PIPE,
            text=True,
        )
        if result.returncode != 0:
            raise RunFailed(f"'{' '.join(wanted.words)}' ended with status {result.returncode}")
        *output, cost = result.stdout.splitlines()
        seconds, peak_kib = cost.split()
        return Cost(float(seconds), int(peak_kib), "\n".join(output))

    def run_side(self, side):
        """Prepares a side, runs it and returns its cost."""
        side.prepare()
        os.sync()  # What was written before does not slow down what is timed.
        return sum((self.run(wanted) for wanted in side.commands), Cost())

    def paired(self, sides, pairs, warm_ups=WARM_UPS):
        """Returns the costs of each side in paired runs A B A B, after warming up."""
        costs = [[] for _ in sides]
        for index in range(-warm_ups, pairs):
            for side, taken in zip(sides, costs):
                cost = self.run_side(side)
                if index >= 0:
                    taken.append(cost)
        return costs

    def set_up(self):
        print("Making a client to install...", file=sys.stderr)
        sizes = self.sizes
        make_client.make_client(
            self.client,
            NEW_BUILD,
            files=sizes.client_files,
            folders=sizes.client_folders,
            size=sizes.client_bytes,
        )
        shutil.copytree(self.build / "bundle/Corvimo.app", self.bundle, symlinks=True)
        for tool, stand_in in TOOLS.items():
            place = self.bundle / "Contents/PlatformTools" / tool
            shutil.copy(self.program(stand_in), place)
        packer = pathlib.Path(__file__).parents[2] / "scripts/make-package.sh"
        subprocess.run([packer, self.client, self.resources], check=True, stdout=subprocess.DEVNULL)

    def archive(self, kind):
        """Returns the client as an archive of that kind; a zip is the package itself."""
        if kind == "zip":
            return self.zip
        path = self.places.memory / f"client.{kind}"
        if not path.exists():
            option = {"tar.gz": "--gzip", "tar.zst": "--zstd"}[kind]
            words = ["bsdtar", option, "-cf", path, "-C", self.client, "Contents"]
            subprocess.run(words, check=True)
        return path

    def install(self, build):
        copy_tree(self.client, self.app)
        make_client.write_info(self.app, build)

    def check_upgrade(self):
        """Checks that what is measured as an upgrade is one."""
        self.install(OLD_BUILD)
        self.run(command(self.launcher))
        subprocess.run(["diff", "-r", self.client, self.app], check=True, stdout=sys.stderr)

    def make_tree(self, shape, path, count):
        """Makes a tree of one of the shapes of make_tree.cpp, in place of what is there."""
        remove(path)
        subprocess.run([self.program("make_tree"), shape, path, str(count)], check=True)

    def require_room(self, place, files, bytes_of_each):
        """Raises Skipped where a folder's volume, or the memory it is in, cannot take so many files."""
        status = os.statvfs(place)
        needed = files * bytes_of_each
        # Some file systems count no files; they say 0.
        if status.f_files != 0 and status.f_favail < files:
            raise Skipped(f"the volume has no room for {files:,} files")
        if status.f_bavail * status.f_frsize < needed:
            raise Skipped(f"the volume has no room for {needed >> 20:,} MiB")
        memory = available_memory()
        if place != self.places.disk and memory is not None and memory < needed:
            raise Skipped(f"less than {needed >> 20:,} MiB of memory are free")
