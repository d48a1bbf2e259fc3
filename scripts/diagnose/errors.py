"""What the launcher's messages mean and what helps: the tool's words and the table of docs/shipping.md."""

import re
import typing

# What a row is to a start in which it stands.
CAUSE = "cause"  # Makes an installation fail.
REASON = "reason"  # The system's reason for the failure of something else.
RESULT = "result"  # Follows from a cause, and is told by the verdict.
SIDE = "side"  # Went wrong beside the installation.
NOTE = "note"  # Changes nothing.

AGAIN = "install the launcher again, from a fresh download"
SPACE = "free space on the disk, then start the launcher again"
OWNER = (
    "give `~/.Corvimo` back to the person (`sudo chown -R NAME ~/.Corvimo; chmod -R u+rwX ~/.Corvimo`), "
    "then start the launcher again"
)


class Error(typing.NamedTuple):
    """One kind of message: how the table shows it, how it is recognised, and its words."""

    key: str
    shown: str  # Markdown.
    pattern: str  # Of the message, from its beginning.
    role: str
    meaning: str
    helps: str
    refines: str = ""  # The key of a row that this one, coming after it, makes more precise.


# The first row that fits is taken.
ERRORS = (
    Error(
        "no-library",
        "`cannot load libarchive`, then `Allocate archive failed`",
        "cannot load libarchive",
        CAUSE,
        "libarchive is missing or too old; the text in quotation marks names the file or the function",
        AGAIN + "; on Linux, install `libarchive13`",
    ),
    Error(
        "no-package",
        "`archive_read_open_filename failed`, then `… total file numbers, ret: -1`",
        "archive_read_open_filename failed|Failed to read file ",
        CAUSE,
        "the package is missing, may not be read, or is no archive",
        AGAIN,
    ),
    Error(
        "empty-package",
        "`Failed to calculate total file numbers, ret: 0`",
        r"Failed to calculate total file numbers, ret: 0$",
        CAUSE,
        "the package is an empty file or an archive without entries, or its very beginning is damaged",
        AGAIN,
    ),
    Error(
        "bad-name",
        "`archive_read_extract2 failed: 'Path …'`",
        "archive_read_extract2 failed: 'Path |archive_entry_pathname failed",
        CAUSE,
        "the package holds a name that cannot be installed",
        "report it to whoever made the package: a download will not help",
    ),
    Error(
        "not-placed",
        "`archive_read_extract2 failed: 'Can't create …'`, `… 'Failed to create dir …'`, "
        "`… 'Could not unlink'`",
        "archive_read_extract2 failed: '[^']|archive_write_finish_entry failed",
        CAUSE,
        "a file of the client could not be made: the disk is full, or what is in its place cannot be replaced",
        "free space on the disk, and look at the owners in `~/.Corvimo`; then start the launcher again",
    ),
    Error(
        "not-unpacked",
        "`archive_read_extract2 failed: ''`",
        "archive_read_extract2 failed",
        CAUSE,
        "a file of the client could not be unpacked: the disk is full, or the package is damaged",
        "free space on the disk, or " + AGAIN,
    ),
    Error(
        "not-written",
        "… then `package reader: 'Write failed'`",
        "package reader: 'Write failed'",
        CAUSE,
        "the disk took no more: it is full, or it fails",
        SPACE + "; where there is space, have the disk checked",
        refines="not-unpacked",
    ),
    Error(
        "damaged-package",
        "`archive_read_next_header failed`, or `… extract2 failed: ''` and another `package reader: …`",
        "archive_read_next_header failed|package reader: ",
        CAUSE,
        "the package is damaged",
        AGAIN,
        refines="not-unpacked",
    ),
    Error(
        "no-backup",
        "`failed to backup app from … -> … at max retries, exiting`",
        "failed to backup app .* at max retries, exiting$",
        CAUSE,
        "no backup could be made and nothing was changed: `~/.Corvimo` is not the person's to write, "
        "or ten backups are there",
        OWNER + "; remove old backups",
    ),
    Error(
        "backup-taken",
        "`failed to backup app from … -> …`",
        "failed to backup app from ",
        NOTE,
        "that backup name was taken by what an interruption has left; the next one is tried",
        "nothing, unless the row above follows",
    ),
    Error(
        "put-back",
        "`client was not whole, put back build …`",
        "client was not whole, put back build",
        NOTE,
        "an interruption had left half a client; a whole backup is in its place again",
        "nothing",
    ),
    Error(
        "not-put-back",
        "`failed to put back client from … -> …`",
        "failed to put back client from ",
        CAUSE,
        "half a client is in the place of a whole backup and cannot be replaced",
        "give `~/.Corvimo` back to the person; put the backup back by hand "
        "([how](reliability.md#what-stays-after-a-failure))",
    ),
    Error(
        "no-folder",
        "`failed to create folder`, `Failed to create Corvimo folder`",
        "failed to create folder|Failed to create Corvimo folder",
        CAUSE,
        "`~/.Corvimo` cannot be written, or a file is in the way",
        OWNER,
    ),
    Error(
        "nothing-to-go-back-to",
        "`Failed to extract package, and no old installation to rollback`",
        "Failed to extract package, and no old installation to rollback",
        RESULT,
        "a first installation has failed; what was unpacked stays and is replaced by the next start",
        "see the error before it",
    ),
    Error(
        "rolled-back",
        "`Failed to extract package, rollback to old installation`, `Failed to upgrade package`",
        "Failed to extract package, rollback|Failed to upgrade package|Failed to calculate",
        RESULT,
        "the installation has failed; where there was an old copy, it is put back",
        "see the error before it",
    ),
    Error(
        "data-left",
        "`Failed to move data to Corvimo folder`",
        "Failed to move data to Corvimo folder",
        SIDE,
        "the older product's data could not be moved; it is still in `~/.Lumaport/data`, and nothing there was "
        "removed: `~/.Corvimo/data` already held something, or a folder belongs to somebody else",
        "end the client and merge the two folders by hand, or look at their owners",
    ),
    Error(
        "older-left",
        "`Failed to remove old .Lumaport folder`",
        "Failed to remove old .Lumaport folder",
        SIDE,
        "the older product's data has moved, but the rest of its folder could not be removed",
        "remove `~/.Lumaport` by hand, once it holds no folder `data`",
    ),
    Error(
        "number-taken-over",
        "`pid … belongs to …, not to the client`",
        r"pid \d+ in .* belongs to ",
        NOTE,
        "the client has ended without removing `ui.pid`, and another program has its number now",
        "nothing",
    ),
    Error(
        "not-stopped",
        "`kill: … (1)`",
        r"kill: .* \(\d+\)$",
        SIDE,
        "the process named in `ui.pid` belongs to somebody else and could not be ended",
        "end the client by hand",
    ),
    Error(
        "not-unregistered",
        "`Cannot unregister bundle`",
        "Cannot unregister bundle",
        SIDE,
        "the registration tool failed; the client is opened all the same",
        "nothing",
    ),
    Error(
        "not-opened",
        "`Failed to launch Lumaport UI`",
        "Failed to launch Lumaport UI",
        SIDE,
        "`/usr/bin/open` could not be started",
        "open `~/.Corvimo/Corvimo.app` by hand",
    ),
    Error(
        "no-space",
        "`file-op`, ending with `No space left on device`, `Disk quota exceeded`",
        ".*(No space left on device|[Dd]isc? quota exceeded)",
        REASON,
        "the disk is full",
        SPACE,
    ),
    Error(
        "no-right",
        "`file-op`, ending with `Permission denied`, `Operation not permitted`",
        ".*(Permission denied|Operation not permitted)",
        REASON,
        "something belongs to somebody else, or is locked",
        OWNER,
    ),
    Error(
        "bad-disk",
        "`file-op`, ending with `Input/output error`",
        ".*Input/output error",
        REASON,
        "the disk fails",
        "have the disk checked, and keep a copy of the data elsewhere",
    ),
    Error(
        "no-resources",
        "`file-op`, ending with `Too many open files`, `Cannot allocate memory`; `Allocate … failed`",
        "Allocate (archive|extractor) failed|.*(Too many open files|Cannot allocate memory)",
        REASON,
        "the system had no room for one more file or for memory",
        "end other programs, then start the launcher again",
    ),
)

BY_KEY = {error.key: error for error in ERRORS}
OTHER = Error(
    "other", "", "", REASON, "a message that the table of errors does not have", "see the log"
)
NOT_LOGGED = Error(
    "not-logged",
    "",
    "",
    CAUSE,
    "the components that tell it are silent",
    "start the launcher once more with these at level 7",
)

_PATTERNS = [(re.compile(error.pattern), error) for error in ERRORS]


def find(message):
    """Returns the row of a message."""
    for pattern, error in _PATTERNS:
        if pattern.match(message):
            return error
    return OTHER


def plain(text):
    """Returns a text of the table without Markdown."""
    return re.sub(r"\[(.*?)\]\(.*?\)", r"\1: see docs/reliability.md", text).replace("`", "")


def markdown_table():
    """Returns the table of docs/shipping.md."""
    rows = [("Message", "Meaning", "What helps"), ("---",) * 3]
    rows += [(error.shown, error.meaning, error.helps) for error in ERRORS]
    lines = ["| " + " | ".join(row) + " |" for row in rows]
    lines[1] = "|---|---|---|"
    return "\n".join(lines) + "\n"
