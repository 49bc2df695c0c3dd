#!/usr/bin/env python3
"""Exports Word documents through LibreOffice and reads them back with it.

    word_test.py PROGRAM ROOT_OF_THE_TREE LIBREOFFICE_PROGRAM_FOLDER [TEST...]
"""
import hashlib
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

sys.dont_write_bytecode = True
sys.path.append(str(ROOT / "tests/draft/compose"))
from page_as_document import PICTURE, document_lines  # noqa: E402 (needs the path)

EASEL = ROOT / "samples/folding-easel/folding-easel.json"
CLIP = ROOT / "samples/pencil-clip/pencil-clip.json"
TYPED_MARKS = ROOT / "tests/golden/marks-and-tags-in-the-fields/project.json"
SMALLEST, MIDDLING, LARGEST, MARKS = "pencil-clip", "folding-easel", "largest", "typed-marks"


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


def pipes_of(command):
    """The named pipes of a LibreOffice: that on which it was told to listen, and that on which it
    waits for a second start with its profile."""
    names = re.findall(r"--accept=pipe,name=([^;]*);", command)
    for profile in re.findall(r"-env:UserInstallation=([^\0]*)", command):
        digest = hashlib.md5(profile.encode("utf-16-le")).digest()
        names.append("SingleOfficeIPC_" + "".join(f"{byte:x}" for byte in digest))
    return [Path(f"/tmp/OSL_PIPE_{os.getuid()}_{name}") for name in names]


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

    def start_export(self, project, output, *more, program=PROGRAM):
        return subprocess.Popen(
            [program, "export", project, "--incomplete", "--word", output, *more], cwd=self.path,
            env=self.environment, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
            stderr=subprocess.PIPE)

    def export(self, project, output, *more, program=PROGRAM):
        process = self.start_export(project, output, *more, program=program)
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


class FaultTest(unittest.TestCase):
    def setUp(self):
        self.place = Place()
        self.addCleanup(self.place.remove)
        self.output = self.place.path / "draft.doc"
        self.pipes = set()

    def expect_nothing_left(self):
        self.assertEqual([pipe for pipe in self.pipes if pipe.exists()], [])
        self.assertEqual(sorted(self.place.temporary.iterdir()), [])
        self.assertEqual(commands_with(str(self.place.temporary)), {})
        hidden = [p for p in self.place.path.iterdir()
                  if p.name not in ("home", "temporary", "draft.doc", "reader")]
        self.assertEqual(hidden, [])

    def offices(self):
        """The LibreOffices that work for this test; their pipes are noted."""
        found = {number: command
                 for number, command in commands_with(str(self.place.temporary)).items()
                 if "soffice.bin" in command.split("\0")[0]}
        for command in found.values():
            self.pipes.update(pipes_of(command))
        return list(found)

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
        pipes_seen = set()
        for moment in range(10):
            self.output.write_bytes(b"old")
            process = self.place.start_export(EASEL, self.output)
            self.wait_for_office()
            time.sleep(0.15 * moment)
            offices = self.offices()
            pipes_seen.update(pipe for pipe in self.pipes if pipe.exists())
            for number in offices:
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
        self.assertTrue(pipes_seen)

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
        status, _, errors = self.place.export(CLIP, self.output, program=program)
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
    unittest.main(argv=sys.argv[:1] + sys.argv[4:])
