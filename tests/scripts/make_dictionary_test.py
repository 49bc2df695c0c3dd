#!/usr/bin/env python3
"""Makes dictionaries of small ones in several encodings: make_dictionary_test.py SCRIPT."""
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

SCRIPT = Path(sys.argv[1]).resolve()


class MakeDictionaryTest(unittest.TestCase):
    def setUp(self):
        self.place = Path(tempfile.mkdtemp(prefix="quillford-dictionary-test-"))
        self.addCleanup(shutil.rmtree, self.place)

    def made(self, affixes, words):
        (self.place / "xx.aff").write_bytes(affixes)
        (self.place / "xx.dic").write_bytes(words)
        subprocess.run([sys.executable, SCRIPT, self.place / "xx.dic", self.place / "Dictionary"],
                       check=True)
        return [(self.place / "Dictionary" / name).read_bytes()
                for name in ("SpellUS.aff", "SpellUS.lex")]

    def test_a_dictionary_in_utf_8_is_kept_byte_for_byte(self):
        affixes, words = "SET UTF-8\nTRY é\n".encode(), "1\ncafé/M\n".encode()
        self.assertEqual(self.made(affixes, words), [affixes, words])

    def test_another_encoding_is_recoded_and_named(self):
        affixes, words = self.made("# rules\nSET ISO8859-1\r\nTRY é\r\n".encode("latin-1"),
                                   "1\ncafé/M\n".encode("latin-1"))
        self.assertEqual(affixes, "# rules\nSET UTF-8\r\nTRY é\r\n".encode())
        self.assertEqual(words, "1\ncafé/M\n".encode())

    def test_without_a_name_the_encoding_is_the_default_of_the_library(self):
        affixes, words = self.made("TRY é\n".encode("latin-1"), "1\né\n".encode("latin-1"))
        self.assertEqual(affixes, "SET UTF-8\nTRY é\n".encode())
        self.assertEqual(words, "1\né\n".encode())


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
