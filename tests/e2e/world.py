"""Starts the launcher several times in one home folder, with faults, and checks what each start
leaves: no data is lost, and where there was a whole client, there is one that starts."""

import os
import shutil
import subprocess
import typing
from errno import EACCES, EAGAIN, EINTR, EIO, EMFILE, ENOMEM, ENOSPC
from signal import SIGHUP, SIGINT, SIGKILL, SIGTERM

from scene import APP, NOBODY, SHORT_CLIENT, Scene, mount_volume, snapshot, write

ERRORS = EIO, ENOSPC, EACCES, EMFILE, ENOMEM, EINTR
CALLS = "open read write fsync rename mkdir unlink opendir readdir lstat fork chmod".split()
# Each kind of fault: a call as the fault library names it, and errors or negative signals.
KINDS = {call: (call, ERRORS) for call in CALLS} | {
    "full": ("full", [ENOSPC]),
    "place": ("place", [EIO]),
    "thread": ("thread", [EAGAIN]),
    "kill": ("change", [-SIGKILL]),
    "signal": ("change", [-SIGTERM, -SIGHUP, -SIGINT]),
}
NO_FAULT = "", 0, 0
MISSING = -1.0  # In place of a share of the package.

# What a World may have besides the launcher and its package:
#
#   installed  a whole client
#   backup     a whole client under the first backup name
#   torsos     incomplete clients under all other backup names
#   data       data of the installed client
#   older      data of the older product
#   volume     ~/.Corvimo as another volume
#   tight      the same with room for two clients, but not for three
#   pipes      FIFOs in place of the pid file, the log and its levels
#   shared     ~/.Corvimo writable for its group
#   ordinary   a launcher that runs as an ordinary user, and read-only folders in its package
#   large      600 more entries in the package
FEATURES = "installed older data backup torsos volume tight pipes shared ordinary".split()
GLUED = r"(?m)^.+\d{4}-\d\d-\d\dT"  # A line with two records.
# All that may stay in ~/.Corvimo.
LASTING = {"Corvimo.app", "data", "launcher.lock", "log", "ui.pid"}


# One start of the launcher.
class Start(typing.NamedTuple):
    kept: typing.Optional[float] = None  # The share of the package's entries that is left by a cut.
    fault: tuple = NO_FAULT  # The call, the number and the error for the fault library.
    is_newer: bool = True  # Whether the package has a newer build than that of the start before.


def random_start(rng, is_faulty=False):
    kept = rng.choice([None] * 4 + [MISSING, 0.0, rng.random(), 1.0])
    fault = NO_FAULT
    if rng.random() < 0.5 or (is_faulty and kept is None):
        call, errors = KINDS[rng.choice([rng.choice([*KINDS]), "kill"])]
        number = 1 if call == "thread" else 1 + int(120 * rng.random() ** 2)
        fault = call, number, rng.choice(errors)
    return Start(kept, fault, rng.random() < 0.5)


class World(Scene):
    def __init__(self, test, features):
        super().__init__(test, client=SHORT_CLIENT)
        self.features = set(features.split())
        self.folders = corvimo, lumaport = self.home / ".Corvimo", self.home / ".Lumaport"
        self.app = self.home / APP
        self.trees = {}  # The tree of each build.
        self.data = []  # The relative path and the content of each file.
        corvimo.mkdir()
        if self.features & {"volume", "tight"}:
            mount_volume(test, corvimo, "size=1m")
        self.install_with_backup()
        for feature, folder in ("data", corvimo), ("older", lumaport):
            for name in ("data/file", "data/deep/file") if feature in self.features else ():
                self.data.append((name, feature))
                write(folder / name, feature)
        self.log_file = corvimo / "log/launcher.log"
        self.add_obstacles(corvimo)
        shutil.copy(os.environ["FAULT_LIBRARY"], self.folder)
        if "ordinary" in self.features and os.geteuid() == 0:
            subprocess.run(["chown", "-hR", str(NOBODY), self.folder], check=True)
            test.addCleanup(os.setresuid, 0, 0, 0)
            os.setresuid(NOBODY, NOBODY, 0)

    # Has the launcher install each client, and moves it aside: at its place, the next installation
    # would replace it.
    def install_with_backup(self):
        places = {"backup": (99, f"{APP}_tmp"), "installed": (100, APP)}
        wanted = [name for name in places if name in self.features]
        for name in wanted:
            self.build = places[name][0]
            self.carry()
            self.run_with_fault(*NO_FAULT)
            shutil.move(self.app, self.folder / name)
        for name in wanted:
            shutil.move(self.folder / name, self.home / places[name][1])
        self.build = 100

    def add_obstacles(self, corvimo):
        corvimo.chmod(0o775 if "shared" in self.features else 0o755)
        for number in range(1, 10) if "torsos" in self.features else ():
            write(self.home / f"{APP}_tmp{number}/Contents/MacOS/corvimo-ui", "", 0o755)
        levels = self.contents / "Resources/log/launcher.debug"
        for path in (self.log_file, levels, corvimo / "ui.pid") if "pipes" in self.features else ():
            path.parent.mkdir(exist_ok=True)
            path.unlink(missing_ok=True)
            os.mkfifo(path)

    def carry(self):
        entries = []
        for i in range(300 if "large" in self.features else 4):
            name = f"Contents/{i // 20}/{i}-{self.build}"
            entries.append((f"{name}-link", 0o120777, "../Info.plist"))
            entries.append((name, 0o100644 if i % 3 else 0o100755, name))
        if "tight" in self.features:
            entries.append(("Contents/large", 0o100644, "x" * (350 << 10)))
        if "ordinary" in self.features:
            folders = "Contents/", "Contents/0/", "Contents/MacOS/", "Contents/Resources/"
            entries = [*((name, 0o40555, "") for name in folders), *entries]
        self.trees[str(self.build)] = self.carry_client(str(self.build), entries)

    # Returns a list with the build of the whole client at the path, or an empty one.
    def whole(self, path):
        found = snapshot(path)
        return [build for build, tree in self.trees.items() if tree == found]

    def has_whole_client(self):
        return any(map(self.whole, [self.app, *self.backups()]))

    # Starts the launcher and checks what it leaves. Returns whether the fault has struck.
    def check_start(self, start):
        self.build += start.is_newer
        self.carry()
        if start.kept == MISSING:
            self.package.unlink()
        elif start.kept is not None:
            os.truncate(self.package, int(start.kept * self.end_of_entries))
        had_client = self.has_whole_client()
        is_killed = self.run_with_fault(*start.fault)
        for name, content in self.data:
            files = [folder / name for folder in self.folders if (folder / name).is_file()]
            self.test.assertIn(content, [file.read_text() for file in files], name)
        if self.log_file.is_file():
            self.test.assertNotRegex(self.log_file.read_text(errors="replace"), GLUED)
        call, number, error = start.fault
        if is_killed:
            self.test.assertLessEqual(had_client, self.has_whole_client(), "no whole client")
        elif start.kept is None and (call == "thread" or error <= 0):
            self.test.assertEqual([str(self.build)], self.whole(self.app))
        if had_client and not is_killed:
            self.test.assertTrue(self.whole(self.app), "no whole client")
            started = [build for build, _ in self.started()]
            self.test.assertTrue(call == "fork" or started == self.whole(self.app), started)
        return is_killed or self.calls >= number > 0

    # Starts the launcher with a fault. Returns whether it was killed.
    def run_with_fault(self, *fault):
        report = self.folder / "calls"
        report.write_text("0")
        (self.home / "started").unlink(missing_ok=True)
        library = self.folder / os.path.basename(os.environ["FAULT_LIBRARY"])
        names = "FAULT_CALL", "FAULT_NUMBER", "FAULT_ERROR", "FAULT_REPORT", "LD_PRELOAD"
        variables = dict(zip(names, map(str, (*fault, report, library))))
        variables["ASAN_OPTIONS"] = "verify_asan_link_order=0"
        status = self.run(**(variables if fault != NO_FAULT else {}))
        self.wait_for()
        is_killed = status == fault[2] == -SIGKILL
        self.test.assertTrue(is_killed or status == 0, f"status {status}")
        self.calls = int(report.read_text())
        return is_killed

    # Plays the starts, and then two without a fault. Returns how many faults have struck.
    def play(self, *starts):
        struck = 0
        for number, start in enumerate((*starts, Start(is_newer=False), Start()), 1):
            try:
                struck += self.check_start(start)
            except AssertionError as failure:
                failure.add_note(f"start {number}: {start}")
                raise
        self.test.assertLessEqual(set(os.listdir(self.folders[0])), LASTING, "left over")
        if self.features <= {"older", "volume"} and all(start.fault[2] <= 0 for start in starts):
            self.test.assertFalse(self.folders[1].exists(), "not migrated")
        return struck
