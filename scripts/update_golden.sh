#!/usr/bin/env bash
# Writes the expected pages of all cases in tests/golden anew, from what the program composes now.
# Read the whole difference before you commit it: it is what the change does to every draft.
set -euo pipefail
cd "$(dirname "$0")/.."

cmake --preset test
cmake --build --preset test --parallel 2 --target test_draft
QUILLFORD_UPDATE_GOLDEN=1 build/test/tools/test_draft --gtest_filter='Golden.*'
git status --short -- tests/golden
git --no-pager diff --stat -- tests/golden
echo "Now read: git diff tests/golden"
