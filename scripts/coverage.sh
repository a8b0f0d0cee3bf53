#!/usr/bin/env bash
# Measures how much of the program its own unit and desktop tests run: lines and branches, by folder.
# usage: scripts/coverage.sh     leaves a page for each source in build/coverage/pages
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
build=build/coverage

scripts/packages.sh build run test coverage
scripts/quietly.sh cmake --preset coverage
scripts/quietly.sh cmake --build --preset coverage --target behaviour_tests -- --quiet
find "$build" -name '*.gcda' -delete

home=$(mktemp -d)
trap 'rm -rf "$home"' EXIT
mkdir -m 700 "$home/runtime"
env -u XDG_CONFIG_HOME -u XDG_DATA_HOME -u XDG_CACHE_HOME HOME="$home" XDG_RUNTIME_DIR="$home/runtime" LC_ALL=C.UTF-8 \
  scripts/quietly.sh ctest --test-dir "$build" --tests-regex '^(unit|desktop|desktop_help)$' --output-on-failure

mkdir -p "$build/pages"
# A throw leads out of nearly every line; such branches say nothing about the tests.
gcovr --root . --object-directory "$build" --exclude 'tests/' --exclude 'build/' --exclude 'bench/' --exclude 'fuzz/' \
  --exclude-throw-branches --exclude-unreachable-branches --gcov-ignore-parse-errors \
  --json-summary "$build/coverage.json" --html-details "$build/pages/index.html" >/dev/null
scripts/coverage_by_folder.py "$build/coverage.json"
