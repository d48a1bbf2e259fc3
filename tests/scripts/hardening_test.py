"""Tests how the binaries in the bundle BUNDLE are linked and, with OPTIMISED=1, compiled."""

import os
import pathlib
import re
import subprocess
import unittest

BINARIES = [
    pathlib.Path(os.environ["BUNDLE"], "Contents", name)
    for name in ("MacOS/launcher", "Frameworks/libdeskui-qt.so")
]


def read_elf(option, binary):
    command = ["readelf", "--wide", option, binary]
    return subprocess.run(command, capture_output=True, text=True, check=True).stdout


class HardeningTest(unittest.TestCase):
    def test_the_system_can_place_and_protect_the_image(self):
        for binary in BINARIES:
            with self.subTest(binary.name):
                segments = read_elf("--segments", binary)
                self.assertIn("Elf file type is DYN", segments)
                self.assertIn("GNU_RELRO", segments)
                self.assertRegex(segments, r"GNU_STACK .* RW +0x")
                flags = re.findall(r"\(FLAGS(?:_1)?\) +(.*)", read_elf("--dynamic", binary))
                self.assertIn("NOW", " ".join(flags))
        self.assertIn("PIE", read_elf("--dynamic", BINARIES[0]))

    def test_libraries_are_looked_for_in_the_bundle_alone(self):
        for binary in BINARIES:
            paths = re.findall(r"R(?:UN)?PATH\).*\[(.*)\]", read_elf("--dynamic", binary))
            for path in ":".join(paths).split(":"):
                self.assertIn(path, ("", "$ORIGIN/../Frameworks"), binary.name)

    def test_the_compiler_guards_buffers(self):
        symbols = read_elf("--dyn-syms", BINARIES[0])
        self.assertIn("__stack_chk_fail", symbols)
        if os.environ["OPTIMISED"] == "1":
            self.assertRegex(symbols, r"__\w+_chk@")


if __name__ == "__main__":
    unittest.main()
