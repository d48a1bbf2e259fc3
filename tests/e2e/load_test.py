"""Tests many launchers, at once and one after another."""

import fcntl
import os
import unittest

from scene import APP, IS_WHOLE, OPEN, REGISTER, TRIES, Scene, main, snapshot, write

FULL_LOG = 5242880
INSTALLED = "INFO cloud-service: user installation is ready, removing backup app"
QUITS = "DEBUG main(154): app has already launched, return"

# Replaces a tool that the launcher starts after an installation. It ends when the test says so.
HOLD = """\
#!/bin/sh
touch "$HOME/held"
while [ -e "$HOME/held" ] && [ -d "/proc/$TESTER" ]; do sleep 0.05; done
"""


class LoadTest(unittest.TestCase):
    def test_of_many_launchers_one_installs_and_the_others_quit(self):
        for mode in 0o755, 0o775, 0o777:
            with self.subTest(oct(mode)):
                scene = Scene(self)
                scene.install_client("100")
                tree = scene.carry_client("101")
                log, held = scene.home / ".Corvimo/log/launcher.log", scene.home / "held"
                (scene.home / ".Corvimo").chmod(mode)
                write(scene.contents / REGISTER, HOLD, 0o755)
                write(scene.contents / OPEN, "#!/bin/sh\n", 0o755)
                launchers = [scene.start() for _ in range(20)]
                scene.wait_until(held.exists)
                scene.wait_until(lambda: log.read_text().count(", return\n") == 19)
                held.unlink()
                self.assertEqual({0}, {os.waitpid(launcher, 0)[1] for launcher in launchers})
                counts = [scene.log().count(record) for record in (INSTALLED, QUITS)]
                self.assertEqual([1, 19], counts)
                self.assertEqual(tree, snapshot(scene.home / APP))

    def test_runs_without_upgrade_leave_nothing_behind(self):
        scene = Scene(self)
        scene.install_client("100")
        scene.carry_client("100")
        write(scene.contents / OPEN, "#!/bin/sh\n", 0o755)
        folders = scene.home, scene.home / ".Corvimo", scene.folder / "tmp"
        folders[-1].mkdir(mode=0o700)
        scene.environment |= {"TMPDIR": str(folders[-1]), "XDG_RUNTIME_DIR": str(folders[-1])}
        self.assertEqual(0, scene.run())
        self.assertIn("DEBUG launcher(94): no need to upgrade", scene.log())
        before = [set(os.listdir(folder)) for folder in folders]
        logs = scene.home / ".Corvimo/log"
        write(logs / "launcher.log", "\n" * FULL_LOG)
        for age in range(49):
            write(logs / f"launcher.log_{age}", "")
        count = 1000 if IS_WHOLE else 7 * TRIES
        for _ in range(count):
            self.assertEqual(0, scene.run())
        with self.assertRaises(ChildProcessError):  # A process that a run left would be our child.
            while True:
                os.wait()
        self.assertEqual(before, [set(os.listdir(folder)) for folder in folders])
        with open(scene.home / ".Corvimo/launcher.lock") as lock:
            fcntl.flock(lock, fcntl.LOCK_EX | fcntl.LOCK_NB)
        self.assertEqual(50, len(os.listdir(logs)))
        self.assertNotEqual("", (logs / "launcher.log_0").read_text().strip(), "no rotation")
        print(f"figure: runs without upgrade: {count} of {count}")


if __name__ == "__main__":
    main()
