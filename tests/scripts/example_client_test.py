"""Tests the example client, whose bundle is the value of CLIENT_APP."""

import os
import pathlib
import shutil
import signal
import subprocess
import tempfile
import time
import unittest


class ExampleClientTest(unittest.TestCase):
    def test_keeps_its_own_pid_file_while_it_runs(self):
        for settings, number, foreign, left in (
            ({"QT_QPA_PLATFORM": "", "WAYLAND_DISPLAY": ""}, signal.SIGTERM, None, ["app"]),
            ({"QT_QPA_PLATFORM": "offscreen"}, signal.SIGINT, "pid=1\n", ["app", "ui.pid"]),
        ):
            with self.subTest(settings), tempfile.TemporaryDirectory() as folder:
                pid_file = pathlib.Path(folder) / "Größe \"1\" 'x'/.Corvimo/ui.pid"
                app = shutil.copytree(os.environ["CLIENT_APP"], pid_file.with_name("app"), True)
                environment = {**os.environ, "DISPLAY": "", **settings, "HOME": str(app.parents[1])}
                client = subprocess.Popen([app / "Contents/MacOS/corvimo-ui"], env=environment)
                self.addCleanup(client.kill)
                for _ in filter(lambda _: not pid_file.exists(), range(1000)):
                    time.sleep(0.02)
                self.assertEqual(pid_file.read_text(), f"pid={client.pid}\n")
                pid_file.write_text(foreign or pid_file.read_text())
                client.send_signal(number)
                self.assertEqual(client.wait(timeout=20), 0)
                self.assertEqual(sorted(os.listdir(pid_file.parent)), left)


if __name__ == "__main__":
    unittest.main()
