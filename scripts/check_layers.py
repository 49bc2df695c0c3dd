#!/usr/bin/env python3
"""Proves that no file includes anything above or beside its own floor.

A file may include what stands on a lower floor, and on its own floor what stands in its own folder,
in the same subfolder or an earlier one. Adapters of the platform are seen by the programs alone.
The rules of text that every reviewer would repeat are checked here as well.
"""
import re
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
SRC = ROOT / "src"

# Lowest floor first. A floor is a list of folders that do not know each other; a folder lists its
# subfolders, earlier ones first.
FLOORS = [
    {"base": []},
    {"platform": ["", "linux", "linux/writer", "linux/desktop"]},
    {"core": ["fields", "rules", "settings", "text", "wizard", "commands"]},
    {"persistence": ["compound", "project", "session"]},
    {"draft": ["language", "template", "compose", "commands", "pages"]},
    {"controls": []},
    {"verification": ["engine", "dialogs"]},
    {"editors": ["rules", "binding", "columns", "panels", "pages", "index"]},
    {"shell": ["dialogs", "", "frmMain1"], "online": ["protocol", "dialogs"]},
    {"app": [], "cli": []},
]
FLOOR_OF = {folder: level for level, floor in enumerate(FLOORS) for folder in floor}
SUBFOLDERS = {folder: order for floor in FLOORS for folder, order in floor.items()}
PROGRAMS = {"app", "cli"}

INCLUDE = re.compile(r'^\s*#\s*include\s+"([^"]+)"')
DESIGNED = re.compile(r"ui_(\w+)\.h")
# Both strip tabs and line ends as well; base/Text has the trim that is meant.
FORBIDDEN_CALL = re.compile(r"(?:\.|->)(trimmed|simplified)\s*\(")
EMPTY_CATCH = re.compile(r"catch\s*\([^)]*\)\s*\{\s*\}")


def place(path):
    """Folder and subfolder of a path that is relative to src/."""
    folder, *rest = Path(path).parts
    return folder, "/".join(rest[:-1])


def complaint(source, target):
    """What is wrong with `source` including `target`, or None."""
    if DESIGNED.fullmatch(target):
        # Compiled from the designed form, which stands beside the class that shows it.
        form = (SRC / source).parent / (DESIGNED.fullmatch(target).group(1) + ".ui")
        return None if form.is_file() else f"includes {target} without {form.name} beside it"
    if not (SRC / target).is_file():
        return f"includes {target}, which is not below src/"
    folder, subfolder = place(source)
    other, other_subfolder = place(target)
    for name in (folder, other):
        if name not in FLOOR_OF:
            return f"stands in or includes src/{name}, which is no floor"
    if other == "platform" and other_subfolder and folder not in PROGRAMS | {"platform"}:
        return f"includes the adapter {target}; only the programs may"
    if FLOOR_OF[other] < FLOOR_OF[folder]:
        return None
    if other != folder:
        return f"includes {target}, which stands above or beside it"
    order = SUBFOLDERS[folder]
    if subfolder == other_subfolder or not order:
        return None
    for name in (subfolder, other_subfolder):
        if name not in order:
            return f"src/{folder}/{name} has no place in the order of its floor"
    if order.index(other_subfolder) > order.index(subfolder):
        return f"includes {target}, which stands later in src/{folder}"
    return None


def complaints(path):
    source = path.relative_to(SRC).as_posix()
    text = path.read_text(encoding="utf-8")
    for number, line in enumerate(text.splitlines(), 1):
        match = INCLUDE.match(line)
        wrong = complaint(source, match.group(1)) if match else None
        if wrong:
            yield f"src/{source}:{number}: {wrong}"
        if FORBIDDEN_CALL.search(line):
            yield f"src/{source}:{number}: strips more than blanks; use trimBlanks"
    if EMPTY_CATCH.search(text):
        yield f"src/{source}: swallows a failure without a word"


def main():
    files = sorted(p for p in SRC.rglob("*") if p.suffix in {".h", ".cpp", ".def"})
    found = [line for path in files for line in complaints(path)]
    for line in found:
        print(line)
    print(f"{len(files)} files looked at, {len(found)} complaints")
    return 1 if found or not files else 0


if __name__ == "__main__":
    sys.exit(main())
