#!/usr/bin/env python3
"""Compound files written here are read by libgsf and olefile, and files of libgsf are read and
changed here: every stream is compared by size and hash.

    compound_interop.py STORAGE_PROBE COMPOUND_PEER

Known faults of the peers are passed over, each for the reason beside it (see `without_faults`).
Ends with the status 77 when a peer is missing.
"""
import json
import os
import subprocess
import sys
import tempfile
from pathlib import Path

PROBE, PEER = sys.argv[1:3]
SKIPPED = 77
EDGES = (0, 1, 63, 64, 65, 511, 512, 513, 4095, 4096, 4097)
MEGABYTE = 1024 * 1024


def streams(sizes, name="stream {}", seed=1):
    return [f"stream {name.format(size)} {size} {seed + i}" for i, size in enumerate(sizes)]


# A shape is a list of specs that are applied to one file, one after the other.
SHAPES = {
    "no stream": [[]],
    "sizes at which something changes": [streams(EDGES)],
    "60 streams in one storage": [[f"stream Pictures/Index {i} {i * 37} {i}" for i in range(60)]],
    "nested storages": [[f"stream {'/'.join('abcdef'[:depth + 1])}/leaf {depth * 3000 + 5} {depth}"
                         for depth in range(6)] + ["storage empty", "storage a/also empty"]],
    "long and foreign names": [["stream abcdefghijklmnopqrstuvwxyz01234 700 1",
                                "stream \u00e9t\u00e9 5000 2", "stream \u00c9TAGE 60 3",
                                "stream \u0416\u0443\u043a 61 4", "stream \u65e5\u672c\u8a9e 62 5",
                                "stream \\u0005SummaryInformation 63 6",
                                "stream stra\u00dfe 10 7", "stream STRASSE 11 8"]],
    "one stream of 70 MB": [["stream before 10 1", f"stream large {70 * MEGABYTE} 2",
                             "stream after 5000 3"]],
    "a file over 100 MB": [[f"stream Pictures/Index {i} {2 * MEGABYTE} {i}" for i in range(51)]],
    "overwritten shorter and longer": [streams((100, 5000, 3000, 9000, 0), "s{}"),
                                       ["stream s100 20 9", "stream s5000 70 9",
                                        "stream s3000 6000 9", "stream s9000 20000 9",
                                        "stream s0 4000 9"],
                                       ["setsize s9000 100", "write s100 90 9000 4"]],
    "deleted and reused sectors": [[f"stream s{i} {i * 700} {i}" for i in range(30)],
                                   [f"delete s{i}" for i in range(0, 30, 2)],
                                   [f"stream t{i} {i * 900} {i}" for i in range(20)],
                                   [f"rename s{i} => a longer name {i}" for i in range(1, 30, 4)]],
    "many small fields": [["chunk 100", "stream chunks 70000 5", "fields f 178 80 3"]],
}

FROM_GSF = {
    "sizes at which something changes": streams(EDGES),
    "storages": [f"stream folder/inner {i}/s{i} {i * 900} {i}" for i in range(8)],
    "40 streams": [f"stream s{i} {i * 333} {i}" for i in range(40)],
    "over 7 MB": [f"stream large {9 * MEGABYTE} 1", "stream small 10 2"],
}
# libgsf 1.14 writes a file of large sectors over some MB one table sector short: it lists a sector
# behind the end of the file, and neither it nor olefile opens the file again.
SECTORS_OF_GSF = {"over 7 MB": (512,)}
CHANGES = ["stream added 5000 7", "stream small added 50 8", "storage new folder",
           "stream new folder/deep 9000 9", "delete {0}", "rename {1} => renamed",
           "write {2} 0 3 4", "setsize {3} 4200", "write {3} 0 4200 6"]


def run(*command, **options):
    return subprocess.run(command, check=True, capture_output=True, **options).stdout


def spec_file(folder, lines):
    path = Path(folder) / "spec"
    path.write_text("".join(line + "\n" for line in lines), encoding="utf-8")
    return path


def flat(elements, path=""):
    for element in elements:
        name = path + element["name"]
        if element["type"] == "storage":
            yield name, ("storage", 0, "0")
            yield from flat(element["elements"], name + "/")
        else:
            assert "read" not in element, f"{name} is cut off"
            yield name, ("stream", element["size"], element["fnv1a64"])


def ours(file):
    return dict(flat(json.loads(run(PROBE, "dump", file))["elements"]))


def by_gsf(file):
    lines = run(PEER, "gsf-dump", file).decode("utf-8").splitlines()
    rows = [line.split("\t", 3) for line in lines]
    return {path: (kind, int(size), "0" if kind == "storage" else digest)
            for kind, size, digest, path in rows}


OLEFILE = """
import olefile, subprocess, sys
ole = olefile.OleFileIO(sys.argv[1], raise_defects=olefile.DEFECT_INCORRECT)
for path in ole.listdir(streams=True, storages=True):
    if ole.get_type(path) == olefile.STGTY_STORAGE:
        row = ("storage", 0, "0")
    else:
        data = ole.openstream(path).read()
        digest = subprocess.run([sys.argv[2], "fnv"], input=data, capture_output=True, check=True)
        row = ("stream", len(data), digest.stdout.decode().strip())
    print(*row, "/".join(path).encode("unicode_escape").decode(), sep="\\t")
"""


def by_olefile(file):
    lines = run(olefile_python(), "-c", OLEFILE, file, PEER).decode().splitlines()
    rows = [line.split("\t", 3) for line in lines]
    return {path.encode().decode("unicode_escape"): (kind, int(size), digest)
            for kind, size, digest, path in rows}


def olefile_python():
    for candidate in (sys.executable, "/usr/bin/python3"):
        found = subprocess.run([candidate, "-c", "import olefile"], capture_output=True, check=False)
        if found.returncode == 0:
            return candidate
    return None


def without_faults(tree, peer, kept):
    """The tree without what the peer is known to get wrong."""
    if peer == "libgsf":
        # A storage without elements is told as a stream of no bytes.
        empty = {path for path, row in kept.items()
                 if row[0] == "storage" and not any(other.startswith(path + "/") for other in kept)}
        return {path: row for path, row in tree.items() if path not in empty}
    return tree


compared = 0


def compare(what, file, readers):
    global compared
    kept = ours(file)
    good = True
    for peer, read in readers.items():
        mine, theirs = (without_faults(tree, peer, kept) for tree in (kept, read(file)))
        compared += len(mine)
        for path in sorted(set(mine) | set(theirs)):
            if mine.get(path) != theirs.get(path):
                print(f"FAILED {what}, {peer}: {path!r}: {mine.get(path)} here, {theirs.get(path)}")
                good = False
    return good


def check_shape(name, specs, folder, readers):
    file = Path(folder) / "ours"
    file.unlink(missing_ok=True)
    good = True
    for lines in specs:
        run(PROBE, "make", file, spec_file(folder, lines))
        good = compare(name, file, readers) and good
    if len(specs) == 1:
        length = file.stat().st_size
        run(PROBE, "make", file, spec_file(folder, specs[0]))
        if file.stat().st_size != length:
            print(f"FAILED {name}: the same save twice has another length")
            good = False
    return good


def check_theirs(name, lines, sector, folder, readers):
    file = Path(folder) / "theirs"
    file.unlink(missing_ok=True)
    run(PEER, "gsf-make", file, spec_file(folder, lines), str(sector))
    what = f"{name}, made by libgsf in sectors of {sector}"
    good = compare(what, file, readers)
    names = [path for path, row in ours(file).items() if row[0] == "stream"]
    while len(names) < 4:
        names.append(f"another {len(names)}")
        run(PROBE, "mutate", file, spec_file(folder, [f"stream {names[-1]} 100 1"]))
    simple = [path for path in names if "/" not in path] or names
    changes = [line.format(*(names[-1], simple[0], names[1], names[2])) for line in CHANGES]
    run(PROBE, "mutate", file, spec_file(folder, changes))
    return compare(what + " and changed here", file, readers) and good


def main():
    readers = {}
    gsf_there = subprocess.run([PEER, "gsf-dump", os.devnull], capture_output=True,
                               check=False).returncode != SKIPPED
    if gsf_there:
        readers["libgsf"] = by_gsf
    if olefile_python():
        readers["olefile"] = by_olefile
    good = True
    with tempfile.TemporaryDirectory() as folder:
        for name, specs in SHAPES.items():
            good = check_shape(name, specs, folder, readers) and good
        if gsf_there:
            for name, lines in FROM_GSF.items():
                for sector in SECTORS_OF_GSF.get(name, (512, 4096)):
                    good = check_theirs(name, lines, sector, folder, readers) and good
    print(f"{len(SHAPES)} shapes read by {', '.join(readers) or 'nobody'}: "
          f"{compared} elements compared")
    if not good:
        return 1
    if len(readers) < 2:
        print("skipped: libgsf (libgsf-1-dev) or olefile (python3-olefile) is not installed")
        return SKIPPED
    return 0


if __name__ == "__main__":
    sys.exit(main())
