#!/usr/bin/env python3
"""Lets exports to Word fail in every way, and looks for what they leave behind."""
import hashlib
import json
import os
import re
import shutil
import signal
import sys
import time
import unittest
from pathlib import Path

sys.dont_write_bytecode = True
from word_export import CLIP, EASEL, PROGRAM, ROOT, Place, run_tests  # noqa: E402


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
    run_tests()
