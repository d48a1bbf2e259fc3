"""Tests on a real X server which windows the launcher of the bundle BUNDLE shows.

Exits with 77, which ctest takes for a skip, where there is no X server to start."""

import ctypes
import ctypes.util
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

MAP_NOTIFY = 19
SUBSTRUCTURE_NOTIFY_MASK = 1 << 19


class Display:
    """An X server of the test's own, and the windows that are mapped on it."""

    def __init__(self):
        reader, writer = os.pipe()
        # Ends with its last connection, so even a test that is killed leaves no server behind.
        command = ["Xvfb", "-terminate", "-displayfd", str(writer)]
        self.server = subprocess.Popen(command, pass_fds=[writer], stderr=subprocess.DEVNULL)
        os.close(writer)
        with os.fdopen(reader) as number:
            self.name = f":{int(number.readline())}"
        self.x = ctypes.CDLL(ctypes.util.find_library("X11"))
        self.x.XOpenDisplay.restype = ctypes.c_void_p
        self.x.XDefaultRootWindow.restype = ctypes.c_ulong
        self.connection = ctypes.c_void_p(self.x.XOpenDisplay(self.name.encode()))
        root = ctypes.c_ulong(self.x.XDefaultRootWindow(self.connection))
        self.x.XSelectInput(self.connection, root, ctypes.c_long(SUBSTRUCTURE_NOTIFY_MASK))
        self.x.XSync(self.connection, False)

    def mapped_windows(self):
        """How many top-level windows were mapped since the last call, for however short a time."""
        self.x.XSync(self.connection, False)
        event = (ctypes.c_long * 24)()  # The size of an XEvent; its type comes first.
        count = 0
        while self.x.XPending(self.connection):
            self.x.XNextEvent(self.connection, event)
            count += ctypes.c_int.from_buffer(event).value == MAP_NOTIFY
        return count

    def close(self):
        self.x.XCloseDisplay(self.connection)
        self.server.wait()


class WindowsTest(unittest.TestCase):
    def test_nothing_flashes_when_there_is_nothing_to_do(self):
        display = Display()
        self.addCleanup(display.close)
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        bundle = pathlib.Path(folder.name) / "Corvimo.app"
        shutil.copytree(os.environ["BUNDLE"], bundle)
        # The client would show a window of its own, so it is not opened.
        shutil.copy("/bin/true", bundle / "Contents/PlatformTools/usr/bin/open")
        environment = os.environ | {
            "HOME": folder.name,
            "XDG_RUNTIME_DIR": folder.name,
            "DBUS_SESSION_BUS_ADDRESS": "disabled:",  # The session around the test is not its own.
            "DISPLAY": display.name,
            "QT_QPA_PLATFORM": "xcb",
        }
        for run, windows in [("installs", 1), ("finds nothing to do", 0)]:
            with self.subTest(run):
                command = [bundle / "Contents/MacOS/launcher"]
                subprocess.run(command, env=environment, check=True, timeout=100)
                self.assertEqual(display.mapped_windows(), windows)


if __name__ == "__main__":
    if not shutil.which("Xvfb"):
        sys.exit(77)
    unittest.main()
