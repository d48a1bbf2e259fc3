"""The whole program on a stage of its own: a copy of the bundle, a package, a home folder, real
clients. Every test program beside this file uses it and ends with `main`."""

import ctypes
import os
import pathlib
import re
import shutil
import signal
import stat
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
while :; do sleep 0.05; done
"""

RECORD = re.compile(r"[\dT:-]{19} \( *\d+: *\d+\) \[(\w+)\] ([^ (]+)(\(\d+\)): (.*)")

PR_SET_CHILD_SUBREAPER = 36
CLONE_NEWNS = 0x20000
LIBC = ctypes.CDLL(None)


def write(path, content, mode=0o644):
    """Makes or replaces a file, with all missing folders above it."""
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_bytes(content if isinstance(content, bytes) else content.encode())
    path.chmod(mode)


def describe(path):
    """What is stored at a path: a link's target, a file's mode and content, or "dir"."""
    if path.is_symlink():
        return os.readlink(path)
    if path.is_dir():
        return "dir"
    return stat.S_IMODE(path.stat().st_mode), path.read_bytes()


def snapshot(folder):
    """What a tree holds, by relative path. Two trees are alike when their snapshots are equal."""
    return {str(path.relative_to(folder)): describe(path) for path in folder.rglob("*")}


def pack(package, entries):
    """Writes a zip archive of (name, mode with type, content); a link's content is its target."""
    with zipfile.ZipFile(package, "w", zipfile.ZIP_DEFLATED) as archive:
        for name, mode, content in entries:
            record = zipfile.ZipInfo(name)
            record.external_attr = mode << 16
            archive.writestr(record, content)


def mount_volume(test, folder, options):
    """Makes an empty folder another volume for the time of a test, which is skipped where that
    cannot be done. No other process sees it."""
    if LIBC.unshare(CLONE_NEWNS) or subprocess.call(["mount", "--make-rprivate", "/"]):
        test.skipTest("cannot mount a volume here")
    subprocess.run(["mount", "-t", "tmpfs", "-o", options, "none", folder], check=True)
    test.addCleanup(subprocess.run, ["umount", "--lazy", folder], check=True)


class Scene:
    """One person's machine. Ends every client that was started on it when the test is over.

    `home_link` is a link by which the launcher is told of its home, where it is not told its name.
    """

    def __init__(self, test, home="home", home_link=None):
        LIBC.prctl(PR_SET_CHILD_SUBREAPER, 1)  # What the launcher leaves behind comes to us.
        folder = tempfile.TemporaryDirectory(prefix="corvimo-test-")
        test.addCleanup(folder.cleanup)
        test.addCleanup(self.end_clients)
        self.folder = pathlib.Path(folder.name)
        self.folder.chmod(0o755)
        self.home = self.folder / home
        self.home.mkdir()
        if home_link:
            (self.folder / home_link).symlink_to(home)
        shutil.copytree(os.environ["BUNDLE"], self.folder / "Launcher.app", symlinks=True)
        self.contents = self.folder / "Launcher.app/Contents"
        self.package = self.contents / "Resources/package/lumaport.cpk"
        components = ("launcher", "service", "extractor", "file_op")
        levels = "".join(f"{component}_debug=7\n" for component in components)
        write(
            self.contents / "Resources/log/launcher.debug",
            levels.replace("op_debug=7", "op_debug=4"),
        )
        # Nothing that tells of a language or a screen.
        kept = {name: value for name, value in os.environ.items() if "SAN_OPTIONS" in name}
        self.environment = kept | {
            "PATH": os.environ["PATH"],
            "HOME": str(self.folder / (home_link or home)),
            "QT_QPA_PLATFORM": "offscreen",
        }

    def carry_client(self, build, extra=()):
        """Puts a client of the build into the launcher's package, with more entries before the
        INFO, which comes last."""
        entries = [
            ("Contents/Info.plist", 0o100644, PLIST),
            ("Contents/MacOS/corvimo-ui", 0o100755, CLIENT_SCRIPT),
            ("Contents/Resources/größe.txt", 0o100644, build),
            ("Contents/current", 0o120777, "Resources"),
            ("Contents/empty/", 0o40755, ""),
            *extra,
            ("Contents/Resources/INFO", 0o100644, INFO.format(build)),
        ]
        pack(self.package, entries)
        write(self.contents / "Resources/INFO", INFO.format(build))

    def install_client(self, build):
        """Installs a client of the build in the home folder, as an earlier run has left it."""
        contents = self.home / APP / "Contents"
        write(contents / "MacOS/corvimo-ui", CLIENT_SCRIPT, 0o755)
        write(contents / "Info.plist", PLIST)
        write(contents / "Resources/old.txt", build)
        write(contents / "Resources/INFO", INFO.format(build))
        write(self.home / ".Corvimo/data/file", "the person's data")

    def start(self, program=None, **variables):
        """Starts the launcher, or another program, and gives its process id."""
        program = program or self.contents / "MacOS/launcher"
        ignored_here = signal.SIGPIPE, signal.SIGXFSZ
        environment = self.environment | variables
        return os.posix_spawn(program, [program], environment, setsigdef=ignored_here)

    def start_client(self, executable, folder):
        """Starts an executable as a client whose pid file is in a folder, and gives its process id
        once it has written that file."""
        count = len(self.started()) + 1
        client = self.start(executable, PID_FOLDER=str(folder))
        self.started_builds(count)
        return client

    def run(self, **variables):
        """Runs the launcher to its end and gives its exit status; negative when it crashed."""
        return self.wait_for(self.start(**variables))

    def wait_for(self, process):
        """Reaps everything that ends meanwhile, as the system's first process does it."""
        while True:
            ended, status = os.wait()
            if ended == process:
                return os.waitstatus_to_exitcode(status)

    def started(self):
        """The build and the process id of each client that was started, as it has noted them."""
        notes = self.home / "started"
        return (
            [line.rsplit(" ", 1) for line in notes.read_text().splitlines()]
            if notes.exists()
            else []
        )

    def started_builds(self, count):
        """The builds of the clients, once there are `count` of them or much time has passed."""
        for _ in range(1000):
            if len(self.started()) >= count:
                break
            time.sleep(0.01)
        return [build for build, _ in self.started()]

    def end_clients(self):
        for _, number in self.started():
            try:
                # Only a child of this process is one of its clients; a number that was reused is not.
                if os.waitpid(int(number), os.WNOHANG) == (0, 0):
                    os.kill(int(number), signal.SIGKILL)
                    os.waitpid(int(number), 0)
            except ChildProcessError:
                pass

    def log(self):
        """The records as (level, source, line, message); None for what is no record."""
        lines = (self.home / ".Corvimo/log/launcher.log").read_text().splitlines()
        matches = map(RECORD.fullmatch, lines)
        return [match and match.groups() for match in matches]

    def messages(self):
        return [f"{level} {source}: {message}" for level, source, _, message in self.log()]

    def backups(self):
        return [path for path in (self.home / ".Corvimo").iterdir() if "_tmp" in path.name]


def main():
    """Runs the tests of the program. Its status 77 stands for a skip."""
    result = unittest.main(exit=False).result
    sys.exit(77 if result.wasSuccessful() and result.skipped else not result.wasSuccessful())
