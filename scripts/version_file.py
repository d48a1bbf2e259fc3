"""Reads INFO, a client's version file, as the launcher reads it: by the rules of Qt's QSettings.

These rules say where a line ends, what a comment is, and which escapes names and values may hold.
With other rules a client would pass whose build number the launcher does not find.
"""

import re

QUOTED = rb'"(?:\\(?:[\s\S]|\Z)|[^"\\])*(?:"|\Z)'
ESCAPED = rb"\\(?:\r\n|\n\r|[\s\S]|\Z)"
BLANK_AND_COMMENTS = re.compile(rb"[ \t\r\n]*(?:;[^\r\n]*[ \t\r\n]*)*")
LINE = re.compile(rb'(?:%b|%b|[^\r\n;"\\])*' % (QUOTED, ESCAPED))
ENTRY = re.compile(rb'((?:%b|%b|[^="\\])*?)[ \t]*=([\s\S]*)' % (QUOTED, ESCAPED))
NAME_ESCAPE = re.compile(r"\\|%(?:U([0-9A-Fa-f]{4})|([0-9A-Fa-f]{2}))")
VALUE_PART = re.compile(
    r'\\x([0-9A-Fa-f]+)|\\([0-7]+)|\\(\r\n|\n\r|[\s\S]|\Z)|"([ \t]*)|(,)|([^\\",]+)'
)
CHARACTERS = {**dict(zip("abfnrtv", "\a\b\f\n\r\t\v")), **{mark: mark for mark in "\"?'\\"}}
TYPED = re.compile(r"@(?:ByteArray|String)\(([\s\S]*)\)|@(@[\s\S]*)|@[\s\S]*\)")


def lines(data):
    """Yields each line without the blanks and comments in front of it."""
    position = 3 if data.startswith(b"\xef\xbb\xbf") else 0
    while True:
        line = LINE.match(data, BLANK_AND_COMMENTS.match(data, position).end())
        if not line[0]:
            return
        yield line[0]
        position = line.end()


def unescaped_name(name):
    """Returns the name of a section or a key. A backslash in it stands for a slash."""

    def character(match):
        digits = match[1] or match[2]
        return chr(int(digits, 16)) if digits else "/"

    return NAME_ESCAPE.sub(character, name.decode("latin-1"))


def unescaped_value(text):
    """Returns a value, which is empty for a list of several."""
    value, kept, quotes = "", 0, 0
    for part in VALUE_PART.finditer(text.decode("latin-1").lstrip(" \t")):
        hexadecimal, octal, escaped, blanks, comma, plain = part.groups()
        if comma and quotes % 2 == 0:
            return ""
        if blanks is not None:
            quotes += 1
            value += blanks if quotes % 2 else ""
        elif plain or comma:
            value += plain or comma
            continue
        elif escaped is not None:
            value += CHARACTERS.get(escaped, "")
        else:
            value += chr(int(hexadecimal or octal, 16 if hexadecimal else 8) & 0xFFFF)
        kept = len(value)
    if not quotes:
        value = value[:kept] + value[kept:].rstrip(" \t")
    typed = TYPED.fullmatch(value)
    return typed[1] or typed[2] or "" if typed else value


def sections(data):
    """Returns the entries of each section by its name, which ends with a slash."""
    found, section = {"": {}}, ""
    for line in lines(data):
        entry = ENTRY.fullmatch(line)
        if line.startswith(b"["):
            title = line[1:].partition(b"]")[0].strip(b" \t\n\v\f\r")
            section = "" if title.lower() == b"general" else unescaped_name(title) + "/"
            found.setdefault(section, {})
        elif entry:
            found[section][section + unescaped_name(entry[1])] = unescaped_value(entry[2])
    return found


def build_version(data):
    """Returns the text of build_version in the section Version, or None when Qt finds none.

    Qt looks in one section only: the last one, in the order of names, before the name that it
    seeks. A section such as [Version/a] therefore hides [Version]."""
    found, key = sections(data), "Version/build_version"
    nearest = max(name for name in found if name <= key)
    return found[nearest].get(key) if nearest else None
