"""Tests the archive that CPack makes of the build in the folder BUILD."""

import os
import pathlib
import re
import select
import shutil
import signal
import subprocess
import tempfile
import time
import unittest
import zipfile

BUILD = pathlib.Path(os.environ["BUILD"])
SOURCE = pathlib.Path(__file__).parents[2]
PACKAGE = "Contents/Resources/package/lumaport.cpk"
LIMIT = 120  # Seconds. Each wait takes less than one on an idle machine.


class BundleTest(unittest.TestCase):
    def setUp(self):
        self.folder = pathlib.Path(self.enterContext(tempfile.TemporaryDirectory()))
        command = ["cpack", "--config", BUILD / "CPackConfig.cmake", "-B", self.folder]
        subprocess.run(command, check=True, stdout=subprocess.DEVNULL)
        (archive,) = self.folder.glob("*.tar.gz")
        shutil.unpack_archive(archive, self.folder / "unpacked")
        self.app = self.folder / "unpacked/Corvimo.app"
        files = [path for path in self.app.rglob("*") if path.is_file()]
        self.programs = {path.name: path for path in files if os.access(path, os.X_OK)}

    def test_the_archive_holds_the_bundle_and_nothing_else(self):
        self.assertEqual(["Corvimo.app"], os.listdir(self.app.parent))
        subprocess.run(["diff", "-r", BUILD / "bundle/Corvimo.app", self.app], check=True)
        self.assertEqual({"launcher", "lsregister", "open"}, self.programs.keys())

    def test_only_debug_information_names_folders_of_the_build(self):
        zipfile.ZipFile(self.app / PACKAGE).extractall(self.app / "client")
        command = ["grep", "-rlF", "-e", BUILD, "-e", SOURCE, self.app]
        found = subprocess.run(command, capture_output=True, check=False).stdout
        self.assertEqual(bool(found), os.environ["DEBUG"] == "1", found)

    def test_the_binaries_are_hardened(self):
        command = ["readelf", "--wide", "--segments", "--dynamic", "--dyn-syms"]
        launcher, library = (
            subprocess.check_output([*command, self.app / "Contents" / name], text=True)
            for name in ("MacOS/launcher", "Frameworks/libdeskui-qt.so")
        )
        for elf in (launcher, library):
            self.assertIn("Elf file type is DYN", elf)
            self.assertIn("GNU_RELRO", elf)
            self.assertRegex(elf, r"GNU_STACK .* RW +0x")
            self.assertRegex(elf, r"Flags: .*NOW")
            paths = re.findall(r"R(?:UN)?PATH\).*\[(.*)\]", elf)
            self.assertIn(":".join(paths), ("", "$ORIGIN/../Frameworks"))
        self.assertRegex(launcher, r"Flags: .*PIE")
        self.assertIn("__stack_chk_fail", launcher)
        is_fortified = re.search(r"__\w+_chk@", launcher) is not None
        can_be = os.environ["OPTIMISED"] == "1" and not os.environ["SANITIZE"]
        self.assertEqual(is_fortified, can_be)

    def test_the_example_client_runs_detached_and_has_a_pid_file_until_it_ends(self):
        home = self.folder / "Größe \"1\" 'x'"
        pid_file = home / ".Corvimo/ui.pid"
        shutil.copytree(BUILD / "examples/Corvimo.app", home / "my.app")
        headless = os.environ | {"HOME": str(home), "DISPLAY": "", "WAYLAND_DISPLAY": ""}
        options = {"cwd": home, "input": b"", "timeout": LIMIT}
        for platform, number in (("", signal.SIGTERM), ("offscreen", signal.SIGINT)):
            options["env"] = headless | {"QT_QPA_PLATFORM": platform}
            for tool, *arguments in (("lsregister", "-u"), ("open", "-n", "-a")):
                command = [self.programs[tool], *arguments, "my.app"]
                self.assertEqual(b"", subprocess.check_output(command, **options))
            for _ in filter(lambda _: not pid_file.exists(), range(100 * LIMIT)):
                time.sleep(0.01)
            told = pid_file.read_text()
            pid = int(told.removeprefix("pid="))
            client = os.pidfd_open(pid)
            session = os.getsid(pid)
            links = subprocess.getoutput(f"cd /proc/{pid} && readlink exe cwd fd/[012]")
            self.assertIn(f"{home}/my.app/", links)  # The signal goes to the client.
            signal.pidfd_send_signal(client, number)
            self.assertTrue(select.select([client], [], [], LIMIT)[0], "It does not end.")
            self.assertFalse(pid_file.exists())
            self.assertEqual((f"pid={pid}\n", pid), (told, session))
            self.assertEqual(["/"] + 3 * ["/dev/null"], links.splitlines()[1:])


if __name__ == "__main__":
    unittest.main()
