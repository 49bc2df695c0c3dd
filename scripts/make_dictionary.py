#!/usr/bin/env python3
"""Makes the dictionary of the program: make_dictionary.py NAME.dic FOLDER.

The list of words NAME.dic becomes FOLDER/SpellUS.lex and its affix file NAME.aff, which stands beside
it, FOLDER/SpellUS.aff. Both are written in UTF-8, whatever encoding the affix file names.
"""
import re
import sys
from pathlib import Path

ENCODING = re.compile(rb"^SET[ \t]+(\S+)", re.MULTILINE)


def encoding_of(affixes):
    """The encoding of both files as Python calls it; the library's own default where none is named."""
    named = ENCODING.search(affixes)
    name = named.group(1).decode("ascii") if named else "ISO8859-1"
    return {"microsoft-cp1251": "cp1251"}.get(name, name)


def in_utf_8(affixes, text):
    return ENCODING.sub(b"SET UTF-8", text.encode("utf-8"), count=1) if ENCODING.search(affixes) \
        else b"SET UTF-8\n" + text.encode("utf-8")


def main(words_file, folder):
    words_file, folder = Path(words_file), Path(folder)
    affixes = words_file.with_suffix(".aff").read_bytes()
    encoding = encoding_of(affixes)
    words = words_file.read_bytes().decode(encoding)
    folder.mkdir(parents=True, exist_ok=True)
    (folder / "SpellUS.aff").write_bytes(in_utf_8(affixes, affixes.decode(encoding)))
    (folder / "SpellUS.lex").write_bytes(words.encode("utf-8"))


if __name__ == "__main__":
    main(*sys.argv[1:])
