"""Tests scripts/diagnose.sh with logs, archives and packages of all kinds, without the launcher."""

import fcntl
import io
import json
import os
import pathlib
import resource
import shutil
import subprocess
import sys
import tarfile
import tempfile
import unittest
import zipfile
from unittest import mock

SOURCE = pathlib.Path(__file__).parents[2]
DIAGNOSE = SOURCE / "scripts/diagnose.sh"
sys.path.insert(0, str(DIAGNOSE.with_suffix("")))

import advice
import source
import state

APP = ".Corvimo/Corvimo.app/Contents"
CLIENT = {
    f"{APP}/MacOS/corvimo-ui": b"client",
    f"{APP}/Resources/INFO": b"[Version]\nbuild_version=100\n",
    f"{APP}/Resources/text": b"text",
}
MEBIBYTE = 1 << 20
NOBODY = 65534

START = "INFO main(106): >>> user_lumaport_path = /Users/ann/.Lumaport"
RUNNING = "DEBUG launcher(89): running"
TARGET = "INFO cloud-service(1): target_version = (1, 0, 101, 1)"
OLD = "INFO cloud-service(1): source_version = (1, 0, 100, 1)"
SAME = "INFO cloud-service(1): source_version = (1, 0, 101, 1)"
UNPACK = "INFO cloud-service(1): extract package: 'a' -> 'b'"
READY = "INFO cloud-service(1): user installation is ready, removing backup app"
AGED = "INFO cloud-service(1): removing aged app folder /Users/ann/.Lumaport/app"
NO_NEED = "DEBUG launcher(94): no need to upgrade"
DONE = "DEBUG launcher(117): done"
DAMAGED = "ERROR extractor(1): archive_read_next_header failed: ''"
ROLLED_BACK = "ERROR cloud-service(1): Failed to extract package, rollback to old installation"
NO_OLD = "ERROR cloud-service(1): Failed to extract package, and no old installation to rollback"
FAILED = "ERROR launcher(101): Failed to upgrade package"
NOT_BACK = "ERROR cloud-service(1): failed to put back client from 'a' -> 'b'"
NO_BACKUP = "ERROR cloud-service(1): failed to backup app from 'a' -> 'b' at max retries, exiting"
LEFT = "DEBUG main(154): app has already launched, return"
NO_TOOL = "ERROR mac/mac-service(1): Cannot unregister bundle, x"
BACK, HALF, DAY = "failed, old copy back", "ended half-way", "2026-11-22T10:00:00"

# Records, without time and process unless they are tuples; and the verdicts, oldest first.
LOGS = {
    "all of an upgrade": ([START, RUNNING, TARGET, OLD, UNPACK, READY, AGED, DONE], ["installed"]),
    "all of nothing": ([START, RUNNING, TARGET, SAME, NO_NEED, AGED, DONE], ["nothing to do"]),
    "without DEBUG": ([START, TARGET, SAME, AGED], ["nothing to do"]),
    "without DEBUG, upgrade": ([START, TARGET, OLD, UNPACK, READY, AGED], ["installed"]),
    "without DEBUG, killed": ([START, TARGET, OLD, UNPACK], [HALF]),
    "launcher alone": ([START, RUNNING, DONE], ["installed"]),
    "launcher alone, killed": ([START, RUNNING], [HALF]),
    "launcher alone, failed": ([START, RUNNING, FAILED, DONE], ["failed"]),
    "launcher at INFO": ([START], ["not told"]),
    "killed early after a whole run": (
        [START, RUNNING, NO_NEED, DONE, START],
        ["nothing to do", HALF],
    ),
    "as shipped": ([DAMAGED, ROLLED_BACK, FAILED], [BACK]),
    "as shipped, killed in the roll-back": ([DAMAGED, ROLLED_BACK], [HALF]),
    "as shipped, first time": ([DAMAGED, NO_OLD, FAILED], ["failed, nothing to go back to"]),
    "as shipped, not put back": ([ROLLED_BACK, FAILED, NOT_BACK], ["failed, not put back"]),
    "as shipped, put back later": ([NOT_BACK, DAMAGED, ROLLED_BACK, FAILED], [BACK]),
    "as shipped, no backup": ([NO_BACKUP, FAILED], ["failed, nothing changed"]),
    "as shipped, one complaint": ([NO_TOOL], ["complained"]),
    "silent launcher": ([TARGET, OLD, UNPACK, ROLLED_BACK, AGED], [BACK]),
    "two at once": (
        [START, RUNNING, (DAY, 8, START), UNPACK, (DAY, 8, LEFT), READY, DONE],
        ["installed", "another launcher ran"],
    ),
    "number given anew, with a start": (
        [START, RUNNING, START, RUNNING, DONE],
        [HALF, "installed"],
    ),
    "number given anew, after a day": (
        [DAMAGED, ROLLED_BACK, FAILED, ("2026-11-23T10:00:00", 7, NO_TOOL)],
        [BACK, "complained"],
    ),
    "clock set back an hour": ([START, RUNNING, ("2026-11-22T09:00:00", 7, DONE)], ["installed"]),
    "no time of the calendar": ([("2026-02-31T10:00:00", 7, NO_TOOL)], ["complained"]),
}

# Messages that name the person's files, and what may be left of them.
SECRETS = {
    "CopyFile: open(/Users/ann/.Corvimo/data/secret (1): x.doc): Permission denied (13)": "belongs to somebody",
    "path = /Users/ann/.Lumaport/data/secret errno : No space left on device": "disk is full",
    "FSStat: check state (/Users/ann/.Lumaport/data/secret) failed": "~/.Lumaport/data/…",
    "odd '/Users/o'neil secret/.Corvimo/x' and '/home/secret/y'": "~/.Corvimo/x' and '~/y",
    "odd \x1b[31m red": "odd ?[31m red",
    "odd HOME/Downloads/Corvimo.app": "odd ~/Downloads/Corvimo.app",
}


def record(text, time=DAY, pid=7):
    level, _, rest = text.partition(" ")
    return f"{time} ({pid:5}:    1) [{level}] {rest}\n"


class DiagnoseTest(unittest.TestCase):
    def setUp(self):
        self.home = pathlib.Path(
            self.enterContext(tempfile.TemporaryDirectory(prefix="corvimo-home-"))
        )
        self.log = self.home / ".Corvimo/log/launcher.log"
        self.launcher = self.home / "Launcher.app"
        for name, content in CLIENT.items():
            self.write(self.home / name, content)
        (self.home / APP / "MacOS/corvimo-ui").chmod(0o755)
        self.write(self.home / ".Corvimo/data/secret", b"secret")
        self.write(self.log, b"")

    def write(self, path, content):
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(content if isinstance(content, bytes) else content.encode())

    # Gives what the tool prints, which must not name the home folder or the person's files.
    def tell(self, *arguments, status=0, **options):
        command = [DIAGNOSE, *arguments]
        result = subprocess.run(command, capture_output=True, text=True, check=False, **options)
        self.assertEqual(status, result.returncode, result.stderr)
        for text in (
            "Traceback",
            "secret",
            str(self.home) if arguments[0] == self.home else "secret",
        ):
            self.assertNotIn(text, result.stdout + result.stderr)
        return result.stdout + result.stderr

    def report(self, *arguments):
        return json.loads(self.tell(*(arguments or [self.home]), "--json"))

    def test_the_documented_table_is_the_tools(self):
        table = subprocess.run(
            [DIAGNOSE, "--errors"], check=True, stdout=subprocess.PIPE, text=True
        )
        self.assertIn("\n\n" + table.stdout, (SOURCE / "docs/shipping.md").read_text())

    def test_tells_each_start_of_a_log(self):
        for name, (records, verdicts) in LOGS.items():
            with self.subTest(name):
                lines = [(DAY, 7, text) if isinstance(text, str) else text for text in records]
                self.write(self.log, "".join(record(text, time, pid) for time, pid, text in lines))
                runs = self.report()["runs"]
                self.assertEqual(verdicts, [run["is"] for run in runs], runs)

    def test_reads_all_files_of_a_log_oldest_first(self):
        for name, text in (
            ("launcher.log_10", START),
            ("launcher.log_9", RUNNING),
            ("launcher.log", DONE),
        ):
            self.write(self.log.with_name(name), record(text))
        self.write(self.log.with_name("launcher.log_0"), record(NO_NEED) + record(DONE)[:50])
        report = self.report()
        self.assertEqual(["nothing to do"], [run["is"] for run in report["runs"]])
        self.assertEqual(1, len(report["notes"]), report["notes"])

    def test_hides_what_is_the_persons(self):
        for message, left in SECRETS.items():
            with self.subTest(message):
                self.write(
                    self.log, record("ERROR file-op(1): " + message.replace("HOME", str(self.home)))
                )
                (run,) = self.report()["runs"]
                self.assertIn(left, f"{run['cause']} {run['also']}")

    def test_takes_any_log(self):
        for name, content, note in (
            ("binary", bytes(range(256)) * 999, "holds no record"),
            ("half a record", record(START).encode()[:-9], "ends inside a record"),
            ("nothing", b"", "The log is silent"),
            ("slashes", record("ERROR file-op(1): x" + "/" * 16000), "does not have: x///"),
            ("commas", record(TARGET + ", " * 8000), "ended half-way"),
        ):
            with self.subTest(name):
                self.write(self.log, content)
                self.assertIn(note, self.tell(self.home, timeout=60))
        with open(self.log, "wb") as log:
            log.truncate(250 * MEBIBYTE)  # One line without an end.
        self.write(self.log.with_name("launcher.log_0"), record(NO_TOOL) * 50_000)
        self.assertEqual(1, len(self.report()["runs"]))
        self.assertLess(resource.getrusage(resource.RUSAGE_CHILDREN).ru_maxrss, 200 * 1024)

    def test_says_what_a_higher_level_would_tell(self):
        self.carry_client()
        levels = self.launcher / "Contents/Resources/log/launcher.debug"
        all_seven = "launcher_debug=7\nservice_debug = 7 # x\nextractor_debug='7'\n"
        for content, told in (
            ("", ["Set launcher_debug=7 service_debug=7 extractor_debug=7"]),
            ("launcher_debug=7\n", ["Set service_debug=7 extractor_debug=7"]),
            (all_seven, ["would tell"]),
            (
                all_seven + "service_debug 7\n",
                ["Line 4 of launcher.debug is no entry", "Set launcher"],
            ),
            (
                "service_debug=x\nodd=7\n",
                ["Line 1 of launcher.debug sets", "Line 2 of launcher.debug names"],
            ),
        ):
            self.write(levels, content)
            report = self.tell(self.home, "--launcher", self.launcher)
            for text in told:
                self.assertIn(text, report)
            self.assertEqual(content != all_seven, "Set" in report)

    # Puts the client into the package of a launcher.
    def carry_client(self, client=CLIENT):
        resources = self.launcher / "Contents/Resources"
        self.write(resources / "INFO", client[f"{APP}/Resources/INFO"])
        package = resources / "package/lumaport.cpk"
        self.write(package, b"")
        with zipfile.ZipFile(package, "w") as stream:
            for name, content in client.items():
                entry = zipfile.ZipInfo(name.replace(APP, "Contents"))
                entry.external_attr = (0o100755 if name.endswith("-ui") else 0o100644) << 16
                stream.writestr(entry, content)
        return package

    def test_compares_the_client_with_the_package(self):
        text, executable = f"{APP}/Resources/text", self.home / APP / "MacOS/corvimo-ui"
        package = self.carry_client()
        report = self.report(self.home, "--launcher", self.launcher)
        self.assertIn("all 3 entries are as in the package", report["state"]["client"]["text"])
        for name, change, wanted, step in (
            ("extra", lambda: self.write(self.home / APP / "new", b""), (0, 0, 1), "nothing"),
            ("content", lambda: self.write(self.home / text, b"TEXT"), (0, 1, 1), "remove"),
            (
                "kind",
                lambda: (self.home / text).unlink() or (self.home / text).mkdir(),
                (0, 1, 1),
                "remove",
            ),
            ("gone", (self.home / text).rmdir, (1, 0, 1), "remove"),
            ("mode", lambda: executable.chmod(0o644), (1, 1, 1), "remove"),
            ("no executable", executable.unlink, (2, 0, 1), "start"),
        ):
            with self.subTest(name):
                change()
                report = self.report(self.home, "--launcher", self.launcher)
                client = report["state"]["client"]
                self.assertEqual(wanted, (client["missing"], client["different"], client["extra"]))
                self.assertEqual(step, report["next_step"]["is"])
        with tarfile.open(package, "w") as stream:
            stream.add(self.home / APP, "Contents")
        report = self.report(self.home, "--launcher", self.launcher)
        self.assertEqual(
            (0, 0, 0),
            tuple(report["state"]["client"][x] for x in ("missing", "different", "extra")),
        )
        self.write(package, b"7z\xbc\xaf\x27\x1c")
        report = self.report(self.home, "--launcher", self.launcher)
        self.assertEqual("other format", report["state"]["launcher"]["is"])

    def test_tells_of_lock_and_process(self):
        own = shutil.copy(shutil.which("sleep"), self.home / APP)
        program, client = (subprocess.Popen([path, "1000"]) for path in ("sleep", own))
        for process in program, client:
            self.addCleanup(process.wait)
            self.addCleanup(process.kill)
        pid_file, lock_file = (
            self.home / ".Corvimo" / name for name in ("ui.pid", "launcher.lock")
        )
        self.write(lock_file, b"")
        lock = self.enterContext(open(lock_file, "rb"))
        for pid, is_held, time, word in (
            (0, True, None, "no process"),
            (-1, False, None, "no process"),
            (2**32, False, None, "no process"),
            (10**20, False, None, "no process"),
            (2**22 + 1, False, None, "gone"),
            (program.pid, False, None, "maybe"),
            (program.pid, False, (0, 0), "other"),
            (client.pid, False, (0, 0), "client"),
        ):
            fcntl.flock(lock, fcntl.LOCK_EX if is_held else fcntl.LOCK_UN)
            self.write(pid_file, f"# x\npid = {pid}\n")
            os.utime(pid_file, time)
            state = self.report()["state"]
            found = state["lock"]["is"], state["process"]["is"]
            self.assertEqual(("held" if is_held else "free", word), found, pid)
        fcntl.flock(lock, fcntl.LOCK_EX | fcntl.LOCK_NB)  # The tool has given it back.

    def test_tells_which_owners_and_modes_stop_an_upgrade(self):
        corvimo, client = self.home / ".Corvimo", self.home / APP / "Resources/text"
        for path in (self.home, *self.home.rglob("*")):
            os.chown(path, NOBODY, NOBODY)
        for path, change, told in (
            (corvimo, None, ""),
            (corvimo, lambda path: path.chmod(0o500), "~/.Corvimo may not be written: nothing"),
            (corvimo, lambda path: os.chown(path, 0, 0), "~/.Corvimo belongs to root: nothing can"),
            (self.log, lambda path: path.chmod(0o400), "launcher.log may not be written: no log"),
            (self.log, lambda path: os.chown(path, 7, 0), "launcher.log belongs to another user"),
            (client, lambda path: os.chown(path, 0, 0), "Corvimo.app holds an object that belongs"),
        ):
            with self.subTest(told):
                if change:
                    change(path)
                report = self.report()
                self.assertIn(told, report["state"]["owners"]["text"])
                self.assertEqual("owner" if change else "nothing", report["next_step"]["is"])
                path.chmod(0o700)
                os.chown(path, NOBODY, NOBODY)

    def test_tells_how_to_put_a_backup_back(self):
        (self.home / APP).parent.rename(self.home / ".Corvimo/Corvimo.app_tmp3")
        self.write(self.home / APP / "half", b"")
        self.write(self.log, record(ROLLED_BACK) + record(FAILED) + record(NOT_BACK))
        step = self.report()["next_step"]
        self.assertEqual("restore", step["is"])
        self.assertTrue(
            step["text"].endswith("mv ~/.Corvimo/Corvimo.app_tmp3 ~/.Corvimo/Corvimo.app")
        )

    def test_counts_the_room_that_an_upgrade_needs(self):
        backup = self.home / ".Corvimo/Corvimo.app_tmp/Contents/large"
        self.carry_client({**CLIENT, f"{APP}/Resources/INFO": b"[Version]\nbuild_version=101\n"})
        self.write(backup, bytes(4096))
        for free, is_short in (2, True), (3, False):  # Each of the client's files takes a block.
            volume = mock.Mock(f_bavail=free - 1, f_frsize=4096, f_flag=0)
            with mock.patch("os.statvfs", return_value=volume):
                found = state.look(source.Folder(self.home), self.launcher)
            self.assertEqual((free * 4096, 3 * 4096), (found.free, found.needed))
            step = advice.next_step(found, mock.Mock(runs=[]))[0]
            self.assertEqual("space" if is_short else "start", step)

    # An archive of these members; each is a name, or a name with what else is set.
    def archive(self, *members, mode="w:gz"):
        path = self.home / "sent.tar.gz"
        with tarfile.open(path, mode) as archive:
            archive.add(self.home / ".Corvimo", ".Corvimo")
            for name, attributes, content in members:
                member = tarfile.TarInfo(name)
                member.size = len(content)
                for key, value in attributes.items():
                    setattr(member, key, value)
                archive.addfile(member, io.BytesIO(content))
        return path

    def test_reads_archives_as_tar_makes_them(self):
        self.write(self.log, record(FAILED))
        for command in (
            "tar -czf sent.tar.gz .Corvimo",
            "tar --exclude .Corvimo/data -czf sent.tar.gz ./.Corvimo",
            "tar -cf sent.tar.gz -C .Corvimo .",
            "tar -cJf sent.tar.gz --transform 's,^,Users/ann/,' .Corvimo",
        ):
            with self.subTest(command):
                subprocess.run(command, shell=True, check=True, cwd=self.home)
                report = self.report(self.home / "sent.tar.gz")
                self.assertEqual("whole", report["state"]["client"]["is"])
                self.assertEqual(1, len(report["runs"]))
                self.assertEqual([], report["notes"])
                is_there = "exclude" not in command
                self.assertEqual(
                    "there" if is_there else "not in the archive", report["state"]["data"]["is"]
                )

    def test_survives_hostile_archives(self):
        outside, ui = self.home / "outside", f"{APP}/MacOS/corvimo-ui"
        link = {"type": tarfile.SYMTYPE, "linkname": str(outside)}
        out = {"type": tarfile.LNKTYPE, "linkname": str(outside)}
        self.write(outside, b"secret")
        long = {"type": tarfile.GNUTYPE_LONGNAME}
        sparse = {
            "pax_headers": {
                "GNU.sparse.map": "0,0",
                "GNU.sparse.size": str(10**15),
                "GNU.sparse.name": "x",
            }
        }
        hole = {
            "pax_headers": {
                "GNU.sparse.major": "1",
                "GNU.sparse.minor": "0",
                "GNU.sparse.name": "x",
            }
        }
        for name, members, told in (
            ("absolute", [("/.Corvimo/x", {}, b"")], "left out"),
            ("above", [(".Corvimo/../../x", {}, b"")], "left out"),
            ("device", [(".Corvimo/x", {"type": tarfile.CHRTYPE}, b"")], "left out"),
            (
                "pipe",
                [(".Corvimo/log/launcher.log_0", {"type": tarfile.FIFOTYPE}, b"")],
                "left out",
            ),
            ("link out", [(ui, link, b"")], "leads out of the archive"),
            (
                "link in a circle",
                [(ui, {**link, "linkname": "corvimo-ui"}, b"")],
                "link in a circle",
            ),
            ("hard link out", [(ui + "2", out, b"")], "left out"),
            ("another home", [("x/.Corvimo/y", {}, b"")], "left out"),
            ("large name", [("x", long, b"x" * 3 * MEBIBYTE)], "header that is too large"),
            ("many names", [("x" * 99, long, b"y" * 99)] * 999, None),
            ("hole", [(".Corvimo/x", sparse, b"")], "left out"),
            ("map without end", [(".Corvimo/x", hole, b"1\n1\n1\n")], "a sparse file"),
        ):
            with self.subTest(name):
                report = self.tell(self.archive(*members), timeout=60)
                self.assertIn(told or "next start", report + "next start")
                self.assertEqual(b"secret", outside.read_bytes())

    def test_reads_no_more_of_an_archive_than_its_limits(self):
        self.assertEqual([False] * 3, [state.is_running(pid) for pid in (0, -1, 2**40)])
        for limit, value in ("MAX_UNPACKED", 99_999), ("MAX_NAMES", 50), ("MAX_LOG", 10):
            self.write(self.log, bytes(100_000))
            with self.subTest(limit), mock.patch.object(source, limit, value):
                self.assertEqual(1, len(source.Archive(self.archive()).notes))

    def test_says_what_is_wrong_with_its_input(self):
        archive = self.archive()
        cut, text, other = (self.home / name for name in ("cut", "text", "other"))
        self.write(cut, archive.read_bytes()[:-20])
        self.write(text, b"text")
        with tarfile.open(other, "w") as stream:
            stream.add(text, "text")
        for arguments, status, told in (
            ([self.home / "none"], 1, "no such folder"),
            ([text], 1, "neither a home folder nor a tar archive"),
            ([os.devnull], 1, "neither a folder nor a file"),
            ([other], 1, "holds no folder .Corvimo"),
            ([cut], 0, "damaged or cut"),
            ([self.home, "--launcher", self.home], 1, "name a launcher"),
            (["--errors", self.home], 2, "usage"),
            ([self.home, "--runs", "0"], 2, "usage"),
        ):
            with self.subTest(arguments):
                self.assertIn(told, self.tell(*arguments, status=status))


if __name__ == "__main__":
    unittest.main()
