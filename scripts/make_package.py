"""The work of make-package.sh. Needs Python 3.9 and nothing but its standard library."""

import argparse
import contextlib
import dataclasses
import os
import pathlib
import re
import shutil
import stat
import struct
import sys
import tempfile
import zipfile
import zlib

DESCRIPTION = """\
make-package.sh CLIENT.app OUT             write OUT/package/lumaport.cpk and OUT/INFO
make-package.sh --list PACKAGE             list a package's entries
make-package.sh --verify PACKAGE CLIENT.app  compare a package with the client it was made from

A package is a zip archive of everything below CLIENT.app. Its bytes depend on names, contents,
links and executable bits alone: entries are sorted, bear one fixed time, and have mode 755 when
they are folders or executable by anybody and 644 otherwise.

What the Finder of macOS leaves behind, files named ._* and .DS_Store, is left out, and named.

The last entry is Contents/Resources/INFO. A launcher that is interrupted while it unpacks therefore
leaves a copy without a build number, which the next start replaces.

Exits 0 on success, 1 when a client is refused or a package is wrong, 2 on wrong usage."""

EXECUTABLE = "Contents/MacOS/corvimo-ui"
INFO = "Contents/Resources/INFO"
ENTRY_TIME = (1980, 1, 1, 0, 0, 0)  # The earliest that a zip archive can hold.
CHUNK = 1 << 20
MAX_BUILD = 2**31 - 1  # The launcher compares builds as 32-bit signed numbers.
# What the Finder leaves behind on disks: not the client's, and a person's Mac would take it for metadata.
FINDER_FILE = re.compile(r"\._.*|\.DS_Store")
# What zipfile raises about an archive that is damaged or none at all.
DAMAGE = (zipfile.BadZipFile, zlib.error, struct.error, EOFError, RuntimeError, UnicodeDecodeError)


class Refused(Exception):
    """What is wrong with an input, and what to do about it, in words for the person who ran us."""


@dataclasses.dataclass(frozen=True)
class Entry:
    """One object below the client's folder; a folder's name ends with a slash."""

    name: str
    path: str
    mode: int  # Type and permissions as the package holds them, not as the disk does.

    def open(self):
        return open(self.path, "rb")

    def link_target(self):
        return os.fsencode(os.readlink(self.path))


def packed_mode(disk_mode):
    """The mode in the package: the type, and of the permissions only the executable bit."""
    if stat.S_ISLNK(disk_mode):
        return stat.S_IFLNK | 0o777
    executable = stat.S_ISDIR(disk_mode) or disk_mode & 0o111
    return stat.S_IFMT(disk_mode) | (0o755 if executable else 0o644)


def scan(folder, prefix=""):
    """Yields an Entry for every object of the client below `folder`, in no order."""
    with os.scandir(folder) as items:
        for item in items:
            if FINDER_FILE.fullmatch(item.name):
                print(f"left out: {item.path}", file=sys.stderr)
                continue
            mode = item.stat(follow_symlinks=False).st_mode
            if stat.S_IFMT(mode) not in (stat.S_IFDIR, stat.S_IFREG, stat.S_IFLNK):
                raise Refused(f"'{item.path}' is no file, folder or symbolic link; remove it")
            name = prefix + item.name + ("/" if stat.S_ISDIR(mode) else "")
            try:
                name.encode()
            except UnicodeEncodeError:
                raise Refused(f"{os.fsencode(item.path)} is not UTF-8; rename it") from None
            yield Entry(name, item.path, packed_mode(mode))
            if stat.S_ISDIR(mode):
                yield from scan(item.path, name)


def client_entries(client):
    """All entries of a client in the order of the package. Refuses what no launcher can install."""
    check_executable(client)
    build_number(client)
    return sorted(scan(client), key=lambda entry: (entry.name == INFO, entry.name.encode()))


def check_executable(client):
    if not client.is_dir():
        raise Refused(f"'{client}' is no folder; name the .app folder of a built client")
    executable = client / EXECUTABLE
    if not executable.is_file():
        raise Refused(f"'{client}' has no {EXECUTABLE}; name the .app folder of a built client")
    if not executable.stat().st_mode & 0o111:
        raise Refused(f"'{executable}' is not executable; run: chmod +x '{executable}'")


def build_number(client):
    """The client's build: build_version in the group Version of its INFO, the last one if there are
    several, as the launcher reads it."""
    advice = f"give the client a file {INFO} with the lines [Version] and build_version=NUMBER"
    info = client / INFO
    if info.is_symlink() or not info.is_file():
        raise Refused(f"'{client}' has no regular file {INFO}; {advice}")
    group = value = ""
    for line in info.read_text(encoding="utf-8-sig", errors="replace").splitlines():
        key, _, text = line.partition("=")
        if line.startswith("["):
            group = line.strip("[] ")
        elif group == "Version" and key.strip() == "build_version":
            value = text.strip(' "')
    if not re.fullmatch("[0-9]+", value, re.ASCII) or int(value) > MAX_BUILD:
        raise Refused(f"'{info}' holds no integer build_version up to {MAX_BUILD}; {advice}")
    return int(value)


@contextlib.contextmanager
def replacing(path):
    """A stream whose content takes the place of `path` at once when the block ends, and vanishes
    when the block fails."""
    path.parent.mkdir(parents=True, exist_ok=True)
    handle, temporary = tempfile.mkstemp(prefix=f".{path.name}.", dir=path.parent)
    try:
        with os.fdopen(handle, "w+b") as stream:
            yield stream
        os.chmod(temporary, 0o644)
        os.replace(temporary, path)
    except BaseException:
        os.unlink(temporary)
        raise


def local_attributes(record):
    """An extra field that repeats an entry's type and mode in front of its data (libarchive's "xl").

    Both stand in the archive's directory, at its end; a reader of a package that has lost its end would
    otherwise take links for files and lose the executable bits, and see nothing wrong."""
    versions = record.create_system << 8 | record.create_version
    return struct.pack("<HHBHI", 0x6C78, 7, 0b101, versions, record.external_attr)


def add_entry(archive, entry):
    record = zipfile.ZipInfo(entry.name, ENTRY_TIME)
    record.create_system = 3  # Unix: the upper half of external_attr is a mode.
    record.external_attr = entry.mode << 16
    record.extra = local_attributes(record)
    if stat.S_ISREG(entry.mode):
        record.compress_type = zipfile.ZIP_DEFLATED
        record.file_size = os.stat(entry.path).st_size  # Decides whether sizes take 64 bits.
        with entry.open() as source, archive.open(record, "w") as target:
            shutil.copyfileobj(source, target, CHUNK)
    else:
        archive.writestr(record, entry.link_target() if stat.S_ISLNK(entry.mode) else b"")


def show_progress(done, total):
    if sys.stderr.isatty():
        end = "\n" if done == total else ""
        print(f"\rpacking {done} of {total}", end=end, file=sys.stderr, flush=True)


def make(client, out, dependency_file):
    if out.resolve().is_relative_to(client.resolve()):
        raise Refused(f"'{out}' lies inside the client; name another folder to write to")
    entries = client_entries(client)
    package = out / "package" / "lumaport.cpk"
    with replacing(package) as stream:
        with zipfile.ZipFile(stream, "w") as archive:
            for done, entry in enumerate(entries, start=1):
                add_entry(archive, entry)
                show_progress(done, len(entries))
    # INFO follows the package: the other way round, an interruption would announce a build that the
    # package does not hold, and every start of the launcher would install again.
    with replacing(out / "INFO") as stream:
        stream.write((client / INFO).read_bytes())
    if dependency_file:
        with replacing(dependency_file) as stream:
            stream.write(dependencies(package, client, entries))
    size = package.stat().st_size
    print(f"{package}: build {build_number(client)}, {len(entries)} entries, {size} bytes")


def dependencies(package, client, entries):
    """A make rule: the package depends on the client's folders, whose times tell of objects that
    came, went or changed their kind, and on its files."""
    inputs = [str(client)] + [e.path for e in entries if not stat.S_ISLNK(e.mode)]
    target, *sources = (escaped_for_make(path) for path in [str(package), *inputs])
    return os.fsencode(f"{target}: \\\n  " + " \\\n  ".join(sources) + "\n")


def escaped_for_make(path):
    return re.sub(r"([ #\\])", r"\\\1", path).replace("$", "$$")


@contextlib.contextmanager
def opened(package):
    """The archive of a package; what the block lets through of its damage is told with its name."""
    if not package.is_file():
        raise Refused(f"'{package}' is no file; name a package that this script has written")
    try:
        with zipfile.ZipFile(package) as archive:
            yield archive
    except DAMAGE as error:
        raise Refused(f"'{package}' is no whole zip archive ({error}); write it anew") from None


def entry_mode(record):
    return record.external_attr >> 16


def last_entry_fault(records):
    if not records or records[-1].filename != INFO:
        return f"the last entry is not {INFO}: an interrupted installation would not be repaired"
    return None


def list_package(package):
    with opened(package) as archive:
        records = archive.infolist()
        for record in records:
            link = stat.S_ISLNK(entry_mode(record))
            arrow = " -> " + os.fsdecode(archive.read(record)) if link else ""
            mode = stat.filemode(entry_mode(record))
            print(f"{mode} {record.file_size:>12} {record.CRC:08x} {record.filename}{arrow}")
    fault = last_entry_fault(records)
    print(f"{len(records)} entries; {fault or 'INFO is the last'}")
    return 1 if fault else 0


def same_bytes(left, right):
    while True:
        chunk = left.read(CHUNK)
        if chunk != right.read(CHUNK):
            return False
        if not chunk:
            return True


def content_fault(archive, record, entry):
    try:
        if stat.S_ISLNK(entry.mode):
            return None if archive.read(record) == entry.link_target() else "another link target"
        if stat.S_ISREG(entry.mode):
            with entry.open() as expected, archive.open(record) as packed:
                return None if same_bytes(packed, expected) else "another content"
    except DAMAGE as error:
        return f"damaged ({error})"
    return None


def entry_fault(archive, record, entry):
    if entry_mode(record) != entry.mode:
        return f"mode {stat.filemode(entry_mode(record))} instead of {stat.filemode(entry.mode)}"
    return content_fault(archive, record, entry)


def package_faults(archive, entries):
    """Yields one line for each difference between a package and the client's entries."""
    wanted = {entry.name: entry for entry in entries}
    records = archive.infolist()
    for record in records:
        entry = wanted.pop(record.filename, None)
        if entry is None:
            yield f"{record.filename}: extra"
            continue
        fault = entry_fault(archive, record, entry)
        if fault:
            yield f"{record.filename}: {fault}"
    for name in wanted:
        yield f"{name}: missing"
    fault = last_entry_fault(records)
    if fault:
        yield fault


def verify(package, client):
    entries = client_entries(client)
    with opened(package) as archive:
        faults = list(package_faults(archive, entries))
    for fault in faults:
        print(f"{package}: {fault}", file=sys.stderr)
    print(f"{package}: {len(entries)} entries expected, {len(faults)} faults")
    return 1 if faults else 0


def parse_arguments():
    parser = argparse.ArgumentParser(
        prog="make-package.sh",
        usage="make-package.sh CLIENT.app OUT | --list PACKAGE | --verify PACKAGE CLIENT.app",
        description=DESCRIPTION,
        formatter_class=argparse.RawDescriptionHelpFormatter,
    )
    path = pathlib.Path
    parser.add_argument("make", nargs="*", type=path, metavar="CLIENT.app OUT")
    parser.add_argument("--list", type=path, metavar="PACKAGE")
    parser.add_argument("--verify", nargs=2, type=path, metavar=("PACKAGE", "CLIENT.app"))
    parser.add_argument(
        "--depfile",
        type=path,
        metavar="FILE",
        help="also write what the package depends on, as a make rule",
    )
    arguments = parser.parse_args()
    modes = [arguments.make, arguments.list, arguments.verify]
    if sum(bool(mode) for mode in modes) != 1 or len(arguments.make) not in (0, 2):
        parser.error("expected one of the three forms above")
    return arguments


def main():
    arguments = parse_arguments()
    try:
        if arguments.list:
            return list_package(arguments.list)
        if arguments.verify:
            return verify(*arguments.verify)
        make(*arguments.make, arguments.depfile)
        return 0
    except (Refused, OSError) as error:
        print(f"make-package.sh: {error}", file=sys.stderr)
        return 1


if __name__ == "__main__":
    sys.exit(main())
