"""Judges a copy of the client as the launcher does, and compares it with the package."""

import errno
import lzma
import os
import re
import stat
import struct
import tarfile
import typing
import unicodedata
import zipfile
import zlib

import source as sources

EXECUTABLE = "Contents/MacOS/corvimo-ui"
INFO = "Contents/Resources/INFO"

MISSING, TORSO, WHOLE, UNKNOWN = "missing", "torso", "whole", "unknown"


class Client(typing.NamedTuple):
    """One copy of the client, as client_bundle.h judges it."""

    state: str
    reason: str = ""
    build: typing.Optional[int] = None


def build_in(text):
    """Returns the text of build_version in the group Version, as the launcher reads it, or None."""
    group, build = "", None
    for line in re.split(r"[\r\n]", text.decode("utf-8-sig", "replace")):
        line = line.strip(" \t")
        key, equals, value = line.partition("=")
        if line.startswith("["):
            group = line[1:].partition("]")[0].strip()
        elif (
            group == "Version"
            and equals
            and not line.startswith(";")
            and key.strip() == "build_version"
        ):
            build = value.partition(";")[0].strip().replace('"', "")
    return build


def leading_number(text):
    """Returns the number that the launcher makes of a text when it compares builds."""
    found = re.match(r"[ \t\n\v\f\r]*([+-]?[0-9]{1,30})", text or "")
    number = int(found.group(1)) if found else 0
    number = max(-(2**63), min(number, 2**63 - 1))
    return (number + 2**31) % 2**32 - 2**31


def decides(source, path):
    """Returns the installed build as the launcher compares it; None without an executable."""
    try:
        source.followed(f"{path}/{EXECUTABLE}")
    except OSError:
        return None
    try:
        return leading_number(build_in(source.text(f"{path}/{INFO}")))
    except (OSError, sources.NotAFile):
        return 0


def _whole_number(text):
    found = re.fullmatch(r"-?[0-9]{1,19}", text or "")
    return int(text) if found and -(2**63) <= int(text) < 2**63 else None


def inspect(source, path):
    """Judges the copy at a path."""
    try:
        if source.entry(path) is None:
            return Client(MISSING)
        executable = source.followed(f"{path}/{EXECUTABLE}")
    except (FileNotFoundError, NotADirectoryError):
        return Client(TORSO, "its executable is missing")
    except OSError as error:
        if error.errno == errno.ELOOP:
            return Client(TORSO, "its executable is a link in a circle")
        return Client(UNKNOWN, f"its executable cannot be looked at: {error.strerror}")
    if not executable.is_file:
        return Client(TORSO, "its executable is not a file")
    if not executable.mode & stat.S_IXUSR:
        return Client(TORSO, "its executable may not be executed by its owner")
    return _inspect_info(source, f"{path}/{INFO}")


def _inspect_info(source, path):
    try:
        text = source.text(path)
    except (FileNotFoundError, NotADirectoryError, sources.NotAFile):
        return Client(TORSO, "its INFO is missing")
    except OSError as error:
        return Client(UNKNOWN, f"its INFO cannot be read: {error.strerror}")
    build = _whole_number(build_in(text))
    if build is None:
        return Client(TORSO, "its INFO names no build")
    return Client(WHOLE, "", build)


class PackageEntry(typing.NamedTuple):
    """One object that a package installs."""

    mode: int
    size: int
    crc: typing.Optional[int] = None
    target: str = ""


class Package(typing.NamedTuple):
    """What a package holds."""

    state: str  # "whole", "damaged", "missing" or "other format".
    detail: str = ""
    entries: dict = {}
    unpacked: int = 0


# What zipfile and tarfile raise about an archive that is damaged.
_DAMAGE = (
    zipfile.BadZipFile,
    tarfile.TarError,
    zlib.error,
    lzma.LZMAError,
    struct.error,
    EOFError,
    ValueError,
)
_DISK_BLOCK = 4096


def read_package(path):
    """Reads a whole package, so that damage shows."""
    entries = {}
    try:
        if os.path.getsize(path) == 0:
            return Package("damaged", "it is empty")
        is_zip = _begins_like_zip(path)
        for name, entry in (_zip_entries if is_zip else _tar_entries)(path):
            entries[_normal(name)] = entry
    except FileNotFoundError:
        return Package("missing")
    except NotImplementedError as error:
        return Package("other format", str(error))
    except (*_DAMAGE, RuntimeError) as error:
        known = is_zip or entries
        detail = str(error).replace("File is not a zip file", "its end is missing")
        return Package("damaged" if known else "other format", detail if known else "")
    except OSError as error:
        return Package("damaged", error.strerror or str(error))
    if not entries:
        return Package("damaged", "it holds nothing")
    size = sum(-(-entry.size // _DISK_BLOCK) * _DISK_BLOCK for entry in entries.values())
    return Package("whole", "", entries, size)


def _begins_like_zip(path):
    with open(path, "rb") as stream:
        return stream.read(2) == b"PK"


def _normal(name):
    parts = [part for part in name.split("/") if part not in ("", ".")]
    return unicodedata.normalize("NFC", "/".join(parts))


def _zip_entries(path):
    with zipfile.ZipFile(path) as archive:
        for record in archive.infolist():
            mode = record.external_attr >> 16
            with archive.open(record) as stream:
                if stat.S_ISLNK(mode):
                    yield record.filename, PackageEntry(mode, 0, None, os.fsdecode(stream.read()))
                else:
                    crc = sources.checksum(stream)
                    kind = stat.S_IFDIR if record.filename.endswith("/") else stat.S_IFREG
                    yield record.filename, PackageEntry(
                        kind | stat.S_IMODE(mode), record.file_size, crc
                    )


def _tar_entries(path):
    with tarfile.open(path, "r:*") as archive:
        for member in archive:
            if member.isreg():
                crc = sources.checksum(archive.extractfile(member))
                yield member.name, PackageEntry(stat.S_IFREG | member.mode, member.size, crc)
            elif member.issym():
                yield member.name, PackageEntry(stat.S_IFLNK, 0, None, member.linkname)
            elif member.isdir():
                yield member.name, PackageEntry(stat.S_IFDIR | member.mode, 0)


class Comparison(typing.NamedTuple):
    """How a copy of the client differs from the package. Names are the package's."""

    entries: int
    missing: list
    different: list
    extra: int

    @property
    def is_equal(self):
        return not self.missing and not self.different


def compare(source, path, package):
    """Compares a copy with a package, file by file."""
    found = {}
    for name, entry in sources.walk(source, path):
        found[_normal(name[len(path) :])] = (name, entry)
    missing, different = [], []
    for name, wanted in package.entries.items():
        real, entry = found.get(name, ("", None))
        if not real:
            missing.append(name)
        elif not _is_as_wanted(source, real, entry, wanted):
            different.append(name)
    folders = {parent for name in package.entries for parent in _parents(name)}
    extra = sum(name not in package.entries and name not in folders for name in found)
    return Comparison(len(package.entries), missing, different, extra)


def _parents(name):
    parts = name.split("/")
    return ("/".join(parts[:i]) for i in range(1, len(parts)))


def _is_as_wanted(source, path, entry, wanted):
    if entry is None or stat.S_IFMT(entry.mode) != stat.S_IFMT(wanted.mode):
        return False
    if entry.is_link:
        return _same_text(entry.target, wanted.target)
    if entry.is_folder:
        return True
    try:
        is_executable = bool(entry.mode & stat.S_IXUSR)
        is_like = entry.size == wanted.size and is_executable == bool(wanted.mode & stat.S_IXUSR)
        return is_like and source.crc(path) == wanted.crc
    except (OSError, sources.NotAFile):
        return False


def _same_text(left, right):
    return unicodedata.normalize("NFC", left) == unicodedata.normalize("NFC", right)
