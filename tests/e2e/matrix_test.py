"""The launcher, with each of its calls of one kind failing, or killed at each of them:

    matrix_test.py KIND [SHARD OF]

A run takes a sample of the calls; with CORVIMO_WHOLE_MATRIX set it takes all of them. Whatever
happens, the person's data and a whole client must be there afterwards, or after the next start."""

import contextlib
import dataclasses
import errno
import os
import shutil
import signal
import sys
import unittest

from scene import APP, IS_WHOLE, TRIES, Scene, main, mount_volume, snapshot, write

KILL = 0
ERRORS = errno.EIO, errno.ENOSPC, errno.EACCES, errno.EMFILE, errno.ENOMEM, errno.EINTR
DATA = "data/file", "data/deep/other"
OUTSIDE = "Contents/../../outside", 0o100644, ""

# Only notes its start, and ends.
CLIENT_SCRIPT = """\
#!/bin/sh
echo "$(sed -n 's/^build_version=//p' "${0%/*}/../Resources/INFO") $$" >>"$HOME/started"
"""


# What is there when the launcher starts.
@dataclasses.dataclass(frozen=True)
class Scenario:
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


# One person's machine, to be put back to its beginning again and again.
class Stage(Scene):
    def __init__(self, test, scenario):
        super().__init__(test, client=CLIENT_SCRIPT)
        self.scenario = scenario
        self.owner = self.home / (".Corvimo" if scenario.has_old_client else ".Lumaport")
        (self.home / ".Corvimo").mkdir()
        if scenario.is_on_another_volume:
            mount_volume(test, self.home / ".Corvimo", "mode=755")
        self.check_installing("100")
        self.old_tree = snapshot(self.home / APP)
        shutil.copytree(self.home / APP, self.folder / "old", symlinks=True)

    def carry(self, build, is_bad=False):
        extra = [OUTSIDE] * is_bad
        for i in range(self.scenario.files):
            name = f"Contents/{i // 20}/{i}-{build}"
            extra.append((f"{name}-link", 0o120777, "../Info.plist"))
            extra.append((name, 0o100644 if i % 3 else 0o100755, name))
        return self.carry_client(build, extra)

    # Waits for what the launcher has started, too.
    def run_to_the_end(self, **variables):
        status = self.run(**variables)
        with contextlib.suppress(ChildProcessError):
            while True:
                os.wait()
        return status

    # Runs the scenario from its beginning with one call failing (0 for none). Gives the exit status
    # and what the package must become.
    def run_with_fault(self, call, number, error):
        for path in (self.home / ".Corvimo").iterdir():
            shutil.rmtree(path) if path.is_dir() else path.unlink()
        shutil.rmtree(self.home / ".Lumaport", ignore_errors=True)
        if self.scenario.has_old_client:
            shutil.copytree(self.folder / "old", self.home / APP, symlinks=True)
        for file in DATA:
            write(self.owner / file, file)
        new_tree = self.carry("101", self.scenario.package_is_bad)
        status = self.run_to_the_end(
            LD_PRELOAD=os.environ["FAULT_LIBRARY"],
            ASAN_OPTIONS="verify_asan_link_order=0",
            FAULT_CALL=call,
            FAULT_NUMBER=str(number),
            FAULT_ERROR=str(error),
            FAULT_REPORT=str(self.folder / "calls"),
        )
        return status, new_tree

    def count_calls(self, call):
        status, _ = self.run_with_fault(call, 0, KILL)
        self.test.assertEqual(0, status)
        return int((self.folder / "calls").read_text())

    # Has one call fail, or the launcher killed at it, and checks what is there then and after the
    # next starts.
    def check_fault(self, call, number, error):
        is_kill = error == KILL
        status, new_tree = self.run_with_fault(call, number, error)
        self.test.assertEqual(-signal.SIGKILL if is_kill else 0, status)
        app = snapshot(self.home / APP)
        if self.scenario.has_old_client and app != new_tree:
            may_be_aside = is_kill or self.scenario.package_is_bad
            places = [app, *map(snapshot, self.backups() if may_be_aside else ())]
            self.test.assertIn(self.old_tree, places, "no whole client")
        self.check_data()
        if app == new_tree and not is_kill:
            return
        for build in ("101", "102"):
            self.check_installing(build)
            self.check_data()
        self.test.assertEqual([], self.backups())
        self.test.assertFalse(is_kill and (self.home / ".Lumaport").exists(), "not migrated")

    # Starts the launcher in an ordinary way, with a good package.
    def check_installing(self, build):
        tree = self.carry(build)
        (self.home / "started").unlink(missing_ok=True)
        self.test.assertEqual(0, self.run_to_the_end())
        self.test.assertEqual(tree, snapshot(self.home / APP))
        self.check_started(build)

    def check_data(self):
        trees = snapshot(self.home / ".Corvimo"), snapshot(self.home / ".Lumaport")
        for file in DATA:
            self.test.assertIn((0o644, file.encode()), [tree.get(file) for tree in trees])


class MatrixTest(unittest.TestCase):
    kind = ""
    shard = 0
    shards = 1

    def test_loses_nothing(self):
        for scenario in SMALL if self.shards == 1 else [LARGE]:
            with self.subTest(scenario.name):
                self.check(Stage(self, scenario))

    def check(self, stage):
        call = "change" if self.kind == "kill" else self.kind
        errors = [KILL] if self.kind == "kill" else ERRORS
        # Of the looks at the old client and the old data, one more than another may matter.
        sample = TRIES * (5 if call == "lstat" else 1)
        if stage.scenario is LARGE:
            sample = 4 * TRIES + 4
        count = stage.count_calls(call)
        steps = count if IS_WHOLE else min(count, sample)
        flushes = stage.scenario.is_on_another_volume
        self.assertTrue(steps or (call == "fsync" and not flushes), "no call seen")
        tried = good = 0
        for step in range(self.shard, steps, self.shards):
            number = 1 + (2 * step + 1) * count // (2 * steps)
            for error in errors if IS_WHOLE else [errors[step % len(errors)]]:
                with self.subTest(stage.scenario.name, call=number, error=error):
                    tried += 1
                    stage.check_fault(call, number, error)
                    good += 1
        name = f"{self.kind}, {stage.scenario.name}, {self.shard + 1}/{self.shards}"
        print(f"figure: {name}: {good} of {tried}", flush=True)


if __name__ == "__main__":
    MatrixTest.kind, *shard = sys.argv[1:]
    if shard:
        MatrixTest.shard, MatrixTest.shards = map(int, shard)
    del sys.argv[1:]
    main()
