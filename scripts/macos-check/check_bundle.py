"""Finds faults in bundles for macOS; for check-macos.sh.

check_bundle.py unresolved APP          references of its binaries to missing libraries
check_bundle.py references APP          references of its binaries that leave the bundle
check_bundle.py seal APP                files that have changed since the bundle was signed
check_bundle.py properties APP OLDEST   faults of its property list
check_bundle.py functions BINARY...     functions that no library is known to have
check_bundle.py compiler COMMANDS       faults in test sources that the compile command does not report

Exits 0 when nothing is wrong."""

import json
import os
import pathlib
import plistlib
import re
import shlex
import subprocess
import sys
import tempfile

LLVM = pathlib.Path(os.environ["LLVM"])
TRANSLATIONS = pathlib.Path(__file__).parents[2] / "ui-client/launcher/texts/translations"
MACH_O = b"\xcf\xfa\xed\xfe"
LOADS = "LC_(?:LOAD|LOAD_WEAK|REEXPORT|LAZY_LOAD|LOAD_UPWARD)_DYLIB"
# Functions of the libraries that have only stand-ins. Names of C functions begin with an
# underscore; those of C++ are demangled.
STANDING_IN = re.compile(
    r"_(FS\w+|archive_\w+|__cxa_\w+|__gxx_\w+|u\w+_\d+)"
    r"|(.* (for|to) )?(Q|q[A-Z]|qt_|qstr|std::|testing::|__cxxabiv1::|operator).*"
)
SYSTEM = ("/usr/lib/", "/System/Library/")
RUN_PATH = "@executable_path/../Frameworks"  # The launcher loads libarchive from there.
NEEDED = (
    "Frameworks/libdeskui-qt.dylib",
    "Frameworks/plugins/platforms/libqcocoa.dylib",
    "Frameworks/plugins/styles/libqmacstyle.dylib",
)
LISTED = {
    "CFBundleDevelopmentRegion": "en",
    "CFBundleInfoDictionaryVersion": "6.0",
    "CFBundleName": "Corvimo",
    "CFBundlePackageType": "APPL",
    "NSHighResolutionCapable": True,
}
LISTED_BY_LAUNCHER = {"NSRequiresAquaSystemAppearance": True}
# Sources that must not compile as a source of the project does, with what the compiler must say.
REFUSED = {
    "#include <signal.h>\nint f() { return pidfd_open(1, 0); }": "undeclared identifier 'pidfd_open'",
    "#include <stdio.h>\nint f() { return renameat2(1, {}, 1, {}, 0); }": "identifier 'renameat2'",
    "#include <sys/uio.h>\nlong f() { return preadv(1, nullptr, 1, 0); }": "only available on macOS 11",
    "int f(double d) { return (int)d; }": "-Wold-style-cast",
    "int f(long l) { return l; }": "-Wshorten-64-to-32",
}
ACCEPTED = "#include <signal.h>\n#include <string>\nint f() { return kill(1, 0); }"


def binaries(app):
    return [f for f in app.rglob("*") if f.is_file() and not f.is_symlink() and is_mach_o(f)]


def is_mach_o(file):
    with file.open("rb") as stream:
        return stream.read(4) == MACH_O


def load_commands(binary):
    return subprocess.check_output([LLVM / "llvm-otool", "-l", binary], text=True)


def function_faults(binaries):
    """Finds unknown functions. The linker accepts them as functions of a library loaded later."""
    for binary in binaries:
        symbols = subprocess.check_output([LLVM / "llvm-nm", "-m", binary], text=True)
        unknown = re.findall(r"external (\S+) \(dynamically looked up", symbols)
        filters = [LLVM / "llvm-cxxfilt", "--strip-underscore", *unknown]
        for name in subprocess.check_output(filters, text=True).splitlines() if unknown else []:
            if not STANDING_IN.fullmatch(name):
                yield f"{binary}: no library has {name}"


def names(binary, command):
    """Returns the names of libraries, or the run paths, in one kind of a binary's load commands."""
    pattern = rf"cmd {command}\n.*\n +(?:name|path) (\S.*) \(offset"
    return re.findall(pattern, load_commands(binary))


def expanded(name, app, binary):
    name = name.replace("@executable_path", f"{app}/Contents/MacOS")
    return name.replace("@loader_path", str(binary.parent))


def run_paths(app):
    launcher = app / "Contents/MacOS/launcher"
    return [expanded(path, app, launcher) for path in names(launcher, "LC_RPATH")]


def loading_faults(app):
    """Finds libraries that the launcher loads while it runs and that are missing."""
    launcher = app / "Contents/MacOS/launcher"
    texts = re.findall(rb"\0@rpath/([^\0/]+\.dylib)\0", launcher.read_bytes())
    linked = [name.rpartition("/")[2] for name in names(launcher, LOADS)]
    loaded = [text.decode() for text in texts if text.decode() not in linked]
    if not any(name.startswith("libarchive.") for name in loaded):
        yield f"{launcher}: is linked with libarchive, or does not load it"
    for name in loaded:
        if not any(os.path.isfile(f"{folder}/{name}") for folder in run_paths(app)):
            yield f"{launcher}: cannot load {name}"


def unresolved_faults(app):
    """Finds missing libraries. In the build tree, the launcher's run paths may lead outside the bundle."""
    yield from loading_faults(app)
    folders = run_paths(app)
    for binary in binaries(app):
        for name in names(binary, LOADS):
            paths = [name.replace("@rpath", folder) for folder in folders]
            found = any(os.path.isfile(expanded(path, app, binary)) for path in paths)
            if not found and not name.startswith(SYSTEM):
                yield f"{binary}: refers to {name}"


def reference_faults(app):
    contents = app / "Contents"
    yield from (f"{name} is missing" for name in NEEDED if not (contents / name).is_file())
    yield from loading_faults(app)
    for binary in binaries(app):
        allowed = [RUN_PATH] if binary.name == "launcher" else []
        searched = [path for path in names(binary, "LC_RPATH") if path not in allowed]
        yield from (f"{binary}: searches {path}" for path in searched)
        is_plugin = "plugins" in binary.relative_to(app).parts  # Qt loads it by its path.
        own = [] if is_plugin else names(binary, "LC_ID_DYLIB")
        for name in own + names(binary, LOADS):
            file = pathlib.Path(expanded(name, app, binary))
            inside = file.is_file() and file.resolve().is_relative_to(app.resolve())
            if not inside and not name.startswith(SYSTEM):
                yield f"{binary}: refers to {name}"


def seal_faults(app):
    seal = app / "Contents/_CodeSignature/CodeResources"
    if not seal.is_file():
        yield f"{app} is not signed"
        return
    check = ["sha256sum", "--check", "--quiet", seal.resolve()]
    result = subprocess.run(check, cwd=app, capture_output=True, text=True, check=False)
    yield from result.stdout.splitlines()
    files = sum(f.is_file() and not f.is_symlink() for f in app.rglob("*")) - 1
    sealed = len(seal.read_text().splitlines())
    if files != sealed:
        yield f"{app}: {sealed} files are sealed, but it has {files}"


def languages():
    yield "en"
    for file in TRANSLATIONS.glob("*.ts"):
        tag = re.search(r'<TS .*? language="(\w+)"', file.read_text(encoding="utf-8"))[1]
        names = {"zh_CN": "zh-Hans", "zh_TW": "zh-Hant", "pt_BR": "pt-BR", "pt_PT": "pt-PT"}
        yield names.get(tag, tag.split("_")[0])


def property_faults(app, oldest):
    contents = app / "Contents"
    with tempfile.NamedTemporaryFile() as binary:
        command = ["plistutil", "-i", contents / "Info.plist", "-o", binary.name, "-f", "bin"]
        subprocess.run(command, check=True)
        found = plistlib.load(binary)
    executable = contents / "MacOS" / found.get("CFBundleExecutable", "")
    expected = LISTED | {"LSMinimumSystemVersion": oldest}
    if executable.name == "launcher":
        expected |= LISTED_BY_LAUNCHER
    for key, value in expected.items():
        if found.get(key) != value:
            yield f"{app}: {key} is {found.get(key)}"
    for key in ("CFBundleIdentifier", "CFBundleShortVersionString", "CFBundleVersion"):
        if not re.fullmatch(r"[\w.]+", found.get(key, "")):
            yield f"{app}: {key} is {found.get(key)}"
    if sorted(found.get("CFBundleLocalizations", [])) != sorted(languages()):
        yield f"{app}: CFBundleLocalizations is {found.get('CFBundleLocalizations')}"
    icon = contents / f"Resources/{found.get('CFBundleIconFile')}.icns"
    if not icon.is_file() or not icon.read_bytes().startswith(b"icns"):
        yield f"{icon} is no icon"
    # The compiler knows that macOS 11 is the first one for arm64.
    built_for = "11.0" if os.environ["MACOS_ARCHITECTURE"] == "arm64" else oldest
    if not executable.is_file() or f"minos {built_for}\n" not in load_commands(executable):
        yield f"{executable} is not built for macOS {built_for}"


def compile_faults(commands):
    """Compiles test sources with the command of lib/platform/process.cpp."""
    commands = json.loads(pathlib.Path(commands).read_text())
    (entry,) = (c for c in commands if c["file"].endswith("lib/platform/process.cpp"))
    command = shlex.split(entry["command"])
    for source, message in {**REFUSED, ACCEPTED: None}.items():
        with tempfile.NamedTemporaryFile(suffix=".cpp") as file:
            pathlib.Path(file.name).write_text(source)
            command[command.index("-o") + 1] = "/dev/null"
            command[-1] = file.name
            result = subprocess.run(
                command, cwd=entry["directory"], capture_output=True, text=True, check=False
            )
        if message is None and result.returncode != 0:
            yield f"the compiler refuses a good source: {result.stderr}"
        if message and (result.returncode == 0 or message not in result.stderr):
            yield f"the compiler does not report {message!r}: {result.stderr}"


def main():
    checks = {
        "unresolved": lambda app: unresolved_faults(pathlib.Path(app)),
        "references": lambda app: reference_faults(pathlib.Path(app)),
        "seal": lambda app: seal_faults(pathlib.Path(app)),
        "properties": lambda app, oldest: property_faults(pathlib.Path(app), oldest),
        "functions": lambda *binaries: function_faults(binaries),
        "compiler": compile_faults,
    }
    try:
        faults = list(checks[sys.argv[1]](*sys.argv[2:]))
    except subprocess.CalledProcessError as error:
        faults = [error]
    for fault in faults:
        print(f"FAULT: {fault}", file=sys.stderr)
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
