#!/usr/bin/env python3
"""Every failure of storage_probe is one line on standard error and status 1.

    storage_probe_failures.py STORAGE_PROBE
"""
import os
import resource
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

PROBE = sys.argv.pop(1)
FIRST_SECTOR_OF_DIRECTORY = 1024


def limit_files():
    resource.setrlimit(resource.RLIMIT_FSIZE, (16384, 16384))


class Failures(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.file = Path(folder.name) / "file"
        self.spec = Path(folder.name) / "spec"

    def run_probe(self, *words, **options):
        return subprocess.run([PROBE, *map(str, words)], capture_output=True, text=True,
                              check=False, **options)

    def make(self, line, **options):
        self.spec.write_text(line + "\n", encoding="utf-8")
        return self.run_probe("make", self.file, self.spec, **options)

    def expect_failure(self, result, text):
        self.assertEqual(result.returncode, 1, result.stderr)
        self.assertEqual(result.stderr.count("\n"), 1, result.stderr)
        self.assertIn(text, result.stderr)

    def test_a_limit_of_the_file_size_is_a_full_disk(self):
        result = self.make("stream large 200000 1", preexec_fn=limit_files)
        self.expect_failure(result, "0x80030070")
        self.assertEqual(self.run_probe("dump", self.file).returncode, 0)

    def test_a_write_larger_than_the_memory_is_told(self):
        # With a sanitizer the memory that is refused would end the program otherwise.
        options = os.environ.get("ASAN_OPTIONS", "") + ":allocator_may_return_null=1"
        result = self.make("chunk 9223372036854775807\nstream s 9000000000000000000 1",
                           env={**os.environ, "ASAN_OPTIONS": options})
        self.expect_failure(result, "memory")

    def test_property_sets_that_a_damaged_file_cannot_take_are_told(self):
        self.assertEqual(self.make("stream s 100 1").returncode, 0)
        content = bytearray(self.file.read_bytes())
        content[FIRST_SECTOR_OF_DIRECTORY + 128 + 66] = 9  # no kind that the format has
        self.file.write_bytes(content)
        self.expect_failure(self.run_probe("props", self.file, "create"), "property sets")


if __name__ == "__main__":
    unittest.main()
