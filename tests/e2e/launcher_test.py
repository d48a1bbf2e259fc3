"""Tests whole runs of the launcher, from its start to a running client."""

import itertools
import os
import pathlib
import resource
import signal
import subprocess
import unittest

from scene import APP, CLIENT, NOBODY, OPEN, REGISTER, SHORT_CLIENT, Scene, main, snapshot, write

STACK_BYTES = 256 << 10
LONG_PATH = 4000
BINARY = b"\x7fELF\0\xff\n=\0"

# Notes its open descriptors and which of the first 16 signals are ignored, where a client notes its
# build. Of the last signals, the C library uses some itself.
RECORDER = r"""#!/bin/sh
signals=$(sed -n 's/^SigIgn:.*\(....\)$/\1/p' /proc/$$/status)
echo $(ls /proc/self/fd) $signals $$ >>"$HOME/started"
"""

# All records of an upgrade.
UPGRADE_LOG = pathlib.Path(__file__).with_name("upgrade.log")


class LauncherTest(unittest.TestCase):
    # Returns a scene with a client of build 100 and a launcher that carries build 101.
    def upgrade(self, **options):
        scene = Scene(self, **options)
        scene.install_client("100")
        scene.tree = scene.carry_client("101")
        return scene

    def check_run(self, scene, *builds, **variables):
        self.assertEqual(0, scene.run(**variables))
        scene.check_started(*builds)

    # Checks that the package is installed, no backup is left, and the person's data is there.
    def check_installed(self, scene):
        self.assertEqual(scene.tree, snapshot(scene.home / APP))
        self.assertEqual([], scene.backups())
        self.assertEqual("the person's data", (scene.home / ".Corvimo/data/file").read_text())

    def test_upgrades_a_running_client_below_any_name_of_the_home_folder(self):
        for home, told, language in (
            ("home", "home", ""),
            ('it\'s "$pecial"', 'it\'s "$pecial"', "C"),
            ("größe 家", "größe 家", ""),
            ("home", "way", "de_XX.UTF-8"),
        ):
            with self.subTest(told):
                scene = self.upgrade(home=home)
                (scene.folder / "way").symlink_to(home)
                old_client = scene.start(scene.home / CLIENT)
                scene.check_started("100")
                told_home = str(scene.folder / told)
                self.check_run(scene, "100", "101", HOME=told_home, LANG=language)
                self.assertFalse(os.path.exists(f"/proc/{old_client}"))
                self.check_installed(scene)

    def test_does_not_signal_another_program_with_the_pid_of_the_client(self):
        scene = self.upgrade()
        program = subprocess.Popen(["sleep", "1000"])
        self.addCleanup(program.wait)
        self.addCleanup(program.kill)
        pid_file = scene.home / ".Corvimo/ui.pid"
        write(pid_file, f"pid={program.pid}\n")
        os.utime(pid_file, (0, 0))
        self.check_run(scene, "101")
        self.assertIsNone(program.poll())
        notes = [line for line in scene.log() if line.startswith("NOTE mac/mac-service: ")]
        self.assertEqual(1, len(notes))
        for named in str(program.pid), str(pid_file), os.readlink(f"/proc/{program.pid}/exe"):
            self.assertIn(named, notes[0])
        self.check_installed(scene)

    def test_logs_every_step_of_an_upgrade(self):
        scene = self.upgrade()
        before = signal.signal(signal.SIGCHLD, signal.SIG_IGN)  # As some parents leave it.
        launcher = scene.start()
        signal.signal(signal.SIGCHLD, before)
        self.assertEqual(0, scene.wait_for(launcher))
        scene.check_started("101")
        expected = UPGRADE_LOG.read_text().format(unset="", **vars(scene)).splitlines()
        self.assertEqual(expected, scene.log())

    def test_stops_the_client_of_the_older_product(self):
        scene = Scene(self)
        scene.carry_client("101")
        older = Scene(self)
        older.install_client("9")
        (scene.home / ".Lumaport").mkdir()
        old_client = scene.start(older.home / CLIENT, PID_FOLDER=str(scene.home / ".Lumaport"))
        scene.check_started("9")
        self.check_run(scene, "9", "101")
        self.assertFalse(os.path.exists(f"/proc/{old_client}"))

    def test_restores_the_newest_whole_backup_without_a_package(self):
        scene = Scene(self)
        for name, build in ("", 9), ("_tmp", 99), ("_tmp1", 101), ("_tmp2", 102), ("_tmp4", 101):
            scene.install_client(build, APP + name)
            write(scene.home / f"{APP}{name}/name", name)
        for name in "", "_tmp2":
            (scene.home / f"{APP}{name}/Contents/Resources/INFO").unlink()
        best = snapshot(scene.home / f"{APP}_tmp4")
        scene.carry_client("102")
        scene.package.unlink()
        self.check_run(scene, "101")
        self.assertEqual(best, snapshot(scene.home / APP))
        self.assertEqual([], scene.backups())
        notes = [line for line in scene.log() if line.startswith("NOTE")]
        self.assertEqual(["NOTE cloud-service"], [line.partition(":")[0] for line in notes])
        self.assertIn("ERROR launcher(101): Failed to upgrade package", scene.log())

    def test_upgrades_with_anything_in_place_of_its_small_files(self):
        own = "Launcher.app/Contents/Resources"
        files = "ui.pid", "log/launcher.log", "Corvimo.app/Contents/Resources/INFO"
        paths = [f"{own}/INFO", f"{own}/log/launcher.debug", *(f"home/.Corvimo/{x}" for x in files)]
        makers = {
            "pipe": os.mkfifo,
            "device": lambda path: path.symlink_to("/dev/zero"),
            "folder": os.mkdir,
            "no content": lambda path: write(path, b""),
            "binary": lambda path: write(path, BINARY),
            "long": lambda path: write(path, b"x" * (3 << 20)),
        }
        for kind, name in itertools.product(makers, paths):
            with self.subTest(kind, name=name):
                scene = self.upgrade(client=SHORT_CLIENT)
                path = scene.folder / name
                path.parent.mkdir(exist_ok=True)
                path.unlink(missing_ok=True)
                makers[kind](path)
                self.check_run(scene, "100" if name == f"{own}/INFO" else "101")
            self.doCleanups()

    def test_logs_which_tools_cannot_be_started(self):
        scene = self.upgrade()
        for tool in (REGISTER, OPEN):
            write(scene.contents / tool, "#!/nowhere", 0o755)
        self.check_run(scene)
        cannot = f"ERROR mac/mac-service: Cannot unregister bundle, {scene.home / APP}"
        failed = "ERROR mac/mac-service: Failed to launch Lumaport UI"
        self.assertEqual([cannot, failed, "DEBUG launcher(117): done"], scene.log()[-3:])

    def test_needs_libarchive_only_for_an_upgrade(self):
        plugin = "Launcher.app/Contents/Frameworks/plugins/platforms/libqminimal.so"
        for other, reason in ("empty", "file too short"), (plugin, "undefined symbol: archive_"):
            with self.subTest(reason):
                scene = self.upgrade()
                write(scene.folder / "empty", "")
                (scene.folder / "libarchive.so.13").symlink_to(other)
                without = {"LD_LIBRARY_PATH": str(scene.folder)}
                self.check_run(scene, "100", **without)
                self.check_run(scene, "100", "101")
                self.check_run(scene, "100", "101", "101", **without)
                self.check_installed(scene)
                warning, error, *_ = [x for x in scene.log() if x.startswith(("WARN", "ERROR"))]
                self.assertRegex(warning, f"WARNING extractor: cannot load .*{reason}")
                self.assertEqual("ERROR extractor: Allocate archive failed", error)

    @unittest.skipIf(os.geteuid() != 0, "without the rights that the launcher must not have")
    def test_ends_with_status_0_where_nothing_can_be_written(self):
        scene = Scene(self)
        scene.carry_client("101")
        write(scene.home / ".Corvimo", "a plain file")
        self.check_run(scene)
        self.assertEqual("a plain file", (scene.home / ".Corvimo").read_text())

        scene = self.upgrade()
        write(scene.home / "started", "", 0o666)
        before = snapshot(scene.home / ".Corvimo")
        command = [scene.contents / "MacOS/launcher"]  # Like the home folder, it belongs to root.
        options = {"env": scene.environment, "capture_output": True, "text": True}
        result = subprocess.run(command, user=NOBODY, check=False, **options)
        self.assertEqual(0, result.returncode, result.stderr)
        scene.check_started("100")
        self.assertEqual(before, snapshot(scene.home / ".Corvimo"))

    def test_starts_programs_without_its_descriptors_and_ignored_signals(self):
        scene = self.upgrade()
        for tool in (REGISTER, OPEN):
            write(scene.contents / tool, RECORDER, 0o755)
        scene.wait_for(scene.start(OPEN))
        ((by_hand, _),) = scene.started()
        for number in signal.SIGHUP, signal.SIGINT, signal.SIGTERM:  # As some parents leave them.
            self.addCleanup(signal.signal, number, signal.signal(number, signal.SIG_IGN))
        self.check_run(scene, *[by_hand] * 3)

    def test_removes_a_deep_old_client_with_a_small_stack(self):
        scene = self.upgrade()
        path = scene.home / APP
        while len(str(path)) < LONG_PATH:
            path /= "d"
            path.mkdir()
        limit = resource.getrlimit(resource.RLIMIT_STACK)
        resource.setrlimit(resource.RLIMIT_STACK, (STACK_BYTES, limit[1]))
        self.addCleanup(resource.setrlimit, resource.RLIMIT_STACK, limit)
        self.check_run(scene, "101")
        self.check_installed(scene)


if __name__ == "__main__":
    main(unittest.defaultTestLoader.getTestCaseNames(LauncherTest))
