#!/usr/bin/env python3
"""Exports the samples as Word documents and reads them back with LibreOffice and another reader."""
import re
import shutil
import subprocess
import sys
import unittest
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.append(str(Path(__file__).resolve().parents[1] / "draft/compose"))
from page_as_document import PICTURE, document_lines  # noqa: E402 (needs the path)
from word_export import CLIP, EASEL, ROOT, Place, run_tests  # noqa: E402 (leaves no bytecode)

TYPED_MARKS = ROOT / "tests/golden/marks-and-tags-in-the-fields/project.json"
SMALLEST, MIDDLING, LARGEST, MARKS = "pencil-clip", "folding-easel", "largest", "typed-marks"


class DocumentTest(unittest.TestCase):
    """What the finished documents look like; they are made once. What a document should say is
    told by the page of the same project, composed by the same run of the program."""

    @classmethod
    def setUpClass(cls):
        cls.place = Place()
        cls.addClassCleanup(cls.place.remove)
        folder = cls.place.path
        shutil.copytree(EASEL.parent, folder / "easel")
        # Every group of fields at its limit, with no more text than that needs.
        subprocess.run([sys.executable, ROOT / "samples/make_largest_project.py", folder / "limits",
                        "--text-bytes", "0", "--picture-bytes", "0"], check=True, timeout=60)
        projects = {SMALLEST: CLIP, MIDDLING: folder / "easel" / EASEL.name,
                    LARGEST: folder / "limits/largest.json", MARKS: TYPED_MARKS}
        cls.results = {name: cls.place.export(project, f"{name}.doc", "--html", f"{name}.htm")
                       for name, project in projects.items()}
        # What is in the documents needs nothing beside them.
        shutil.rmtree(folder / "easel")
        shutil.rmtree(folder / "limits")
        documents = [f"{name}.doc" for name in projects]
        cls.place.convert("txt:Text (encoded):UTF8", *documents)
        cls.place.convert("pdf", *documents)
        cls.expected = {name: document_lines(cls.content(f"{name}.htm"))
                        for name in (SMALLEST, MIDDLING, LARGEST)}
        golden = (TYPED_MARKS.parent / "expected-word.txt").read_bytes().decode("utf-8")
        cls.expected[MARKS] = golden.removesuffix("\n").split("\n")

    @classmethod
    def content(cls, name):
        return (cls.place.path / name).read_bytes().decode("utf-8-sig")

    def pages(self, name):
        text = subprocess.run(["pdftotext", "-layout", str(self.place.path / f"{name}.pdf"), "-"],
                              capture_output=True, check=True, timeout=60).stdout.decode("utf-8")
        return text.split("\f")[:-1]

    def lines_of_pages(self, name):
        """The lines that are not empty, page by page."""
        return [[line.strip() for line in page.splitlines() if line.strip()]
                for page in self.pages(name)]

    def test_every_export_is_done_and_says_nothing(self):
        for name, result in self.results.items():
            self.assertEqual(result, (0, b"", ""), name)

    def test_the_text_is_that_of_the_page_with_the_told_differences(self):
        for name, (header, *expected) in self.expected.items():
            # The letters of the headings are the list's; the header is no part of the text.
            actual = [re.sub(r"^ {4}[A-Z]\. ", "", line) for line in
                      self.content(f"{name}.txt").replace("\r\n", "\n").rstrip("\n").split("\n")]
            with self.subTest(name):
                self.assertEqual(actual, [line.replace(PICTURE, "") for line in expected])
                self.assertEqual(self.lines_of_pages(name)[0][0], header)

    @unittest.skipUnless(shutil.which("antiword"), "antiword is not installed")
    def test_another_reader_finds_the_same_text(self):
        for name, (_, *expected) in self.expected.items():
            found = subprocess.run(["antiword", "-w", "0", "-m", "UTF-8.txt",
                                    str(self.place.path / f"{name}.doc")],
                                   capture_output=True, check=True, timeout=60).stdout
            # It writes each half of a surrogate pair for itself.
            text = found.decode("utf-8", "surrogatepass").encode(
                "utf-16", "surrogatepass").decode("utf-16")
            with self.subTest(name):
                self.assertEqual(text.replace("[pic]", PICTURE).split(), " ".join(expected).split())

    def test_every_page_has_the_header_and_its_number(self):
        for name, expected in self.expected.items():
            pages = self.lines_of_pages(name)
            for number, lines in enumerate(pages, 1):
                self.assertEqual(lines[0], expected[0], f"{name} {number}")
                self.assertEqual(lines[-1], f"Page {number} of {len(pages)}", name)

    def test_pages_begin_where_they_should_and_none_is_empty(self):
        headings = ["NOTICE TO APPLICANT", None, "BRIEF DESCRIPTION OF THE DRAWINGS",
                    "DETAILED DESCRIPTION", "CLAIMS", "ABSTRACT", "DRAWINGS", "INDEX OF ELEMENTS"]
        for name, title in ((SMALLEST, "Pencil Clip"), (MIDDLING, "Folding Field Easel"),
                            (LARGEST, "Modular Harvest Sorting Machine")):
            expected = [heading or title for heading in headings]
            pages = self.lines_of_pages(name)
            begins = [lines[1] for lines in pages]
            self.assertEqual([line for line in begins if line in expected], expected, name)
            self.assertFalse([lines for lines in pages if len(lines) < 3], name)

    def test_the_headings_have_the_letters_of_one_list(self):
        for name, count in ((SMALLEST, 5), (MIDDLING, 8), (LARGEST, 19)):
            letters = re.findall(r"^([A-Z])\. {3,}\S", "".join(self.pages(name)), re.MULTILINE)
            self.assertEqual("".join(letters), "ABCDEFGHIJKLMNOPQRSTUVWXYZ"[:count])

    def test_bold_is_what_should_be(self):
        xml = subprocess.run(["pdftohtml", "-xml", "-i", "-stdout",
                              str(self.place.path / f"{MIDDLING}.pdf")],
                             capture_output=True, check=True, timeout=60).stdout.decode("utf-8")
        bold = [re.sub(r"<[^>]*>", "", part).strip()
                for part in re.findall(r"<b>(.*?)</b>", re.sub(r"\s+", " ", xml))]
        for text in ("Harriet L. Penrose", "Ren\u00e9e M. Castellan", "BACKGROUND", "Hinged Tray",
                     "FIG. 5", "10: Tripod", "UNITED STATES PROVISIONAL PATENT APPLICATION"):
            self.assertIn(text, bold)
        for text in ("11:", "FIGURE 1:", "INDEX OF ELEMENTS", "a citizen", "Another object",
                     "One Year Deadline", "Confidential", "Page 1"):
            self.assertFalse([part for part in bold if text in part], text)

    def images(self, name):
        rows = subprocess.run(["pdfimages", "-list", str(self.place.path / f"{name}.pdf")],
                              capture_output=True, text=True, check=True, timeout=60).stdout
        return [row for row in map(str.split, rows.splitlines()[2:]) if row[2] == "image"]

    def test_the_pictures_are_in_the_document(self):
        shown = self.images(MIDDLING)
        self.assertEqual([(row[3], row[4]) for row in shown],
                         [("1275", "1650"), ("640", "800"), ("1200", "800"), ("1000", "1200"),
                          ("1200", "900")])
        # As wide as the text, 6.5 inches, and no wider; the second has the size of its pixels.
        widths = [int(row[3]) / int(row[12]) for row in shown]
        for width, inches in zip(widths, (6.5, 640 / 96, 6.5, 6.5, 6.5)):
            self.assertAlmostEqual(width, min(6.5, inches), delta=0.06)
        self.assertEqual(self.images(SMALLEST), [])
        self.assertEqual([(row[3], row[4]) for row in self.images(LARGEST)], [("640", "300")] * 50)


if __name__ == "__main__":
    run_tests()
