#!/usr/bin/env python3
"""Checks the tables of translated texts against the sources: check-texts.py [--update]

Names each text that a table lacks or has too many, leaves untranslated or translates without its place markers, line
ends, keyboard shortcut or file names; the exit status is then 1. --update adds new texts to the tables, untranslated,
and drops those that are gone. A table for a new language begins as an empty file resources/translations/dravolin_XX.ts
whose contents are <!DOCTYPE TS><TS version="2.1" language="xx" sourcelanguage="en"></TS>.
"""
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree

SOURCE = pathlib.Path(__file__).resolve().parents[1]
TABLES = SOURCE / "resources/translations"
ROOMS = ["base", "config", "run", "processing", "app", "resources"]
MARKER = re.compile(r"%(?:\d|p%?|n)")
ENGLISH_SUFFIX = re.compile(r"(?<=[a-z])%\d")
KEPT = re.compile(r"<\w+>|\.bak\b|\w+\.txt\b")
SHORTCUT = re.compile(r"&(?=[^&\s])")
LAYOUTS = ("MainWindow", "LogWindow")


def update(tables):
    subprocess.run(["/usr/lib/qt6/bin/lupdate", "-silent", "-no-obsolete", "-locations", "none", "-I", ".", *ROOMS, "-ts", *tables],
                   cwd=SOURCE, check=True)


def messages(table):
    """(context, English text, element) of each message."""
    for context in ElementTree.parse(table).getroot().iter("context"):
        for message in context.iter("message"):
            yield context.findtext("name"), message.findtext("source"), message


def ends(text):
    """The line ends in front of a text and behind it."""
    return len(text) - len(text.lstrip("\n")), len(text) - len(text.rstrip("\n"))


def faults_of_text(context, english, text, counts):
    if not text:
        yield "is not translated"
        return
    markers = MARKER.findall(ENGLISH_SUFFIX.sub("", english) if counts else english)
    if sorted(MARKER.findall(text)) != sorted(markers):
        yield f"has not the place markers {markers}: {text!r}"
    if ends(text) != ends(english):
        yield f"begins or ends with another number of line ends: {text!r}"
    if lost := [name for name in KEPT.findall(english) if name not in text]:
        yield f"has lost {lost}: {text!r}"
    if context in LAYOUTS and len(SHORTCUT.findall(text)) != len(SHORTCUT.findall(english)):
        yield f"has another number of keyboard shortcuts: {text!r}"


def faults_of_table(table):
    letters = {}
    for context, english, message in messages(table):
        translation = message.find("translation")
        counts = message.get("numerus") == "yes"
        texts = [form.text for form in translation.iter("numerusform")] if counts else [translation.text]
        if translation.get("type"):
            yield f"{english!r} is {translation.get('type')}"
            continue
        for text in texts:
            yield from (f"{english!r} {fault}" for fault in faults_of_text(context, english, text, counts))
        if context in LAYOUTS and (shortcut := SHORTCUT.search(texts[0] or "")):
            letter = context, texts[0][shortcut.end()].lower()
            if other := letters.setdefault(letter, english) != english and letters[letter]:
                yield f"{english!r} has the keyboard shortcut of {other!r}"


def faults(tables, updated):
    if not tables:
        yield "there are no tables"
    for table in tables:
        fresh = {(context, english) for context, english, _ in messages(updated / table.name)}
        present = {(context, english) for context, english, _ in messages(table)}
        yield from (f"{table.name}: {english!r} is not in it" for _, english in sorted(fresh - present))
        yield from (f"{table.name}: {english!r} is in no source" for _, english in sorted(present - fresh))
        yield from (f"{table.name}: {fault}" for fault in faults_of_table(table))


def main(arguments):
    tables = sorted(TABLES.glob("*.ts"))
    if arguments == ["--update"]:
        update(tables)
        return 0
    if arguments:
        print(__doc__)
        return 2
    with tempfile.TemporaryDirectory() as folder:
        copies = [shutil.copy(table, folder) for table in tables]
        update(copies)
        found = list(faults(tables, pathlib.Path(folder)))
    print("\n".join(found) if found else f"{len(tables)} languages, all texts translated")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
