#!/usr/bin/env python3
"""Holds the page against the Word document of each golden case: two_routes_test.py GOLDEN_FOLDER.
"""
import sys
from itertools import zip_longest
from pathlib import Path

from page_as_document import PageError, document_lines

# On the page a typed mark is open to later items; in the document it stays as it was typed.
TYPED_MARKS = "marks-and-tags-in-the-fields"
LEAST_CASES = 9


def content(path):
    """The text of a file with its line ends as they are."""
    return path.read_bytes().decode("utf-8")


def difference(case):
    """The first difference between the two, or nothing."""
    try:
        expected = document_lines(content(case / "expected.htm"))
    except PageError as error:
        return str(error)
    actual = content(case / "expected-word.txt").removesuffix("\n").split("\n")
    for number, (one, other) in enumerate(zip_longest(expected, actual), 1):
        if one != other:
            return f"paragraph {number}\nby the page: {one!r}\nthe document: {other!r}"
    return None


def main():
    cases = sorted(path for path in Path(sys.argv[1]).iterdir()
                   if path.is_dir() and path.name != TYPED_MARKS)
    found = {case.name: difference(case) for case in cases}
    differing = {name: what for name, what in found.items() if what}
    for name, what in differing.items():
        print(f"{name}: {what}")
    print(f"{len(cases)} cases compared, {len(differing)} differ")
    return 1 if differing or len(cases) < LEAST_CASES else 0


if __name__ == "__main__":
    sys.exit(main())
