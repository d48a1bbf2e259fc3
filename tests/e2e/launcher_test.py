"""The road of one run, from its start to a running client, with what may stand in its way."""

import os
import resource
import subprocess
import time
import unittest

from scene import APP, CLIENT, OPEN, REGISTER, Scene, describe, main, mount_volume, snapshot, write

STACK_BYTES = 256 << 10
LONG_PATH = 4000
# Support's tools find the records of two sources by their line. The lines of the others may change.
NUMBERED = "main", "launcher"
ROAD = """\
INFO main(106): >>> user_lumaport_path = {home}/.Lumaport
INFO main(107): >>> user_lumaport_app_path = {unset}
INFO main(108): >>> user_lumaport_resource_path = {home}/.Lumaport/Lumaport.app/Contents/Resources
INFO main(109): >>> user_lumaport_data_path = {unset}
INFO main(110): >>> user_lumaport_working_dir_path = {unset}
INFO main(111): >>> user_lumaport_corvimo_ui_path = {unset}
INFO main(112): >>> root_resource_path = {contents}/Resources
DEBUG launcher(89): running
INFO cloud-service: target_version = (, , 101, )
INFO cloud-service: source_version = (, , 100, )
DEBUG mac/mac-service: Source version: ('100', '')
DEBUG mac/mac-service: Target version: ('101', '')
DEBUG mac/mac-service: source version = 100, target version = 101
DEBUG mac/mac-service: local appdata exist
DEBUG mac/mac-service: pid file '{home}/.Corvimo/ui.pid' does not exist, no need to terminate
INFO cloud-service: extract package: '{package}' -> '{home}/.Corvimo/Corvimo.app'
DEBUG extractor: decompress from '{package}' to '{home}/.Corvimo/Corvimo.app'
INFO cloud-service: user installation is ready, removing backup app
INFO cloud-service: removing aged app folder {home}/.Lumaport/app
DEBUG launcher(117): done
"""
BINARY = b"\x7fELF\0\xff\n=\0"
NOBODY = 65534


def is_running(process):
    try:
        os.kill(process, 0)
    except ProcessLookupError:
        return False
    return True


class LauncherTest(unittest.TestCase):
    def upgrade(self, **options):
        """A machine with a client of build 100 and a launcher that carries build 101."""
        scene = Scene(self, **options)
        scene.install_client("100")
        scene.carry_client("101")
        return scene

    def check_installed(self, scene):
        tree = snapshot(scene.home / APP)
        self.assertEqual(9, len(tree))
        self.assertEqual(0o755, tree["Contents/MacOS/corvimo-ui"][0])
        self.assertEqual((0o644, b"101"), tree["Contents/Resources/größe.txt"])
        self.assertEqual("Resources", tree["Contents/current"])
        self.assertEqual("dir", tree["Contents/empty"])
        self.assertEqual([], scene.backups())

    def check_restored(self, scene):
        """Runs a launcher whose package cannot be installed over the client of build 100."""
        before = snapshot(scene.home / APP)
        self.assertEqual(0, scene.run())
        self.assertEqual(["100"], scene.started_builds(1))
        self.assertEqual(before, snapshot(scene.home / APP))
        self.assertEqual([], scene.backups())
        self.assertIn("ERROR launcher: Failed to upgrade package", scene.messages())

    def test_upgrades_a_running_client_whatever_the_home_is_called(self):
        for home, link, language in (
            ("home", None, ""),
            ('it\'s a "home" with $pecial letters', None, "C"),
            ("größe 家", None, ""),
            ("home", "way", "de_XX.UTF-8"),
        ):
            with self.subTest(home, link=link):
                scene = self.upgrade(home=home, home_link=link)
                old_client = scene.start_client(scene.home / CLIENT, scene.home / ".Corvimo")
                self.assertEqual(0, scene.run(LANG=language))
                self.assertFalse(is_running(old_client))
                self.assertEqual(["100", "101"], scene.started_builds(2))
                self.check_installed(scene)
                self.assertEqual(
                    (0o644, b"the person's data"), describe(scene.home / ".Corvimo/data/file")
                )

    def test_logs_the_road_of_an_upgrade(self):
        scene = self.upgrade()
        self.assertEqual(0, scene.run())
        self.assertEqual(["101"], scene.started_builds(1))
        found = "".join(
            f"{level} {source}{line if source in NUMBERED else ''}: {message}\n"
            for level, source, line, message in scene.log()
        )
        road = ROAD.format(unset="", **vars(scene))
        self.assertEqual(road, found)

    def test_installs_for_the_first_time_and_then_only_what_is_newer(self):
        scene = Scene(self)
        scene.carry_client("101")
        self.assertEqual(0, scene.run())
        self.assertEqual(["101"], scene.started_builds(1))
        self.check_installed(scene)
        before = snapshot(scene.home / APP)
        for starts, carried in enumerate(("101", "100", ""), start=2):
            with self.subTest(carried):
                scene.carry_client(carried)
                self.assertEqual(0, scene.run())
                self.assertEqual(["101"] * starts, scene.started_builds(starts))
                self.assertEqual(before, snapshot(scene.home / APP))
                self.assertIn("DEBUG launcher: no need to upgrade", scene.messages())

    def test_takes_over_from_the_older_product(self):
        scene = Scene(self)
        scene.carry_client("101")
        write(scene.home / ".Lumaport/data/deep/file", "the person's data")
        write(scene.home / ".Lumaport/app/x", "")
        older = Scene(self)
        older.install_client("9")
        old_client = scene.start_client(older.home / CLIENT, scene.home / ".Lumaport")
        self.assertEqual(0, scene.run())
        self.assertFalse(is_running(old_client))
        self.assertEqual(["9", "101"], scene.started_builds(2))
        self.check_installed(scene)
        self.assertEqual(
            (0o644, b"the person's data"), describe(scene.home / ".Corvimo/data/deep/file")
        )
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
            self.assertEqual(0, scene.run())
            self.assertEqual(["101"], scene.started_builds(1))
            write(scene.contents / "Resources/INFO", content)
            self.assertEqual(0, scene.run())
            self.assertEqual(["101", "101"], scene.started_builds(2))

    def test_runs_to_its_end_where_nothing_can_be_written(self):
        scene = Scene(self)
        scene.carry_client("101")
        write(scene.home / ".Corvimo", "a plain file")
        self.assertEqual(0, scene.run())
        self.assertEqual((0o644, b"a plain file"), describe(scene.home / ".Corvimo"))

        scene = self.upgrade()
        write(scene.home / "started", "", 0o666)
        before = snapshot(scene.home / ".Corvimo")
        # The home folder and the bundle are root's.
        subprocess.run(
            [scene.contents / "MacOS/launcher"], env=scene.environment, user=NOBODY, check=True
        )
        self.assertEqual(["100"], scene.started_builds(1))
        self.assertEqual(before, snapshot(scene.home / ".Corvimo"))

    def test_leaves_at_once_while_another_runs(self):
        scene = self.upgrade()
        held = scene.home / "held"
        hold = '#!/bin/sh\ntouch "$HOME/held"\nwhile [ -e "$HOME/held" ]; do sleep 0.05; done\n'
        write(scene.contents / REGISTER, hold, 0o755)
        first = scene.start()
        while not held.exists():
            time.sleep(0.01)
        self.assertEqual(0, scene.run())
        already = "DEBUG", "main", "(154)", "app has already launched, return"
        self.assertEqual(already, scene.log()[-1])
        held.unlink()
        self.assertEqual(0, scene.wait_for(first))
        self.assertEqual(["101"], scene.started_builds(1))

    def test_keeps_its_descriptors_and_signals_from_the_programs_that_it_starts(self):
        # Notes what it is started with where a client notes its build: open descriptors, and which
        # of the first 16 signals are ignored (of the last ones the C library uses some itself).
        recorder = """#!/bin/sh
signals=$(sed -n 's/^SigIgn:.*\\(....\\)$/\\1/p' /proc/$$/status)
echo $(ls /proc/self/fd) $signals $$ >>"$HOME/started"
"""
        scene = self.upgrade()
        for tool in (REGISTER, OPEN):
            write(scene.contents / tool, recorder, 0o755)
        scene.wait_for(scene.start(scene.contents / OPEN))
        self.assertEqual(0, scene.run())
        by_hand, *by_launcher = scene.started_builds(3)
        self.assertEqual([by_hand] * 2, by_launcher)

    def test_removes_a_deep_old_client_whatever_the_limit_on_stacks(self):
        scene = self.upgrade()
        path = scene.home / APP
        while len(str(path)) < LONG_PATH:
            path /= "d"
            path.mkdir()
        limit = resource.getrlimit(resource.RLIMIT_STACK)
        resource.setrlimit(resource.RLIMIT_STACK, (STACK_BYTES, limit[1]))
        self.addCleanup(resource.setrlimit, resource.RLIMIT_STACK, limit)
        self.assertEqual(0, scene.run())
        self.check_installed(scene)


if __name__ == "__main__":
    main()
