"""Tests scripts/make-package.sh."""

import os
import pathlib
import resource
import shutil
import subprocess
import tempfile
import unittest

MAKE_PACKAGE = pathlib.Path(__file__).parents[2] / "scripts/make-package.sh"
CLIENT_UI = "Contents/MacOS/corvimo-ui"
INFO = "Contents/Resources/INFO"
NUMBERS = "Contents/Resources/numbers"

# Makes a client in the current folder, for its owner alone; a package gives it to everybody.
CLIENT = r"""
umask 077 && rm -rf * && mkdir -p Contents/MacOS Contents/Resources/empty && cd Contents
echo ui >MacOS/corvimo-ui && chmod 711 MacOS/corvimo-ui
seq 9999 >Resources/numbers && ln -s äöü Resources/Current
echo odd >"Resources/.日本 \"a\" 'b' \$c #d"
printf '[A]\nbuild_version=x\n[Version]\nbuild_version=101\n' >Resources/INFO
"""


class MakePackageTest(unittest.TestCase):
    def setUp(self):
        self.folder = pathlib.Path(self.enterContext(tempfile.TemporaryDirectory()))
        self.client = self.folder / "Größe \"1\" 'x'.app"
        self.out = self.folder / "aus gabe"
        self.package = self.out / "package/lumaport.cpk"
        self.change(CLIENT)

    # Runs a command in the client's folder.
    def change(self, command):
        self.client.mkdir(exist_ok=True)
        variables = os.environ | {"PACKAGE": str(self.package)}
        subprocess.run(command, shell=True, check=True, cwd=self.client, env=variables)

    # Gives what the script prints.
    def run_script(self, *arguments, status=0, **options):
        command = [MAKE_PACKAGE, *arguments]
        result = subprocess.run(command, capture_output=True, text=True, check=False, **options)
        self.assertEqual(status, result.returncode, result.stderr)
        self.assertNotIn("Traceback", result.stderr)
        return result.stdout + result.stderr

    # Gives the package, beside which nothing may be left.
    def make(self, client=None, **options):
        self.run_script(client or self.client, self.out, **options)
        self.assertEqual([self.package.name], os.listdir(self.package.parent))
        return self.package.read_bytes()

    def test_holds_the_whole_client(self):
        self.assertLess(len(self.make()), (self.client / NUMBERS).stat().st_size)
        self.change('mkdir ../new && cmake -E chdir ../new cmake -E tar xf "$PACKAGE"')
        self.change("diff -r --no-dereference . ../new")
        self.assertEqual((self.client / INFO).read_bytes(), (self.out / "INFO").read_bytes())
        self.run_script("--verify", self.package, self.client)
        # In byte order, but INFO last.
        entries = (
            "-rwxr-xr-x .*/corvimo-ui\ndrwxr-xr-x .*/Resources/\n-rw-r--r-- .*#d\n"
            "lrwxrwxrwx .* -> äöü\ndrwxr-xr-x .*/empty/\n-rw-r--r-- .*/numbers\n-rw-r--r-- .*/INFO\n"
        )
        self.assertRegex(self.run_script("--list", self.package), entries)

    def test_same_input_gives_the_same_bytes(self):
        first = self.make()
        copy = shutil.copytree(self.client, self.folder / "copy.app", symlinks=True)
        os.utime(copy / INFO, (1, 1))
        (copy / INFO).chmod(0o666)
        finder_files = [copy / ".DS_Store", copy / "Contents/._INFO"]
        for file in finder_files:
            file.touch()
        no_utf8 = os.environ | {"LC_ALL": "C", "PYTHONUTF8": "0"}
        self.assertEqual(first, self.make(copy, env=no_utf8))
        told = self.run_script("--verify", self.package, copy)
        self.assertEqual([f"left out: {f}" for f in finder_files], sorted(told.splitlines())[1:])

    def test_a_failed_run_leaves_the_former_package(self):
        limit = (resource.RLIMIT_FSIZE, (9, 9))
        full_disk = {"preexec_fn": lambda: resource.setrlimit(*limit)}
        self.assertEqual(self.make(), self.make(status=1, **full_disk))

    def test_says_what_is_wrong(self):
        make = [self.client, self.out]
        verify = ["--verify", self.package, self.client]
        show = ["--list", self.package]
        infos = ["[Version]\n[A]\nbuild_version=1", "[Version]\nBuild_Version=1"]
        infos += ["[Version]\nbuild_version=" + text for text in ("12a", "", "2147483648")]
        for arguments, change, message in (
            (make, 'rm -r "$PWD"', "is no folder"),
            (make, f"rm {CLIENT_UI}", "has no Contents/MacOS"),
            (make, f"chmod 644 {CLIENT_UI}", "chmod +x"),
            (make, "mkfifo pipe", "remove it"),
            (make, r"mkdir $(printf '\377')", "rename it"),
            (make, f"rm {INFO}", "has no regular file"),
            *((make, f"echo '{info}' >{INFO}", "holds no integer") for info in infos),
            ([self.client, self.client / "out"], "", "lies inside the client"),
            (verify, f"echo >{NUMBERS}", f"{NUMBERS}: another content"),
            (verify, f"rm {NUMBERS}", f"{NUMBERS}: extra"),
            (verify, f"chmod +x {NUMBERS}", f"{NUMBERS}: mode -rw-r--r-- instead of -rwxr-xr-x"),
            (verify, "touch new", "new: missing"),
            (verify, "ln -sfn Z Contents/Resources/Current", "Current: another link target"),
            # A name is first in front of its entry's data, and again in the directory.
            (verify, 'sed -i 0,/numbers/s//NUMBERS/ "$PACKAGE"', f"{NUMBERS}: damaged"),
            (verify, 'sed -i s:/INFO:/LAST:g "$PACKAGE"', f"the last entry is not {INFO}"),
            (show, 'sed -i s:/INFO:/LAST:g "$PACKAGE"', f"the last entry is not {INFO}"),
            (verify, 'truncate -s 99 "$PACKAGE"', f"'{self.package}' is no whole zip archive"),
            (show, 'truncate -s 99 "$PACKAGE"', f"'{self.package}' is no whole zip archive"),
            (show, 'rm "$PACKAGE"', f"'{self.package}' is no file"),
        ):
            with self.subTest(change, arguments=arguments):
                self.change(CLIENT)
                self.make()
                self.change(change)
                self.assertIn(message, self.run_script(*arguments, status=1))

    def test_lists_dependencies_for_make(self):
        rule = self.folder / "rule.d"
        self.run_script("--depfile", rule, self.client, self.out)
        for part in ("/aus\\ gabe/package/lumaport.cpk: ", "/empty ", " \"a\"\\ 'b'\\ $$c\\ \\#d "):
            self.assertIn(part + "\\\n", rule.read_text())


if __name__ == "__main__":
    unittest.main()
