"""Tests scripts/make-package.sh."""

import os
import pathlib
import resource
import shutil
import signal
import subprocess
import sys
import tempfile
import time
import unittest
import zlib

SCRIPTS = pathlib.Path(__file__).parents[2] / "scripts"
sys.path.append(str(SCRIPTS))
import client_entries
import package_zip
import version_file

MAKE_PACKAGE = SCRIPTS / "make-package.sh"
CLIENT_UI = "Contents/MacOS/corvimo-ui"
INFO = "Contents/Resources/INFO"
NUMBERS = "Contents/Resources/numbers"
UI_CHECKSUM = "".join(rf"\x{byte:02x}" for byte in zlib.crc32(b"ui\n").to_bytes(4, "little"))

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
        (copy / ".DS_Store").touch()
        (copy / "Contents/__MACOSX/._INFO").mkdir(parents=True)
        no_utf8 = os.environ | {"LC_ALL": "C", "PYTHONUTF8": "0"}
        self.assertEqual(first, self.make(copy, env=no_utf8))
        for command in ([copy, self.out], ["--verify", self.package, copy]):
            self.assertRegex(self.run_script(*command), r".*, 2 left out \(.*\)\n$")

    def test_a_failed_run_leaves_the_former_package(self):
        limit = (resource.RLIMIT_FSIZE, (9, 9))
        full_disk = {"preexec_fn": lambda: resource.setrlimit(*limit)}
        self.assertEqual(self.make(), self.make(status=1, **full_disk))

    def test_says_what_is_wrong(self):
        make = [self.client, self.out]
        verify = ["--verify", self.package, self.client]
        show = ["--list", self.package]
        infos = ["[Version]\nbuild_version=" + text for text in ("12a", "", "2147483648")]
        contents, nfd, resources = "Contents", "u\u0308", "cd Contents/Resources && "
        for arguments, change, message in (
            (make, 'rm -r "$PWD"', "is no folder"),
            (make, f"rm {CLIENT_UI}", "has no regular file Contents/MacOS"),
            *(
                (make, f'mv {name} moved && ln -s "$PWD/moved" {name}', "has no regular file")
                for name in (contents, "Contents/MacOS", "Contents/Resources", CLIENT_UI, INFO)
            ),
            (make, f"chmod 644 {CLIENT_UI}", "chmod +x"),
            (make, "mkfifo pipe", "remove it"),
            (make, r"mkdir $(printf '\377')", "rename it"),
            (make, "touch 'a\nb'", r"a\x0ab' has a control character"),
            (
                make,
                f"{resources}touch {nfd} ü",
                r"'Contents/Resources/u\u0308') is not in composed",
            ),
            (make, "touch Äa äA", "'Äa' and 'äA' differ only in letter case"),
            (make, 'mkdir -p $(printf "%0200d/" 1 2 3 4 5)', "more than 960 bytes"),
            ([self.client, MAKE_PACKAGE], "", f"cannot write '{MAKE_PACKAGE}/INFO': File exists"),
            (make, f"rm {INFO}", "has no regular file"),
            *((make, f"echo '{info}' >{INFO}", "holds no integer") for info in infos),
            ([self.client, self.client / "out"], "", "lies inside the client"),
            (verify, f"echo >{NUMBERS}", f"{NUMBERS}: another content"),
            (verify, f"rm {NUMBERS}", f"{NUMBERS}: extra"),
            (verify, f"chmod +x {NUMBERS}", f"{NUMBERS}: mode -rw-r--r-- instead of -rwxr-xr-x"),
            (verify, "touch new", "new: missing"),
            (verify, "ln -sfn Z Contents/Resources/Current", "Current: another link target"),
            # A name is first in front of its entry's data, and again in the directory.
            (verify, 'sed -i 0,/numbers/s//NUMBERS/ "$PACKAGE"', f"{NUMBERS}: damaged (the header"),
            (
                verify,
                rf'LC_ALL=C sed -i "s/{UI_CHECKSUM}/AAAA/g" "$PACKAGE"',
                f"{CLIENT_UI}: damaged (its ch",
            ),
            (verify, 'echo >>"$PACKAGE"', "its end is damaged"),
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

    def test_a_package_that_verifies_installs_as_the_client_is(self):
        self.change(f"rm {NUMBERS} && chmod -R u=rwX,go=rX .")
        package = bytearray(self.make())
        entries = client_entries.read_client(self.client).entries
        listing = ("find . ! -name . -printf '%y %m %P %l\\n' | sort", "grep -rn '' . | sort")
        for bit in range(0, 8 * len(package), 3):
            package[bit // 8] ^= 1 << bit % 8
            self.package.write_bytes(package)
            package[bit // 8] ^= 1 << bit % 8
            try:
                with package_zip.opened(self.package) as (stream, archive):
                    faults = list(package_zip.package_faults(stream, archive, entries))
            except client_entries.Refused as error:
                self.assertIn(str(self.package), str(error))
                continue
            if not faults:
                new = self.folder / f"new {bit}"
                new.mkdir()
                subprocess.run(["cmake", "-E", "tar", "xf", self.package], check=True, cwd=new)
                for command in listing:
                    installed, wanted = (
                        subprocess.check_output(command, shell=True, cwd=folder)
                        for folder in (new, self.client)
                    )
                    self.assertEqual(wanted, installed, bit)

    def test_reads_info_as_the_launcher_does(self):
        for info, build in (
            ("[A]\nbuild_version=1\n[Version]\r\n;x\n build_version = 2;x\n", "2"),
            ("[Version]\nbuild_version=1\n[A]\n[ Ver%73ion ] x\nbuild%5Fversion=2", "2"),
            ('\ufeff[Version]\nbuild_version="1" "2"\\\n\\x33\\64\\q', "1234"),
            ('[Version]\na="\nbuild_version=1"\nbuild_version=@ByteArray(2)', "2"),
            ("[Version]\nbuild_version=1,2", ""),
            ("[Version]\nbuild_version=1\n[Version/a]\n", None),
            ("[Version]\na=\u2028build_version=1", None),
            ("[[Version]]\nbuild_version=1", None),
            ("[Version]\n[A]\nbuild_version=1", None),
            ("[Version]\nBuild_Version=1", None),
            ("Version\\build_version=1", None),
        ):
            self.assertEqual(build, version_file.build_version(info.encode()), info)

    def test_an_interruption_leaves_the_former_package(self):
        former = self.make()
        self.change("truncate -s 99G Contents/endless")
        for number in (signal.SIGINT, signal.SIGTERM, signal.SIGHUP):
            command = [MAKE_PACKAGE, self.client, self.out]
            with subprocess.Popen(command, stderr=subprocess.PIPE, text=True) as process:
                while not list(self.out.glob("package/.*")) and process.poll() is None:
                    time.sleep(0.01)
                process.send_signal(number)
                told = process.stderr.read()
            self.assertRegex(told, rf"^make-package\.sh: interrupted by {number.name}.*\n$")
            self.assertEqual(128 + number, process.returncode)
            self.assertEqual(former, self.package.read_bytes())
            self.assertEqual(
                {"INFO", "lumaport.cpk", "package"}, {p.name for p in self.out.rglob("*")}
            )

    def test_ends_with_what_its_output_allows(self):
        self.make()
        reader, writer = os.pipe()
        os.close(reader)
        for output, status, told in (("/dev/full", 1, "output: No space"), (writer, 141, "")):
            with open(output, "w") as stream:
                command = [MAKE_PACKAGE, "--list", self.package]
                result = subprocess.run(command, stdout=stream, stderr=subprocess.PIPE, check=False)
            self.assertEqual(status, result.returncode)
            self.assertIn(told, result.stderr.decode())
            self.assertEqual(len(told) > 0, len(result.stderr) > 0)
        self.run_script(self.client, "", status=2, cwd=self.folder)

    def test_warns_of_links_that_lead_out(self):
        self.change(
            "ln -s /usr absolute && ln -s .. Contents/in && ln -s Contents/in/../.. resolved"
        )
        self.change('ln -s "../${PWD##*/}/Contents" written')
        told = self.run_script(self.client, self.out)
        names = [line.split("'")[1] for line in told.splitlines() if "warning" in line]
        self.assertEqual(["absolute", "resolved", "written"], names)

    def test_lists_dependencies_for_make(self):
        rule = self.folder / "rule.d"
        self.change(r"touch 'a\b'")
        plain = self.client.rename(self.folder / "my client.app")
        for _ in range(2):
            self.run_script("--depfile", rule, plain, self.out)
            target, *inputs = rule.read_text().replace("\\ ", "\0").split(" \\\n  ")
            self.assertEqual(f"{self.out}/package/lumaport.cpk:".replace(" ", "\0"), target)
            paths = [pathlib.Path(name.strip().replace("\0", " ")) for name in inputs]
            for name in ("", "a\\b", "Contents/Resources/empty", CLIENT_UI, INFO):
                (path,) = [path for path in paths if path.samefile(plain / name)]
                self.assertEqual("\\" in name, path.parent == self.folder / "rule.d.inputs", path)
            self.assertNotIn("\\", "".join(map(str, paths)))


if __name__ == "__main__":
    unittest.main()
