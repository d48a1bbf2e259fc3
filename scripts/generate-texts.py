#!/usr/bin/env python3
"""Turns the catalogue of user-interface texts into what the build compiles, and checks their terms.

generate-texts.py rows CATALOGUE OUT.inc
    writes one C++ initialiser {"key", "English text"}, per row, in id order.
generate-texts.py count CATALOGUE OUT.h
    writes a C++ header that gives the number of rows.
generate-texts.py ts CATALOGUE OUT.ts [TRANSLATION.ts]
    writes a Qt Linguist file with exactly one message for each distinct English text. The translations
    come from TRANSLATION.ts; a text that it lacks stays English and is marked unfinished. A translation
    of a text that the catalogue no longer has is left out, with a warning if it was finished. Without
    TRANSLATION.ts every text is its own, finished, translation.
generate-texts.py check FOLDER [CODE]...
    reports each finished text with a word that its language's glossary rules out; the exit status is
    then 1. FOLDER holds catalogue.txt, translations/CODE.ts and glossary/CODE.md. Without CODE
    all languages are checked.

A malformed input is reported with its line; the exit status is then 1 and nothing is written.
"""

import pathlib
import re
import sys
import xml.etree.ElementTree as ElementTree
from xml.sax.saxutils import escape

ROW = re.compile(r'([A-Za-z]\w*) = "(.*)"', re.ASCII)
GLOSSARY_ROW = re.compile(r"\|([^|]+)\|([^|]*)\|([^|]*)\|")
GLOSSARY_HEAD = ["| Term | Use | Not |", "|---|---|---|"]
TS_HEAD = """<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="{}" sourcelanguage="en">
<context>
    <name>global</name>
"""
TS_MESSAGE = """    <message>
        <source>{}</source>
        <translation{}>{}</translation>
    </message>
"""
TS_TAIL = "</context>\n</TS>\n"


def read_catalogue(path):
    """The rows as (key, text) in id order."""
    rows, seen = [], set()
    with open(path, encoding="utf-8") as lines:
        for number, line in enumerate(lines, 1):
            line = line.rstrip("\n")
            if not line or line.startswith("#"):
                continue
            row = ROW.fullmatch(line)
            if not row:
                sys.exit(f'{path}:{number}: error: expected: key = "English text"')
            if re.search(r"\t|\\[nt]", row[2]):
                sys.exit(f"{path}:{number}: error: a text holds no tab, no \\n and no \\t")
            if row[1].lower() in seen:
                sys.exit(f"{path}:{number}: error: the key {row[1]} is already taken")
            seen.add(row[1].lower())
            rows.append((row[1], row[2]))
    return rows


def read_translation(path):
    """The language name of a Linguist file and its messages: English text -> (text, finished)."""
    try:
        root = ElementTree.parse(path).getroot()
    except (ElementTree.ParseError, OSError) as error:
        sys.exit(f"{path}: error: {error}")
    messages = {}
    for message in root.iterfind("context/message"):
        translation = message.find("translation")
        if translation is not None and (translation.text or "").strip():
            finished = translation.get("type") is None
            messages[message.findtext("source")] = (translation.text, finished)
    return root.get("language", ""), messages


def read_glossary(path):
    """The rules as (term, what to use, words that are ruled out), the longest term first."""
    rules = {}
    try:
        with open(path, encoding="utf-8") as file:
            lines = file.read().splitlines()
    except (OSError, UnicodeDecodeError) as error:
        sys.exit(f"{path}: error: {error}")
    for number, line in enumerate(lines, 1):
        if not line.startswith("|") or line in GLOSSARY_HEAD:
            continue
        row = GLOSSARY_ROW.fullmatch(line)
        if not row:
            sys.exit(f"{path}:{number}: error: expected: | Term | Use | Not |")
        for term in words(row[1]):
            if term.lower() in rules:
                sys.exit(f"{path}:{number}: error: the term {term} is already in the table")
            rules[term.lower()] = (term, row[2].strip(" "), words(row[3]))
    return sorted(rules.values(), key=lambda rule: len(rule[0]), reverse=True)


def words(cell):
    """The words of a cell. A non-breaking space belongs to its word."""
    return [word.strip(" ") for word in cell.split(";") if word.strip(" ")]


def fold(text):
    """The text in small letters. Of U+0130, lower() would make two characters."""
    return text.replace("\u0130", "i").lower()


def broken_rules(rules, text, translation):
    """The broken rules as (term, what to use, the word). The longest term wins at its place."""
    for term, use, ruled_out in rules:
        if term != "*":
            pattern = rf"(?<!\w){re.escape(term)}(e?s)?(?!\w)"
            text, found = re.subn(pattern, "\0", text, flags=re.IGNORECASE)
            if not found:
                continue
        for word in ruled_out:
            if fold(word) in fold(translation):
                yield term, use, word


def check(folder, *codes):
    """The lines that report the broken rules of some languages, or of all."""
    folder = pathlib.Path(folder)
    texts = dict.fromkeys(text for _, text in read_catalogue(folder / "catalogue.txt"))
    files = {file.stem: file for file in sorted(folder.glob("translations/*.ts"))}
    lines = []
    for code in codes or ["enu", *files]:
        rules = read_glossary(folder / f"glossary/{code}.md")
        messages = {text: (text, True) for text in texts}
        if code in files:
            messages = read_translation(files[code])[1]
        for text in texts:
            translation, finished = messages.get(text, ("", False))
            for term, use, word in broken_rules(rules, text, translation) if finished else []:
                advice = f'for "{term}" the glossary has "{use}", not "{word}"'
                lines.append(f'{code}: "{text}" is "{translation}": {advice}')
    return lines


def rows_source(rows):
    def literal(text):
        return text.replace("\\", "\\\\").replace('"', '\\"')

    return "".join(f'{{"{key}", "{literal(text)}"}},\n' for key, text in rows)


def count_source(rows):
    return f"#pragma once\n\nconstexpr int kStrTableCount = {len(rows)};\n"


def linguist_source(texts, language, messages):
    def xml(text):
        return escape(text, {'"': "&quot;", "'": "&apos;"})

    parts = [TS_HEAD.format(language)]
    for text in texts:
        translation, finished = messages.get(text, (text, False))
        state = "" if finished else ' type="unfinished"'
        parts.append(TS_MESSAGE.format(xml(text), state, xml(translation)))
    return "".join(parts) + TS_TAIL


def translated(rows, path=None):
    texts = list(dict.fromkeys(text for _, text in rows))
    if path is None:
        return linguist_source(texts, "en", {text: (text, True) for text in texts})
    language, messages = read_translation(path)
    for text, (_, finished) in messages.items():
        if finished and text not in texts:
            print(f"{path}: warning: left out, not in the catalogue: {text}", file=sys.stderr)
    return linguist_source(texts, language, messages)


def main():
    sources = {"rows": rows_source, "count": count_source, "ts": translated}
    if len(sys.argv) > 2 and sys.argv[1] == "check":
        sys.exit("\n".join(check(*sys.argv[2:])) or None)
    if len(sys.argv) not in (4, 5) or sys.argv[1] not in sources:
        sys.exit(__doc__)
    command, catalogue, out_path, *translation = sys.argv[1:]
    content = sources[command](read_catalogue(catalogue), *translation)
    with open(out_path, "w", encoding="utf-8") as out:
        out.write(content)


main()
