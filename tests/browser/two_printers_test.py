#!/usr/bin/env python3
"""Prints the samples twice, with quillford-cli and with a browser from the exported page, and holds
the two papers beside each other.

    two_printers_test.py QUILLFORD_CLI SOURCE_TREE
"""
import html
import re
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

import printing

SKIPPED = 77
INDENT = 36
LEFT, RIGHT = 72, 540
LINE = 18
IN_ITS_LINE = 2.5  # by which the two set letters of another size higher or lower in their lines
TOLERANCE = 0.75  # one pixel of the browser
MOST_OTHER_LINES = 0.03  # of all lines: those that the two end at different words

NEW_PAGE = re.compile(r'<div class="new-page">.*?</div>\s*<p class="[^"]*">(.*?)</p>', re.DOTALL)
RUNNING = [("There has thus been outlined", "limiting."),
           ("Other objects and advantages", "application."),
           ("Unless otherwise defined", "effect.")]
TAG = re.compile(r"<[^>]*>")


def plain(text):
    return " ".join(html.unescape(TAG.sub(" ", text)).split())


def words(pages):
    """The words of the pages; one that a line's end divides behind a hyphen is put together."""
    text = " ".join(line.text for page in pages for line in page)
    return re.sub(r"- +", "-", text).split()


def stretches(pages, headings):
    """The pages from each heading to the next; each heading opens a page, in this order."""
    starts = [0]
    for heading in headings:
        found = [number for number in range(starts[-1] + 1, len(pages))
                 if pages[number] and pages[number][0].text == heading]
        if not found:
            raise AssertionError(f"no page is opened by: {heading}")
        starts.append(found[0])
    return [pages[start:end] for start, end in zip(starts, starts[1:] + [len(pages)])]


class TwoPapers:
    """Every claim about a sample; the classes below name the samples."""

    @classmethod
    def setUpClass(cls):
        folder = FOLDER / cls.__name__
        folder.mkdir()
        page, pdf = folder / "draft.htm", folder / "draft.pdf"
        subprocess.run([CLI, "export", cls.project(folder), "--html", page, "--pdf", pdf],
                       check=True, env=printing.environment(folder))
        cls.page = page.read_text(encoding="utf-8")
        cls.ours = printing.FootedPaper(pdf).pages
        cls.theirs = printing.print_page(page, folder / "browser").pages
        headings = [plain(heading) for heading in NEW_PAGE.findall(cls.page)]
        cls.pairs = list(zip(stretches(cls.ours, headings), stretches(cls.theirs, headings)))

    def equal_lines(self):
        """Both papers' lines of the same text, which come in the same order."""
        ours = [line for page in self.ours for line in page]
        theirs = [line for page in self.theirs for line in page]
        places = {}
        for number, line in enumerate(theirs):
            places.setdefault(line.text, []).append(number)
        last = -1
        for line in ours:
            number = next((n for n in places.get(line.text, []) if n > last), None)
            if number is not None and number - last < 50:
                last = number
                yield line, theirs[number]

    def paragraph(self, pages, start, end):
        """The lines of a paragraph, page by page."""
        found = []
        for page in pages:
            lines = []
            for line in page:
                if line.text.startswith(start) or (found or lines):
                    lines.append(line)
                if lines and line.text.endswith(end):
                    return found + [lines]
            if lines:
                found.append(lines)
        self.fail(f"no page holds all of: {start}")

    def test_there_are_eight_stretches_between_page_breaks(self):
        self.assertEqual(len(self.pairs), 8)

    def test_each_stretch_holds_the_same_words_in_the_same_order(self):
        for ours, theirs in self.pairs:
            self.assertEqual(words(ours), words(theirs))

    def test_the_number_of_pages_is_within_one(self):
        counts = [(len(ours), len(theirs)) for ours, theirs in self.pairs]
        print(f"{type(self).__name__}: pages of each stretch, ours and the browser's: {counts}, "
              f"in all {len(self.ours)} and {len(self.theirs)}")
        for ours, theirs in counts:
            self.assertLessEqual(abs(ours - theirs), 1, counts)
        self.assertLessEqual(abs(len(self.ours) - len(self.theirs)), 1)

    def test_lines_end_at_the_same_words_and_at_the_same_edges(self):
        pairs = list(self.equal_lines())
        lines = sum(len(page) for page in self.ours)
        other = 1 - len(pairs) / lines
        print(f"{type(self).__name__}: {lines} lines, {other:.2%} of them end at other words")
        self.assertLess(other, MOST_OTHER_LINES)
        for ours, theirs in pairs:
            self.assertAlmostEqual(ours.left, theirs.left, delta=TOLERANCE, msg=ours.text)
            self.assertAlmostEqual(ours.right, theirs.right, delta=TOLERANCE, msg=ours.text)

    def test_lines_stand_below_each_other_as_in_the_browser(self):
        pairs = list(self.equal_lines())
        for (upper, their_upper), (lower, their_lower) in zip(pairs, pairs[1:]):
            ours, theirs = lower.top - upper.top, their_lower.top - their_upper.top
            if 0 < ours < 2 * LINE and 0 < theirs < 2 * LINE:
                self.assertAlmostEqual(ours, theirs, delta=IN_ITS_LINE, msg=lower.text)

    def test_running_text_is_indented_justified_and_spaced_on_both(self):
        for pages in (self.ours, self.theirs):
            for start, end in RUNNING:
                parts = self.paragraph(pages, start, end)
                lines = [line for part in parts for line in part]
                self.assertGreater(len(lines), 3)
                self.assertAlmostEqual(lines[0].left, LEFT + INDENT, delta=TOLERANCE, msg=start)
                for line in lines[:-1]:
                    self.assertAlmostEqual(line.right, RIGHT, delta=TOLERANCE, msg=line.text)
                for line in lines[1:]:
                    self.assertAlmostEqual(line.left, LEFT, delta=TOLERANCE, msg=line.text)
                for part in parts:
                    for number, line in enumerate(part):
                        self.assertAlmostEqual(line.top, part[0].top + number * LINE, delta=0.2,
                                               msg=line.text)


class PencilClip(TwoPapers, unittest.TestCase):
    @classmethod
    def project(cls, _):
        return TREE / "samples/pencil-clip/pencil-clip.json"


class FoldingEasel(TwoPapers, unittest.TestCase):
    @classmethod
    def project(cls, _):
        return TREE / "samples/folding-easel/folding-easel.json"


class Largest(TwoPapers, unittest.TestCase):
    @classmethod
    def project(cls, folder):
        subprocess.run([sys.executable, TREE / "samples/make_largest_project.py", folder],
                       check=True)
        return folder / "largest.json"


if __name__ == "__main__":
    missing = printing.missing_tools("browser")
    if missing:
        print(f"skipped: {', '.join(missing)} cannot be found")
        sys.exit(SKIPPED)
    CLI, TREE = Path(sys.argv[1]), Path(sys.argv[2])
    with tempfile.TemporaryDirectory() as name:
        FOLDER = Path(name)
        run = unittest.main(argv=sys.argv[:1], verbosity=2, exit=False)
    sys.exit(not run.result.wasSuccessful())
