#!/usr/bin/env python3
"""Holds the page against the Word document of each golden case: two_routes_test.py GOLDEN_FOLDER.

Both are one composition. What is different between them is said here, and nothing else is: blanks,
line ends and indents apart, the texts are the same.
"""
import html
import re
import sys
from pathlib import Path

# On the page a typed mark is open to later items; in the document it stays as it was typed.
TYPED_MARKS = "marks-and-tags-in-the-fields"

OBJECTS = "Other objects and advantages of the "
CLAIM = "THE BROADEST POSSIBLE LEGALLY VALID CLAIM FOR THE "


def words(text):
    return text.replace("\N{NO-BREAK SPACE}", " ").split()


def text_of_page(page):
    """The text of the page with the wording of the document."""
    body = page[page.index("</head>"):]
    # The letters of the headings are a list of the document's.
    body = re.sub(r'(<p class="lettered">)[A-Z]\.', r"\1", body)
    text = html.unescape(re.sub(r"<[^>]*>", " ", re.sub(r"</?[bu]>", "", body)))
    text = " ".join(words(text))
    text = text.replace(OBJECTS + "present", OBJECTS + "various embodiments of the present", 1)
    text = text.replace(" ABSTRACT OF THE DISCLOSURE ", " ABSTRACT ", 1)
    text = text.replace(" Index of Elements ", " INDEX OF ELEMENTS ", 1)
    return re.sub(rf"({CLAIM})(.*?)( AND/OR INVENTION)",
                  lambda match: match[1] + match[2].upper() + match[3], text)


def text_of_document(document):
    """Header and text; a picture is one character."""
    return document.replace("\N{OBJECT REPLACEMENT CHARACTER}", " ")


def first_difference(page, document):
    for number, (one, other) in enumerate(zip(page, document)):
        if one != other:
            return (f"page: {' '.join(page[max(0, number - 8):number + 8])}\n"
                    f"document: {' '.join(document[max(0, number - 8):number + 8])}")
    return f"the page has {len(page)} words, the document {len(document)}"


def main():
    cases = sorted(path for path in Path(sys.argv[1]).iterdir()
                   if path.is_dir() and path.name != TYPED_MARKS)
    failures = 0
    for case in cases:
        page = words(text_of_page((case / "expected.htm").read_text(encoding="utf-8")))
        document = words(text_of_document((case / "expected-word.txt").read_text(
            encoding="utf-8")))
        if page != document:
            failures += 1
            print(f"{case.name}\n{first_difference(page, document)}")
    print(f"{len(cases)} cases compared, {failures} differ")
    return 1 if failures or len(cases) < 9 else 0


if __name__ == "__main__":
    sys.exit(main())
