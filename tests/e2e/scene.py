"""Runs the whole program in a temporary folder: a copy of the bundle with a package, a home folder
and real clients. Every test program in this folder uses it and ends with a call of `main`."""

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

# How many of the possible cases a test tries. CORVIMO_WHOLE_MATRIX asks for all of them.
TRIES = int(os.environ.get("TRIES", 4))
IS_WHOLE = "CORVIMO_WHOLE_MATRIX" in os.environ

# Writes its pid file, notes each start with its build number, and ends on SIGTERM.
CLIENT_SCRIPT = """\
#!/bin/sh
trap 'exit 0' TERM
build=$(sed -n 's/^build_version=//p' "${0%/*}/../Resources/INFO")
echo "pid=$$" >"${PID_FOLDER:-$HOME/.Corvimo}/ui.pid"
echo "$build $$" >>"$HOME/started"
while [ -d "/proc/$TESTER" ]; do sleep 0.05; done
"""

# Notes its start and ends.
SHORT_CLIENT = """\
#!/bin/sh
echo "$(sed -n 's/^build_version=//p' "${0%/*}/../Resources/INFO") $$" >>"$HOME/started"
"""

# Support's tools find the records of two sources by their line. The lines of the others may change.
RECORD = re.compile(
    r"[\dT:-]{19} \( *\d+: *\d+\) \[(\w+)\] ((?:main|launcher)\(\d+\)|[^ (]+)(?:\(\d+\))?: (.*)"
)

LIMIT = 120  # Seconds. One run takes less than a second on an idle machine.

APPEND = os.O_CREAT | os.O_WRONLY | os.O_APPEND
NOBODY = 65534
PR_SET_CHILD_SUBREAPER = 36
CLONE_NEWNS = 0x20000
LIBC = ctypes.CDLL(None)


def write(path, content, mode=0o644):
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_bytes(content if isinstance(content, bytes) else content.encode())
    path.chmod(mode)


# Returns a link's target, a file's mode and content, or "dir".
def describe(path):
    if path.is_symlink():
        return os.readlink(path)
    if path.is_dir():
        return "dir"
    return stat.S_IMODE(path.stat().st_mode), path.read_bytes()


# Returns the descriptions of everything in a folder, by relative path.
def snapshot(folder):
    return {str(path.relative_to(folder)): describe(path) for path in folder.rglob("*")}


# Mounts an empty volume on a folder until the end of the test. Other processes do not see it. Skips
# the test where the system does not allow that.
def mount_volume(test, folder, options):
    if LIBC.unshare(CLONE_NEWNS) or subprocess.call(["mount", "--make-rprivate", "/"]):
        test.skipTest("cannot mount a volume here")
    subprocess.run(["mount", "-t", "tmpfs", "-o", options, "none", folder], check=True)
    test.addCleanup(subprocess.run, ["umount", "--lazy", folder], check=True)


# The launcher, its package and a home folder. When the test is over, every launcher and client that
# was started here is ended.
class Scene:
    def __init__(self, test, home="home", client=CLIENT_SCRIPT):
        LIBC.prctl(PR_SET_CHILD_SUBREAPER, 1)  # Orphans become our children.
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
        self.output = self.folder / "output"
        write(self.contents / "Resources/log/launcher.debug", LEVELS)
        # Variables that would choose a language or a screen are left out.
        kept = {name: value for name, value in os.environ.items() if "SAN_OPTIONS" in name}
        self.environment = kept | {
            "PATH": os.environ["PATH"],
            "HOME": str(self.home),
            "TESTER": str(os.getpid()),  # Clients end when it has ended.
            "QT_QPA_PLATFORM": "offscreen",
        }

    # Packs a client of the build for the launcher. The entries of `extra` come first; each is a
    # name, a mode with the file type, and a content or a link's target. Returns the snapshot of a
    # correct installation.
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
                # Repeats type and mode before the data, as scripts/make-package.sh does.
                record.extra = struct.pack("<HHBHI", 0x6C78, 7, 0b101, 0x314, mode << 16)
                package.writestr(record, content)
                tree.update((str(path), "dir") for path in pathlib.PurePath(name).parents[:-1])
                described = {stat.S_IFLNK: content, stat.S_IFDIR: "dir"}
                file = mode & 0o777, content.encode()
                tree[name.rstrip("/")] = described.get(stat.S_IFMT(mode), file)
            self.end_of_entries = package.start_dir
        write(self.contents / "Resources/INFO", INFO.format(build))
        return tree

    # Installs a client of the build in the home folder, as an earlier run would have done.
    def install_client(self, build, bundle=APP):
        contents = self.home / bundle / "Contents"
        write(contents / "MacOS/corvimo-ui", self.client, 0o755)
        write(contents / "Info.plist", PLIST)
        write(contents / "Resources/old.txt", "")
        write(contents / "Resources/INFO", INFO.format(build))
        write(self.home / ".Corvimo/data/file", "the person's data")

    # Starts the launcher, or another program, and returns its process id.
    def start(self, program="MacOS/launcher", **variables):
        path = self.contents / program
        ignored_here = signal.SIGPIPE, signal.SIGXFSZ
        environment = self.environment | variables
        opening = os.POSIX_SPAWN_OPEN, 1, self.output, APPEND, 0o600
        actions = [opening, (os.POSIX_SPAWN_DUP2, 1, 2)]
        options = {"file_actions": actions, "setsigdef": ignored_here}
        self.processes.append(os.posix_spawn(path, [path], environment, **options))
        return self.processes[-1]

    # Runs the launcher to its end and returns its exit status, as wait_for does.
    def run(self, **variables):
        return self.wait_for(self.start(**variables))

    # Waits for a process, or for all. Reaps every child that ends meanwhile, as init does. Returns
    # the exit status or the negative number of a signal. Prints the output of a process that fails.
    def wait_for(self, process=None):
        signal.alarm(LIMIT)
        ended = status = 0
        with contextlib.suppress(ChildProcessError):
            while ended != process:
                ended, status = os.wait()
        signal.alarm(0)
        status = os.waitstatus_to_exitcode(status)
        if process and status not in (0, -signal.SIGKILL):
            print(self.output.read_text())
        return status

    # Returns the build and the process id of each client that was started, as it noted them.
    def started(self):
        notes = self.home / "started"
        lines = notes.read_text().splitlines() if notes.exists() else []
        return [line.rsplit(" ", 1) for line in lines]

    # Polls the condition until it holds or the time is over.
    def wait_until(self, condition):
        for _ in range(100 * LIMIT):
            if condition():
                break
            time.sleep(0.01)

    # Waits for as many clients as there are builds. Checks that these and no others have started.
    def check_started(self, *builds):
        self.wait_until(lambda: len(self.started()) >= len(builds))
        self.test.assertEqual(list(builds), [build for build, _ in self.started()])

    # Signals only children of this process: the number of an ended client may have been reused.
    def end_processes(self):
        for number in [*self.processes, *(int(client) for _, client in self.started())]:
            with contextlib.suppress(ChildProcessError):
                if os.waitpid(number, os.WNOHANG) == (0, 0):
                    os.kill(number, signal.SIGKILL)
                    os.waitpid(number, 0)

    # Returns the records as "LEVEL source: message". Fails at an incomplete one.
    def log(self):
        lines = (self.home / ".Corvimo/log/launcher.log").read_text().splitlines()
        return [RECORD.fullmatch(line).expand(r"\1 \2: \3") for line in lines]

    def backups(self):
        return [path for path in (self.home / ".Corvimo").iterdir() if "_tmp" in path.name]


# Runs the program's tests; the exit status 77 tells ctest that one was skipped. With the argument
# "list", CMake asks for the names of the tests instead.
def main(names=()):
    if sys.argv[1:] == ["list"]:
        print(*names, sep=";", end="")
        return
    result = unittest.main(exit=False).result
    sys.exit(77 if result.wasSuccessful() and result.skipped else not result.wasSuccessful())
