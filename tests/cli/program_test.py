#!/usr/bin/env python3
"""Runs quillford-cli as its users do: program_test.py PROGRAM ROOT_OF_THE_TREE."""
import hashlib
import json
import os
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

PROGRAM = Path(sys.argv[1]).resolve()
ROOT = Path(sys.argv[2]).resolve()
EASEL = ROOT / "samples/folding-easel/folding-easel.json"
CLIP = ROOT / "samples/pencil-clip/pencil-clip.json"
NOBODY = 65534


class ProgramTest(unittest.TestCase):
    def setUp(self):
        self.place = Path(tempfile.mkdtemp(prefix="quillford-cli-test-"))
        self.addCleanup(shutil.rmtree, self.place)
        self.home = self.place / "home"
        self.home.mkdir()
        # No display, no desktop, nothing of the user's.
        self.environment = {"HOME": str(self.home), "PATH": os.environ["PATH"]}
        for name in ("ASAN_OPTIONS", "UBSAN_OPTIONS", "LSAN_OPTIONS"):
            if name in os.environ:
                self.environment[name] = os.environ[name]

    def run_program(self, *arguments, **options):
        options.setdefault("env", self.environment)
        options.setdefault("cwd", self.place)
        options.setdefault("stdout", subprocess.PIPE)
        return subprocess.run([PROGRAM, *arguments], stdin=subprocess.DEVNULL,
                              stderr=subprocess.PIPE, timeout=120, **options)

    def expect_done(self, *arguments, **options):
        result = self.run_program(*arguments, **options)
        self.assertEqual((result.returncode, result.stderr), (0, b""))
        return result.stdout

    def expect_failure(self, *arguments, **options):
        """Gives name and reason out of the one line."""
        result = self.run_program(*arguments, **options)
        self.assertEqual(result.returncode, 2)
        self.assertIn(result.stdout, (b"", None))
        line = result.stderr.decode("utf-8")
        self.assertRegex(line, r"\Aquillford-cli: [^\n]+: [^\n]+\n\Z")
        return line[len("quillford-cli: "):-1]

    def written(self):
        """Every file below the test's folder but the program's own temporary ones."""
        return sorted(str(p.relative_to(self.place)) for p in self.place.rglob("*")
                      if not p.is_dir() and self.home not in p.parents)

    # What it prints

    def test_version_and_help_go_to_standard_output(self):
        self.assertEqual(self.expect_done("--version"), b"quillford-cli 3.1\n")
        self.assertIn(b"quillford-cli export PROJECT", self.expect_done("--help"))
        self.assertTrue(self.expect_done("export", "--help")
                        .startswith(b"  quillford-cli export PROJECT"))

    def test_show_prints_json_that_any_reader_takes(self):
        shown = json.loads(self.expect_done("show", EASEL))
        source = json.loads(EASEL.read_bytes())
        figures = [str(EASEL.parent / path) for path in source["txtAttachFig"]]
        self.assertEqual(shown["txtAttachFig"], figures)
        for key, value in source.items():
            if key != "txtAttachFig":
                self.assertEqual(shown[key], value, key)

    def test_show_of_what_it_showed_is_the_same(self):
        first = self.expect_done("show", EASEL)
        (self.place / "again.json").write_bytes(first)
        self.assertEqual(self.expect_done("show", "again.json"), first)

    def test_a_project_can_come_through_a_pipe(self):
        with open(CLIP, "rb") as project:
            result = subprocess.run([PROGRAM, "show", "/dev/stdin"], input=project.read(),
                                    env=self.environment, capture_output=True, timeout=120)
        self.assertEqual((result.returncode, result.stderr), (0, b""))

    def test_every_locale_is_good_enough(self):
        expected = self.expect_done("show", CLIP)
        for locale in ("C", "POSIX", "de_DE.ISO-8859-1", "nonsense"):
            self.environment["LC_ALL"] = locale
            self.assertEqual(self.expect_done("show", CLIP), expected)

    # What it writes

    def test_export_needs_no_display_and_leaves_only_its_outputs(self):
        self.expect_done("export", EASEL, "--html", "draft.htm", "--index", "index.htm")
        self.assertEqual(self.written(), ["draft.htm", "index.htm"])
        draft = (self.place / "draft.htm").read_text(encoding="utf-8")
        self.assertIn(f'<img src="file:///{EASEL.parent}/figures/fig1.png" '
                      'width ="626" height ="810">', draft)

    def test_pages_are_printed_without_a_display_or_a_home(self):
        for changes in ({}, {"HOME": "/nowhere"}, {"QT_QPA_PLATFORM": "xcb", "DISPLAY": ":99"},
                        {"QT_FONT_DPI": "144"}, {"LC_ALL": "C"}):
            environment = {**self.environment, "Temp": str(self.home), **changes}
            self.expect_done("export", EASEL, "--pdf", "easel.pdf", env=environment)
            self.assertEqual((self.place / "easel.pdf").read_bytes().count(b"/Type /Page\n"), 18)
        self.assertEqual(self.written(), ["easel.pdf"])

    def test_export_writes_the_same_bytes_each_time(self):
        digests = set()
        for name in ("1.htm", "2.htm"):
            self.expect_done("export", EASEL, "--html", name)
            digests.add(hashlib.sha256((self.place / name).read_bytes()).hexdigest())
        self.assertEqual(len(digests), 1)

    def test_names_may_hold_blanks_and_letters_of_every_script(self):
        project = self.place / "Zeichenst\u00e4nder \u4e2d\u6587 #1?.json"
        shutil.copy(CLIP, project)
        self.expect_done("export", project.name, "--html", "mein Entwurf \u00e9.htm")
        self.assertIn("mein Entwurf \u00e9.htm", self.written())

    def test_a_name_may_begin_with_a_hyphen_behind_two(self):
        shutil.copy(CLIP, self.place / "-clip.json")
        self.expect_done("export", "--html", "out.htm", "--", "-clip.json")
        self.expect_done("show", "--", "-clip.json")
        self.assertIn("export: Unknown option",
                      self.expect_failure("export", "--html", "out.htm", "-clip.json"))

    def test_a_damaged_picture_has_no_size_and_no_word(self):
        (self.place / "bad.png").write_bytes(b"\x89PNG\r\n\x1a\n" + bytes(40))
        (self.place / "bad.json").write_text('{"txtAttachFig": ["bad.png"]}')
        self.expect_done("export", "--incomplete", "bad.json", "--html", "out.htm")
        self.assertIn('bad.png" width ="" height ="">', (self.place / "out.htm").read_text())

    def test_an_output_may_have_the_longest_name_there_is(self):
        self.expect_done("export", CLIP, "--html", "x" * 255)
        self.assertEqual(self.written(), ["x" * 255])

    # What it refuses

    def test_a_usage_error_is_one_line(self):
        for arguments in ([], [""], ["shew"], ["show"], ["show", ""], ["show", CLIP, CLIP],
                          ["export"], ["export", CLIP], ["export", CLIP, "--html"],
                          ["export", CLIP, "--html="], ["export", CLIP, "--nothing", "x"],
                          ["export", CLIP, "--html", "a", "--html", "b"],
                          ["export", CLIP, "--html", "a", "--index", "./a"]):
            with self.subTest(arguments=arguments):
                self.expect_failure(*arguments)
        self.assertEqual(self.written(), [])

    def test_an_incomplete_project_is_refused_with_its_sections(self):
        (self.place / "new.json").write_text("{}")
        self.assertIn("Sections 1, 2, 3, 4, 5, 6, 7, 8",
                      self.expect_failure("export", "new.json", "--html", "new.htm"))
        self.expect_done("export", "new.json", "--html", "new.htm", "--incomplete")

    def test_a_project_that_is_no_file_is_named(self):
        self.assertTrue(self.expect_failure("show", "missing.json").startswith("missing.json: "))
        self.assertTrue(self.expect_failure("show", self.place).startswith(f"{self.place}: "))
        self.assertIn("File name too long", self.expect_failure("show", "x" * 5000))

    def test_a_project_that_is_damaged_is_named(self):
        for content in (b"", b"{", b"[]", b"\xff\xfe{", bytes(1000), b'{"x": 1}', os.urandom(5000),
                        b"[" * 1000000):
            (self.place / "damaged.json").write_bytes(content)
            self.assertTrue(self.expect_failure("show", "damaged.json")
                            .startswith("damaged.json: "))

    def test_a_message_stays_in_one_line_whatever_the_names(self):
        self.expect_failure("show", "a\nb\r\nc\x1b[2J\u2028.json")
        (self.place / "key.json").write_text('{"a\\nb\\u0085\\u2028": 1}')
        self.assertIn('"a b  " is no field', self.expect_failure("show", "key.json"))

    def test_an_output_that_cannot_be_written_is_named(self):
        (self.place / "folder").mkdir()
        os.mkfifo(self.place / "pipe")
        for output in ("folder", "pipe", "missing/out.htm", "x" * 300):
            with self.subTest(output=output):
                self.assertTrue(self.expect_failure("export", CLIP, "--html", output)
                                .startswith(f"{output}: "))
        self.assertEqual(self.written(), ["pipe"])

    def test_the_project_is_never_replaced(self):
        shutil.copy(CLIP, self.place / "clip.json")
        (self.place / "link.json").symlink_to("clip.json")
        for project, output in (("clip.json", "clip.json"), ("link.json", "clip.json"),
                                ("clip.json", "link.json"), ("clip.json", "home/../clip.json")):
            self.assertIn("would replace the project",
                          self.expect_failure("export", project, "--html", output))
        self.assertEqual((self.place / "clip.json").read_bytes(), CLIP.read_bytes())

    def test_standard_output_that_is_full_or_closed_fails(self):
        for arguments in (["show", EASEL], ["show", CLIP], ["--version"], ["--help"],
                          ["export", "--help"]):
            with self.subTest(arguments=arguments), open("/dev/full", "wb") as full:
                reason = self.expect_failure(*arguments, stdout=full)
                self.assertEqual(reason, "standard output: No space left on device")
            with self.subTest(arguments=arguments, closed=True):
                self.expect_failure(*arguments, stdout=None, preexec_fn=lambda: os.close(1))

    def test_a_temporary_folder_that_cannot_be_used_is_named(self):
        (self.place / "old.htm").write_text("old")
        (self.place / "file").touch()
        self.environment["Temp"] = str(self.place / "file/below")
        self.assertIn(str(self.place / "file/below"),
                      self.expect_failure("export", CLIP, "--html", "old.htm"))
        self.assertEqual((self.place / "old.htm").read_text(), "old")

    def test_the_temporary_folder_is_the_one_that_is_named(self):
        (self.place / "temp \u00e9").mkdir()
        self.environment["Temp"] = str(self.place / "temp \u00e9")
        self.expect_done("export", CLIP, "--html", "out.htm")
        self.assertEqual(len(list((self.place / "temp \u00e9").glob("Temp*.htm"))), 1)
        self.assertFalse((self.home / ".cache").exists())

    # What only a user without rights meets

    def as_user(self):
        """The options with which the program runs as a user whom rights bind."""
        if os.geteuid() != 0:
            return {}
        self.place.chmod(0o755)
        os.chown(self.home, NOBODY, NOBODY)
        options = {"user": NOBODY, "group": NOBODY, "extra_groups": []}
        try:
            self.run_program("--version", **options)
        except PermissionError:
            self.skipTest("no other user reaches the program")
        return options

    def test_a_file_without_the_right_to_read_is_named(self):
        user = self.as_user()
        secret = self.place / "secret.json"
        shutil.copy(CLIP, secret)
        secret.chmod(0)
        self.assertEqual(self.expect_failure("show", "secret.json", **user),
                         "secret.json: Access is denied.")

    def test_a_folder_without_the_right_to_write_keeps_its_files(self):
        user = self.as_user()
        folder = self.place / "closed"
        folder.mkdir()
        shutil.copy(CLIP, self.place / "clip.json")
        (folder / "old.htm").write_text("old")
        (folder / "old.htm").chmod(0o666)
        folder.chmod(0o555)
        self.assertTrue(self.expect_failure("export", "clip.json", "--html", "closed/old.htm",
                                            **user).startswith("closed/old.htm: "))
        self.assertEqual((folder / "old.htm").read_text(), "old")
        self.environment["Temp"] = str(folder)
        self.assertIn(": Permission denied",
                      self.expect_failure("export", "clip.json", "--html", "home/out.htm", **user))
        folder.chmod(0o755)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
