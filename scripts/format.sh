#!/usr/bin/env bash
# Formats all C++ sources; with --check only says which ones are not formatted.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
mode=(-i)
[ "${1:-}" != --check ] || mode=(--dry-run -Werror)
git ls-files -z -- '*.h' '*.cpp' | xargs -0 -r -n 20 -P "$(nproc)" clang-format-14 "${mode[@]}"
