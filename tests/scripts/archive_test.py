"""Tests the archive that ships: what CPack makes of the build in the folder BUILD."""

import os
import pathlib
import subprocess
import tarfile
import tempfile
import unittest
import zipfile

BUILD = pathlib.Path(os.environ["BUILD"])
# Of this machine, not of one that the program will run on.
FOREIGN_PATHS = [os.fsencode(path) for path in (BUILD, os.environ["SOURCE"])]


def files_of(app):
    return {str(path.relative_to(app)): path for path in app.rglob("*") if not path.is_dir()}


class ArchiveTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        command = ["cpack", "--config", BUILD / "CPackConfig.cmake", "-B", folder.name]
        subprocess.run(command, check=True, stdout=subprocess.DEVNULL)
        (archive,) = pathlib.Path(folder.name).glob("*.tar.gz")
        self.unpacked = pathlib.Path(folder.name, "unpacked")
        with tarfile.open(archive) as content:
            content.extractall(self.unpacked)
        self.files = files_of(self.unpacked / "Corvimo.app")

    def test_it_holds_the_bundle_and_nothing_else(self):
        self.assertEqual(["Corvimo.app"], os.listdir(self.unpacked))
        built = files_of(BUILD / "bundle/Corvimo.app")
        self.assertEqual(built.keys(), self.files.keys())
        for name, file in built.items():
            self.assertEqual(file.read_bytes(), self.files[name].read_bytes(), name)
        programs = {path.name for path in self.files.values() if path.stat().st_mode & 0o111}
        self.assertEqual({"launcher", "lsregister", "open"}, programs)

    def test_no_file_names_a_folder_of_the_build(self):
        contents = {name: file.read_bytes() for name, file in self.files.items()}
        with zipfile.ZipFile(self.files["Contents/Resources/package/lumaport.cpk"]) as package:
            contents.update((name, package.read(name)) for name in package.namelist())
        for name, content in contents.items():
            for path in FOREIGN_PATHS:
                self.assertNotIn(path, content, name)


if __name__ == "__main__":
    unittest.main()
