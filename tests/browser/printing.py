"""Prints a page with a browser and reads paper back with poppler's tools. Lengths are points,
counted from the upper left corner of the sheet."""
import html
import os
import re
import shutil
import signal
import subprocess
from dataclasses import dataclass
from pathlib import Path

TOOLS = ["pdffonts", "pdftotext", "pdfimages", "pdftoppm"]
SECONDS_FOR_CHROMIUM = 120

# The browser starts from nothing, asks nothing of anybody and finds no host.
CHROMIUM_OPTIONS = [
    "--headless", "--no-sandbox", "--disable-gpu", "--disable-background-networking",
    "--disable-component-update", "--disable-sync", "--no-first-run",
    "--disable-default-apps", "--disable-extensions", "--disable-dev-shm-usage",
    "--host-resolver-rules=MAP * ~NOTFOUND", "--no-pdf-header-footer",
]

NUMBER = r'"([\d.]+)"'
PAGE = re.compile(rf"<page width={NUMBER} height={NUMBER}>(.*?)</page>", re.DOTALL)
LINE = re.compile(rf"<line xMin={NUMBER} yMin={NUMBER} xMax={NUMBER} yMax={NUMBER}>(.*?)</line>",
                  re.DOTALL)
WORD = re.compile(r">([^<]*)</word>")


def missing_tools(printer):
    tools = TOOLS + ["chromium"] if printer == "browser" else TOOLS
    return [tool for tool in tools if shutil.which(tool) is None]


@dataclass
class Line:
    text: str
    left: float
    top: float
    right: float
    bottom: float

    @property
    def centre(self):
        return (self.left + self.right) / 2

    @property
    def type_size(self):
        """The type is Liberation Serif or Times, whose lines are 1.107 times as high."""
        return (self.bottom - self.top) / 1.107


@dataclass
class Picture:
    page: int
    width: int  # in pixels of the file
    height: int
    x_ppi: int
    y_ppi: int


@dataclass
class Font:
    name: str
    is_embedded: bool
    is_readable: bool  # its letters are known, so that text can be searched and copied


class Sheet:
    """One page as an image of grey values, 4 pixels to the point."""
    SCALE = 4

    def __init__(self, pgm):
        head = re.match(rb"P5\s+(\d+)\s+(\d+)\s+255\s", pgm)
        self.width, self.height = int(head[1]), int(head[2])
        self._values = pgm[head.end():]

    def is_dark(self, x, y):
        column, row = round(x * self.SCALE), round(y * self.SCALE)
        return self._values[row * self.width + column] < 128

    def dark_run_right(self, x, y):
        """How far the paper is dark from here to the right."""
        return self._run(x, y, 1, 0)

    def dark_run_down(self, x, y):
        return self._run(x, y, 0, 1)

    def _run(self, x, y, dx, dy):
        steps = 0
        while self.is_dark(x + steps * dx / self.SCALE, y + steps * dy / self.SCALE):
            steps += 1
        return steps / self.SCALE


class Paper:
    """A printed page: its sheets, their lines of text from top to bottom, and its pictures."""

    def __init__(self, pdf):
        self._pdf = pdf
        text = _output("pdftotext", "-bbox-layout", pdf, "-").decode("utf-8")
        self.sizes = []
        self.pages = []
        for width, height, content in PAGE.findall(text):
            self.sizes.append((float(width), float(height)))
            self.pages.append(_lines(content))

    def pictures(self):
        rows = _output("pdfimages", "-list", self._pdf).decode().splitlines()[2:]
        found = []
        for row in rows:
            cells = row.split()
            if cells[2] == "image":
                found.append(Picture(int(cells[0]), int(cells[3]), int(cells[4]), int(cells[12]),
                                     int(cells[13])))
        return found

    def fonts(self):
        rows = _output("pdffonts", self._pdf).decode().splitlines()[2:]
        return [Font(row.split()[0], row.split()[-5] == "yes", row.split()[-3] == "yes")
                for row in rows]

    def sheet(self, page):
        return Sheet(_output("pdftoppm", "-gray", "-r", str(72 * Sheet.SCALE), "-f", str(page),
                             "-l", str(page), self._pdf))


class FootedPaper(Paper):
    """Paper with a line at the foot of each page, which is no part of its text."""

    def __init__(self, pdf):
        super().__init__(pdf)
        self.feet = [page.pop() for page in self.pages]


def _lines(content):
    """Parts of a line that stand far apart come as lines of their own: they are put together."""
    parts = [Line(html.unescape(" ".join(WORD.findall(words))), *map(float, box))
             for *box, words in LINE.findall(content)]
    parts.sort(key=lambda part: (round(part.top), part.left))
    lines = []
    for part in parts:
        if lines and abs(lines[-1].top - part.top) < 1:
            lines[-1].text += " " + part.text
            lines[-1].right = part.right
        else:
            lines.append(part)
    return lines


def _output(*command):
    return subprocess.run(command, check=True, stdout=subprocess.PIPE).stdout


def environment(folder):
    """An environment in which a program meets no file of the user."""
    variables = ("HOME", "Temp", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME",
                 "XDG_STATE_HOME", "XDG_RUNTIME_DIR")
    return {**os.environ, **{variable: str(folder) for variable in variables}}


def print_page(page, folder):
    """Prints the HTML file `page` and gives the paper. Everything is written below `folder`."""
    pdf = Path(folder) / (Path(page).stem + ".pdf")
    command = ["chromium", *CHROMIUM_OPTIONS, f"--user-data-dir={folder}/profile",
               f"--print-to-pdf={pdf}", Path(page).as_uri()]
    browser = subprocess.Popen(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                               env=environment(folder), start_new_session=True)
    try:
        messages, _ = browser.communicate(timeout=SECONDS_FOR_CHROMIUM)
    except subprocess.TimeoutExpired:
        os.killpg(browser.pid, signal.SIGKILL)  # the browser's own processes, and no others
        browser.communicate()
        raise
    if browser.returncode != 0 or not pdf.exists():
        raise RuntimeError(f"chromium printed nothing: {messages.decode(errors='replace')}")
    return Paper(pdf)
