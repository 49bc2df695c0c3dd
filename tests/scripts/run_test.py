#!/usr/bin/env python3
"""Runs scripts/run in a small tree: run_test.py PROGRAM ROOT_OF_THE_TREE.

The tree has the real scripts, presets and samples, but "builds" the program by copying the one that
was built already, so that the test takes seconds.
"""
import os
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

PROGRAM = Path(sys.argv[1]).resolve()
ROOT = Path(sys.argv[2]).resolve()

CMAKE_LISTS = f"""cmake_minimum_required(VERSION 3.25)
project(Quillford LANGUAGES NONE)
add_custom_command(OUTPUT Quillford/quillford-cli
  COMMAND "${{CMAKE_COMMAND}}" -E make_directory Quillford
  COMMAND "${{CMAKE_COMMAND}}" -E copy "{PROGRAM}" Quillford/quillford-cli
  DEPENDS source.txt COMMENT "Building the program")
add_custom_target(program ALL DEPENDS Quillford/quillford-cli)
"""


class RunTest(unittest.TestCase):
    def setUp(self):
        self.place = Path(tempfile.mkdtemp(prefix="quillford-run-test-"))
        self.addCleanup(shutil.rmtree, self.place)
        self.tree = self.place / "my tree"
        for folder in ("scripts", "samples"):
            shutil.copytree(ROOT / folder, self.tree / folder)
        shutil.copy(ROOT / "CMakePresets.json", self.tree)
        # Nothing is ever installed by a test.
        (self.tree / "scripts/packages.txt").write_text("# none\n")
        (self.tree / "CMakeLists.txt").write_text(CMAKE_LISTS)
        (self.tree / "source.txt").touch()

    def run_script(self, *arguments, display=None):
        environment = dict(os.environ, HOME=str(self.place))
        for name in ("DISPLAY", "WAYLAND_DISPLAY", "Temp"):
            environment.pop(name, None)
        environment.update(display or {})
        return subprocess.run([self.tree / "scripts/run", *arguments], cwd=self.place,
                              env=environment, capture_output=True, text=True, timeout=300)

    def expect_draft(self, result, name):
        draft = self.tree / "build/release" / name
        self.assertEqual(result.returncode, 0, result.stderr)
        self.assertEqual(result.stdout.splitlines()[-1], f"The Final Draft lies in {draft}")
        return draft.read_text(encoding="utf-8")

    def build_files(self):
        return {p: p.stat().st_mtime_ns for p in (self.tree / "build").rglob("*")
                if p.is_file() and p.suffix != ".htm"}

    def test_without_a_project_it_composes_the_sample(self):
        self.assertIn("Folding Field Easel",
                      self.expect_draft(self.run_script(), "folding-easel.htm"))

    def test_with_a_display_it_starts_the_wizard_with_the_project(self):
        self.run_script()
        wizard = self.tree / "build/release/Quillford/quillford"
        wizard.write_text('#!/bin/sh\necho "the wizard: $# $1"\n')
        wizard.chmod(0o755)
        for display in ({"DISPLAY": ":7"}, {"WAYLAND_DISPLAY": "wayland-0"}):
            started = self.run_script(display=display)
            self.assertEqual(started.stdout.splitlines()[-1], "the wizard: 0 ")
            opened = self.run_script("my clip.ivd", display=display)
            self.assertEqual(opened.stdout.splitlines()[-1],
                             f"the wizard: 1 {self.place}/my clip.ivd")

    def test_a_second_run_builds_nothing_and_says_only_where_the_draft_lies(self):
        first = self.run_script()
        self.assertIn("Building the program", first.stdout)
        before = self.build_files()
        second = self.run_script()
        self.expect_draft(second, "folding-easel.htm")
        self.assertEqual(len(second.stdout.splitlines()), 1)
        self.assertEqual(second.stderr, "")
        self.assertEqual(self.build_files(), before)

    def test_a_change_is_built_and_then_no_more(self):
        for changed in ("source.txt", "CMakeLists.txt", "CMakePresets.json"):
            self.run_script()
            with open(self.tree / changed, "a", encoding="utf-8") as file:
                file.write("\n")
            self.assertGreater(len(self.run_script().stdout.splitlines()), 1, changed)
            self.assertEqual(len(self.run_script().stdout.splitlines()), 1, changed)

    def test_a_project_is_found_from_the_folder_of_the_caller(self):
        project = self.place / "my clip \u00e9.v1.json"
        shutil.copy(ROOT / "samples/pencil-clip/pencil-clip.json", project)
        self.expect_draft(self.run_script(project.name), "my clip \u00e9.v1.htm")
        self.expect_draft(self.run_script(project), "my clip \u00e9.v1.htm")
        project.rename(self.place / "-clip.json")
        self.expect_draft(self.run_script("-clip.json"), "-clip.htm")

    def test_a_failure_is_the_program_s_own_and_claims_no_draft(self):
        self.run_script()
        result = self.run_script("missing.json")
        self.assertEqual(result.returncode, 2)
        self.assertEqual(result.stdout, "")
        self.assertEqual(result.stderr, f"quillford-cli: {self.place}/missing.json: "
                                        "No such file or directory\n")

    def test_a_build_that_fails_ends_the_run_with_its_reason(self):
        (self.tree / "source.txt").unlink()
        result = self.run_script()
        self.assertNotEqual(result.returncode, 0)
        self.assertIn("source.txt", result.stdout + result.stderr)
        self.assertNotIn("Final Draft", result.stdout)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
