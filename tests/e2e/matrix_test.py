"""The launcher, with each of its calls of one kind failing, or killed at each of them:

    matrix_test.py KIND [SHARD OF]

A run takes a sample of the calls; with CORVIMO_WHOLE_MATRIX set it takes all of them. Whatever
happens, the person's data and a whole client must be there afterwards, or after the next start."""

import dataclasses
import errno
import itertools
import os
import pathlib
import shutil
import sys
import unittest

from scene import APP, INFO, IS_WHOLE, PLIST, TRIES, Scene, main, mount_volume, pack, snapshot
from scene import write

KILL = 0
ERRORS = errno.EIO, errno.ENOSPC, errno.EACCES, errno.EMFILE, errno.ENOMEM, errno.EINTR
DATA = "data/file", "data/deep/other"

# Only notes its start, and ends.
CLIENT_SCRIPT = """\
#!/bin/sh
echo "$(sed -n 's/^build_version=//p' "${0%/*}/../Resources/INFO") $$" >>"$HOME/started"
"""


@dataclasses.dataclass(frozen=True)
class Scenario:
    """What is there when the launcher starts."""

    name: str
    files: int = 4
    has_old_client: bool = True  # Else it has the older product.
    package_is_bad: bool = False
    is_on_another_volume: bool = False


SMALL = (
    Scenario("upgrade"),
    Scenario("upgrade with a bad package", package_is_bad=True),
    Scenario("migration", has_old_client=False),
    Scenario("migration to another volume", has_old_client=False, is_on_another_volume=True),
)
LARGE = Scenario("large upgrade", files=300)


def entries_of(build, files, extra=()):
    yield "Contents/Info.plist", 0o100644, PLIST
    yield "Contents/MacOS/corvimo-ui", 0o100755, CLIENT_SCRIPT
    for i in range(files):
        name = f"Contents/{i // 20}/{i}-{build}"
        yield name, 0o100644 if i % 3 else 0o100755, name
        yield f"{name}-link", 0o120777, "../Info.plist"
    yield from extra
    yield "Contents/Resources/INFO", 0o100644, INFO.format(build)


def tree_of(entries):
    """The snapshot of what the entries must become."""
    tree = {}
    for name, mode, content in entries:
        tree.update((str(path), "dir") for path in pathlib.PurePath(name).parents[:-1])
        is_link = mode >> 12 == 0o12
        tree[name] = content if is_link else (mode & 0o777, content.encode())
    return tree


class Stage(Scene):
    """One person's machine, to be put back to its beginning again and again."""

    def __init__(self, test, scenario):
        super().__init__(test)
        self.scenario = scenario
        self.state = self.home / ".Corvimo"
        self.state.mkdir()
        if scenario.is_on_another_volume:
            mount_volume(test, self.state, "mode=755")
        self.trees = {}
        for build in ("100", "101", "102"):
            entries = list(entries_of(build, scenario.files))
            self.trees[build] = tree_of(entries)
            pack(self.folder / build, entries)
        outside = "Contents/../../outside", 0o100644, ""
        pack(self.folder / "bad", entries_of("101", scenario.files, [outside]))
        test.assertEqual([], self.faults_of_installing("100"))
        shutil.copytree(self.home / APP, self.folder / "old", symlinks=True)

    def reset(self):
        for name in (".Corvimo/" + name for name in os.listdir(self.state)):
            path = self.home / name
            shutil.rmtree(path) if path.is_dir() else path.unlink()
        shutil.rmtree(self.home / ".Lumaport", ignore_errors=True)
        if self.scenario.has_old_client:
            shutil.copytree(self.folder / "old", self.home / APP, symlinks=True)
        for file in DATA:
            owner = ".Corvimo" if self.scenario.has_old_client else ".Lumaport"
            write(self.home / owner / file, file)

    def carry(self, build, package=None):
        shutil.copy(self.folder / (package or build), self.package)
        write(self.contents / "Resources/INFO", INFO.format(build))

    def run_to_the_end(self, **variables):
        """Waits for what the launcher has started, too."""
        status = self.run(**variables)
        try:
            while True:
                os.wait()
        except ChildProcessError:
            return status

    def run_with_fault(self, call, number, error):
        """Runs the scenario from its beginning with one call failing; 0 for none."""
        self.reset()
        self.carry("101", "bad" if self.scenario.package_is_bad else None)
        return self.run_to_the_end(
            LD_PRELOAD=os.environ["FAULT_LIBRARY"],
            ASAN_OPTIONS="verify_asan_link_order=0",
            FAULT_CALL=call,
            FAULT_NUMBER=str(number),
            FAULT_ERROR=str(error),
            FAULT_REPORT=str(self.folder / "calls"),
        )

    def count_calls(self, test, call):
        test.assertEqual(0, self.run_with_fault(call, 0, KILL))
        return int((self.folder / "calls").read_text())

    def faults_of(self, call, number, error):
        """What is wrong after a run with one call failing, or after the next starts."""
        is_kill = error == KILL
        if (self.run_with_fault(call, number, error) == 0) == is_kill:
            return ["crashed, hung or not killed"]
        app = snapshot(self.home / APP)
        may_be_aside = is_kill or self.scenario.package_is_bad
        is_aside = may_be_aside and self.trees["100"] in map(snapshot, self.backups())
        is_whole = is_aside or app in (self.trees["100"], self.trees["101"])
        if self.scenario.has_old_client and not is_whole:
            return ["no whole client"]
        if not self.has_data():
            return ["data gone"]
        if app == self.trees["101"] and not is_kill:
            return []
        faults = self.faults_of_installing("101") + self.faults_of_installing("102")
        if self.backups():
            faults.append("backup left")
        if is_kill and (self.home / ".Lumaport").exists():
            faults.append("not migrated")
        return faults

    def faults_of_installing(self, build):
        """What is wrong after an ordinary start with a good package."""
        self.carry(build)
        (self.home / "started").unlink(missing_ok=True)
        faults = []
        if self.run_to_the_end() != 0 or snapshot(self.home / APP) != self.trees[build]:
            faults.append(f"{build} not installed")
        if self.started_builds(1) != [build]:
            faults.append(f"{build} not opened")
        if build != "100" and not self.has_data():
            faults.append(f"data gone after {build}")
        return faults

    def has_data(self):
        return all(
            any(
                snapshot(self.home / owner).get(file) == (0o644, file.encode())
                for owner in (".Corvimo", ".Lumaport")
            )
            for file in DATA
        )


class MatrixTest(unittest.TestCase):
    kind = ""
    shard = 0
    shards = 1

    def test_loses_nothing(self):
        scenarios = SMALL if self.shards == 1 else [LARGE]
        for scenario in scenarios:
            with self.subTest(scenario.name):
                self.check(scenario)

    def check(self, scenario):
        call = "change" if self.kind == "kill" else self.kind
        errors = [KILL] if self.kind == "kill" else ERRORS
        # Of the looks at the old client and the old data, one more than another may matter.
        sample = TRIES * (5 if call == "lstat" else 1)
        if scenario is LARGE:
            sample = 4 * TRIES + 4
        stage = Stage(self, scenario)
        count = stage.count_calls(self, call)
        steps = count if IS_WHOLE else min(count, sample)
        tried = good = 0
        for step in range(self.shard, steps, self.shards):
            number = 1 + (2 * step + 1) * count // (2 * steps)
            for error in errors if IS_WHOLE else [errors[step % len(errors)]]:
                with self.subTest(scenario.name, call=number, error=error):
                    tried += 1
                    self.assertEqual([], stage.faults_of(call, number, error))
                    good += 1
        print(f"figure: {self.kind}, {scenario.name}, {self.shard}: {good} of {tried}", flush=True)


if __name__ == "__main__":
    MatrixTest.kind, *shard = sys.argv[1:]
    if shard:
        MatrixTest.shard, MatrixTest.shards = map(int, shard)
    del sys.argv[1:]
    main()
