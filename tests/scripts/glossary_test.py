"""Tests that scripts/generate-texts.py reports the words that a glossary rules out."""

import pathlib
import re
import subprocess
import tempfile
import unittest

GENERATE_TEXTS = pathlib.Path(__file__).parents[2] / "scripts/generate-texts.py"
GLOSSARY = "Title\n| Lid | | x; Y |\n| lid of a box; box | | z |\n| * | | ik |\nA | x"
TEXTS = {"Lids": "X", "Boxes, LID": "y Z", "Lid of a box": "x", "Boxer": "z", "A": "xİk", "box": ""}
REPORTS = [("Lids", "Lid"), ("Boxes, LID", "Lid"), ("Boxes, LID", "box"), ("A", "*")]
MESSAGE = "<message><source>{}</source><translation>{}</translation></message>"
UNFINISHED = '<message><source>box</source><translation type="unfinished">z</translation></message>'


class GlossaryTest(unittest.TestCase):
    def test_reports_what_is_ruled_out(self):
        folder = pathlib.Path(self.enterContext(tempfile.TemporaryDirectory()))
        messages = "".join(MESSAGE.format(*texts) for texts in TEXTS.items())
        for name, content in (
            ("catalogue.txt", "".join(f'k{i} = "{text}"\n' for i, text in enumerate(TEXTS))),
            ("glossary/xyz.md", GLOSSARY),
            ("translations/xyz.ts", f"<TS><context>{messages}{UNFINISHED}</context></TS>"),
        ):
            (folder / name).parent.mkdir(exist_ok=True)
            (folder / name).write_text(content)
        command = [GENERATE_TEXTS, "check", folder, "xyz"]
        result = subprocess.run(command, stderr=subprocess.PIPE, text=True, check=False)
        found = re.findall('xyz: "(.*)" is ".*": for "(.*?)"', result.stderr)
        self.assertEqual((1, REPORTS), (result.returncode, found))


if __name__ == "__main__":
    unittest.main()
