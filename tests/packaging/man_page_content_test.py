#!/usr/bin/env python3
"""Compares a man page with the program's help: man_page_content_test.py PAGE PROGRAM."""
import re
import subprocess
import sys
from pathlib import Path

page = Path(sys.argv[1]).read_text(encoding="utf-8").replace("\\-", "-")
help_text = subprocess.run([sys.argv[2], "--help"], stdin=subprocess.DEVNULL, check=True,
                           capture_output=True, text=True, timeout=60).stdout


def options(text):
    return set(re.findall(r"(?<![\w-])--[a-z]+", text))


def commands_of_help():
    return set(re.findall(r"^  quillford-cli ([a-z]+)", help_text, re.MULTILINE))


def commands_of_page():
    return set(re.findall(r"^\.SY quillford-cli\n\.B ([a-z]+)$", page, re.MULTILINE))


wrong = (options(page) ^ options(help_text)) | (commands_of_page() ^ commands_of_help())
for name in sorted(wrong):
    print(f"{name} stands either in the page or in the help, not in both")
if not commands_of_help() or not options(help_text):
    wrong.add("the help tells of nothing")
    print("the help tells of no command or no option")
sys.exit(1 if wrong else 0)
