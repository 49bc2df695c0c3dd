#!/usr/bin/env python3
"""Prints drafts, either as quillford-cli does itself or with a browser from what it exports, and
measures the paper.

    final_draft_test.py QUILLFORD_CLI SOURCE_TREE program|browser
"""
import json
import re
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

import printing

SKIPPED = 77
INCH = 72
INDENT = 36
LEFT, RIGHT = INCH, 612 - INCH
MIDDLE = 612 / 2
TOLERANCE = 0.75  # one pixel of the browser
BROKEN_PICTURE_SIGN = 16  # the pixels of what the browser draws for a picture that is not there

IMAGE = re.compile(r'<img src="file:///(.*?)" width ="(\d*)" height ="(\d*)"> ')


def export(project, name):
    """Composes the draft of a project file and prints it; gives the page's text and the paper."""
    page, pdf = FOLDER / f"{name}.htm", FOLDER / f"{name}.pdf"
    outputs = ["--html", page] if PRINTER == "browser" else ["--html", page, "--pdf", pdf]
    subprocess.run([CLI, "export", project, *outputs, "--incomplete"], check=True,
                   env=printing.environment(FOLDER))
    paper = (printing.print_page(page, FOLDER) if PRINTER == "browser"
             else printing.FootedPaper(pdf))
    return page.read_text(encoding="utf-8"), paper


class DraftCase(unittest.TestCase):
    def assert_near(self, value, expected, text, tolerance=TOLERANCE):
        self.assertAlmostEqual(value, expected, delta=tolerance, msg=text)

    def line(self, start):
        """The one line that begins with this text."""
        found = [line for page in self.paper.pages for line in page if line.text.startswith(start)]
        self.assertEqual(len(found), 1, start)
        return found[0]

    def assert_figures_at_their_size(self, missing=0):
        """Every figure of the page is on paper, 96 pixels of the draft to the inch."""
        tags = IMAGE.findall(self.html)
        drawn = [(width, height) for _, width, height in tags if width]
        self.assertEqual(len(tags) - len(drawn), missing)
        pictures = [p for p in self.paper.pictures() if p.width > BROKEN_PICTURE_SIGN]
        self.assertEqual(len(pictures), len(drawn))
        for picture, (width, height) in zip(pictures, drawn):
            self.assert_near(picture.x_ppi, picture.width * 96 / int(width), picture, 1)
            self.assert_near(picture.y_ppi, picture.height * 96 / int(height), picture, 1)


class FoldingEasel(DraftCase):
    @classmethod
    def setUpClass(cls):
        cls.html, cls.paper = export(TREE / "samples/folding-easel/folding-easel.json", "easel")

    @unittest.skipIf(len(sys.argv) > 3 and sys.argv[3] == "browser", "a browser prints no footer")
    def test_every_sheet_has_its_number_centred_at_its_foot(self):
        count = len(self.paper.pages)
        for number, foot in enumerate(self.paper.feet, 1):
            self.assertEqual(foot.text, f"Page {number} of {count}")
            self.assert_near(foot.centre, MIDDLE, foot.text)
            self.assertGreater(foot.top, 792 - INCH)
            self.assertLess(foot.bottom, 792 - 18)

    def test_text_is_text_in_fonts_that_the_file_brings_along(self):
        fonts = self.paper.fonts()
        self.assertGreaterEqual(len(fonts), 3)
        for font in fonts:
            self.assertTrue(font.is_embedded and font.is_readable, font)

    def test_every_line_stands_on_the_paper_once(self):
        lines = [line.text for page in self.paper.pages for line in page if len(line.text) > 40]
        self.assertEqual(len(lines), len(set(lines)))

    def test_no_heading_stands_at_the_end_of_a_page(self):
        for page in self.paper.pages:
            if page:
                self.assertNotRegex(page[-1].text, r"^[A-H]\. [A-Z]")

    def paragraph(self, start, end):
        """The lines of a paragraph that stands on one page."""
        for page in self.paper.pages:
            first = [i for i, line in enumerate(page) if line.text.startswith(start)]
            last = [i for i, line in enumerate(page) if line.text.endswith(end)]
            if first and last:
                return page[first[0]:last[0] + 1]
        self.fail(f"no page holds all of: {start}")

    def test_every_sheet_is_letter(self):
        self.assertGreater(len(self.paper.sizes), 10)
        self.assertEqual(set(self.paper.sizes), {(612.0, 792.0)})

    def test_seven_headings_open_a_page(self):
        opening = [page[0].text for page in self.paper.pages if page and page[0].top < INCH + 18]
        headings = ["Folding Field Easel", "BRIEF DESCRIPTION OF THE DRAWINGS",
                    "DETAILED DESCRIPTION", "CLAIMS", "ABSTRACT OF THE DISCLOSURE", "DRAWINGS",
                    "Index of Elements"]
        self.assertEqual([text for text in opening if text in headings], headings)

    def test_no_sheet_is_empty(self):
        pictured = {picture.page for picture in self.paper.pictures()}
        for number, page in enumerate(self.paper.pages, 1):
            self.assertTrue(page or number in pictured, number)

    def test_headings_and_head_line_are_centred(self):
        for start in ("Confidential Provisional", "NOTICE TO APPLICANT", "UNITED STATES PROV",
                      "SPECIFICATION", "BACKGROUND", "SUMMARY", "BRIEF DESCRIPTION OF",
                      "DETAILED DESCRIPTION", "CLAIMS", "ABSTRACT OF THE", "DRAWINGS", "FIG. 1",
                      "FIG. 5", "Index of Elements"):
            self.assert_near(self.line(start).centre, MIDDLE, start, 1.5)

    def test_paragraphs_begin_36_points_in(self):
        for start in ("TO ALL WHOM", "BE IT KNOWN", "Example embodiments in general",
                      "An example embodiment of", "There has thus been", "One object is",
                      "Another object is to provide a Folding Field Easel that stands",
                      "Another object is to provide a Folding Field Easel that holds",
                      "Another object is to provide a Folding Field Easel that carries",
                      "Another object is to provide a Folding Field Easel that folds",
                      "Other objects and", "Example embodiments will", "FIGURE 1:", "FIGURE 5:",
                      "Turning now", "Unless otherwise defined", "THIS IS A U.S."):
            self.assert_near(self.line(start).left, LEFT + INDENT, start)

    def test_running_text_is_justified_with_lines_18_points_apart(self):
        lines = self.paragraph("There has thus been outlined", "regarded as limiting.")
        self.assertGreater(len(lines), 8)
        for line in lines[:-1]:
            self.assert_near(line.right, RIGHT, line.text)
        for line in lines[1:]:
            self.assert_near(line.left, LEFT, line.text)
        for upper, lower in zip(lines, lines[1:]):
            self.assert_near(lower.top - upper.top, 18, lower.text, 0.1)

    def test_no_line_leaves_the_margins(self):
        for page in self.paper.pages:
            for line in page:
                self.assertGreater(line.left, LEFT - TOLERANCE, line.text)
                self.assertLess(line.right, RIGHT + TOLERANCE, line.text)
                self.assertLess(line.bottom, 792 - INCH + TOLERANCE, line.text)

    def test_type_has_the_sizes_told(self):
        for start, size in (("Confidential Provisional", 10), ("NOTICE TO APPLICANT", 10),
                            ("One Year Deadline", 10), ("UNITED STATES PROV", 16),
                            ("SPECIFICATION", 14), ("There has thus been", 12), ("FIG. 1", 18)):
            self.assert_near(self.line(start).type_size, size, start, 0.2)

    def test_lettered_headings_hang(self):
        for page in self.paper.pages:
            for line in page:
                if re.match(r"[A-H]\. [A-Z]", line.text):
                    self.assert_near(line.left, LEFT, line.text)
        letters = [line.text[0] for page in self.paper.pages for line in page
                   if re.match(r"[A-H]\. [A-Z]", line.text)]
        self.assertEqual("".join(letters), "ABCDEFGH")

    def test_the_notice_stands_in_a_frame_of_two_and_a_quarter_points(self):
        sheet = self.paper.sheet(1)
        upper = self.line("NOTICE TO APPLICANT").top
        lower = self.line("File U.S. Non-Provisional").bottom
        for x, y in ((LEFT + 1, upper), (RIGHT - 2.25, upper)):
            self.assertTrue(sheet.is_dark(x + 0.5, y), "the frame is missing")
            self.assertGreater(sheet.dark_run_down(x + 0.5, y), lower - upper)
        middle = (upper + lower) / 2
        self.assertFalse(sheet.is_dark(LEFT - 1, middle))
        self.assert_near(sheet.dark_run_right(LEFT + 0.25, middle), 2.25 - 0.25, "left side", 0.5)

    def test_the_frame_is_closed_above_and_below(self):
        sheet = self.paper.sheet(1)
        x = LEFT + 1.25
        inside = self.line("NOTICE TO APPLICANT").top
        top = inside
        while sheet.is_dark(x, top):
            top -= 1 / sheet.SCALE
        bottom = inside + sheet.dark_run_down(x, inside)
        for y in (top + 1.25, bottom - 1.25):
            self.assertGreater(sheet.dark_run_right(x, y), RIGHT - LEFT - 4)

    def test_the_title_of_the_application_stands_between_rules(self):
        sheet = self.paper.sheet(1)
        title = self.line("UNITED STATES PROVISIONAL")
        for ends in ((title.top - 20, title.top), (title.bottom, title.bottom + 20)):
            heights = [ends[0] + i / 4 for i in range(round((ends[1] - ends[0]) * 4))]
            rules = [y for y in heights if sheet.is_dark(LEFT + 2, y)
                     and sheet.dark_run_right(LEFT + 2, y) > RIGHT - LEFT - 6]
            self.assertTrue(rules, ends)

    def test_every_figure_is_drawn_at_its_size_on_a_sheet_of_its_own(self):
        self.assert_figures_at_their_size()
        pages = [picture.page for picture in self.paper.pictures()]
        self.assertEqual(pages, list(range(pages[0], pages[0] + 5)))
        for number, page in enumerate(pages, 1):
            self.assertEqual(self.paper.pages[page - 1][-1].text, f"FIG. {number}")

    def test_the_index_lists_the_elements_below_each_other(self):
        lines = [line for line in self.paper.pages[-1] if re.match(r"\d\d: ", line.text)]
        self.assertGreater(len(lines), 4)
        for line in lines:
            self.assert_near(line.left, LEFT, line.text)
        self.assertEqual(lines[0].text, "10: Tripod")


class FiguresOfEverySize(DraftCase):
    @classmethod
    def setUpClass(cls):
        cls.html, cls.paper = export(TREE / "tests/golden/figures-of-every-size/project.json",
                                     "figures")

    def test_every_figure_is_drawn_at_its_size(self):
        self.assert_figures_at_their_size(missing=2)

    def test_a_figure_without_a_picture_keeps_its_caption(self):
        self.line("FIG. 11")
        self.line("FIG. 12")


class WordsWithoutEnd(DraftCase):
    """A browser prints everything smaller when one line does not fit: no field may cause that."""

    @classmethod
    def setUpClass(cls):
        project = json.loads((TREE / "samples/pencil-clip/pencil-clip.json").read_text("utf-8"))
        for field in ("txtFileNo", "txtInventionTitle", "txtTechTitle", "txtPurpose",
                      "txtMainElement", "txtDesConnections", "txtOperation"):
            project[field] = "m" * 500
        for field in ("txtNameStep2", "txtObject", "txtElementName", "txtElementSub1",
                      "txtElementDes"):
            project[field] = ["m" * 500]
        source = FOLDER / "long.json"
        source.write_text(json.dumps(project), encoding="utf-8")
        cls.html, cls.paper = export(source, "long")

    def test_the_type_keeps_its_size(self):
        self.assert_near(self.line("There has thus been").type_size, 12, "12 point", 0.1)
        self.assert_near(self.line("SPECIFICATION").type_size, 14, "14 point", 0.1)

    def test_no_line_leaves_the_paper(self):
        for page in self.paper.pages:
            for line in page:
                self.assertLess(line.right, RIGHT + TOLERANCE, line.text)


if __name__ == "__main__":
    PRINTER = sys.argv[3]
    missing = printing.missing_tools(PRINTER)
    if missing:
        print(f"skipped: {', '.join(missing)} cannot be found")
        sys.exit(SKIPPED)
    CLI, TREE = Path(sys.argv[1]), Path(sys.argv[2])
    with tempfile.TemporaryDirectory() as name:
        FOLDER = Path(name)
        run = unittest.main(argv=sys.argv[:1], verbosity=2, exit=False)
    sys.exit(not run.result.wasSuccessful())
