#!/usr/bin/env python3
"""Prints a project file byte by byte, with a word on what each part is.

scripts/annotate_project_file.py FILE.ivd

It reads the file by itself, from the published format and docs/file-format.md, and shares no code
with the program. It is meant for small files: those whose tables need no sectors beyond the header's list.
"""
import struct
import sys

SECTOR, MINI_SECTOR, ENTRY = 512, 64, 128
END_OF_CHAIN, FREE = 0xFFFFFFFE, 0xFFFFFFFF
KINDS = {0: "unused entry", 1: "storage", 2: "stream", 5: "root"}

FIELDS = {
    "Section Version": ["version"],
    "Section 1": [
        "txtFileNo", "txtInventionTitle", "txtTechTitle", "txtCompany", "txtNameStep1",
        "txtMIStep1", "txtLastStep1", "txtAddress1Step1", "txtAddress2Step1", "txtCityStep1",
        "cboStateStep1", "txtZipStep1", "cboCountryStep1", "txtTeleStep1", "txtFacsimileStep1",
        "txtEmailStep1"],
    "Section 8": ["txtOperation"],
    "Section Verify": ["verifyPassed"],
}
INVENTOR = ["txtNameStep2", "txtMIStep2", "txtLastStep2", "txtAddress1Step2", "txtAddress2Step2",
            "txtCityStep2", "cboStateStep2", "txtZipStep2", "cboCitizenshipStep2"]
SUB_ELEMENTS = ["txtElementMain"] + [f"txtElementSub{k}" for k in range(1, 10)]
DESCRIPTION = ["txtMainElementNameDetail", "txtMainElementVariations"]


class CompoundFile:
    def __init__(self, data):
        self.data = data
        self.fat = []
        for place in range(struct.unpack_from("<I", data, 44)[0]):
            sector = struct.unpack_from("<I", data, 76 + 4 * place)[0]
            self.fat += struct.unpack_from("<128I", data, (sector + 1) * SECTOR)
        self.directory = self.chain(struct.unpack_from("<I", data, 48)[0])
        self.mini_fat_chain = self.chain(struct.unpack_from("<I", data, 60)[0])
        self.mini_fat = [link for sector in self.mini_fat_chain
                         for link in struct.unpack_from("<128I", data, (sector + 1) * SECTOR)]
        self.entries = [(sector + 1) * SECTOR + place
                        for sector in self.directory for place in range(0, SECTOR, ENTRY)]
        self.mini_stream = self.chain(self.entry(self.entries[0])[2])

    def chain(self, sector):
        sectors = []
        while sector < len(self.fat):
            sectors.append(sector)
            sector = self.fat[sector]
        return sectors

    def entry(self, offset):
        length, kind = struct.unpack_from("<HB", self.data, offset + 64)
        name = self.data[offset:offset + max(0, length - 2)].decode("utf-16-le")
        start, size = struct.unpack_from("<II", self.data, offset + 116)
        return name, kind, start, size

    def pieces(self, start, size):
        """Offsets in the file, with lengths, of the bytes of a stream."""
        if size >= 4096:
            return [((sector + 1) * SECTOR, SECTOR) for sector in self.chain(start)]
        pieces, mini = [], start
        while mini < len(self.mini_fat) and mini != END_OF_CHAIN:
            sector = self.mini_stream[mini * MINI_SECTOR // SECTOR]
            pieces.append(((sector + 1) * SECTOR + mini * MINI_SECTOR % SECTOR, MINI_SECTOR))
            mini = self.mini_fat[mini]
        return pieces


class Notes:
    """What stands at which offset; a note holds until the next one."""

    def __init__(self, compound):
        self.compound = compound
        self.at = {}

    def add(self, offset, text):
        self.at[offset] = text

    def header(self):
        for offset, text in [
                (0, "header: signature"), (8, "class, unused"),
                (24, "minor version 62, major version 3, byte order, sector shifts 9 and 6"),
                (34, "reserved"), (44, "number of FAT sectors"),
                (48, "first directory sector"), (52, "transaction number, unused"),
                (56, "least size of a stream with sectors of its own: 4096"),
                (60, "first mini FAT sector, their number"),
                (68, "first DIFAT sector: none; their number"), (76, "the FAT sectors")]:
            self.add(offset, text)

    def tables(self):
        compound = self.compound
        count = struct.unpack_from("<I", compound.data, 44)[0]
        for place in range(count):
            sector = struct.unpack_from("<I", compound.data, 76 + 4 * place)[0]
            self.add((sector + 1) * SECTOR, "FAT: the next sector of each sector")
        for sector in compound.mini_fat_chain:
            self.add((sector + 1) * SECTOR, "mini FAT: the next of each mini sector")
        for sector in compound.mini_stream:
            self.add((sector + 1) * SECTOR, "mini stream")
        for sector, link in enumerate(compound.fat):
            if link == FREE and (sector + 1) * SECTOR < len(compound.data):
                self.add((sector + 1) * SECTOR, "free sector")

    def directory(self):
        for offset in self.compound.entries:
            name, kind, _, size = self.compound.entry(offset)
            shown = name.replace("\5", "\\005")
            words = KINDS[kind] if kind in (0, 5) else f'{KINDS[kind]} "{shown}"'
            self.add(offset, f"directory: {words}" + (f", {size} bytes" if kind == 2 else ""))

    def streams(self):
        for offset in self.compound.entries:
            name, kind, start, size = self.compound.entry(offset)
            if kind == 2:
                self.stream(name, start, size)

    def stream(self, name, start, size):
        pieces = self.compound.pieces(start, size)
        places = [offset + i for offset, length in pieces for i in range(length)]
        data = bytes(self.compound.data[place] for place in places[:size])
        shown = name.replace("\5", "\\005")
        for offset, _ in pieces:
            self.add(offset, f"{shown}, continued")
        for position, text in values(name, data):
            self.add(places[position], f"{shown}: {text}")
        if size < len(places):
            self.add(places[size], f"behind the end of {shown}")


class Reader:
    def __init__(self, data):
        self.data, self.position, self.found = data, 0, []

    def text(self, name):
        start = self.position
        count = struct.unpack_from("<i", self.data, start)[0]
        self.position += 4 + 2 * count
        text = self.data[start + 4:self.position].decode("utf-16-le")
        self.found.append((start, f'{name} "{text}"'))
        return text

    def number(self, name, form):
        start = self.position
        self.position += struct.calcsize(form)
        self.found.append((start, f"{name} {struct.unpack_from(form, self.data, start)[0]}"))

    def texts(self, names):
        for name in names:
            self.text(name)


def values(name, data):
    """What a stream of a project holds: position and words."""
    reader = Reader(data)
    if name in FIELDS:
        reader.texts(FIELDS[name])
    elif name == "Section 2":
        count = int(reader.text("cboInventorsNum"))
        reader.number("chkSameAsContact", "<h")
        for i in range(count):
            reader.texts(f"{field}({i})" for field in INVENTOR)
    elif name == "Section 3":
        reader.text("txtPurpose")
        for i in range(int(reader.text("cboObjectNum"))):
            reader.text(f"txtObject({i})")
    elif name == "Section 4":
        for i in range(max(1, int(reader.text("cboFiguresNum")))):
            reader.texts([f"txtAttachFig({i})", f"cboFigureType({i})", f"txtFigureDetail({i})"])
    elif name == "Section 5":
        reader.text("txtMainElement")
        for i in range(int(reader.text("cboMainElementNum"))):
            reader.texts([f"txtElementName({i})", f"txtElementDes({i})"])
    elif name == "Section 6":
        repeat(reader, SUB_ELEMENTS, 0)
    elif name == "Section 7":
        repeat(reader, DESCRIPTION, 2)
        reader.texts(["txtDesConnections", "txtDesAlterative"])
    else:
        return [(0, "property set")]
    return reader.found


def texts_in(data):
    count, position = 0, 0
    while position < len(data):
        position += 4 + 2 * struct.unpack_from("<i", data, position)[0]
        count += 1
    return count


def repeat(reader, names, behind):
    """The panels of a stream that holds no count: what remains, less the texts behind them."""
    for i in range((texts_in(reader.data) - behind) // len(names)):
        reader.texts(f"{name}({i})" for name in names)


def rows(data, notes):
    """Sixteen bytes a row under each note; a star stands for rows that are as the one above."""
    starts = sorted(notes.at)
    for start, end in zip(starts, starts[1:] + [len(data)]):
        print(f"{start:06x}  {notes.at[start]}")
        above, starred = None, False
        for offset in range(start, end, 16):
            row = data[offset:min(offset + 16, end)]
            if row == above:
                print("" if starred else "        *\n", end="")
                starred = True
                continue
            shown = "".join(chr(byte) if 32 <= byte < 127 else "." for byte in row)
            print(f"        {row.hex(' '):47}  {shown}")
            above, starred = row, False


def main():
    if len(sys.argv) != 2:
        sys.exit("usage: annotate_project_file.py FILE.ivd")
    with open(sys.argv[1], "rb") as file:
        data = file.read()
    notes = Notes(CompoundFile(data))
    notes.header()
    notes.tables()
    notes.directory()
    notes.streams()
    rows(data, notes)


if __name__ == "__main__":
    main()
