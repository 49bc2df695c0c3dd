#!/usr/bin/env python3
"""The annotated file in docs/ is what the program makes of a project without entries.

smallest_project_test.py QUILLFORD_CLI SOURCE_TREE
"""
import subprocess
import sys
import tempfile
from pathlib import Path


def annotated(cli, tree, folder):
    fields, project = folder / "fields.json", folder / "project.ivd"
    fields.write_text("{}")
    subprocess.run([cli, "new", fields, project], check=True)
    script = tree / "scripts" / "annotate_project_file.py"
    return subprocess.run([sys.executable, script, project], check=True, text=True,
                          stdout=subprocess.PIPE).stdout


def main():
    cli, tree = sys.argv[1], Path(sys.argv[2])
    with tempfile.TemporaryDirectory() as folder:
        made = annotated(cli, tree, Path(folder))
    told = (tree / "docs" / "smallest-project.txt").read_text()
    if made == told:
        return 0
    for number, (a, b) in enumerate(zip(told.splitlines(), made.splitlines()), 1):
        if a != b:
            print(f"line {number}: the page has {a!r}, the program makes {b!r}")
            break
    return 1


if __name__ == "__main__":
    sys.exit(main())
