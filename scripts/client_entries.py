"""Finds what a client holds, and refuses what no launcher would install as it is."""

import os
import re
import stat
import typing
import unicodedata

import version_file

EXECUTABLE = "Contents/MacOS/corvimo-ui"
INFO = "Contents/Resources/INFO"
CHUNK = 1 << 20
MAX_BUILD = 2**31 - 1  # The launcher compares builds as 32-bit signed numbers.
MAX_NAME = 960  # A path on macOS has up to 1023 bytes, and some lead to the installed client.
MAX_TOLD = 20
# What the Finder and archivers leave behind. A person's Mac would take some of it for metadata.
DROPPING = re.compile(r"\._.*|\.DS_Store|__MACOSX", re.DOTALL)
CONTROL_CHARACTER = re.compile("[\x00-\x1f\x7f-\x9f]")


class Refused(Exception):
    """What is wrong with an input, and what to do about it: one line for each argument."""


def printable(text):
    """Returns a text with its control characters escaped, so that a message stays on its line."""
    return CONTROL_CHARACTER.sub(lambda match: f"\\x{ord(match[0]):02x}", str(text))


def failure(action, path, error, advice):
    """Returns the Refused that tells of a failed system call."""
    return Refused(f"cannot {action} '{path}': {error.strerror or error}; {advice}")


def unreadable(path, error):
    return failure("read", path, error, "look at its permissions, and run again")


class Entry(typing.NamedTuple):
    """One object below the client's folder; a folder's name ends with a slash."""

    name: str
    path: str
    mode: int  # Type and permissions as the package holds them, not as the disk does.

    def chunks(self):
        """Yields what the package holds of the object: a file's content or a link's target."""
        try:
            if stat.S_ISREG(self.mode):
                with open(self.path, "rb") as stream:
                    yield from iter(lambda: stream.read(CHUNK), b"")
            elif stat.S_ISLNK(self.mode):
                yield os.fsencode(os.readlink(self.path))
        except OSError as error:
            raise unreadable(self.path, error) from None


class Client(typing.NamedTuple):
    """A client that can be packed."""

    entries: list  # In the order of the package.
    info: bytes
    build: int
    left_out: int

    def summary(self):
        """Returns what the last line of the output says of the objects that are left out."""
        return f", {self.left_out} left out (._*, .DS_Store, __MACOSX)" if self.left_out else ""


class Scan:
    """Everything below a client's folder, in no order."""

    def __init__(self, folder):
        self.entries = []
        self.left_out = 0
        self.faults = []
        self.add_folder(folder, "")

    def add_folder(self, folder, prefix):
        try:
            with os.scandir(folder) as items:
                modes = [(item, item.stat(follow_symlinks=False).st_mode) for item in items]
        except OSError as error:
            raise unreadable(folder, error) from None
        for item, mode in modes:
            if DROPPING.fullmatch(item.name):
                self.left_out += 1
            else:
                self.add(item.path, prefix + item.name, mode)

    def add(self, path, name, mode):
        fault = name_fault(name)
        if stat.S_IFMT(mode) not in (stat.S_IFDIR, stat.S_IFREG, stat.S_IFLNK):
            fault = "is no file, folder or symbolic link; remove it"
        if fault:
            self.faults.append(f"'{path}' {fault}")
        elif stat.S_ISDIR(mode):
            self.entries.append(Entry(name + "/", path, packed_mode(mode)))
            self.add_folder(path, name + "/")
        else:
            self.entries.append(Entry(name, path, packed_mode(mode)))


def packed_mode(disk_mode):
    """Returns the mode in the package: the type, and of the permissions only the executable bit."""
    if stat.S_ISLNK(disk_mode):
        return stat.S_IFLNK | 0o777
    executable = stat.S_ISDIR(disk_mode) or disk_mode & 0o111
    return stat.S_IFMT(disk_mode) | (0o755 if executable else 0o644)


def name_fault(name):
    """Returns why no Mac would install an object under its name, or None."""
    try:
        length = len(name.encode())
    except UnicodeEncodeError:
        return "has a name that is not UTF-8; rename it"
    if length > MAX_NAME:
        return f"has a path of more than {MAX_NAME} bytes within the client; shorten it"
    if CONTROL_CHARACTER.search(name):
        return "has a control character in its name; rename it"
    composed = unicodedata.normalize("NFC", name)
    if composed != name:
        return f"({ascii(name)}) is not in composed form (NFC); rename it to {ascii(composed)}"
    return None


def same_name_faults(entries):
    """Yields one line for each two names that a disk which ignores letter case merges."""
    seen = {}
    for entry in entries:
        name = entry.name.rstrip("/")
        key = unicodedata.normalize("NFC", unicodedata.normalize("NFD", name).casefold())
        other = seen.setdefault(key, name)
        if other is not name:
            yield f"'{other}' and '{name}' differ only in letter case; rename one"


def read_client(folder):
    """Returns the Client in a folder. Refuses what no launcher can install."""
    if not os.path.isdir(folder):
        raise Refused(f"'{folder}' is no folder; name the .app folder of a built client")
    found = Scan(folder)
    entries = sorted(found.entries, key=lambda entry: (entry.name == INFO, entry.name.encode()))
    faults = sorted(found.faults) + list(same_name_faults(entries))
    if faults:
        more = len(faults) - MAX_TOLD
        raise Refused(*faults[:MAX_TOLD], *[f"and {more} more like these"] * (more > 0))
    check_executable(folder, entries)
    info = read_info(folder, entries)
    return Client(entries, info, build_number(folder / INFO, info), found.left_out)


def regular_file(entries, name):
    """Returns the entry of a regular file, or None. A link to its folder gives it no entry."""
    files = (entry for entry in entries if entry.name == name and stat.S_ISREG(entry.mode))
    return next(files, None)


def check_executable(folder, entries):
    entry = regular_file(entries, EXECUTABLE)
    if not entry:
        raise Refused(
            f"'{folder}' has no regular file {EXECUTABLE} in folders of its own;"
            " name the .app folder of a built client"
        )
    if not entry.mode & 0o111:
        raise Refused(f"'{entry.path}' is not executable; run: chmod +x '{entry.path}'")


INFO_ADVICE = f"give the client a file {INFO} with the lines [Version] and build_version=NUMBER"


def read_info(folder, entries):
    entry = regular_file(entries, INFO)
    if not entry:
        raise Refused(f"'{folder}' has no regular file {INFO} in folders of its own; {INFO_ADVICE}")
    return b"".join(entry.chunks())


def build_number(path, info):
    value = version_file.build_version(info) or ""
    if not re.fullmatch("[0-9]{1,99}", value, re.ASCII) or int(value) > MAX_BUILD:
        raise Refused(f"'{path}' holds no integer build_version up to {MAX_BUILD}; {INFO_ADVICE}")
    return int(value)


def links_that_lead_out(folder, entries):
    """Yields the name and the target of each symbolic link that does not stay below the folder."""
    top = os.path.realpath(folder)
    for entry in entries:
        if stat.S_ISLNK(entry.mode):
            target = os.readlink(entry.path)
            written = os.path.normpath(os.path.join(os.path.dirname(entry.name), target))
            resolved = os.path.relpath(os.path.realpath(entry.path), top)
            if any(path.startswith(("/", "../")) or path == ".." for path in (written, resolved)):
                yield entry.name, target
