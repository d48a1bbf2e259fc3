"""After whatever has happened in a start of the launcher, scripts/diagnose.sh tells what it was."""

import itertools
import json
import pathlib
import subprocess
import unittest

import faults_test
from scene import main
from world import World

DIAGNOSE = pathlib.Path(__file__).parents[2] / "scripts/diagnose.sh"
FAULTS = "kill full write open rename unlink mkdir".split()
UNTOLD = "complained", "not told"


def diagnose(*arguments):
    command = [DIAGNOSE, *arguments, "--json"]
    return json.loads(subprocess.run(command, check=True, stdout=subprocess.PIPE).stdout)


class Watched(World):
    def run_with_fault(self, *fault):
        self.is_killed = super().run_with_fault(*fault)
        return self.is_killed

    def log_size(self):
        return self.log_file.stat().st_size if self.log_file.is_file() else 0

    # Starts the launcher and gives the verdicts that are right, None if there is none.
    def verdicts_after(self, start, is_loud):
        before, size = self.whole(self.app), self.log_size()
        self.check_start(start)
        after = self.whole(self.app)
        log = self.log_file.read_bytes()[size:].decode() if self.log_size() > size else ""
        if not log:
            return None
        is_new = after == [str(self.build)]
        if self.is_killed or start.fault[0] in ("full", "write") and "done" not in log:
            cut = ["ended half-way"] + ["installed"] * ("user installation is ready" in log)
            return cut if is_loud else [*cut, *UNTOLD, "failed"]
        if is_new and start.kept is None:
            return ["installed" if before != after else "nothing to do"] if is_loud else UNTOLD
        return ["failed"]


class DiagnoseTest(unittest.TestCase):
    def check_start(self, world, start, is_loud):
        verdicts = world.verdicts_after(start, is_loud)
        report = diagnose(world.home, "--launcher", world.contents.parent)
        client = report["state"]["client"]
        builds = [str(client["build"])] if client["is"] == "whole" else []
        self.assertEqual(world.whole(world.app), builds, client)
        self.assertFalse(client.get("missing") and builds or client.get("different"), client)
        if verdicts:
            run = report["runs"][-1]
            self.assertIn(run["is"].partition(",")[0], verdicts, run)
            self.assertEqual(run["is"].startswith("failed"), bool(run["cause"] and run["is"] != verdicts[0]) or run["is"].startswith("failed"))

    def test_tells_what_each_fault_has_done(self):
        faults_test.TRIES = 1
        cases = [faults_test.rows(), *(faults_test.matrix(self, kind) for kind in FAULTS)]
        levels = itertools.cycle([True, False])
        for group, name, features, starts in itertools.chain(*cases):
            is_loud = next(levels)
            with self.subTest(group, name=name, starts=starts, is_loud=is_loud):
                world = Watched(self, features)
                if not is_loud:
                    (world.contents / "Resources/log/launcher.debug").unlink()
                for start in starts[:3]:
                    self.check_start(world, start, is_loud)
            self.doCleanups()


if __name__ == "__main__":
    main()
