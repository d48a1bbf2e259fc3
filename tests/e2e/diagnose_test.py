"""After whatever has happened in a start of the launcher, scripts/diagnose.sh tells what it was."""

import itertools
import json
import os
import pathlib
import re
import subprocess
import time
import unittest
import zipfile

import faults_test
from scene import APP, CLIENT, INFO, NOBODY, OPEN, REGISTER, SHORT_CLIENT, Scene, main, write
from world import World

SOURCE = pathlib.Path(__file__).parents[2]
FAULTS = "kill full open rename".split()
UNTOLD = "complained", "not told"
FULL_INFO = (
    "[Version]\nmajor_version=1\nminor_version=0\nbuild_version={}\nicon_overlay_version=1\n"
)
# What docs/shipping.md has between fences: of its first section, and the two that are records.
BLOCKS = re.findall(r"```\n(.*?)```", (SOURCE / "docs/shipping.md").read_text(), re.DOTALL)
RECORD, SAMPLE = [block for block in BLOCKS if block.startswith("20")]
VARIABLE = re.compile(r"[\dT:-]{19} \( *(\d+): *(\d+)\)")

# Waits for the end of the test's part that looks at a running launcher.
HOLD = """\
#!/bin/sh
touch "$HOME/held"
while [ -e "$HOME/held" ] && [ -d "/proc/$TESTER" ]; do sleep 0.05; done
"""


def diagnose(scene, *arguments):
    command = [SOURCE / "scripts/diagnose.sh", scene.home, *arguments, "--json"]
    return json.loads(subprocess.run(command, check=True, stdout=subprocess.PIPE).stdout)


# Changes of a machine before a start.
def tools(scene):
    for tool in (REGISTER, OPEN):
        write(scene.contents / tool, "#!/nowhere", 0o755)


def data_on_both_sides(scene):
    (scene.home / CLIENT).unlink()
    write(scene.home / ".Lumaport/data/secret", "x")


def pipe(scene):
    (scene.home / ".Corvimo/log").mkdir()
    os.mkfifo(scene.home / ".Corvimo/log/launcher.log")


def not_executable(scene):
    (scene.home / CLIENT).chmod(0o644)
    write(scene.home / APP / "Contents/Resources/INFO", FULL_INFO.format(101))


def no_archive(scene):
    scene.package.write_text("x")


def no_package(scene):
    scene.package.unlink()


def no_entries(scene):
    zipfile.ZipFile(scene.package, "w").close()


def owner(scene):
    os.chown(scene.home, NOBODY, NOBODY)


class Watched(World):
    def run_with_fault(self, *fault):
        self.is_killed = super().run_with_fault(*fault)
        return self.is_killed

    # Starts the launcher and gives the verdicts that may be right, None where nothing was logged.
    def verdicts_after(self, start, is_loud):
        size = self.log_file.stat().st_size if self.log_file.is_file() else 0
        before = self.whole(self.app)
        self.check_start(start)
        after = self.whole(self.app)
        log = self.log_file.read_bytes()[size:] if self.log_file.is_file() else b""
        is_new = after == [str(self.build)]
        if not log:
            return None
        if self.is_killed or (start.fault[0] in ("full", "write") and b"): done" not in log):
            cut = ["ended half-way"] + ["installed"] * (b"user installation is ready" in log)
            return cut if is_loud else [*cut, *UNTOLD, "failed"]
        if is_new and (start.kept is None or before == after):
            return ["installed" if before != after else "nothing to do"] if is_loud else UNTOLD
        return ["failed"]


class DiagnoseTest(unittest.TestCase):
    # Checks what the tool tells after one start against what is on the disk.
    def check_start(self, world, start, is_loud):
        verdicts = world.verdicts_after(start, is_loud)
        report = diagnose(world, "--launcher", world.contents.parent)
        client, step = report["state"]["client"], report["next_step"]["is"]
        builds = [str(client["build"])] if client["is"] == "whole" else []
        self.assertEqual(world.whole(world.app), builds, client)
        if builds:
            self.assertFalse(client.get("missing") or client.get("different"), client)
        else:
            self.assertNotEqual("nothing", step)
            self.assertEqual(world.has_whole_client(), report["state"]["backups"]["is"] == "whole")
            if world.has_whole_client() and start.kept is None:  # Another start is enough.
                self.assertEqual("start", step, report)
        if verdicts:
            run = report["runs"][-1]
            self.assertIn(run["is"].partition(",")[0], verdicts, run)
            if start.kept is not None and run["is"].startswith("failed"):
                self.assertEqual("package", step, report)
                self.assertTrue(start.fault[1] or "the package is" in run["cause"], run)

    def test_tells_what_each_fault_has_done(self):
        faults_test.TRIES = 1
        cases = [faults_test.rows(), *(faults_test.matrix(self, kind) for kind in FAULTS)]
        levels = itertools.cycle([True, False])  # Everything is logged, or what is by default.
        for group, name, features, starts in itertools.chain(*cases):
            is_loud = next(levels)
            with self.subTest(group, name=name, starts=starts, is_loud=is_loud):
                world = Watched(self, features)
                if not is_loud:
                    (world.contents / "Resources/log/launcher.debug").unlink()
                for start in starts[:3]:
                    self.check_start(world, start, is_loud)
            self.doCleanups()

    # A machine with a client of build 100 and a launcher that carries build 101, changed by `change`.
    def upgrade(self, change=None, **options):
        scene = Scene(self, **options)
        scene.install_client("100")
        scene.carry_client("101")
        if change:
            change(scene)
        return scene

    def test_tells_of_each_trouble(self):
        failed = "failed, old copy back"
        # What is changed, the verdict, what the complaint and what the state must hold, and the step.
        rows = {
            "nothing": (None, "installed", "", "", "nothing"),
            "no archive": (no_archive, failed, "no archive", "", "cause"),
            "no package": (no_package, failed, "missing", "is missing", "package"),
            "no entries": (no_entries, failed, "without entries", "", "package"),
            "no tools": (tools, "installed", "could not be started", "", "cause"),
            "two datas": (
                data_on_both_sides,
                "installed",
                "older product's",
                "1 file, 1 byte",
                "merge",
            ),
            "pipe for a log": (pipe, None, "", "not a file", "obstacle"),
            "mode": (not_executable, "nothing to do", "", "may not be executed", "remove"),
            "folder of root": (owner, "installed", "", "belongs to root", "owner"),
        }
        for name, (change, verdict, complaint, told, step) in rows.items():
            with self.subTest(name):
                scene = self.upgrade(change, client=SHORT_CLIENT)
                self.assertEqual(0, scene.run())
                scene.wait_for()
                report = diagnose(scene, "--launcher", scene.contents.parent)
                runs = report["runs"]
                self.assertEqual([verdict] if verdict else [], [run["is"] for run in runs])
                if runs:
                    self.assertIn(complaint, f"{runs[0]['cause']} {runs[0]['also']}")
                self.assertIn(told, json.dumps(report["state"]) + str(report["notes"]))
                self.assertEqual(step, report["next_step"]["is"], report)
                self.assertNotIn(str(scene.home), json.dumps(report))
                self.assertNotIn("secret", json.dumps(report))
            self.doCleanups()

    def test_tells_of_a_running_launcher_and_its_client(self):
        scene = self.upgrade()
        write(scene.contents / REGISTER, HOLD, 0o755)
        first = scene.start()
        while not (scene.home / "held").exists():
            time.sleep(0.01)
        self.assertEqual(0, scene.run())
        report = diagnose(scene)
        verdicts = [run["is"] for run in report["runs"]]
        self.assertEqual(["installed", "another launcher ran"], verdicts)
        self.assertEqual(("held", "wait"), self.words(report, "lock"))
        (scene.home / "held").unlink()
        self.assertEqual(0, scene.wait_for(first))
        scene.check_started("101")
        report = diagnose(scene)
        self.assertEqual(("maybe", "nothing"), self.words(report, "process"))  # A shell runs it.
        self.assertEqual(("free", "nothing"), self.words(report, "lock"))

    def words(self, report, what):
        return report["state"][what]["is"], report["next_step"]["is"]

    def test_judges_a_copy_as_the_launcher_does(self):
        infos = {
            name: INFO.format(name)
            for name in ("100", "-1", "", "1x", " 7 ", '"8"', "+9", "1,2", "9" * 20, "5;6")
        }
        infos |= {
            "group": "[version]\nbuild_version=1\n",
            "spaces": "[ Version ]\r\n build_version = 3 \r\n",
        }
        infos |= {
            "twice": INFO.format("x") + "build_version=4\n",
            "no content": "",
            "mark": "\ufeff" + INFO.format(6),
        }
        infos |= {"comment": "[Version]\n;build_version=1\n", "key": "[Version]\nBuild_Version=1\n"}
        for name, info in infos.items():
            with self.subTest(name):
                scene = self.upgrade(client="#!/bin/sh\n")
                scene.install_client("99", f"{APP}_tmp")
                write(scene.home / APP / "Contents/Resources/INFO", info)
                found = diagnose(scene)["state"]["client"]
                scene.package.unlink()
                scene.run()
                scene.wait_for()
                was_put_back = any("client was not whole" in line for line in scene.log())
                self.assertEqual("torso" if was_put_back else "whole", found["is"], info)
                if not was_put_back:
                    builds = re.findall(r"source version = (-?\d+)", str(scene.log()))
                    self.assertEqual([str(found["build"])], builds, info)
            self.doCleanups()

    # Times, processes and threads differ; a thread is known by the order in which they come.
    def comparable(self, log):
        threads = {}
        name = lambda found: f"({threads.setdefault(found.group(2), len(threads))})"
        return [VARIABLE.sub(name, line) for line in log.splitlines()]

    def test_the_documented_log_of_a_failed_upgrade_is_a_real_one(self):
        scene = self.upgrade(client=SHORT_CLIENT)
        large = "".join(str(number**3) for number in range(9999))
        scene.carry_client("101", [("Contents/Resources/large", 0o100644, large)])
        for build, folder in ("100", scene.home / APP / "Contents"), ("101", scene.contents):
            write(folder / "Resources/INFO", FULL_INFO.format(build))
        os.truncate(scene.package, scene.package.stat().st_size * 6 // 10)
        self.assertEqual(0, scene.run())
        log = (scene.home / ".Corvimo/log/launcher.log").read_text()
        log = log.replace(str(scene.home), "/Users/ann")
        log = log.replace(str(scene.contents), "/Applications/Corvimo.app/Contents")
        self.assertEqual(self.comparable(SAMPLE), self.comparable(log), log)
        self.assertIn(RECORD, SAMPLE)
        # What support is told then, of what the person has sent.
        write(scene.home / ".Corvimo/log/launcher.log", SAMPLE)
        tar, tool, report = BLOCKS[:3]
        subprocess.run(tar, shell=True, check=True, env=scene.environment)
        tool = tool.replace("corvimo-report.tar.gz", "$HOME/corvimo-report.tar.gz")
        tool = tool.replace("Corvimo.app", str(scene.contents.parent))
        told = subprocess.run(
            tool, shell=True, check=True, cwd=SOURCE, env=scene.environment, stdout=subprocess.PIPE
        )
        self.assertEqual(report, told.stdout.decode(), told.stdout.decode())


if __name__ == "__main__":
    main()
