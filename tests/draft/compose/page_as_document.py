"""What the Word document of a Final Draft says, told from the page of the same project.

Both are one composition. What is different between them is said here, place by place, and nothing
else is: a difference that is not found where it belongs is an error.
"""
import html
import re
import string

PICTURE = "\N{OBJECT REPLACEMENT CHARACTER}"
# On the page a paragraph of a long field is opened by these, in the document by a tab.
INDENT = "&nbsp;" * 12
LETTER_GAP = "&nbsp;" * 9

OBJECTS = "Other objects and advantages of the "
CLAIM = re.compile(r"( BROADEST POSSIBLE LEGALLY VALID CLAIM FOR THE )(.*?)( AND/OR INVENTION )",
                   re.DOTALL)
CLOSING = "Unless otherwise defined, all technical and scientific terms"

PARTS = re.compile(r'<p(?: class="([\w-]*)")?>(.*?)</p>|<br>', re.DOTALL)


class PageError(Exception):
    """The page is not as it should be."""


def require(condition, what):
    if not condition:
        raise PageError(what)


class Differences:
    """Turns the parts of a page into the paragraphs of the document, one after another."""

    def __init__(self):
        self.lines = []
        self.letters = iter(string.ascii_uppercase)
        self.told = []
        self.last_kind = ""
        self.breaks = 0
        self.is_filled = False

    def add(self, text):
        self.lines += text_of(text).split("\n")

    def paragraph(self, kind, text):
        self.end_breaks()
        getattr(self, "add_" + (kind or "text").replace("-", "_"), self.add)(text)
        self.last_kind = kind

    def end_breaks(self):
        """Line breaks between the copies of a block: the document parts figures by two line ends,
        the elements of the index by one, of which each ends a paragraph; the others by none."""
        empty = {"figure": (2, 1), "element": (1, 1)}.get(self.last_kind, (1, 0))
        if self.breaks:
            require(self.breaks == empty[0], f"{self.breaks} line breaks behind {self.last_kind}")
            self.lines += [""] * empty[1]
        self.breaks = 0

    def tell(self, difference):
        self.told.append(difference)

    def add_section(self, text):
        self.is_filled = False
        if text == "ABSTRACT OF THE DISCLOSURE":
            self.tell("abstract")
            text = "ABSTRACT"
        self.add(text)

    def add_centred(self, text):
        require(text == "Index of Elements", f"heading of the index: {text}")
        self.tell("index")
        self.add("INDEX OF ELEMENTS")

    def add_lettered(self, text):
        """The letters are a list of the document's."""
        letter = next(self.letters)
        require(text.startswith(letter + "." + LETTER_GAP), f"heading {letter}: {text}")
        text = text.removeprefix(letter + "." + LETTER_GAP)
        self.is_filled = text != "Overview"
        self.tell("letter")
        self.add(text)

    def add_objects(self, text):
        """Each has a tab before it. The tags leave an empty line behind several of them."""
        objects = text.split("<br>")
        for sentence in objects:
            require(sentence.startswith("Another object is to provide "), f"object: {sentence}")
            self.add("\t" + sentence)
        self.tell("objects")
        if len(objects) > 1:
            self.lines.append("")

    def add_text(self, text):
        if text.startswith(OBJECTS + "present invention"):
            self.tell("various embodiments")
            text = OBJECTS + "various embodiments of the " + text.removeprefix(OBJECTS)
        elif text.startswith("BE IT KNOWN THAT "):
            text = self.with_single_blanks(text)
        elif text.startswith(CLOSING):
            self.is_filled = False
        elif CLAIM.search(text):
            text = CLAIM.sub(self.upper_title, text, count=1)
        if self.is_filled:
            text = "" if text == "&nbsp;" else "\t" + text
        self.add(text)

    def with_single_blanks(self, text):
        """Between two inventors the page has the blank of the separator and that of the block."""
        inventors = text.count(", a citizen of ")
        require(text.count(",  ") == inventors - 1, f"inventors: {text}")
        self.tell("inventors")
        return text.replace(",  ", ", ")

    def upper_title(self, match):
        require(match[2] == match[2].lower(), f"title in the claims: {match[2]}")
        self.tell("claim")
        return match[1] + match[2].upper() + match[3]

    def add_drawing(self, text):
        self.add(re.sub(r"<img [^>]*> ", PICTURE, text))

    def add_element(self, text):
        """An empty line is none in the document, and three digits have three blanks behind them."""
        if re.match(r"(<b>)?\d{3}:", text):
            text, count = re.subn(r":  (?! )", ":   ", text, count=1)
            require(count == 1, f"numeral: {text}")
        if text:
            self.add(text)


def text_of(text):
    """The characters of a paragraph, with a line feed for each line end."""
    text = text.replace(INDENT, "\t").replace("<br>", "\n")
    text = html.unescape(re.sub(r"</?[bu]>", "", text))
    return text.replace("\r\n", "\n").replace("\r", "\n")


def document_lines(page):
    """The header and the paragraphs of the document, from the text of the page."""
    differences = Differences()
    for match in PARTS.finditer(page[page.index("<body"):]):
        if match[0] == "<br>":
            differences.breaks += 1
        else:
            differences.paragraph(match[1], match[2])
    told = sorted(what for what in differences.told if what != "letter")
    require(told == ["abstract", "claim", "index", "inventors", "objects", "various embodiments"],
            f"the differences that were found are {told}")
    return differences.lines
