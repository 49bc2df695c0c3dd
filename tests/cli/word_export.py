"""The program as the tests of the export to Word run it. Each of them is called so:

    TEST.py PROGRAM ROOT_OF_THE_TREE LIBREOFFICE_PROGRAM_FOLDER [TEST...]
"""
import os
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

PROGRAM = Path(sys.argv[1]).resolve()
ROOT = Path(sys.argv[2]).resolve()
SOFFICE = Path(sys.argv[3]) / "soffice"
MODULE = PROGRAM.parent / "quillford_writer.so"
SKIPPED = 77

EASEL = ROOT / "samples/folding-easel/folding-easel.json"
CLIP = ROOT / "samples/pencil-clip/pencil-clip.json"


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


def run_tests():
    if not (SOFFICE.exists() and MODULE.exists()):
        print("LibreOffice Writer or its development files are not installed")
        sys.exit(SKIPPED)
    unittest.main(argv=sys.argv[:1] + sys.argv[4:], verbosity=2)
