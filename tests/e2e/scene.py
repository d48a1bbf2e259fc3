"""The whole program on a stage of its own: a copy of the bundle, a package, a home folder, real
clients. Every test program beside this file uses it and ends with `main`."""

import contextlib
import ctypes
import os
import pathlib
import re
import shutil
import signal
import stat
import struct
import subprocess
import sys
import tempfile
import time
import unittest
import zipfile

APP = ".Corvimo/Corvimo.app"
CLIENT = f"{APP}/Contents/MacOS/corvimo-ui"
PLIST = "<plist><key>CFBundleExecutable</key>\n<string>corvimo-ui</string></plist>\n"
INFO = "[Version]\nbuild_version={}\n"
OPEN = "PlatformTools/usr/bin/open"
REGISTER = (
    "PlatformTools/System/Library/Frameworks/CoreServices.framework/Frameworks"
    "/LaunchServices.framework/Support/lsregister"
)
LEVELS = "launcher_debug=7\nservice_debug=7\nextractor_debug=7\nfile_op_debug=4\n"

# How many of everything that is tried on a sample; the environment may ask for all.
TRIES = int(os.environ["TRIES"])
IS_WHOLE = "CORVIMO_WHOLE_MATRIX" in os.environ

# Keeps a pid file, notes each start with its build number, and ends on SIGTERM.
CLIENT_SCRIPT = """\
#!/bin/sh
trap 'exit 0' TERM
build=$(sed -n 's/^build_version=//p' "${0%/*}/../Resources/INFO")
echo "pid=$$" >"${PID_FOLDER:-$HOME/.Corvimo}/ui.pid"
echo "$build $$" >>"$HOME/started"
while [ -d "/proc/$TESTER" ]; do sleep 0.05; done
"""

# Only notes its start, and ends.
SHORT_CLIENT = """\
#!/bin/sh
echo "$(sed -n 's/^build_version=//p' "${0%/*}/../Resources/INFO") $$" >>"$HOME/started"
"""

# Support's tools find the records of two sources by their line. The lines of the others may change.
RECORD = re.compile(
    r"[\dT:-]{19} \( *\d+: *\d+\) \[(\w+)\] ((?:main|launcher)\(\d+\)|[^ (]+)(?:\(\d+\))?: (.*)"
)

LIMIT = 120  # Seconds for what takes less than one, or about 15 where a client does not end.

NOBODY = 65534
PR_SET_CHILD_SUBREAPER = 36
CLONE_NEWNS = 0x20000
LIBC = ctypes.CDLL(None)


def write(path, content, mode=0o644):
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_bytes(content if isinstance(content, bytes) else content.encode())
    path.chmod(mode)


# A link's target, a file's mode and content, or "dir".
def describe(path):
    if path.is_symlink():
        return os.readlink(path)
    if path.is_dir():
        return "dir"
    return stat.S_IMODE(path.stat().st_mode), path.read_bytes()


# What a tree holds, by relative path. Two trees are alike when their snapshots are equal.
def snapshot(folder):
    return {str(path.relative_to(folder)): describe(path) for path in folder.rglob("*")}


# Makes an empty folder another volume for the time of a test, which is skipped where that cannot be
# done. No other process sees it.
def mount_volume(test, folder, options):
    if LIBC.unshare(CLONE_NEWNS) or subprocess.call(["mount", "--make-rprivate", "/"]):
        test.skipTest("cannot mount a volume here")
    subprocess.run(["mount", "-t", "tmpfs", "-o", options, "none", folder], check=True)
    test.addCleanup(subprocess.run, ["umount", "--lazy", folder], check=True)


# One person's machine. Ends every launcher and client that was started on it when the test is over.
class Scene:
    def __init__(self, test, home="home", client=CLIENT_SCRIPT):
        LIBC.prctl(PR_SET_CHILD_SUBREAPER, 1)  # What the launcher leaves behind comes to us.
        folder = tempfile.TemporaryDirectory(prefix="corvimo-test-")
        test.addCleanup(folder.cleanup)
        test.addCleanup(self.end_processes)
        signal.signal(signal.SIGALRM, lambda *_: test.fail("the launcher does not end"))
        self.test = test
        self.client = client
        self.processes = []
        self.folder = pathlib.Path(folder.name)
        self.folder.chmod(0o755)
        self.home = self.folder / home
        self.home.mkdir()
        shutil.copytree(os.environ["BUNDLE"], self.folder / "Launcher.app", symlinks=True)
        self.contents = self.folder / "Launcher.app/Contents"
        self.package = self.contents / "Resources/package/lumaport.cpk"
        write(self.contents / "Resources/log/launcher.debug", LEVELS)
        # Nothing that tells of a language or a screen.
        kept = {name: value for name, value in os.environ.items() if "SAN_OPTIONS" in name}
        self.environment = kept | {
            "PATH": os.environ["PATH"],
            "HOME": str(self.home),
            "TESTER": str(os.getpid()),  # What waits for something ends with it.
            "QT_QPA_PLATFORM": "offscreen",
        }

    # Puts a client of the build into the launcher's package, with more entries (name, mode with type,
    # content or target) first. Gives the snapshot that it must become.
    def carry_client(self, build, extra=()):
        entries = [
            *extra,
            ("Contents/empty/", 0o40755, ""),
            ("Contents/Info.plist", 0o100644, PLIST),
            ("Contents/MacOS/corvimo-ui", 0o100755, self.client),
            ("Contents/Resources/größe.txt", 0o100644, build),
            ("Contents/current", 0o120777, "Resources"),
            ("Contents/Resources/INFO", 0o100644, INFO.format(build)),
        ]
        tree = {}
        with zipfile.ZipFile(self.package, "w", zipfile.ZIP_DEFLATED) as package:
            for name, mode, content in entries:
                record = zipfile.ZipInfo(name)
                record.external_attr = mode << 16
                # Repeats type and mode in front of the data, as the project's packages have it.
                record.extra = struct.pack("<HHBHI", 0x6C78, 7, 0b101, 0x314, mode << 16)
                package.writestr(record, content)
                tree.update((str(path), "dir") for path in pathlib.PurePath(name).parents[:-1])
                described = {stat.S_IFLNK: content, stat.S_IFDIR: "dir"}
                file = mode & 0o777, content.encode()
                tree[name.rstrip("/")] = described.get(stat.S_IFMT(mode), file)
            self.end_of_entries = package.start_dir
        write(self.contents / "Resources/INFO", INFO.format(build))
        return tree

    # Installs a client of the build in the home folder, as an earlier run has left it.
    def install_client(self, build, bundle=APP):
        contents = self.home / bundle / "Contents"
        write(contents / "MacOS/corvimo-ui", self.client, 0o755)
        write(contents / "Info.plist", PLIST)
        write(contents / "Resources/old.txt", "")
        write(contents / "Resources/INFO", INFO.format(build))
        write(self.home / ".Corvimo/data/file", "the person's data")

    # Starts the launcher, or another program, and gives its process id.
    def start(self, program="MacOS/launcher", **variables):
        path = self.contents / program
        ignored_here = signal.SIGPIPE, signal.SIGXFSZ
        environment = self.environment | variables
        self.processes.append(os.posix_spawn(path, [path], environment, setsigdef=ignored_here))
        return self.processes[-1]

    # Runs the launcher to its end and gives its exit status; negative when it crashed.
    def run(self, **variables):
        return self.wait_for(self.start(**variables))

    # Reaps everything that ends meanwhile, as the system's first process does it. Without a process,
    # waits for all.
    def wait_for(self, process=None):
        signal.alarm(LIMIT)
        ended = status = 0
        with contextlib.suppress(ChildProcessError):
            while ended != process:
                ended, status = os.wait()
        signal.alarm(0)
        return os.waitstatus_to_exitcode(status)

    # The build and the process id of each client that was started, as it has noted them.
    def started(self):
        notes = self.home / "started"
        lines = notes.read_text().splitlines() if notes.exists() else []
        return [line.rsplit(" ", 1) for line in lines]

    # Checks that clients of these builds have started, and none besides them so far. Waits for as many.
    def check_started(self, *builds):
        for _ in range(6000):
            if len(self.started()) >= len(builds):
                break
            time.sleep(0.01)
        self.test.assertEqual(list(builds), [build for build, _ in self.started()])

    # Only a child of this process is one of them; a number that was reused is not.
    def end_processes(self):
        for number in [*self.processes, *(int(client) for _, client in self.started())]:
            with contextlib.suppress(ChildProcessError):
                if os.waitpid(number, os.WNOHANG) == (0, 0):
                    os.kill(number, signal.SIGKILL)
                    os.waitpid(number, 0)

    # The records as "LEVEL source: message". Fails at one that is torn.
    def log(self):
        lines = (self.home / ".Corvimo/log/launcher.log").read_text().splitlines()
        return [RECORD.fullmatch(line).expand(r"\1 \2: \3") for line in lines]

    def backups(self):
        return [path for path in (self.home / ".Corvimo").iterdir() if "_tmp" in path.name]


# The status 77 stands for a skip.
def main():
    result = unittest.main(exit=False).result
    sys.exit(77 if result.wasSuccessful() and result.skipped else not result.wasSuccessful())
