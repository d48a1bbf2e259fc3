"""Where an installation is looked at: a home folder, or an archive of one. Both are only read.

Paths are relative to the home folder, such as ".Corvimo/log/launcher.log"."""

import bz2
import collections
import contextlib
import errno
import gzip
import lzma
import os
import re
import stat
import tarfile
import tempfile
import typing
import zlib

CORVIMO = ".Corvimo"
LUMAPORT = ".Lumaport"
LOG = CORVIMO + "/log/launcher.log"
LOG_NAME = re.compile(r"launcher\.log(?:_(\d+))?")

SMALL = 1 << 20  # Bytes of a file that is read as a whole.
BLOCK = 1 << 16
MAX_UNPACKED = 4 << 30  # Bytes of an archive's content.
MAX_LOG = 512 << 20  # Bytes of all logs in an archive; the launcher keeps at most 250 MiB.
MAX_NAMES = 16 << 20  # Bytes of all paths of an archive outside the data folders.
MAX_PATH = 4096


class Unusable(Exception):
    """What is wrong with an input, and what to do about it, in words for the person who ran us."""

    def __init__(self, reason, subject=""):
        super().__init__(reason)
        self.subject = subject  # Empty for the home folder or the archive.


class NotAFile(Exception):
    """Says that something else than a regular file is in its place."""


class Entry(typing.NamedTuple):
    """One object as lstat tells it."""

    mode: int
    size: int
    uid: int
    mtime: typing.Optional[float] = None
    flags: int = 0
    target: str = ""
    crc: typing.Optional[int] = None

    @property
    def is_folder(self):
        return stat.S_ISDIR(self.mode)

    @property
    def is_file(self):
        return stat.S_ISREG(self.mode)

    @property
    def is_link(self):
        return stat.S_ISLNK(self.mode)


class Usage(typing.NamedTuple):
    """How much a tree holds."""

    files: int
    size: int
    is_complete: bool = True


def checksum(stream):
    """Returns the CRC-32 of what a stream still holds."""
    crc = 0
    for block in iter(lambda: stream.read(BLOCK), b""):
        crc = zlib.crc32(block, crc)
    return crc


def walk(source, folder):
    """Yields (path, entry) for everything below a folder; the entry is None where it is refused."""
    waiting = [folder]
    while waiting:
        current = waiting.pop()
        try:
            names = source.names(current)
        except OSError:
            yield current, None
            continue
        for name in names:
            path = f"{current}/{name}"
            try:
                entry = source.entry(path)
            except OSError:
                entry = None
            if entry and entry.is_folder:
                waiting.append(path)
            yield path, entry


class Folder:
    """A home folder of this machine."""

    is_live = True
    notes = ()

    def __init__(self, home):
        self.home = home

    def real(self, path):
        return os.path.join(self.home, path)

    def entry(self, path):
        """Returns the object at a path, None where there is none. Raises OSError when refused."""
        try:
            status = os.lstat(self.real(path))
            target = os.readlink(self.real(path)) if stat.S_ISLNK(status.st_mode) else ""
        except (FileNotFoundError, NotADirectoryError):
            return None
        flags = getattr(status, "st_flags", 0)
        return Entry(status.st_mode, status.st_size, status.st_uid, status.st_mtime, flags, target)

    def followed(self, path):
        """Returns the object at a path, links followed. Raises OSError where there is none."""
        status = os.stat(self.real(path))
        return Entry(status.st_mode, status.st_size, status.st_uid, status.st_mtime)

    def names(self, folder):
        return sorted(os.listdir(self.real(folder)))

    def usage(self, folder):
        """Returns how much a folder holds, or None where there is none."""
        entry = self.entry(folder)
        if entry is None:
            return None
        entries = [found for _, found in walk(self, folder)] if entry.is_folder else [entry]
        files = [found for found in entries if found and not found.is_folder]
        return Usage(len(files), sum(found.size for found in files), None not in entries)

    @contextlib.contextmanager
    def opened(self, path):
        """Opens a regular file; opening anything else might wait for another process."""
        flags = os.O_RDONLY | os.O_NONBLOCK | os.O_NOCTTY | os.O_CLOEXEC
        try:
            descriptor = os.open(self.real(path), flags)
        except OSError as error:
            if error.errno in (errno.ELOOP, errno.EINVAL, errno.ENXIO, errno.EOPNOTSUPP):
                raise NotAFile(path) from None  # The last ones are the answers for a socket.
            raise
        is_file = stat.S_ISREG(os.fstat(descriptor).st_mode)
        if not is_file:
            os.close(descriptor)
            raise NotAFile(path)
        with os.fdopen(descriptor, "rb") as stream:
            yield stream

    def text(self, path):
        """Returns the beginning of a file."""
        with self.opened(path) as stream:
            return stream.read(SMALL)

    def crc(self, path):
        with self.opened(path) as stream:
            return checksum(stream)


class _CarefulInfo(tarfile.TarInfo):
    """A member whose headers cannot take more memory than names need."""

    _LONG = b"LKxgX"  # Headers that hold names or attributes of the next member.

    def _proc_member(self, tar):
        if self.type in (b"S",) or (
            self.type in {bytes([c]) for c in self._LONG} and self.size > SMALL
        ):
            raise tarfile.ReadError("a header that is too large")
        return super()._proc_member(tar)

    def _proc_gnusparse_10(self, *_):
        raise tarfile.ReadError("a sparse file")


class _Limited:
    """A stream that ends with an error once it has given too much."""

    def __init__(self, stream):
        self._stream = stream
        self._left = MAX_UNPACKED

    def read(self, size):
        data = self._stream.read(size)
        self._left -= len(data)
        if self._left < 0:
            raise tarfile.ReadError(f"it unpacks to more than {MAX_UNPACKED >> 30} GiB")
        return data


_COMPRESSIONS = {b"\x1f\x8b": gzip.open, b"BZ": bz2.open, b"\xfd7": lzma.open}
_DAMAGE = (
    tarfile.TarError,
    EOFError,
    zlib.error,
    lzma.LZMAError,
    OSError,
    ValueError,
    OverflowError,
)
_DAMAGE += (RecursionError, MemoryError)  # From headers that nobody would write but to harm.

# What an archive of the content of ~/.Corvimo begins with.
_BELOW_CORVIMO = re.compile(r"Corvimo\.app(_tmp\d?)?|data|log|ui\.pid|launcher\.lock")


class Archive:
    """A tar archive of a home folder or of ~/.Corvimo. It is read once; only logs reach the disk, as temporary
    files without a name."""

    is_live = False

    def __init__(self, path):
        self.notes = []
        self._entries = {}
        self._children = collections.defaultdict(set)
        self._name_bytes = 0
        self._texts = {}
        self._logs = {}
        self._log_bytes = 0
        self._data = collections.Counter()
        self._data_files = collections.Counter()
        self._refused = 0
        self._roots = set()
        self._read(path)

    def _read(self, path):
        with open(path, "rb") as raw:
            magic = raw.read(2)
        opener = _COMPRESSIONS.get(magic, open)
        try:
            with opener(path, "rb") as stream:
                with tarfile.open(fileobj=_Limited(stream), mode="r|", tarinfo=_CarefulInfo) as tar:
                    self._read_members(tar)
        except _DAMAGE as error:
            if not self._entries and not self._data_files:
                raise Unusable(
                    f"it is neither a home folder nor a tar archive ({error}); docs/shipping.md has the command"
                ) from None
            self.notes.append(
                f"The archive is damaged or cut ({error}): what follows in it is missing here."
            )
        if self._refused:
            count = f"{self._refused} objects of the archive were left out"
            self.notes.append(
                f"{count}: they have no place in a home folder, or there are too many."
            )
        if not any(self.entry(folder) for folder in (CORVIMO, LUMAPORT)):
            raise Unusable("the archive holds no folder .Corvimo; docs/shipping.md has the command")

    def _read_members(self, tar):
        while True:
            member = tar.next()
            if member is None:
                return
            tar.members, tar.pax_headers = [], {}  # They would grow with the archive.
            is_known = member.isreg() or member.isdir() or member.issym() or member.islnk()
            path = self._place(member.name) if is_known and not member.issparse() else None
            if path is None or (path and not self._add(tar, member, path)):
                self._refused += 1

    def _place(self, name):
        """Returns the path below the home folder, "" for what is skipped, None for what is refused."""
        parts = [part for part in name.split("/") if part not in ("", ".")]
        if name.startswith("/") or ".." in parts or "\0" in name or len(name) > MAX_PATH:
            return None
        if not parts or parts[-1].startswith("._"):
            return ""  # The latter are the Mac's own attributes of other files.
        for i, part in enumerate(parts):
            if part in (CORVIMO, LUMAPORT):
                self._roots.add("/".join(parts[:i]))
                return "/".join(parts[i:]) if len(self._roots) == 1 else None
        is_below = not self._roots and _BELOW_CORVIMO.fullmatch(parts[0])
        return "/".join([CORVIMO, *parts]) if is_below else ""

    def _add(self, tar, member, path):
        """Takes a member in. Returns False for one that cannot be used."""
        for folder in (CORVIMO + "/data", LUMAPORT + "/data"):
            if f"{path}/".startswith(folder + "/"):
                self._data[folder] += member.size
                self._data_files[folder] += not member.isdir()
                return True
        mode, crc, size = stat.S_IFREG, None, member.size
        if member.islnk():
            first = self._entries.get(self._place(member.linkname) or "")
            if first is None or not first.is_file:
                return False
            crc, size = first.crc, first.size
        elif member.isreg():
            crc = self._keep(tar.extractfile(member), path)
        else:
            mode = stat.S_IFDIR if member.isdir() else stat.S_IFLNK
        mode |= stat.S_IMODE(member.mode)
        target = member.linkname if member.issym() else ""
        return self._put(path, Entry(mode, size, member.uid, member.mtime, 0, target, crc))

    def _put(self, path, entry):
        self._entries[path] = entry
        while path and self._name_bytes < MAX_NAMES:
            self._name_bytes += len(path)
            folder, _, name = path.rpartition("/")
            is_new = folder not in self._children
            self._children[folder].add(name)
            path = folder if is_new else ""
        return self._name_bytes < MAX_NAMES

    def _keep(self, stream, path):
        """Keeps the content that is needed later. Returns its checksum."""
        folder, _, name = path.rpartition("/")
        if folder == CORVIMO + "/log" and LOG_NAME.fullmatch(name):
            self._logs[path] = tempfile.TemporaryFile()
            crc = 0
            for block in iter(lambda: stream.read(BLOCK), b""):
                self._log_bytes += len(block)
                if self._log_bytes > MAX_LOG:
                    raise tarfile.ReadError("its logs are larger than a launcher's can be")
                self._logs[path].write(block)
            return crc
        if name in ("INFO", "ui.pid"):
            self._texts[path] = stream.read(SMALL) if len(self._texts) < 100 else b""
            return zlib.crc32(self._texts[path])
        return checksum(stream)

    def entry(self, path):
        """Returns the object at a path, or None where there is nothing."""
        if path not in self._entries and path in self._children:
            return Entry(stat.S_IFDIR | 0o755, 0, -1)  # Its own member is missing.
        return self._entries.get(path)

    def followed(self, path):
        """Returns the object at a path, links of its last component followed inside the archive."""
        for _ in range(40):
            found = self.entry(path)
            if found is None:
                raise FileNotFoundError(errno.ENOENT, "not in the archive", path)
            if not found.is_link:
                return found
            path = os.path.normpath(os.path.join(os.path.dirname(path), found.target))
            if path.startswith(("/", "..")):
                raise PermissionError(errno.EPERM, "leads out of the archive", path)
        raise OSError(errno.ELOOP, "links in a circle", path)

    def names(self, folder):
        return sorted(self._children.get(folder, ()))

    def usage(self, folder):
        """Returns how much a folder holds, or None where there is none."""
        if folder in self._data_files:
            return Usage(self._data_files[folder], self._data[folder])
        if self.entry(folder) is None:
            return None
        files = [found for _, found in walk(self, folder) if not found.is_folder]
        return Usage(len(files), sum(found.size for found in files))

    @contextlib.contextmanager
    def opened(self, path):
        if path not in self._logs:
            raise NotAFile(path)
        self._logs[path].seek(0)
        yield self._logs[path]

    def text(self, path):
        """Returns the beginning of a file; of those that are not kept, nothing."""
        found = self.entry(path)
        if found is None:
            raise FileNotFoundError(errno.ENOENT, "not in the archive", path)
        if not found.is_file:
            raise NotAFile(path)
        return self._texts.get(path, b"")

    def crc(self, path):
        return self._entries[path].crc


def open_source(path):
    """Returns the source that a path names: a home folder, its .Corvimo, or an archive."""
    path = os.path.abspath(path)
    if os.path.isdir(path):
        if os.path.basename(path) == CORVIMO:
            path = os.path.dirname(path)
        if not os.path.lexists(os.path.join(path, CORVIMO)) and not os.path.isdir(
            os.path.join(path, LUMAPORT)
        ):
            if not os.access(path, os.R_OK | os.X_OK):
                raise Unusable(
                    "this folder may not be read; run the tool as the person, or with sudo"
                )
        return Folder(path)
    if not os.path.exists(path):
        raise Unusable(
            "there is no such folder or archive; name a home folder or an archive of ~/.Corvimo"
        )
    if not os.path.isfile(path):
        raise Unusable(
            "it is neither a folder nor a file; name a home folder or an archive of ~/.Corvimo"
        )
    return Archive(path)
