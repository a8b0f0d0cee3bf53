#!/usr/bin/env bash
# Measures the captions of every window in each face and size of the desktops' fonts, at the scales of screens.
# usage: scripts/check_captions.sh     after ./run or ./test
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

for scale in 1 1.5 2; do
  echo "scale $scale"
  env QT_QPA_PLATFORM=offscreen QT_SCALE_FACTOR=$scale TESSARA_ALL_FONTS=1 \
    "$root/build/release/tests/desktop/tests_desktop" -tc='No caption of any window*'
done
