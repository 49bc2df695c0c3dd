#!/usr/bin/env python3
"""Makes the small project files of fuzz/seeds/project, and the damaged ones of
fuzz/regressions/project.

    fuzz/make_project_seeds.py build/test/tools/write_project

The files stand in the tree: run this again only when the format or the samples change.
"""
import json
import subprocess
import sys
import tempfile
from pathlib import Path

HERE = Path(__file__).resolve().parent
SAMPLE = HERE.parent / "samples" / "pencil-clip" / "pencil-clip.json"


def main():
    seeds = HERE / "seeds" / "project"
    seeds.mkdir(parents=True, exist_ok=True)
    project = json.loads(SAMPLE.read_text(encoding="utf-8"))
    with tempfile.TemporaryDirectory() as name:
        folder = Path(name)

        def save(seed, **changes):
            source = folder / "project.json"
            source.write_text(json.dumps({**project, **changes}), encoding="utf-8")
            subprocess.run([sys.argv[1], source, seeds / seed], check=True)

        for old in seeds.iterdir():
            old.unlink()
        (folder / "a.png").write_bytes(bytes(range(200)))
        (folder / "b.png").write_bytes(bytes(5000))
        figures = {"cboFiguresNum": "2", "txtAttachFig": ["a.png", "b.png"],
                   "cboFigureType": ["front view", "top view"], "txtFigureDetail": ["", "seen"]}
        save("sample")
        save("two-pictures", **figures)
        save("saved-over", **figures, txtOperation="long " * 1500)
        save("saved-over")
    make_damaged((seeds / "sample").read_bytes(), project["txtFileNo"].encode("utf-16-le"))


def make_damaged(sample, first_field):
    folder = HERE / "regressions" / "project"
    folder.mkdir(parents=True, exist_ok=True)
    place = sample.index(first_field) - 4
    (folder / "field-longer-than-memory").write_bytes(
        sample[:place] + b"\xff\xff\xff\x7f" + sample[place + 4:])
    (folder / "field-of-negative-length").write_bytes(
        sample[:place] + b"\xff\xff\xff\xff" + sample[place + 4:])
    (folder / "cut-in-the-middle").write_bytes(sample[:len(sample) // 2])


if __name__ == "__main__":
    main()
