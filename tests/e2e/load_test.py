"""Tests many launchers, at once and one after another."""

import fcntl
import os
import unittest

from scene import APP, CLIENT, CLIENT_SCRIPT, IS_WHOLE, OPEN, TRIES, Scene, main, snapshot, write

FULL_LOG = 5242880


class LoadTest(unittest.TestCase):
    def test_one_of_many_launchers_installs(self):
        # The client takes a second to end. Meanwhile the other launchers start.
        scene = Scene(self, client=CLIENT_SCRIPT.replace("exit 0", "sleep 1; exit 0"))
        scene.install_client("100")
        tree = scene.carry_client("101")
        write(scene.contents / OPEN, "#!/bin/sh\n", 0o755)
        scene.start(scene.home / CLIENT)
        scene.check_started("100")
        launchers = {scene.start() for _ in range(20)}
        statuses = {}
        while not launchers <= statuses.keys():
            process, status = os.wait()
            statuses[process] = status
        self.assertEqual({0}, {statuses[launcher] for launcher in launchers})
        ready = "INFO cloud-service: user installation is ready, removing backup app"
        self.assertEqual(1, scene.log().count(ready))
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
