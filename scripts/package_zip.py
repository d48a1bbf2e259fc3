"""Writes a package, and compares one with what would be written.

A package is a zip archive. A header stands in front of each entry's data, and a directory at the
end repeats the headers. The launcher reads both, so both are compared.
"""

import contextlib
import io
import lzma
import os
import stat
import struct
import zipfile
import zlib

from client_entries import CHUNK, INFO, Refused, unreadable

ENTRY_TIME = (1980, 1, 1, 0, 0, 0)  # The earliest that a zip archive can hold.
LARGE = 1 << 30  # From this size on, a header has room for sizes of 64 bits.
# What zipfile raises about an archive that is damaged or none at all.
DAMAGE = (
    *(zipfile.BadZipFile, zipfile.LargeZipFile, zlib.error, lzma.LZMAError, struct.error, EOFError),
    *(RuntimeError, ValueError, OverflowError, MemoryError, OSError),
)
# The fields that every header has, and those of every record in the directory.
HEADER_FIELDS = (
    "<4s5H3L2H",
    "signature version flags method time date checksum packed-size size name-length extra-length",
)
RECORD_FIELDS = (
    "<4s6H3L5H2L",
    "signature made-by version flags method time date checksum packed-size size name-length"
    " extra-length comment-length disk kind mode offset",
)


def local_attributes(record):
    """Returns an extra field for an entry's header: its type and mode (libarchive's "xl").

    Both stand in the archive's directory, at its end. Without this field, a reader of a package
    that has lost its end would take links for files and lose the executable bits."""
    versions = record.create_system << 8 | record.create_version
    return struct.pack("<HHBHI", 0x6C78, 7, 0b101, versions, record.external_attr)


def new_record(entry):
    """Returns an entry's record without the fields that follow from its content and place."""
    record = zipfile.ZipInfo(entry.name, ENTRY_TIME)
    record.create_system = 3  # Unix: the upper half of external_attr is a mode.
    record.external_attr = entry.mode << 16
    record.extra = local_attributes(record)
    if stat.S_ISREG(entry.mode):
        record.compress_type = zipfile.ZIP_DEFLATED
    return record


def add_entry(archive, entry):
    record = new_record(entry)
    if not stat.S_ISREG(entry.mode):
        archive.writestr(record, b"".join(entry.chunks()))
        return
    try:
        record.file_size = size = os.stat(entry.path).st_size
    except OSError as error:
        raise unreadable(entry.path, error) from None
    with archive.open(record, "w", force_zip64=size >= LARGE) as target:
        for chunk in entry.chunks():
            size -= len(chunk)
            if size < 0:
                break
            target.write(chunk)
    if size != 0:
        raise Refused(f"'{entry.path}' changed while it was packed; run again")


def write_package(stream, entries, show_progress):
    with zipfile.ZipFile(stream, "w") as archive:
        for done, entry in enumerate(entries, start=1):
            add_entry(archive, entry)
            show_progress(done, len(entries))


@contextlib.contextmanager
def opened(package):
    """Gives a package's stream and archive, and refuses a package that is damaged."""
    if not os.path.isfile(package):
        raise Refused(f"'{package}' is no file; name a package that this script has written")
    try:
        with open(package, "rb") as stream, zipfile.ZipFile(stream) as archive:
            yield stream, archive
    except PermissionError as error:
        raise unreadable(package, error) from None
    except DAMAGE as error:
        raise Refused(f"'{package}' is no whole zip archive ({error}); write it anew") from None


def entry_mode(record):
    return record.external_attr >> 16


def listed(archive, record):
    """Returns one line on an entry."""
    mode = entry_mode(record)
    arrow = " -> " + os.fsdecode(archive.read(record)) if stat.S_ISLNK(mode) else ""
    return f"{stat.filemode(mode)} {record.file_size:>12} {record.CRC:08x} {record.filename}{arrow}"


def unpacked(stream, record):
    """Yields an entry's content from its packed data, at which the stream stands."""
    left = record.compress_size
    inflater = zlib.decompressobj(-zlib.MAX_WBITS)
    is_deflated = record.compress_type == zipfile.ZIP_DEFLATED
    while left > 0:
        chunk = stream.read(min(left, CHUNK))
        if not chunk:
            raise EOFError("its data is cut off")
        left -= len(chunk)
        while is_deflated and chunk:
            yield inflater.decompress(chunk, CHUNK)
            chunk = inflater.unconsumed_tail
        yield chunk
    if is_deflated:
        yield from iter(lambda: inflater.decompress(b"", CHUNK), b"")
    if is_deflated and (not inflater.eof or inflater.unused_data):
        raise EOFError("its data ends elsewhere")


def content_fault(stream, record, entry):
    """Returns how an entry's packed data differs from the client, or None."""
    packed, pending, checksum, size = unpacked(stream, record), b"", 0, 0
    what = "link target" if stat.S_ISLNK(entry.mode) else "content"
    for chunk in entry.chunks():
        checksum = zlib.crc32(chunk, checksum)
        size += len(chunk)
        while len(pending) < len(chunk):
            more = next(packed, None)
            if more is None:
                return f"another {what}"
            pending += more
        if not pending.startswith(chunk):
            return f"another {what}"
        pending = pending[len(chunk) :]
    if pending or any(packed):
        return f"another {what}"
    if (checksum, size) != (record.CRC, record.file_size):
        return "damaged (its checksum or size is wrong)"
    return None


def differing_field(fields, expected, found):
    """Returns the name of the first field in which two headers or records differ."""
    layout, names = fields
    if len(found) < len(expected):
        return "length"
    pairs = zip(struct.unpack_from(layout, expected), struct.unpack_from(layout, found))
    differing = [name for name, (left, right) in zip(names.split(), pairs) if left != right]
    return [*differing, "name or extra field"][0]


def entry_fault(stream, found, record, entry):
    """Returns how one entry differs from what packing would write, or None."""
    if entry_mode(found) != entry.mode:
        return f"mode {stat.filemode(entry_mode(found))} instead of {stat.filemode(entry.mode)}"
    try:
        header = record.FileHeader(record.file_size >= LARGE)
        stream.seek(record.header_offset)
        packed_header = stream.read(len(header))
        fault = content_fault(stream, record, entry)
    except DAMAGE as error:
        return f"damaged ({error})"
    if fault is None and packed_header != header:
        field = differing_field(HEADER_FIELDS, header, packed_header)
        fault = f"damaged (the header in front of its data has another {field})"
    return fault


class EndOfFile(io.BytesIO):
    """The bytes of a file from a position on."""

    def __init__(self, position):
        super().__init__()
        self.position = position

    def tell(self):
        return self.position + super().tell()

    def seek(self, offset, whence=io.SEEK_SET):
        start = self.position if whence == io.SEEK_SET else 0
        return self.position + super().seek(offset - start, whence)


def directory(records, position):
    """Returns the end of a package, whose entries take the bytes up to a position."""
    stream = EndOfFile(position)
    with zipfile.ZipFile(stream, "w") as archive:
        archive.infolist().extend(records)
    return stream.getvalue()


def directory_fault(expected, found, records):
    """Returns the first difference between two directories, or None."""
    start = 0
    for record in records:
        end = start + struct.calcsize(RECORD_FIELDS[0])
        end += sum(struct.unpack_from("<2H", expected, start + 28))
        if expected[start:end] != found[start:end]:
            field = differing_field(RECORD_FIELDS, expected[start:end], found[start:end])
            return f"{record.filename}: damaged (its record in the directory has another {field})"
        start = end
    return None if expected == found else "its end is damaged"


def layout_fault(stream, records):
    """Returns where a package with the right entries is not what packing would write, or None."""
    position = 0
    for record in records:
        if record.header_offset != position:
            return f"{record.filename}: does not follow the entry before it"
        position += len(record.FileHeader(record.file_size >= LARGE)) + record.compress_size
    expected = directory(records, position)
    stream.seek(position)
    return directory_fault(expected, stream.read(len(expected) + 1), records)


def last_entry_fault(names):
    if names[-1:] != [INFO]:
        return f"the last entry is not {INFO}: an interrupted installation would not be repaired"
    return None


def package_faults(stream, archive, entries):
    """Yields one line for each difference from what packing the entries would write."""
    wanted = {entry.name: entry for entry in entries}
    records = []
    differs = False
    for found in archive.infolist():
        entry = wanted.pop(found.filename, None)
        fault = "extra"
        if entry:
            record = new_record(entry)
            for field in ("CRC", "compress_size", "file_size", "header_offset"):
                setattr(record, field, getattr(found, field))
            records.append(record)
            fault = entry_fault(stream, found, record, entry)
        if fault:
            differs = True
            yield f"{found.filename}: {fault}"
    for name in wanted:
        differs = True
        yield f"{name}: missing"
    names = archive.namelist()
    fault = last_entry_fault(names)
    if not fault and not differs and names != [entry.name for entry in entries]:
        fault = "the entries are in another order"
    if not fault and not differs:
        fault = layout_fault(stream, records)
    if fault:
        yield fault
