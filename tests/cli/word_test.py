#!/usr/bin/env python3
"""Exports Word documents through LibreOffice and reads them back with it.

    word_test.py PROGRAM ROOT_OF_THE_TREE LIBREOFFICE_PROGRAM_FOLDER
"""
import json
import os
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import time
import unittest
from pathlib import Path

PROGRAM = Path(sys.argv[1]).resolve()
ROOT = Path(sys.argv[2]).resolve()
SOFFICE = Path(sys.argv[3]) / "soffice"
MODULE = PROGRAM.parent / "quillford_writer.so"
SKIPPED = 77

CASES = {
    "sample-folding-easel": ROOT / "samples/folding-easel/folding-easel.json",
    "sample-pencil-clip": ROOT / "samples/pencil-clip/pencil-clip.json",
    "marks-and-tags-in-the-fields":
        ROOT / "tests/golden/marks-and-tags-in-the-fields/project.json",
    "fifteen-elements": ROOT / "tests/golden/fifteen-elements/project.json",
}
EASEL = CASES["sample-folding-easel"]
CLIP = CASES["sample-pencil-clip"]
PICTURE = "\N{OBJECT REPLACEMENT CHARACTER}"


def commands_with(text):
    """The processes whose command line holds a text, number to command line."""
    found = {}
    for process in Path("/proc").iterdir():
        if process.name.isdigit():
            try:
                command = (process / "cmdline").read_bytes().decode("utf-8", "replace")
            except OSError:
                continue
            if text in command:
                found[int(process.name)] = command
    return found


class Place:
    """A folder of its own, with a home and a temporary folder in it."""

    def __init__(self):
        self.path = Path(tempfile.mkdtemp(prefix="quillford-word-test-"))
        self.temporary = self.path / "temporary"
        for folder in (self.temporary, self.path / "home"):
            folder.mkdir()
        self.environment = {"HOME": str(self.path / "home"), "PATH": os.environ["PATH"],
                            "Temp": str(self.temporary)}
        for name in ("ASAN_OPTIONS", "UBSAN_OPTIONS", "LSAN_OPTIONS"):
            if name in os.environ:
                self.environment[name] = os.environ[name]

    def remove(self):
        shutil.rmtree(self.path)

    def start_export(self, project, output, program=PROGRAM):
        return subprocess.Popen(
            [program, "export", project, "--incomplete", "--word", output], cwd=self.path,
            env=self.environment, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
            stderr=subprocess.PIPE)

    def export(self, project, output, program=PROGRAM):
        process = self.start_export(project, output, program)
        out, errors = process.communicate(timeout=120)
        return process.returncode, out, errors.decode("utf-8")

    def convert(self, kind, *names):
        """Lets LibreOffice convert documents of this folder."""
        subprocess.run([str(SOFFICE), "--headless", "--norestore", "--nologo", "--nodefault",
                        f"-env:UserInstallation=file://{self.path}/reader", "--convert-to", kind,
                        "--outdir", str(self.path), *(str(self.path / n) for n in names)],
                       env=self.environment, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                       stderr=subprocess.DEVNULL, timeout=300, check=True)


class DocumentTest(unittest.TestCase):
    """What the finished documents look like; they are made once."""

    @classmethod
    def setUpClass(cls):
        cls.place = Place()
        cls.addClassCleanup(cls.place.remove)
        cls.results = {}
        sample = cls.place.path / "easel"
        shutil.copytree(EASEL.parent, sample)
        for name, project in CASES.items():
            if project == EASEL:
                project = sample / EASEL.name
            cls.results[name] = cls.place.export(project, f"{name}.doc")
        shutil.rmtree(sample) # what is in the documents needs nothing beside them
        documents = [f"{name}.doc" for name in CASES]
        cls.place.convert("txt:Text (encoded):UTF8", *documents)
        cls.place.convert("pdf", *documents)
        cls.place.convert("html", "sample-folding-easel.doc")

    def text(self, name):
        return (self.place.path / name).read_text(encoding="utf-8-sig")

    def pages(self, name):
        text = subprocess.run(["pdftotext", "-layout", str(self.place.path / name), "-"],
                              capture_output=True, check=True, timeout=60).stdout.decode("utf-8")
        return text.split("\f")[:-1]

    def test_every_export_is_done_and_says_nothing(self):
        for name, result in self.results.items():
            self.assertEqual(result, (0, b"", ""), name)

    def test_the_text_is_the_expected_one(self):
        for name in CASES:
            header, *expected = (ROOT / "tests/golden" / name / "expected-word.txt").read_text(
                encoding="utf-8").replace(PICTURE, "").splitlines()
            # The letters of the headings are the list's; the header is no part of the text.
            actual = [re.sub(r"^ {4}[A-Z]\. ", "", line)
                      for line in self.text(f"{name}.txt").splitlines()]
            with self.subTest(name):
                self.assertEqual(actual, expected)
                self.assertIn(header, self.pages(f"{name}.pdf")[0])

    def test_every_page_has_the_header_and_its_number(self):
        for name in CASES:
            pages = self.pages(f"{name}.pdf")
            for number, page in enumerate(pages, 1):
                lines = [line.strip() for line in page.strip().splitlines()]
                self.assertTrue(lines[0].startswith("Confidential Provisional Patent"), lines[0])
                self.assertEqual(lines[-1], f"Page {number} of {len(pages)}")

    def test_pages_begin_where_they_should_and_none_is_empty(self):
        first_lines = []
        for page in self.pages("sample-folding-easel.pdf"):
            lines = [line.strip() for line in page.splitlines() if line.strip()]
            first_lines.append(lines[1])
        for heading in ("NOTICE TO APPLICANT", "Folding Field Easel", "CLAIMS", "ABSTRACT",
                        "BRIEF DESCRIPTION OF THE DRAWINGS", "DETAILED DESCRIPTION", "DRAWINGS",
                        "INDEX OF ELEMENTS"):
            self.assertIn(heading, first_lines)
        self.assertFalse([line for line in first_lines if line.startswith("Page ")])

    def test_the_headings_have_the_letters_of_one_list(self):
        for name, count in (("sample-folding-easel", 8), ("fifteen-elements", 19)):
            letters = re.findall(r"^([A-Z])\. {3,}\S", "".join(self.pages(f"{name}.pdf")),
                                 re.MULTILINE)
            self.assertEqual("".join(letters), "ABCDEFGHIJKLMNOPQRSTUVWXYZ"[:count])

    def test_bold_is_what_should_be(self):
        html = re.sub(r"\s+", " ", self.text("sample-folding-easel.html"))
        bold = [re.sub(r"<[^>]*>", "", part).strip() for part in re.findall(r"<b>(.*?)</b>", html)]
        for text in ("Harriet L. Penrose", "Ren\u00e9e M. Castellan", "BACKGROUND", "Hinged Tray",
                     "FIG. 5", "10: Tripod"):
            self.assertIn(text, [part.replace("&eacute;", "\u00e9") for part in bold])
        for text in ("11: Leg", "FIGURE 1:", "INDEX OF ELEMENTS", "a citizen"):
            self.assertFalse([part for part in bold if text in part], text)

    def test_the_pictures_are_in_the_document(self):
        images = subprocess.run(["pdfimages", "-list",
                                 str(self.place.path / "sample-folding-easel.pdf")],
                                capture_output=True, text=True, check=True, timeout=60).stdout
        shown = [line.split() for line in images.splitlines()[2:]]
        self.assertEqual([(row[3], row[4]) for row in shown if row[2] == "image"],
                         [("1275", "1650"), ("640", "800"), ("1200", "800"), ("1000", "1200"),
                          ("1200", "900")])
        # As wide as the text, 6.5 inches, and no wider; the second has the size of its pixels.
        widths = [int(row[3]) / int(row[12]) for row in shown if row[2] == "image"]
        for width, inches in zip(widths, (6.5, 640 / 96, 6.5, 6.5, 6.5)):
            self.assertAlmostEqual(width, min(6.5, inches), delta=0.06)


class FaultTest(unittest.TestCase):
    def setUp(self):
        self.place = Place()
        self.addCleanup(self.place.remove)
        self.output = self.place.path / "draft.doc"

    def expect_nothing_left(self):
        self.assertEqual(sorted(self.place.temporary.iterdir()), [])
        self.assertEqual(commands_with(str(self.place.temporary)), {})
        hidden = [p for p in self.place.path.iterdir()
                  if p.name not in ("home", "temporary", "draft.doc", "reader")]
        self.assertEqual(hidden, [])

    def offices(self):
        return [number for number, command in commands_with(str(self.place.temporary)).items()
                if "soffice.bin" in command.split("\0")[0]]

    def wait_for_office(self):
        deadline = time.monotonic() + 30
        while time.monotonic() < deadline:
            found = self.offices()
            if found:
                return found[0]
            time.sleep(0.02)
        return self.fail("no LibreOffice was started")

    def test_killed_at_ten_moments_it_ends_in_one_line_and_leaves_the_old_file(self):
        failures = 0
        for moment in range(10):
            self.output.write_bytes(b"old")
            process = self.place.start_export(EASEL, self.output)
            self.wait_for_office()
            time.sleep(0.15 * moment)
            for number in self.offices():
                try:
                    os.kill(number, signal.SIGKILL)
                except ProcessLookupError:
                    pass  # it has ended of itself
            _, errors = process.communicate(timeout=90)
            if process.returncode:
                failures += 1
                self.assertEqual(process.returncode, 2)
                self.assertRegex(errors.decode("utf-8"), r"\Aquillford-cli: [^\n]+\n\Z")
                self.assertEqual(self.output.read_bytes(), b"old")
            else:
                self.assertGreater(self.output.stat().st_size, 100_000)
            self.expect_nothing_left()
        self.assertGreaterEqual(failures, 4)

    def test_libreoffice_ends_with_a_program_that_is_killed(self):
        process = self.place.start_export(EASEL, self.output)
        number = self.wait_for_office()
        process.kill()
        process.communicate(timeout=30)
        deadline = time.monotonic() + 10
        while number in commands_with("soffice.bin") and time.monotonic() < deadline:
            time.sleep(0.02)
        self.assertNotIn(number, commands_with("soffice.bin"))

    def test_two_exports_at_once_do_not_meet(self):
        other = self.place.path / "home" / "clip.doc"
        processes = [self.place.start_export(EASEL, self.output),
                     self.place.start_export(CLIP, other)]
        for process in processes:
            _, errors = process.communicate(timeout=120)
            self.assertEqual((process.returncode, errors), (0, b""))
        self.assertGreater(self.output.stat().st_size, 100_000)
        self.assertLess(other.stat().st_size, 60_000)
        self.expect_nothing_left()

    def test_without_the_module_the_program_runs_and_says_what_is_missing(self):
        alone = self.place.path / "home" / "Quillford"
        alone.mkdir()
        program = shutil.copy(PROGRAM, alone)
        status, _, errors = self.place.export(CLIP, self.output, program)
        self.assertEqual((status, errors), (2, f"quillford-cli: {self.output}: --word needs "
                                               "LibreOffice Writer, which is not installed\n"))
        self.assertFalse(self.output.exists())

    def test_a_file_that_is_no_picture_and_a_folder_that_is_missing_are_named(self):
        picture = ROOT / "tests/golden/figures-of-every-size/no-picture.png"
        case = self.place.path / "home" / "project.json"
        case.write_text(json.dumps({"txtAttachFig": [str(picture)]}))
        status, _, errors = self.place.export(case, self.output)
        self.assertEqual((status, errors), (2, f"quillford-cli: {picture}: is no picture\n"))
        case.write_text("{}")
        status, _, errors = self.place.export(case, self.output)
        self.assertEqual((status, errors),
                         (2, f"quillford-cli: {self.output}: a figure has no picture\n"))
        nowhere = self.place.path / "nowhere" / "draft.doc"
        status, _, errors = self.place.export(CLIP, nowhere)
        self.assertEqual((status, errors),
                         (2, f"quillford-cli: {nowhere}: No such file or directory\n"))
        self.assertFalse(nowhere.parent.exists())
        self.expect_nothing_left()

    def test_a_document_that_is_open_is_not_written(self):
        self.output.write_bytes(b"old")
        lock = self.place.path / ".~lock.draft.doc#"
        lock.write_text(",ann,desk,21.11.2026 12:00,file:///home/ann;")
        status, _, errors = self.place.export(CLIP, self.output)
        self.assertEqual((status, errors), (2, f"quillford-cli: {self.output}: the document is "
                                               "open in the word processor\n"))
        self.assertEqual(self.output.read_bytes(), b"old")
        lock.unlink()


if __name__ == "__main__":
    if not (SOFFICE.exists() and MODULE.exists()):
        print("LibreOffice Writer or its development files are not installed")
        sys.exit(SKIPPED)
    unittest.main(argv=sys.argv[:1])
