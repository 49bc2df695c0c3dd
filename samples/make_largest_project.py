#!/usr/bin/env python3
"""Writes the largest legal project: every group of fields at its upper limit.

    make_largest_project.py OUTDIR [--text-bytes N] [--picture-bytes N]

makes OUTDIR/largest.json and OUTDIR/figures/fig01.png to fig50.png: 8 inventors, 20 objects,
50 figures, 15 Main Elements with 9 Sub-Elements each. The text is English made of a small
grammar. Every field is filled, every element name and every Reference Numeral is mentioned, and
the same call always gives the same text.
"""

import argparse
import hashlib
import json
import struct
import sys
import zlib
from pathlib import Path

INVENTORS = 8
OBJECTS = 20
FIGURES = 50
MAIN_ELEMENTS = 15
SUB_ELEMENTS = 9

MAX_PICTURE_BYTES = 2_000_000
MAX_TEXT_BYTES = 50_000_000

VIEWS = [
    "upper perspective view", "exploded upper perspective view", "lower perspective view",
    "exploded lower perspective view", "front view", "rear view", "side view",
    "exploded side view", "right side view", "left side view", "end view", "top view",
    "bottom view", "flowchart illustrating the overall operation",
    "flowchart illustrating a sub-operation", "block diagram illustrating the overall",
    "block diagram illustrating a sub-component", "alternative embodiment",
    "first alternative embodiment", "second alternative embodiment",
    "third alternative embodiment", "fourth alternative embodiment",
    "fifth alternative embodiment",
]

PEOPLE = [
    ("Agnes", "B", "Colby", "Salem", "OR", "97301", "United States"),
    ("Bruno", "", "Dahl", "Duluth", "MN", "55802", "Norway"),
    ("Clara", "J", "Eames", "Toledo", "OH", "43604", "Canada"),
    ("Dmitri", "", "Falk", "Albany", "NY", "12207", "Netherlands"),
    ("Edith", "M", "Grove", "Macon", "GA", "31201", "United States"),
    ("Farid", "", "Haddad", "Fresno", "CA", "93721", "United Arab Emirates"),
    ("Greta", "S", "Ivers", "Boise", "ID", "83702", "Czech Republic"),
    ("Hugo", "T", "Jessop", "Laredo", "TX", "78040", "Mexico"),
]

MAIN_NAMES = [
    "base frame", "feed hopper", "drive shaft", "sorting drum", "belt conveyor", "lift arm",
    "air blower", "water tank", "sieve tray", "crate holder", "control box", "guard rail",
    "wheel axle", "spray nozzle", "tool rack",
]
PARTS = ["bracket", "bolt", "bushing", "cover", "spring", "lever", "washer", "handle", "guide"]

JOINED = ["bolted", "welded", "clamped", "hinged", "pinned", "screwed", "keyed", "latched"]
SIDES = ["front side", "rear side", "left side", "right side", "upper end", "lower end",
         "inner face", "outer face"]
MATERIALS = ["steel", "aluminum", "brass", "hard rubber", "molded plastic", "oak", "cast iron",
             "a fiber composite"]
SHAPES = ["round", "square", "flat", "curved", "tapered", "hollow", "slotted", "ribbed"]
ACTIONS = ["turned", "lifted", "pushed forward", "drawn back", "tilted", "pressed down",
           "swung aside", "loosened"]
RESULTS = ["the fruit rolls on without bruising", "small stones fall out of the stream",
           "the load stays level", "the crop moves at an even pace", "dust is carried away",
           "the crates fill evenly", "the operator can reach every part",
           "the machine can be cleaned quickly"]
MANNERS = ["without play", "so that it can be taken off by hand", "along its whole length",
           "at two places", "with a small gap", "in such a way that it can turn freely",
           "by means of a press fit", "before the machine is started"]
CROPS = ["apples", "onions", "potatoes", "walnuts", "plums", "carrots", "lemons", "beets"]

SENTENCES = [
    "The {a} is {joined} to the {side} of the {b} {manner}",
    "The {a} is made of {material} and has a {shape} section where it meets the {b}",
    "When the {a} is {action}, the {b} follows it and {result}",
    "A {shape} recess in the {side} of the {a} receives the {b}",
    "Because the {a} rests on the {b} {manner}, {result}",
    "The operator sees from the {side} of the {a} whether the {b} is {joined} correctly",
    "Between the {a} and the {b} there is a layer of {material}, and {result}",
    "While {crops} are sorted, the {a} is {action} and the {b} keeps its place",
    "The {a} can be {action} only after the {b} has been {action2}",
    "If the {a} wears out, it is taken off the {b} and replaced by a new one of {material}",
]


class Chooser:
    """A small generator of numbers that is the same on every machine and in every version."""

    def __init__(self, seed):
        self.state = seed

    def pick(self, items):
        self.state = (self.state * 6364136223846793005 + 1442695040888963407) % 2**64
        return items[(self.state >> 33) % len(items)]


def numeral(main, sub=0):
    return (main + 1) * 10 + sub


def sub_name(main, sub):
    """The name of Sub-Element 1 to 9 of a Main Element, as in "frame bracket"."""
    return MAIN_NAMES[main].split()[-1] + " " + PARTS[sub - 1]


def parts_of(main):
    """The Main Element and its Sub-Elements, each with its numeral: "frame bracket 11"."""
    return [f"{MAIN_NAMES[main]} {numeral(main)}"] + [
        f"{sub_name(main, k)} {numeral(main, k)}" for k in range(1, SUB_ELEMENTS + 1)]


def with_article(phrase):
    return ("an " if phrase[0] in "aeiou" else "a ") + phrase


def joined_list(items):
    return ", ".join(items[:-1]) + " and " + items[-1]


ALL_PARTS = [part for main in range(MAIN_ELEMENTS) for part in parts_of(main)]


def sentence(chooser, own_parts):
    first = chooser.pick(own_parts)
    second = chooser.pick(ALL_PARTS)
    while second == first:
        second = chooser.pick(ALL_PARTS)
    return chooser.pick(SENTENCES).format(
        a=first, b=second, joined=chooser.pick(JOINED), side=chooser.pick(SIDES),
        manner=chooser.pick(MANNERS), material=chooser.pick(MATERIALS),
        shape=chooser.pick(SHAPES), action=chooser.pick(ACTIONS), action2=chooser.pick(ACTIONS),
        result=chooser.pick(RESULTS), crops=chooser.pick(CROPS)) + "."


def prose(chooser, opening, own_parts, size):
    """The opening sentence and as many more as bring the text to about `size` characters."""
    paragraphs = []
    line = [opening]
    length = len(opening)
    while length < size:
        if len(line) == 5:
            paragraphs.append(" ".join(line))
            line = []
        text = sentence(chooser, own_parts)
        line.append(text)
        length += len(text) + 1
    paragraphs.append(" ".join(line))
    return "\r\n".join(paragraphs)


def text_length(fields):
    total = 0
    for value in fields.values():
        if isinstance(value, str):
            total += len(value)
        elif isinstance(value, list):
            total += sum(len(text) for text in value)
    return total


def introduction():
    first, initial, last, city, state, code, _ = PEOPLE[0]
    return {
        "txtFileNo": "QF-LARGEST",
        "txtInventionTitle": "Modular Harvest Sorting Machine",
        "txtTechTitle": "sorting machine",
        "txtCompany": "Colby and Partners",
        "txtNameStep1": first, "txtMIStep1": initial, "txtLastStep1": last,
        "txtAddress1Step1": "1 Mill Street", "txtAddress2Step1": "Building A",
        "txtCityStep1": city, "cboStateStep1": state, "txtZipStep1": code,
        "cboCountryStep1": "United States",
        "txtTeleStep1": "503-555-0100", "txtFacsimileStep1": "503-555-0101",
        "txtEmailStep1": "agnes.colby@example.com",
    }


def inventors():
    columns = list(zip(*PEOPLE))
    return {
        "cboInventorsNum": str(INVENTORS),
        "chkSameAsContact": 1,
        "txtNameStep2": list(columns[0]), "txtMIStep2": list(columns[1]),
        "txtLastStep2": list(columns[2]),
        "txtAddress1Step2": [f"{i + 1} Mill Street" for i in range(INVENTORS)],
        "txtAddress2Step2": ["Building A"] + [""] * (INVENTORS - 1),
        "txtCityStep2": list(columns[3]), "cboStateStep2": list(columns[4]),
        "txtZipStep2": list(columns[5]), "cboCitizenshipStep2": list(columns[6]),
    }


def object_text(chooser, number):
    return (f"sorts {CROPS[number % len(CROPS)]} in such a way that {chooser.pick(RESULTS)} "
            f"whenever the {ALL_PARTS[number * 7 % len(ALL_PARTS)]} is {chooser.pick(ACTIONS)}.")


def figure_text(chooser, number, size):
    main = number % MAIN_ELEMENTS
    opening = (f"The {MAIN_NAMES[main]} {numeral(main)} is drawn with its nine parts, each in a "
               "box of its own.")
    return prose(chooser, opening, parts_of(main), size)


def element_detail(chooser, main, size):
    whole, *parts = parts_of(main)
    opening = f"The {whole} includes {joined_list([with_article(part) for part in parts])}."
    return prose(chooser, opening, parts_of(main), size)


def make_fields(text_bytes):
    chooser = Chooser(20)
    # The shares of the whole that a figure, an element's three texts and the three long fields of
    # the last sections take. The last field takes what is left.
    per_figure = text_bytes * 20 // 100 // FIGURES
    per_element = text_bytes * 17 // 100 // MAIN_ELEMENTS
    per_section = text_bytes * 10 // 100
    mains = range(MAIN_ELEMENTS)

    fields = introduction()
    fields.update(inventors())
    fields["txtPurpose"] = ("sorting freshly harvested fruit and vegetables by size and weight, "
                            "on the field and without electric power from outside.")
    fields["cboObjectNum"] = str(OBJECTS)
    fields["txtObject"] = [object_text(chooser, i) for i in range(OBJECTS)]
    fields["cboFiguresNum"] = str(FIGURES)
    fields["txtAttachFig"] = [f"figures/{picture_name(i)}" for i in range(FIGURES)]
    fields["cboFigureType"] = [VIEWS[i % len(VIEWS)] for i in range(FIGURES)]
    fields["txtFigureDetail"] = [figure_text(chooser, i, per_figure) for i in range(FIGURES)]
    fields["txtMainElement"] = joined_list([with_article(name) for name in MAIN_NAMES]) + "."
    fields["cboMainElementNum"] = str(MAIN_ELEMENTS)
    fields["txtElementName"] = list(MAIN_NAMES)
    fields["txtElementDes"] = [
        prose(chooser, f"The {parts_of(i)[0]} is one of the fifteen units of the machine.",
              parts_of(i), per_element) for i in mains]
    fields["txtElementMain"] = list(MAIN_NAMES)
    for k in range(1, SUB_ELEMENTS + 1):
        fields[f"txtElementSub{k}"] = [sub_name(i, k) for i in mains]
    fields["txtMainElementNameDetail"] = [element_detail(chooser, i, per_element) for i in mains]
    fields["txtMainElementVariations"] = [
        prose(chooser, f"The {parts_of(i)[0]} may also be made of {chooser.pick(MATERIALS)}.",
              parts_of(i), per_element) for i in mains]
    fields["txtDesConnections"] = prose(
        chooser, "All units are connected to one another so that they move together.", ALL_PARTS,
        per_section)
    fields["txtDesAlterative"] = prose(
        chooser, "The units may be put together in another order.", ALL_PARTS, per_section)
    opening = "The machine is drawn onto the field and leveled before it is started."
    fields["txtOperation"] = prose(chooser, opening, ALL_PARTS, text_bytes - text_length(fields))
    fields["verifyPassed"] = False
    return fields


# ---- pictures ---------------------------------------------------------------------------------

# The bars of a seven-bar digit: left, top, right, bottom in a cell of 4 by 7 units.
BARS = {"a": (0, 0, 4, 1), "b": (3, 0, 4, 4), "c": (3, 3, 4, 7), "d": (0, 6, 4, 7),
        "e": (0, 3, 1, 7), "f": (0, 0, 1, 4), "g": (0, 3, 4, 4)}
DIGITS = ["abcdef", "bc", "abged", "abgcd", "fgbc", "afgcd", "afgedc", "abc", "abcdefg", "abcdfg"]

DRAWING_HEIGHT = 300
DRAWING_WIDTH = 640


def picture_name(index):
    return f"fig{index + 1:02d}.png"


class Canvas:
    """A picture of 8-bit grey values, white at the start."""

    def __init__(self, width, height):
        self.width = width
        self.height = height
        self.pixels = bytearray(b"\xff" * (width * height))

    def fill(self, left, top, right, bottom, value=0):
        run = bytes([value]) * (right - left)
        for y in range(top, bottom):
            start = y * self.width + left
            self.pixels[start:start + len(run)] = run

    def frame(self, left, top, right, bottom, line=2):
        self.fill(left, top, right, bottom)
        self.fill(left + line, top + line, right - line, bottom - line, 255)

    def number(self, value, left, top, unit=3):
        for digit in str(value):
            for bar in DIGITS[int(digit)]:
                x0, y0, x1, y1 = (unit * edge for edge in BARS[bar])
                self.fill(left + x0, top + y0, left + x1, top + y1)
            left += 5 * unit

    def png(self):
        rows = bytearray()
        for y in range(self.height):
            rows.append(0)
            rows += self.pixels[y * self.width:(y + 1) * self.width]
        header = struct.pack(">IIBBBBB", self.width, self.height, 8, 0, 0, 0, 0)
        return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header)
                + chunk(b"IDAT", zlib.compress(bytes(rows), 6)) + chunk(b"IEND", b""))


def chunk(kind, data):
    return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))


def draw(index, noise_bytes, width):
    """Ten boxes with their numerals, and below them a band of noise that fills up the size."""
    noise_rows = -(-noise_bytes // width)
    canvas = Canvas(width, DRAWING_HEIGHT + noise_rows)
    main = index % MAIN_ELEMENTS
    for part in range(SUB_ELEMENTS + 1):
        left = 30 + part % 5 * 120
        top = 30 + part // 5 * 135
        canvas.frame(left, top, left + 90, top + 70)
        canvas.fill(left + 44, top + 70, left + 46, top + 85)
        canvas.number(numeral(main, part), left + 30, top + 90)
    noise = hashlib.shake_128(b"figure %d" % index).digest(noise_bytes)
    start = DRAWING_HEIGHT * width
    canvas.pixels[start:start + noise_bytes] = noise
    return canvas.png()


def make_picture(index, wanted):
    """A picture whose file has about `wanted` bytes; a drawing without noise at the least."""
    width = max(DRAWING_WIDTH, int(wanted ** 0.5 * 1.15))
    noise_bytes = max(0, wanted - len(draw(index, 0, width)))
    surplus = len(draw(index, noise_bytes, width)) - wanted
    return draw(index, max(0, noise_bytes - surplus), width)


# ---- command line -----------------------------------------------------------------------------

def number_up_to(limit):
    def parse(text):
        value = int(text)
        if not 0 <= value <= limit:
            raise argparse.ArgumentTypeError(f"must be from 0 to {limit}")
        return value
    return parse


def main():
    parser = argparse.ArgumentParser(description="Writes the largest legal project.")
    parser.add_argument("outdir", type=Path, metavar="OUTDIR")
    parser.add_argument("--text-bytes", type=number_up_to(MAX_TEXT_BYTES), default=1_000_000,
                        metavar="N", help="text of all fields together (default 1000000; "
                        "never less than the required sentences)")
    parser.add_argument("--picture-bytes", type=number_up_to(MAX_PICTURE_BYTES), default=20_000,
                        metavar="N", help="size of each picture file (default 20000, at most "
                        f"{MAX_PICTURE_BYTES}; never less than the bare drawing)")
    arguments = parser.parse_args()

    figures = arguments.outdir / "figures"
    try:
        figures.mkdir(parents=True, exist_ok=True)
        for index in range(FIGURES):
            picture = make_picture(index, arguments.picture_bytes)
            (figures / picture_name(index)).write_bytes(picture)
        text = json.dumps(make_fields(arguments.text_bytes), indent=2, ensure_ascii=False)
        (arguments.outdir / "largest.json").write_text(text + "\n", encoding="utf-8", newline="\n")
    except OSError as error:
        sys.exit(f"make_largest_project.py: {error}")


if __name__ == "__main__":
    main()
