#!/usr/bin/env python3
"""Formats a man page and fails at the first warning: man_page_format_test.py PAGE."""
import os
import shutil
import subprocess
import sys

SKIPPED = 77

if not shutil.which("man"):
    print("man is not installed; the page was not formatted")
    sys.exit(SKIPPED)
environment = dict(os.environ, LC_ALL="C.UTF-8", MANWIDTH="80", MANROFFSEQ="")
result = subprocess.run(["man", "--warnings", "-E", "UTF-8", "-l", sys.argv[1]], env=environment,
                        stdin=subprocess.DEVNULL, capture_output=True, text=True, timeout=60)
print(result.stderr, end="")
sys.exit(0 if result.returncode == 0 and not result.stderr and "NAME" in result.stdout else 1)
