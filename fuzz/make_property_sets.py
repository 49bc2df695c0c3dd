#!/usr/bin/env python3
"""Makes the property-set streams of fuzz/seeds/propertyset and fuzz/regressions/propertyset.

    fuzz/make_property_sets.py

A regression is a good stream with a few bytes changed. Its name tells the fault: the reader's own
words, then behind "--" how it came about. A name that begins with "value" is that of a stream that
is read, with one damaged value or name in it. The files stand in the tree: run this again only
after adding a fault. What fuzzing found stands beside them under the same kind of name.
"""
import struct
import uuid
from pathlib import Path

HERE = Path(__file__).resolve().parent
SUMMARY = uuid.UUID("{F29F85E0-4FF9-1068-AB91-08002B27B3D9}").bytes_le
DOCUMENT = uuid.UUID("{D5CDD502-2E9C-101B-9397-08002B2CF9AE}").bytes_le
USER = uuid.UUID("{D5CDD505-2E9C-101B-9397-08002B2CF9AE}").bytes_le
HUGE = 0xFFFFFFFF


def number(value):
    return struct.pack("<I", value)


def padded(data):
    return data + bytes(-len(data) % 4)


def code_page(page):
    return number(2) + struct.pack("<HH", page, 0)


def narrow(text):
    return padded(number(30) + number(len(text) + 1) + text + b"\0")


def wide(text):
    units = (text + "\0").encode("utf-16-le")
    return padded(number(31) + number(len(units) // 2) + units)


def file_time(ticks):
    return number(64) + struct.pack("<Q", ticks)


def narrow_names(*names):
    entries = b"".join(number(i) + number(len(n) + 1) + n + b"\0" for i, n in names)
    return padded(number(len(names)) + entries)


def wide_names(*names):
    entries = b""
    for identifier, name in names:
        units = (name + "\0").encode("utf-16-le")
        entries += number(identifier) + number(len(units) // 2) + padded(units)
    return number(len(names)) + entries


def section(*properties):
    place = 8 + 8 * len(properties)
    places, values = b"", b""
    for identifier, value in properties:
        places += number(identifier) + number(place + len(values))
        values += value
    return number(place + len(values)) + number(len(properties)) + places + values


def stream(*sections):
    head = b"\xFE\xFF\0\0" + number(0x20006) + bytes(16) + number(len(sections))
    place = 28 + 20 * len(sections)
    body = b""
    for form, data in sections:
        head += form + number(place + len(body))
        body += data
    return head + body


def summary():
    return stream((SUMMARY, section(
        (1, code_page(1252)), (2, narrow(b"A title")), (4, narrow(b"Ann Ox")),
        (10, file_time(36_000_000_000)), (12, file_time(133_500_000_000_000_000)),
        (14, number(3) + number(7)), (17, number(71) + number(12) + number(HUGE) + number(3)
                                      + b"CLIP" + bytes(4)))))


def document(names=None, page=1252):
    names = names or narrow_names((2, b"Client"), (3, b"Checked"))
    return stream(
        (DOCUMENT, section(
            (1, code_page(page)), (15, narrow(b"Ox & Co")),
            (12, number(0x100C) + number(2) + narrow(b"Title") + number(3) + number(1)),
            (13, number(0x101E) + number(1) + number(8) + b"Chapter\0"))),
        (USER, section(
            (0, names), (1, code_page(page)), (2, wide("Nib\u00e9 Ltd")),
            (3, number(11) + number(0xFFFF)), (0x80000000, number(19) + number(0x409)))))


def put(data, place, value):
    return data[:place] + value + data[place + len(value):]


def seeds():
    yield "nothing", b""
    yield "summary", summary()
    yield "document-and-user", document()
    yield "wide-names", document(wide_names((2, "Client"), (3, "Checked \u20ac")), 1200)
    yield "utf-8", stream((SUMMARY, section(
        (1, code_page(65001)), (2, narrow("Caf\u00e9 \u4e2d".encode())))))
    yield "no-code-page", stream((SUMMARY, section((2, narrow(b"A title")))))
    yield "three-bytes-short", stream(
        (SUMMARY, section((1, code_page(1252)), (2, narrow(b"Four")))))[:-3]


def header_faults():
    good = summary()
    yield "it-ends-too-early--in-the-header", good[:20]
    yield "it-ends-too-early--after-one-byte", good[:1]
    yield "it-ends-too-early--in-the-place-of-a-section", good[:40]
    yield "it-does-not-begin-with-the-mark-of-the-byte-order", put(good, 0, b"\xFF\xFE")
    yield "its-version-is-unknown", put(good, 2, b"\x02\0")
    yield "it-tells-more-sections-than-there-can-be--three", put(good, 24, number(3))
    yield "it-tells-more-sections-than-there-can-be--all-ones", put(good, 24, number(HUGE))
    yield "it-ends-too-early--the-second-section-is-not-there", put(stream(), 24, number(2))


def section_faults():
    good = summary()
    yield "a-section-stands-behind-the-end", put(good, 44, number(HUGE))
    yield "a-section-stands-behind-the-end--by-a-byte", put(good, 44, number(len(good) - 7))
    yield "a-section-stands-in-the-header", put(good, 44, number(0))
    yield "a-section-is-shorter-than-its-header", put(good, 48, number(7))
    yield "a-section-is-longer-than-what-is-there--by-four", good[:-4]
    yield "a-section-is-longer-than-what-is-there--by-all-ones", put(good, 48, number(HUGE))
    two = document()
    yield "two-sections-stand-in-one-place", put(two, 64, two[44:48])
    first = struct.unpack_from("<I", two, 44)[0]
    yield "two-sections-stand-in-one-place--in-part", put(
        two, first, number(struct.unpack_from("<I", two, first)[0] + 8))


def property_faults():
    good = summary()
    yield "more-properties-are-told-than-fit", put(good, 52, number(HUGE))
    yield "more-properties-are-told-than-fit--by-one", put(
        good, 52, number((struct.unpack_from("<I", good, 48)[0] - 8) // 8 + 1))
    yield "a-value-stands-outside-of-its-section", put(good, 60, number(HUGE))
    yield "a-value-stands-outside-of-its-section--in-its-header", put(good, 60, number(0))
    yield "a-value-stands-outside-of-its-section--by-a-byte", put(
        good, 60, number(struct.unpack_from("<I", good, 48)[0] - 3))
    yield "two-values-stand-in-one-place", put(good, 68, good[60:64])
    yield "a-value-is-shorter-than-its-type", put(
        good, 68, number(struct.unpack_from("<I", good, 60)[0] + 2))


def value_faults():
    one = [(1, code_page(1252))]

    def with_value(data):
        return stream((SUMMARY, section(*one, (2, data), (3, narrow(b"Subject")))))

    yield "value-text-longer-than-its-section", with_value(number(30) + number(HUGE) + b"text")
    yield "value-wide-text-longer-than-its-section", with_value(number(31) + number(HUGE) + b"text")
    yield "value-wide-text-whose-length-overflows", with_value(number(31) + number(0x80000002))
    yield "value-text-without-a-terminator", with_value(number(30) + number(4) + b"text")
    yield "value-text-without-a-length", with_value(number(30))
    yield "value-time-cut-off", with_value(number(64) + number(1))
    yield "value-number-cut-off", with_value(number(3))
    yield "value-of-an-unknown-type", with_value(number(HUGE) + b"what")
    yield "value-code-page-cut-off", stream((SUMMARY, section((1, number(2)), (2, narrow(b"A")))))
    yield "value-code-page-of-zero", stream((SUMMARY, section((1, code_page(0)), (2, narrow(b"A")))))
    yield "value-dictionary-counts-all-ones", document(number(HUGE) + narrow_names((2, b"A"))[4:])
    yield "value-dictionary-name-longer-than-it", document(number(1) + number(2) + number(HUGE))
    yield "value-dictionary-empty", document(b"\0\0\0\0")
    yield "value-dictionary-wide-name-without-padding", document(
        number(1) + number(2) + number(2) + b"A\0\0\0" + bytes(4), 1200)
    yield "value-two-of-one-identifier", stream(
        (SUMMARY, section(*one, (2, narrow(b"first")), (2, narrow(b"second")))))


def write(folder, files):
    folder.mkdir(parents=True, exist_ok=True)
    for name, data in files:
        (folder / name).write_bytes(data)


def main():
    write(HERE / "seeds" / "propertyset", seeds())
    for files in (header_faults(), section_faults(), property_faults(), value_faults()):
        write(HERE / "regressions" / "propertyset", files)


if __name__ == "__main__":
    main()
