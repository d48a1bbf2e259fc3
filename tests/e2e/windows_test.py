"""Which windows a run shows on a real X server."""

import ctypes
import ctypes.util
import os
import shutil
import subprocess
import unittest

from scene import OPEN, Scene, main

MAP_NOTIFY = 19
SUBSTRUCTURE_NOTIFY_MASK = 1 << 19


class Display:
    """An X server of the test's own, and the windows that are mapped on it."""

    def __init__(self, test):
        if not shutil.which("Xvfb"):
            test.skipTest("no X server to start")
        reader, writer = os.pipe()
        # Ends with its last connection, so even a test that is killed leaves no server behind.
        command = ["Xvfb", "-terminate", "-displayfd", str(writer)]
        server = subprocess.Popen(command, pass_fds=[writer], stderr=subprocess.DEVNULL)
        test.addCleanup(server.wait)
        os.close(writer)
        with os.fdopen(reader) as number:
            self.name = f":{int(number.readline())}"
        self.x = ctypes.CDLL(ctypes.util.find_library("X11"))
        self.x.XOpenDisplay.restype = ctypes.c_void_p
        self.x.XDefaultRootWindow.restype = ctypes.c_ulong
        self.connection = ctypes.c_void_p(self.x.XOpenDisplay(self.name.encode()))
        test.addCleanup(self.x.XCloseDisplay, self.connection)
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


class WindowsTest(unittest.TestCase):
    def test_nothing_flashes_when_there_is_nothing_to_do(self):
        display = Display(self)
        scene = Scene(self)
        scene.carry_client("101")
        shutil.copy("/bin/true", scene.contents / OPEN)
        variables = {
            "XDG_RUNTIME_DIR": str(scene.folder),
            "DBUS_SESSION_BUS_ADDRESS": "disabled:",  # The session around the test is not its own.
            "DISPLAY": display.name,
            "QT_QPA_PLATFORM": "xcb",
        }
        for run, windows in [("installs", 1), ("finds nothing to do", 0)]:
            with self.subTest(run):
                self.assertEqual(0, scene.run(**variables))
                self.assertEqual(windows, display.mapped_windows())


if __name__ == "__main__":
    main()
