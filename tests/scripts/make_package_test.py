"""Tests scripts/make-package.sh, whose path is the value of MAKE_PACKAGE."""

import os
import pathlib
import shutil
import subprocess
import tempfile
import unittest
import zipfile
from resource import RLIMIT_FSIZE, setrlimit

INFO = "Contents/Resources/INFO"
CLIENT_UI = "Contents/MacOS/corvimo-ui"
LINK = "Contents/Resources/Current"
QUOTES = "Contents/Resources/quotes \"a\" 'b' $c #d"

# What a package of the client holds, in its order: byte order, but INFO last.
# fmt: off
ENTRIES = [
    ("Contents/", 0o40755, b""), ("Contents/MacOS/", 0o40755, b""), (CLIENT_UI, 0o100755, b"ui"),
    ("Contents/Resources/", 0o40755, b""), (LINK, 0o120777, "äöü".encode()),
    ("Contents/Resources/Z", 0o100644, b"12" * 9999), ("Contents/Resources/empty/", 0o40755, b""),
    (QUOTES, 0o100644, b"quotes"), ("Contents/Resources/äöü/", 0o40755, b""),
    ("Contents/Resources/äöü/.日本", 0o100644, b"hidden"),
    (INFO, 0o100644, b"[Other]\nbuild_version=x\n[Version]\nmajor_version=1\nbuild_version=101\n"),
]
# fmt: on


# Files are made for their owner alone; a package gives them to everybody.
def make_client(folder, entries=ENTRIES):
    for name, mode, content in entries:
        os.makedirs(os.path.dirname(f"{folder}/{name}"), exist_ok=True)
        if name == LINK:
            (folder / name).symlink_to(content.decode())
        elif not name.endswith("/"):
            (folder / name).write_bytes(content)
            (folder / name).chmod(mode & 0o711)
    return folder


class MakePackageTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.client = make_client(pathlib.Path(folder.name) / "Größe \"1\" 'x'.app")
        self.out = self.client.with_name("aus gabe")
        self.package = self.out / "package/lumaport.cpk"

    # Gives what the script prints; at a failure, what it prints as an error.
    def run_script(self, *arguments, status=0, **options):
        command = [os.environ["MAKE_PACKAGE"], *map(str, arguments)]
        result = subprocess.run(command, capture_output=True, text=True, check=False, **options)
        self.assertEqual(result.returncode, status, result.stderr)
        self.assertNotIn("Traceback", result.stderr)
        return result.stderr if status else result.stdout

    def make(self, client=None, **options):
        self.run_script(client or self.client, self.out, **options)
        self.assertEqual(os.listdir(self.package.parent), [self.package.name])
        return self.package.read_bytes()

    def test_holds_the_whole_client(self):
        self.assertLess(len(self.make()), 9999)
        self.assertEqual((self.out / "INFO").read_bytes(), ENTRIES[-1][2])
        with zipfile.ZipFile(self.package) as cpk:
            packed = [(r.filename, r.external_attr >> 16, cpk.read(r)) for r in cpk.infolist()]
        self.assertEqual(packed, ENTRIES)
        self.run_script("--verify", self.package, self.client)
        self.assertIn(f"{LINK} -> äöü\n", self.run_script("--list", self.package))

    def test_same_input_gives_the_same_bytes(self):
        first = self.make()
        copy = make_client(self.client.with_name("copy.app"), reversed(ENTRIES))
        os.utime(copy / QUOTES, (1, 1))
        self.assertEqual(self.make(copy, umask=0o077, env=os.environ | {"LC_ALL": "C"}), first)

    def test_a_failed_run_leaves_the_former_package(self):
        limit = (RLIMIT_FSIZE, (9, 9))
        self.assertEqual(self.make(), self.make(status=1, preexec_fn=lambda: setrlimit(*limit)))

    def test_refuses_what_cannot_be_installed(self):
        infos = ["build_version=1\n[Version]\n[A]\nbuild_version=1", "[Version]\nBuild_Version=1"]
        infos += ["[Version]\nbuild_version=" + text for text in ("12a", "-1", "", "2147483648")]
        cases = [
            (lambda: shutil.rmtree(self.client), "is no folder"),
            ((self.client / CLIENT_UI).unlink, "has no Contents/MacOS"),
            (lambda: (self.client / CLIENT_UI).chmod(0o644), "chmod +x"),
            (lambda: os.mkfifo(self.client / "pipe"), "remove it"),
            (lambda: os.mkdir(os.fsencode(self.client) + b"/\xff"), "rename it"),
            ((self.client / INFO).unlink, "has no regular file"),
            *((lambda i=i: (self.client / INFO).write_text(i), "holds no integer") for i in infos),
        ]
        for number, (spoil, message) in enumerate(cases):
            with self.subTest(message, number=number):
                shutil.rmtree(self.client, ignore_errors=True)
                make_client(self.client)
                spoil()
                self.assertIn(message, self.run_script(self.client, self.out, status=1))
                self.assertFalse(self.out.exists())

    def test_refuses_wrong_arguments(self):
        for arguments in ([], [self.client], ["--list", "a", "b", "c"], ["--verify", "a"]):
            self.run_script(*arguments, status=2)
        self.assertIn("inside", self.run_script(self.client, self.client / "out", status=1))

    # Writes the package anew with the entries of `change(record, data)` in an entry's place.
    def repack(self, name, change):
        with zipfile.ZipFile(self.package) as archive:
            entries = {r.filename: [(r, archive.read(r))] for r in archive.infolist()}
        entries[name] = change(*entries[name][0])
        with zipfile.ZipFile(self.package, "w") as archive:
            for entry in sum(entries.values(), []):
                archive.writestr(*entry)

    # The first place of a name is in front of the entry's data, the second in the directory.
    def damage(self, part_of_name):
        self.package.write_bytes(self.package.read_bytes().replace(part_of_name, b"??", 1))

    def test_verify_finds_each_difference(self):
        cases = [
            (self.repack, (QUOTES, lambda r, d: [(r, b"x")]), f"{QUOTES}: another content"),
            (self.repack, (QUOTES, lambda r, d: []), f"{QUOTES}: missing"),
            (self.repack, (QUOTES, lambda r, d: [(r.filename, d)]), "instead of -rw-r--r--"),
            (self.repack, (LINK, lambda r, d: [(r, b"Z")]), f"{LINK}: another link target"),
            (self.repack, (INFO, lambda r, d: [(r, d), (r, d)]), f"{INFO}: extra"),
            (self.repack, (INFO, lambda r, d: [(r, d), ("x", d)]), "the last entry is not Cont"),
            (self.damage, (b"$c",), f"{QUOTES}: damaged"),
            (os.truncate, (self.package, 1000), "not a zip file"),
        ]
        for spoil, arguments, message in cases:
            with self.subTest(message):
                self.make()
                spoil(*arguments)
                found = self.run_script("--verify", self.package, self.client, status=1)
                self.assertIn(message, found)

    def test_lists_dependencies_for_make(self):
        rule = self.client.with_name("rule.d")
        self.run_script("--depfile", rule, self.client, self.out)
        for part in ("/aus\\ gabe/package/lumaport.cpk: ", "/empty ", " \"a\"\\ 'b'\\ $$c\\ \\#d "):
            self.assertIn(part + "\\\n", rule.read_text())
        self.assertNotIn(LINK, rule.read_text())


if __name__ == "__main__":
    unittest.main()
