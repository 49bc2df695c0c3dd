#!/usr/bin/env python3
"""Project files written here are read by libgsf's tool and by olefile: both see the same streams,
which hold the fields of the project and its pictures, and both read the property sets.

    project_interop.py WRITE_PROJECT SAMPLES

Ends with the status 77 when a peer is missing.
"""
import json
import shutil
import struct
import subprocess
import sys
import tempfile
from pathlib import Path

WRITE_PROJECT, SAMPLES = sys.argv[1], Path(sys.argv[2])
SKIPPED = 77
STREAMS = ["Section Version", *(f"Section {i}" for i in range(1, 9)), "Section Verify"]
SETS = ["\005SummaryInformation", "\005DocumentSummaryInformation"]
INTRODUCTION = ("txtFileNo txtInventionTitle txtTechTitle txtCompany txtNameStep1 txtMIStep1 "
                "txtLastStep1 txtAddress1Step1 txtAddress2Step1 txtCityStep1 cboStateStep1 "
                "txtZipStep1 cboCountryStep1 txtTeleStep1 txtFacsimileStep1 txtEmailStep1").split()
DETAILS = ["txtElementMain", *(f"txtElementSub{i}" for i in range(1, 10))]

OLEFILE = """
import olefile, sys
ole = olefile.OleFileIO(sys.argv[1], raise_defects=olefile.DEFECT_INCORRECT)
for path in ole.listdir():
    print("/".join(path).encode("unicode_escape").decode(), ole.openstream(path).read().hex(),
          sep="\\t")
for name in sys.argv[2:]:
    assert ole.getproperties(name)[1] == 1252, name
"""


def run(*command):
    return subprocess.run(command, check=True, capture_output=True).stdout


def olefile_python():
    for candidate in (sys.executable, "/usr/bin/python3"):
        if subprocess.run([candidate, "-c", "import olefile"], capture_output=True,
                          check=False).returncode == 0:
            return candidate
    return None


def by_olefile(python, file):
    rows = (line.split("\t") for line in run(python, "-c", OLEFILE, file, *SETS).decode().split("\n")
            if line)
    return {name.encode().decode("unicode_escape"): bytes.fromhex(content)
            for name, content in rows}


def by_gsf(file, names):
    assert "msole:codepage" in run("gsf", "listprops", file).decode(), "gsf reads no property set"
    listed = run("gsf", "list", file).decode()
    missing = [name for name in names if name.split("/")[-1] not in listed]
    assert not missing, f"gsf lists no {missing}"
    return {name: run("gsf", "cat", file, name) for name in names}


class Reader:
    """A reader of fields that shares nothing with the program."""

    def __init__(self, data):
        self.data, self.place = data, 0

    def number(self, form):
        value = struct.unpack_from(form, self.data, self.place)[0]
        self.place += struct.calcsize(form)
        return value

    def text(self):
        size = 2 * self.number("<i")
        self.place += size
        return self.data[self.place - size:self.place].decode("utf-16-le")


def require(what, found, expected):
    assert found == expected, f"{what}: {found!r} is stored, {expected!r} was to be"


def check_fields(streams, project):
    require("version", Reader(streams["Section Version"]).text(), "3.1")
    reader = Reader(streams["Section 1"])
    for name in INTRODUCTION:
        require(name, reader.text(), project[name].strip(" "))
    reader = Reader(streams["Section 2"])
    require("inventors", reader.text(), project["cboInventorsNum"])
    require("check box", reader.number("<h"), int(project["chkSameAsContact"]))
    reader = Reader(streams["Section 6"])
    for i in range(int(project["cboMainElementNum"])):
        for name in DETAILS:
            require(f"{name} {i}", reader.text(), project[name][i].strip(" "))
    require("operation", Reader(streams["Section 8"]).text(), project["txtOperation"].strip(" "))


def check_pictures(streams, project, folder):
    count = 0
    for i, name in enumerate(project["txtAttachFig"][:int(project["cboFiguresNum"])]):
        if name:
            reader = Reader(streams[f"Pictures/Index {i}"])
            require("path", Path(reader.text()), folder / name)
            content = (folder / name).read_bytes()
            require("size", reader.number("<i"), len(content))
            end = reader.place + len(content)
            assert reader.data[reader.place:end] == content, f"the bytes of {name}"
            count += 1
    return count


def check(source, file, python):
    project = json.loads(source.read_text(encoding="utf-8"))
    run(WRITE_PROJECT, source, file)
    streams = by_olefile(python, file)
    for name in STREAMS + SETS:
        assert name in streams, f"olefile finds no {name!r}"
    for name, content in by_gsf(file, list(streams)).items():
        assert streams[name] == content, f"{name!r} differs between the peers"
    check_fields(streams, project)
    pictures = check_pictures(streams, project, source.parent)
    print(f"{source.name}: {len(streams)} streams, {pictures} pictures read by both")


def main():
    python = olefile_python()
    if not python or not shutil.which("gsf"):
        print("skipped: gsf (libgsf-bin) or olefile (python3-olefile) is not installed")
        return SKIPPED
    with tempfile.TemporaryDirectory() as name:
        folder = Path(name)
        run(sys.executable, SAMPLES / "make_largest_project.py", folder, "--picture-bytes", "20000")
        clip = SAMPLES / "pencil-clip" / "pencil-clip.json"
        easel = SAMPLES / "folding-easel" / "folding-easel.json"
        largest = folder / "largest.json"
        for i, source in enumerate((clip, easel, largest)):
            check(source, folder / f"new {i}", python)
        for source in (easel, largest, clip, easel):
            check(source, folder / "saved over", python)
    return 0


if __name__ == "__main__":
    sys.exit(main())
