#!/usr/bin/env python3
"""Makes the Word template anew and compares: word_template_test.py TREE LIBREOFFICE_PROGRAM_FOLDER."""
import subprocess
import sys
import tempfile
from pathlib import Path

SKIPPED = 77
# Other versions write other bytes for the same document.
MADE_WITH = "7.4.7.2"

tree, program = Path(sys.argv[1]), Path(sys.argv[2])
if not (program / "soffice").exists():
    print("LibreOffice is not installed; the template was not made anew")
    sys.exit(SKIPPED)
templates = tree / "resources" / "templates"
with tempfile.TemporaryDirectory() as folder:
    version = subprocess.run([str(program / "soffice"), "--version",
                              f"-env:UserInstallation=file://{folder}/profile"],
                             capture_output=True, text=True, check=True, timeout=60).stdout
    if MADE_WITH not in version.split():
        print(f"the template was made with LibreOffice {MADE_WITH}; installed is {version}")
        sys.exit(SKIPPED)
    made = Path(folder, "made.doc")
    subprocess.run([sys.executable, str(tree / "scripts" / "make_word_template.py"),
                    str(templates / "WORDTEMPLATE.fodt"), str(made), str(program / "soffice")],
                   check=True, timeout=180)
    if made.read_bytes() != (templates / "WORDTEMPLATE.doc").read_bytes():
        sys.exit("WORDTEMPLATE.doc is not what WORDTEMPLATE.fodt makes; build the target "
                 "wordtemplate")
