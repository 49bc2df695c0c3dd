#!/usr/bin/env python3
"""Kills the running program while its user types, and looks what is left.

    crash_rounds.py CRASH_TYPIST QUILLFORD_CLI SAMPLES [ROUNDS] [SEED] [--together N] [--brief]

A round opens a project from a file, with a home of its own, and has a user type into it at random,
with the autosave at its own pace. After a while the program is killed: in the middle of a save, at
the writing of its settings, or at any time. Then it is started again with the same home, as its user
would. Once a save was finished, the project is listed as recovered, opens, and every field holds what
it held at the last finished save or at the save that was cut short; but for the fields of the one
stream that was being written, which are counted. Before that, the user's file or its backup is whole.

Prints one line for each broken promise and one with the counts. Status 1 when a promise was broken;
the folder of such a round is kept.
"""
import argparse
import concurrent.futures
import ctypes
import hashlib
import json
import os
import random
import select
import shutil
import signal
import struct
import subprocess
import sys
import tempfile
import threading
import time
from collections import Counter
from pathlib import Path

PATIENCE = 60  # seconds for what ought to take one
RECOVERED = " (RECOVERED FILE)"
# A list that was saved empty leaves the first row of a new project.
KEPT_WHEN_EMPTY = {"cboStateStep1", "cboCountryStep1"}
TICKS_TO_SAVE = 6


class Broken(Exception):
    """A promise of the program that was not kept."""


class Watch:
    """Tells when something is written in a few folders: a thin layer over inotify."""

    IN_MODIFY, IN_CREATE, IN_MOVED_TO = 0x2, 0x100, 0x80
    HEAD = struct.Struct("iIII")

    def __init__(self, *folders):
        self.libc = ctypes.CDLL(None, use_errno=True)
        self.descriptor = self.libc.inotify_init1(os.O_CLOEXEC)
        mask = self.IN_MODIFY | self.IN_CREATE | self.IN_MOVED_TO
        for folder in folders:
            if self.libc.inotify_add_watch(self.descriptor, os.fsencode(folder), mask) < 0:
                raise OSError(ctypes.get_errno(), f"{folder} cannot be watched")

    def wait(self, until):
        """The names of what was written, or none when the time has come."""
        if not select.select([self.descriptor], [], [], max(0, until - time.monotonic()))[0]:
            return []
        data, names = os.read(self.descriptor, 65536), []
        while data:
            length = self.HEAD.unpack_from(data)[3]
            names.append(data[self.HEAD.size:self.HEAD.size + length].rstrip(b"\0").decode())
            data = data[self.HEAD.size + length:]
        return names

    def close(self):
        os.close(self.descriptor)


def spin(seconds):
    end = time.perf_counter() + seconds
    while time.perf_counter() < end:
        pass


class Journal:
    """What the typist wrote down; a last line that was cut off does not count."""

    def __init__(self, path):
        self.events = []
        if path.exists():
            for line in path.read_bytes().split(b"\n")[:-1]:
                self.events.append(json.loads(line))
        opened = [e for e in self.events if e["event"] == "opened"]
        self.opened = opened[0] if opened else None
        self.finished = self.opened  # what must be there
        self.cut_short = None        # what may be there as well
        self.saves = 0
        for event in self.events:
            if event["event"] == "before":
                self.cut_short = event
            elif event["event"] == "saved":
                self.finished, self.cut_short = self.cut_short, None
                self.saves += 1
            elif event["event"] == "idle":
                self.cut_short = None


class Round:
    def __init__(self, tools, number, seed, folder, brief):
        self.tools, self.number, self.folder = tools, number, folder
        self.seed = seed * 100003 + number
        self.chance = random.Random(self.seed)
        self.brief = brief
        self.counts = Counter()

    # The crash

    def environment(self, temp):
        home = self.folder
        environment = {name: value for name, value in os.environ.items()
                       if not name.startswith(("QT_", "XDG_")) and name not in ("DISPLAY", "Temp")}
        (home / temp).mkdir()
        return environment | {
            "HOME": str(home), "XDG_CONFIG_HOME": str(home / "config"),
            "XDG_DATA_HOME": str(home / "data"), "XDG_CACHE_HOME": str(home / "cache"),
            "XDG_STATE_HOME": str(home / "state"), "XDG_RUNTIME_DIR": str(home / "run"),
            "Temp": str(home / temp), "QT_QPA_PLATFORM": "offscreen", "QUILLFORD_TIME_SCALE": "0"}

    def run(self):
        self.prepare()
        with open(self.folder / "typist.txt", "w") as errors:
            typist = subprocess.Popen(
                [self.tools.typist, "type", self.project, self.journal, str(self.seed % 2**32),
                 *self.pictures],
                env=self.environment("temp"), stdout=errors, stderr=errors, cwd=self.folder)
            try:
                self.wait_for_the_moment(typist)
                ended = typist.poll()
            finally:
                typist.kill()
                typist.wait()
        if ended not in (None, -signal.SIGKILL):
            raise Broken(f"the program ended by itself with status {ended}: "
                         + last_line((self.folder / "typist.txt").read_text()))
        self.judge(Journal(self.journal))

    def prepare(self):
        self.projects = self.folder / "projects"
        self.projects.mkdir()
        (self.folder / "config/Quillford").mkdir(parents=True)
        (self.folder / "journal").mkdir()
        self.project = self.projects / "project.ivd"
        self.sample = self.chance.choice(self.tools.samples)
        shutil.copyfile(self.sample, self.project)
        self.journal = self.folder / "journal/journal"
        self.pictures = []
        for name, side in (("small.bmp", 20), ("middle.bmp", 180), ("large.bmp", 560)):
            self.pictures.append(self.folder / name)
            self.pictures[-1].write_bytes(bitmap(side, self.chance))

    def wait_for_the_moment(self, typist):
        ways = {"save": self.at_a_save, "write": self.at_a_write, "list": self.at_the_settings,
                "any time": self.at_any_time}
        self.way = self.chance.choices(list(ways), weights=(45, 20, 10, 25))[0]
        self.until = time.monotonic() + PATIENCE
        if self.is_open_in_time(typist):
            ways[self.way](typist)

    def is_open_in_time(self, typist):
        """Now and then the program does not live to see the project open."""
        patience = self.chance.uniform(0, 1) if self.chance.random() < 0.05 else PATIENCE
        until = time.monotonic() + patience
        while not self.journal.exists() or not self.journal.stat().st_size:
            if typist.poll() is not None or time.monotonic() > until:
                return False
            time.sleep(0.01)
        return True

    def saves_to_see(self):
        return self.chance.choice((0, 1, 1, 1) if self.brief else (0, 1, 1, 1, 2, 2, 3, 4))

    def at_a_save(self, typist):
        """Behind the last line of the journal before a save, up to the middle of its writing."""
        watch, saves, idle, seen = Watch(self.journal.parent), self.saves_to_see(), 0, 0
        delay = self.chance.choice((self.chance.uniform(0, 0.0004), self.chance.uniform(0, 0.002),
                                    self.chance.uniform(0, 0.02)))
        with open(self.journal, "rb") as journal:
            while typist.poll() is None and watch.wait(self.until):
                for line in journal.read().splitlines():
                    if line.startswith(b'{"event":"idle"'):
                        idle += 1
                    elif line.startswith(b'{"event":"saved"'):
                        seen, idle = seen + 1, 0
                    elif line.startswith(b'{"event":"before"') and (
                            idle >= TICKS_TO_SAVE - 1 and seen >= saves):
                        spin(delay)
                        typist.kill()
                        watch.close()
                        return
        watch.close()

    def at_a_write(self, typist):
        """Behind the first write of a save, a user's included, up to its end."""
        self.after_writes_in(typist, self.projects, self.chance.choice(
            (self.chance.uniform(0, 0.0005), self.chance.uniform(0, 0.05))))

    def at_the_settings(self, typist):
        self.after_writes_in(typist, self.folder / "config/Quillford",
                             self.chance.uniform(0, 0.001))

    def after_writes_in(self, typist, folder, delay):
        watch, saves, last = Watch(folder), self.saves_to_see(), 0.0
        while typist.poll() is None and watch.wait(self.until):
            now = time.monotonic()
            saves -= now - last > 0.3
            last = now
            if saves < 0:
                spin(delay)
                typist.kill()
                break
        watch.close()

    def at_any_time(self, typist):
        time.sleep(self.chance.uniform(0, 9 if self.brief else 18))

    # What is left

    def judge(self, journal):
        self.counts["in a save"] += journal.cut_short is not None and self.was_written(journal)
        if journal.opened is None:
            self.counts["before the project was open"] += 1
            self.demand_the_original()
            return
        self.sections = journal.opened["sections"]
        if journal.saves == 0:
            self.counts["before the first save was finished"] += 1
            self.judge_first_save(journal)
            return
        self.counts["later"] += 1
        self.judge_recovery(journal)

    def was_written(self, journal):
        """Whether the save that was cut short has begun to write."""
        path = Path(journal.cut_short["path"])
        wall = time.time() - time.monotonic() + journal.cut_short["time"]
        return path.exists() and path.stat().st_mtime >= wall - 0.004

    def demand_the_original(self):
        if self.project.read_bytes() != self.sample.read_bytes():
            raise Broken("the file was changed before any save was finished")

    def judge_first_save(self, journal):
        if journal.cut_short is None:
            self.demand_the_original()
            return
        shown = self.shown_of_file(self.project)
        if any(self.lost(state["fields"], shown) == {}
               for state in (journal.opened, journal.cut_short)):
            return
        backups = list(self.folder.glob("Documents/*/Drafts/*.ivd"))
        if not any(self.lost(journal.opened["fields"], self.shown_of_file(path)) == {}
                   for path in backups):
            raise Broken("neither the user's file nor its backup is what it was")
        self.counts["whole in the backup"] += 1

    def shown_of_file(self, path):
        shown = subprocess.run([self.tools.cli, "show", path], env=dict(os.environ, HOME=self.folder),
                               capture_output=True, text=True, timeout=PATIENCE)
        return json.loads(shown.stdout) if shown.returncode == 0 else {}

    def judge_recovery(self, journal):
        place = "menu" if self.number % 2 else "page"
        look = subprocess.run([self.tools.typist, "look", place], cwd=self.folder,
                              env=self.environment("look"), capture_output=True, text=True,
                              timeout=PATIENCE)
        if look.returncode != 0:
            raise Broken(f"the program cannot open it: {last_line(look.stderr)}")
        report = json.loads(look.stdout.splitlines()[-1])
        (self.folder / "look.json").write_text(json.dumps(report, indent=1))
        for place in ("menu", "page"):
            if not report[place] or not report[place][0].endswith(RECOVERED):
                raise Broken(f"the {place} does not list it as recovered: {report[place]}")
        if report["welcome"]:
            raise Broken("the project is listed and does not open")
        name = report["menu"][0].removesuffix(RECOVERED).partition(" - ")[2] + ".ivd"
        self.judge_fields(journal, name, report["fields"])

    def judge_fields(self, journal, name, shown):
        states = [state for state in (journal.finished, journal.cut_short)
                  if state and Path(state["path"]).name == name]
        if not states:
            raise Broken(f"{name} is not the project that was saved last")
        pictures = {p["index"]: p["sha256"]
                    for p in self.shown_of_file(self.projects / name).get("Pictures", [])}
        losses = {}
        for stream in range(1, 9):
            lost = [self.lost(state["fields"], shown, stream) for state in states]
            if all(lost):
                losses[f"Section {stream}"] = min(lost, key=len)
        losses |= self.lost_pictures(states, pictures)
        self.tell_stage(states, shown)
        if len(losses) > 1 or losses and journal.cut_short is None:
            raise Broken(f"lost, after {journal.saves} saves: " + json.dumps(losses))
        for lost in losses.values():
            self.counts["fields of the stream under the pen"] += len(lost)

    def lost(self, expected, shown, section=None):
        """The fields that do not hold what they held, with what they hold."""
        lost = {}
        for name, value in expected.items():
            if section not in (None, self.sections[name]):
                continue
            now = shown.get(name)
            if not isinstance(value, list):
                value, now, names = [value], [now], [name]
            else:
                names = [f"{name}({i})" for i in range(len(value))]
                now = (now or []) + [None] * len(value)
            for one, before, after in zip(names, value, now):
                if isinstance(after, int):
                    after = str(after)
                if before.strip(" ") == (after or "").strip(" ") and after is not None:
                    continue
                if not before and one in KEPT_WHEN_EMPTY:
                    continue
                lost[one] = after
        return lost

    def lost_pictures(self, states, stored):
        """The figures that have a picture in all states, and none of these is stored."""
        wanted = [{i: path for i, path in enumerate(state["fields"]["txtAttachFig"]) if path}
                  for state in states]
        lost = {}
        for figure in set.intersection(*map(set, wanted)):
            if stored.get(figure) not in [digest(state[figure]) for state in wanted]:
                lost[f"Pictures/Index {figure}"] = {f"picture {figure}": stored.get(figure)}
        return lost

    def tell_stage(self, states, shown):
        if len(states) < 2:
            return
        ages = {"old" if self.lost(states[1]["fields"], shown, stream) else "new"
                for stream in range(1, 9)
                if any(states[0]["fields"][name] != states[1]["fields"][name]
                       for name in self.sections if self.sections[name] == stream)}
        self.counts["some streams old, some new"] += len(ages) == 2


def last_line(text):
    return (text.strip().splitlines() or [""])[-1]


def digest(path):
    return hashlib.sha256(Path(path).read_bytes()).hexdigest()


def bitmap(side, chance):
    row = 3 * side + -3 * side % 4
    size = 54 + row * side
    return (struct.pack("<2sIHHI", b"BM", size, 0, 0, 54)
            + struct.pack("<IiiHHIIiiII", 40, side, side, 1, 24, 0, row * side, 2835, 2835, 0, 0)
            + chance.randbytes(row * side))


class Tools:
    def __init__(self, typist, cli, samples):
        self.typist, self.cli = Path(typist).resolve(), Path(cli).resolve()
        self.samples = sorted(Path(samples).resolve().glob("*.ivd"))


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("typist")
    parser.add_argument("cli")
    parser.add_argument("samples")
    parser.add_argument("rounds", nargs="?", type=int, default=20)
    parser.add_argument("seed", nargs="?", type=int, default=random.SystemRandom().randrange(10**6))
    parser.add_argument("--together", type=int, default=10, help="rounds side by side")
    parser.add_argument("--brief", action="store_true", help="few seconds a round")
    options = parser.parse_args()
    tools = Tools(options.typist, options.cli, options.samples)
    place = Path(tempfile.mkdtemp(prefix="quillford-crash-"))
    counts, broken, lock = Counter(), [], threading.Lock()

    def play(number):
        folder = place / f"round-{number}"
        folder.mkdir()
        played = Round(tools, number, options.seed, folder, options.brief)
        try:
            played.run()
            # A helper of the desktop that the program had started may still be at work in it.
            shutil.rmtree(folder, ignore_errors=True)
        except Broken as promise:
            with lock:
                broken.append(number)
                print(f"round {number} ({played.way}): {promise}; see {folder}", flush=True)
        with lock:
            counts.update(played.counts)

    print(f"seed {options.seed}", flush=True)
    with concurrent.futures.ThreadPoolExecutor(options.together) as pool:
        for future in [pool.submit(play, number) for number in range(options.rounds)]:
            future.result()
    told = ", ".join(f"{count} {what}" for what, count in sorted(counts.items()))
    print(f"{options.rounds} rounds, {len(broken)} broken: {told}")
    if not broken:
        shutil.rmtree(place, ignore_errors=True)
    return 1 if broken else 0


if __name__ == "__main__":
    sys.exit(main())
