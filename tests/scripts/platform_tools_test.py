"""Tests the bundle's stand-ins for system tools, in the folder that PLATFORM_TOOLS names."""

import os
import pathlib
import subprocess
import tempfile
import unittest

PLIST = "<dict>\n\t<key>CFBundleExecutable</key>\n\t<string>{}</string>\n</dict>"
# Tells its process, its session (a field behind its name of two words), folder and streams.
PROGRAM = """#!/bin/sh
cd /proc/$$ && echo $$ $(cut -d" " -f7 stat) "$OLDPWD" $(readlink fd/[012]) >"$0.pipe" """
TOLD = r"^(\d+) \1 / /dev/null /dev/null /dev/null$"
OPEN = "timeout 20 open -n -a *.app && timeout 20 cat */*/*/*.pipe"


class PlatformToolsTest(unittest.TestCase):
    def test_tools(self):
        # fmt: off
        for command, executable, mode, output in (
            ("lsregister -u *.app && " + OPEN, "my app", 0o755, TOLD),
            (OPEN.replace("*", "$PWD/*", 1), "my app", 0o755, TOLD), (OPEN, "", 0, "names no exec"),
            (OPEN, "my app", 0o644, "is not an exec"), (OPEN, "../MacOS/my app", 0o755, "names no"),
            (OPEN, "my", 0o755, "my' is not an"), (OPEN, ".", 0o755, ".' is not an exec"),
            ("open -n -a .", "", 0, "no Contents/Info"), ("open -a *.app", "", 0, "usage"),
            ("open -n -b *.app", "", 0, "usage"), ("lsregister *.app", "", 0, "usage"),
            ("lsregister -f *.app", "", 0, "usage"), ("lsregister -u *.app .", "", 0, "usage"),
        ):  # fmt: on
            with self.subTest(f"{command} {executable}"), tempfile.TemporaryDirectory() as folder:
                program = pathlib.Path(folder) / "Größe \"1\" 'x'.app/Contents/MacOS/my app"
                program.parent.mkdir(parents=True)
                program.write_text(PROGRAM)
                program.chmod(mode)
                (program.parents[1] / "Info.plist").write_text(PLIST.format(executable))
                os.mkfifo(f"{program}.pipe")
                script = f"cd {folder}; PATH=$PLATFORM_TOOLS:$PATH; {command}"
                status, told = subprocess.getstatusoutput(script)
                self.assertEqual(status, 0 if output == TOLD else 1, told)
                self.assertRegex(told, output)


if __name__ == "__main__":
    unittest.main()
