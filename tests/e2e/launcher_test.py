"""The road of one run, from its start to a running client, with what may stand in its way."""

import os
import pathlib
import resource
import signal
import subprocess
import time
import unittest

from scene import APP, CLIENT, OPEN, REGISTER, Scene, main, mount_volume, snapshot, write

STACK_BYTES = 256 << 10
LONG_PATH = 4000
NOBODY = 65534
BINARY = b"\x7fELF\0\xff\n=\0"

HOLD = """\
#!/bin/sh
touch "$HOME/held"
while [ -e "$HOME/held" ] && [ -d "/proc/$TESTER" ]; do sleep 0.05; done
"""

# Notes what it is started with where a client notes its build: the open descriptors, and which of the
# first 16 signals are ignored (of the last ones the C library uses some itself).
RECORDER = r"""#!/bin/sh
signals=$(sed -n 's/^SigIgn:.*\(....\)$/\1/p' /proc/$$/status)
echo $(ls /proc/self/fd) $signals $$ >>"$HOME/started"
"""

# What an upgrade logs.
ROAD = pathlib.Path(__file__).with_name("upgrade.log")


class LauncherTest(unittest.TestCase):
    # A machine with a client of build 100 and a launcher that carries build 101.
    def upgrade(self, **options):
        scene = Scene(self, **options)
        scene.install_client("100")
        scene.tree = scene.carry_client("101")
        return scene

    def check_run(self, scene, *builds, **variables):
        self.assertEqual(0, scene.run(**variables))
        scene.check_started(*builds)

    # The package is installed, nothing is left over, and the person's data is there.
    def check_installed(self, scene, data):
        self.assertEqual(scene.tree, snapshot(scene.home / APP))
        self.assertEqual([], scene.backups())
        self.assertEqual("the person's data", (scene.home / ".Corvimo/data" / data).read_text())

    # Runs a launcher whose package cannot be installed over the client of build 100.
    def check_restored(self, scene):
        before = snapshot(scene.home / APP)
        self.check_run(scene, "100")
        self.assertEqual(before, snapshot(scene.home / APP))
        self.assertEqual([], scene.backups())
        self.assertIn("ERROR launcher(101): Failed to upgrade package", scene.log())

    def test_upgrades_a_running_client_whatever_the_home_is_called(self):
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
                self.check_installed(scene, "file")

    def test_logs_the_road_of_an_upgrade(self):
        scene = self.upgrade()
        before = signal.signal(signal.SIGCHLD, signal.SIG_IGN)  # As some parents leave it.
        launcher = scene.start()
        signal.signal(signal.SIGCHLD, before)
        self.assertEqual(0, scene.wait_for(launcher))
        scene.check_started("101")
        road = ROAD.read_text().format(unset="", **vars(scene)).splitlines()
        self.assertEqual(road, scene.log())

    def test_installs_for_the_first_time_and_then_only_what_is_newer(self):
        scene = Scene(self)
        tree = scene.carry_client("101")
        self.check_run(scene, "101")
        for starts, carried in enumerate(("101", "100", ""), start=2):
            with self.subTest(carried):
                self.assertEqual(tree, snapshot(scene.home / APP))
                scene.carry_client(carried)
                self.check_run(scene, *["101"] * starts)
                self.assertIn("DEBUG launcher(94): no need to upgrade", scene.log())
        self.assertEqual(tree, snapshot(scene.home / APP))

    def test_takes_over_from_the_older_product(self):
        scene = Scene(self)
        scene.tree = scene.carry_client("101")
        write(scene.home / ".Lumaport/data/deep/file", "the person's data")
        write(scene.home / ".Lumaport/app/x", "")
        older = Scene(self)
        older.install_client("9")
        old_client = scene.start(older.home / CLIENT, PID_FOLDER=str(scene.home / ".Lumaport"))
        scene.check_started("9")
        self.check_run(scene, "9", "101")
        self.assertFalse(os.path.exists(f"/proc/{old_client}"))
        self.check_installed(scene, "deep/file")
        self.assertFalse((scene.home / ".Lumaport").exists())

    def test_restores_the_old_client_when_the_package_is_bad(self):
        outside = [("Contents/../../../outside", 0o100644, "")]
        for spoil in (
            lambda scene: scene.package.unlink(),
            lambda scene: write(scene.package, ""),
            lambda scene: write(scene.package, "no archive"),
            lambda scene: os.truncate(scene.package, scene.package.stat().st_size // 2),
            lambda scene: scene.carry_client("101", outside),
        ):
            scene = self.upgrade()
            spoil(scene)
            self.check_restored(scene)
            self.assertFalse((scene.home / "outside").exists())

    def test_restores_the_old_client_when_the_disk_is_full(self):
        scene = Scene(self)
        (scene.home / ".Corvimo").mkdir()
        mount_volume(self, scene.home / ".Corvimo", "size=1m")
        scene.install_client("100")
        scene.carry_client("101", [("Contents/large", 0o100644, "x" * (2 << 20))])
        self.check_restored(scene)

    def test_takes_any_content_in_its_small_files(self):
        for content in (b"", BINARY, b"x" * (3 << 20)):
            scene = self.upgrade()
            write(scene.home / APP / "Contents/Resources/INFO", content)
            write(scene.home / ".Corvimo/ui.pid", content)
            write(scene.contents / "Resources/log/launcher.debug", content)
            self.check_run(scene, "101")
            write(scene.contents / "Resources/INFO", content)
            self.check_run(scene, "101", "101")

    def test_says_which_tools_could_not_be_started(self):
        scene = self.upgrade()
        for tool in (REGISTER, OPEN):
            write(scene.contents / tool, "#!/nowhere", 0o755)
        self.check_run(scene)
        cannot = f"ERROR mac/mac-service: Cannot unregister bundle, {scene.home / APP}"
        failed = "ERROR mac/mac-service: Failed to launch Lumaport UI"
        self.assertEqual([cannot, failed, "DEBUG launcher(117): done"], scene.log()[-3:])

    @unittest.skipIf(os.geteuid() != 0, "without the rights that the launcher must not have")
    def test_runs_to_its_end_where_nothing_can_be_written(self):
        scene = Scene(self)
        scene.carry_client("101")
        write(scene.home / ".Corvimo", "a plain file")
        self.check_run(scene)
        self.assertEqual("a plain file", (scene.home / ".Corvimo").read_text())

        scene = self.upgrade()
        write(scene.home / "started", "", 0o666)
        before = snapshot(scene.home / ".Corvimo")
        # The home folder and the bundle are root's.
        command = [scene.contents / "MacOS/launcher"]
        subprocess.run(command, env=scene.environment, user=NOBODY, check=True)
        scene.check_started("100")
        self.assertEqual(before, snapshot(scene.home / ".Corvimo"))

    def test_leaves_at_once_while_another_runs(self):
        scene = self.upgrade()
        held = scene.home / "held"
        write(scene.contents / REGISTER, HOLD, 0o755)
        first = scene.start()
        while not held.exists():
            time.sleep(0.01)
        self.check_run(scene)
        self.assertEqual("DEBUG main(154): app has already launched, return", scene.log()[-1])
        held.unlink()
        self.assertEqual(0, scene.wait_for(first))
        scene.check_started("101")

    def test_keeps_its_descriptors_and_signals_from_the_programs_that_it_starts(self):
        scene = self.upgrade()
        for tool in (REGISTER, OPEN):
            write(scene.contents / tool, RECORDER, 0o755)
        scene.wait_for(scene.start(OPEN))
        ((by_hand, _),) = scene.started()
        self.check_run(scene, *[by_hand] * 3)

    def test_removes_a_deep_old_client_whatever_the_limit_on_stacks(self):
        scene = self.upgrade()
        path = scene.home / APP
        while len(str(path)) < LONG_PATH:
            path /= "d"
            path.mkdir()
        limit = resource.getrlimit(resource.RLIMIT_STACK)
        resource.setrlimit(resource.RLIMIT_STACK, (STACK_BYTES, limit[1]))
        self.addCleanup(resource.setrlimit, resource.RLIMIT_STACK, limit)
        self.check_run(scene, "101")
        self.check_installed(scene, "file")


if __name__ == "__main__":
    main()
