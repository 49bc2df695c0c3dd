#!/usr/bin/env python3
"""Makes the damaged compound files of fuzz/regressions/compound, one for each known fault of parsers.

    fuzz/make_regressions.py build/test/tools/storage_probe

A file is a good one with a few numbers changed; its name tells the fault. The files stand in the
tree: run this again only after adding a fault.
"""
import struct
import subprocess
import sys
import tempfile
from pathlib import Path

HERE = Path(__file__).resolve().parent
SPEC = """stream small 700 1
stream other small 200 2
stream big 9000 3
stream second big 5000 4
stream storage/inner 300 5
stream storage/deeper/innermost 4096 6
"""
SECTOR = 512
END, FREE = 0xFFFFFFFE, 0xFFFFFFFF


class File:
    """A compound file of 512-byte sectors with one FAT sector, as the probe writes it."""

    def __init__(self, data):
        self.data = bytearray(data)
        self.fat = (self.number(76) + 1) * SECTOR
        self.entries = []
        sector = self.number(48)
        while sector != END:
            self.entries += [(sector + 1) * SECTOR + 128 * i for i in range(4)]
            sector = self.number(self.fat + 4 * sector)

    def number(self, place):
        return struct.unpack_from("<I", self.data, place)[0]

    def put(self, place, value, form="<I"):
        struct.pack_into(form, self.data, place, value)
        return self

    def entry(self, name):
        for place in self.entries:
            length = struct.unpack_from("<H", self.data, place + 64)[0]
            if self.data[place:place + max(0, length - 2)].decode("utf-16-le") == name:
                return place
        raise KeyError(name)

    def link(self, sector, to):
        return self.put(self.fat + 4 * sector, to)

    def mini_link(self, sector, to):
        return self.put((self.number(60) + 1) * SECTOR + 4 * sector, to)

    def start(self, name):
        return self.number(self.entry(name) + 116)

    def id_of(self, name):
        return self.entries.index(self.entry(name))

    def child_of(self, entry, value):
        return self.put(entry + 76, value)


def chain_faults(f):
    big, small = f().start("big"), f().start("small")
    yield "fat-chain-is-its-own-next", f().link(big, big)
    yield "fat-chain-loops-over-several", f().link(big + 5, big + 1)
    yield "fat-chain-leads-into-another-stream", f().link(big + 3, f().start("second big"))
    yield "fat-chain-leads-behind-the-file", f().link(big + 3, 0x00FFFFFF)
    yield "fat-chain-leads-behind-the-table", f().link(big + 3, 0x7FFFFFFF)
    yield "fat-chain-is-marked-free", f().link(big + 3, FREE)
    yield "fat-lists-one-sector-twice", f().put(44, 2).put(80, f().number(76))
    yield "fat-lists-a-sector-behind-the-file", f().put(44, 2).put(80, 0x00ABCDEF)
    yield "fat-count-is-huge", f().put(44, FREE)
    yield "mini-fat-chain-is-its-own-next", f().mini_link(small, small)
    yield "mini-fat-chain-loops-over-several", f().mini_link(small + 5, small + 1)
    yield "mini-fat-chain-leads-behind-the-table", f().mini_link(small, 0x7FFFFFFF)
    yield "mini-fat-begins-behind-the-file", f().put(60, 0x00ABCDEF)
    yield "directory-chain-is-its-own-next", f().link(f().number(48), f().number(48))
    yield "directory-begins-behind-the-file", f().put(48, 0x00ABCDEF)
    difat = f()
    place = len(difat.data) // SECTOR - 1
    difat.data += struct.pack("<I", FREE) * 127 + struct.pack("<I", place)
    yield "difat-chain-is-its-own-next", difat.put(44, 1000).put(68, place).put(72, 8)
    yield "difat-count-is-huge", f().put(72, FREE)
    yield "difat-count-is-huge-and-begins-in-a-stream", f().put(72, FREE).put(44, FREE).put(68, big)


def entry_faults(f):
    storage, root = f().entry("storage"), f().entries[0]
    yield "entry-is-its-own-child", f().child_of(storage, f().id_of("storage"))
    yield "entry-is-its-own-left-sibling", f().put(storage + 68, f().id_of("storage"))
    yield "entry-is-its-own-right-sibling", f().put(storage + 72, f().id_of("storage"))
    yield "entry-has-the-root-as-child", f().child_of(storage, 0)
    yield "entries-loop-through-a-child", f().child_of(f().entry("deeper"), f().id_of("storage"))
    yield "entries-loop-through-siblings", (
        f().put(f().entry("inner") + 72, f().id_of("deeper")).put(
            f().entry("deeper") + 68, f().id_of("inner")))
    yield "entry-child-behind-the-directory", f().child_of(storage, 0x00ABCDEF)
    yield "entry-name-longer-than-its-field", f().put(storage + 64, 66, "<H")
    yield "entry-name-of-odd-length", f().put(storage + 64, 15, "<H")
    yield "entry-name-without-a-length", f().put(storage + 64, 0, "<H")
    yield "entry-of-an-unknown-kind", f().put(storage + 66, 7, "<B")
    yield "root-is-no-root", f().put(root + 66, 2, "<B")
    yield "two-entries-of-one-name", f().put(
        f().entry("inner"), int.from_bytes("deeper".encode("utf-16-le"), "little") & FREE)


def size_faults(f):
    yield "stream-longer-than-the-file", f().put(f().entry("big") + 120, 0x01000000)
    yield "stream-size-above-2-to-the-31", f().put(f().entry("big") + 120, 0x80000001)
    yield "stream-size-with-a-high-half", f().put(f().entry("big") + 124, 0x7FFFFFFF)
    yield "mini-stream-without-a-chain", f().put(f().entries[0] + 116, END)
    yield "mini-stream-shorter-than-its-streams", f().put(f().entries[0] + 120, 64)
    yield "mini-stream-longer-than-its-chain", f().put(f().entries[0] + 120, 0x00FFFFFF)
    yield "stream-shorter-than-its-chain", f().put(f().entry("big") + 120, 5000)
    yield "stream-without-a-chain", f().put(f().entry("big") + 116, END)


def header_faults(f):
    for shift in (0, 8, 10, 16, 31, 0xFFFF):
        yield f"sector-shift-{shift}", f().put(30, shift, "<H")
    yield "large-sectors-told-of-a-file-with-small-ones", f().put(30, 12, "<H").put(26, 4, "<H")
    yield "mini-sector-shift-20", f().put(32, 20, "<H")
    yield "cutoff-0", f().put(56, 0)
    yield "byte-order-reversed", f().put(28, 0xFEFF, "<H")


def lenient(f):
    """What other writers leave and a reader accepts."""
    yield "accepted-storage-starts-at-end-of-chain", f().put(f().entry("storage") + 116, END)
    unused = [place for place in f().entries if f().data[place + 66] == 0]
    accepted = f()
    for place in unused:
        accepted.put(place + 68, 0).put(place + 72, 0).put(place + 76, 0)
    yield "accepted-links-of-0-in-unused-entries", accepted
    red = f()
    for place in red.entries:
        red.put(place + 67, 0, "<B")
    yield "accepted-red-under-red", red
    yield "accepted-difat-ends-in-free-sector", f().put(68, FREE)


def cut_files(f):
    whole = f()
    for length in (1, 8, 76, 511, 512, 513, 1000, 1024, 1536, 2000, len(whole.data) - 1):
        cut = f()
        del cut.data[length:]
        yield f"cut-after-{length}-bytes", cut


def main():
    probe = Path(sys.argv[1]).resolve()
    with tempfile.TemporaryDirectory() as folder:
        spec, made = Path(folder) / "spec", Path(folder) / "made"
        spec.write_text(SPEC, encoding="utf-8")
        subprocess.run([probe, "make", made, spec], check=True)
        good = made.read_bytes()
    (HERE / "seeds/compound/good").write_bytes(good)
    for faults in (chain_faults, entry_faults, size_faults, header_faults, lenient, cut_files):
        for name, file in faults(lambda: File(good)):
            (HERE / "regressions/compound" / name).write_bytes(file.data)


if __name__ == "__main__":
    main()
