#!/usr/bin/env python3
"""Makes the Word document of a flat ODF file: make_word_template.py FLAT.fodt OUT.doc [PROGRAM].

PROGRAM is LibreOffice's, "soffice" where it is left out. It runs in a profile of its own, so that
neither the user's settings nor a running LibreOffice play a part; the same version always makes the
same bytes.
"""
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path


def convert(source, target, program):
    with tempfile.TemporaryDirectory() as folder:
        command = [program, "--headless", "--norestore", "--nologo", "--nodefault",
                   f"-env:UserInstallation=file://{folder}/profile", "--convert-to",
                   "doc:MS Word 97", "--outdir", folder, str(Path(source).resolve())]
        # Neither the exit status nor standard error is a sure sign: the file is.
        subprocess.run(command, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                       stderr=subprocess.DEVNULL, timeout=120, check=False)
        made = Path(folder, Path(source).stem + ".doc")
        if not made.is_file() or made.stat().st_size == 0:
            sys.exit(f"{program} made no document of {source}")
        shutil.copyfile(made, target)


if __name__ == "__main__":
    convert(sys.argv[1], sys.argv[2], sys.argv[3] if len(sys.argv) > 3 else "soffice")
