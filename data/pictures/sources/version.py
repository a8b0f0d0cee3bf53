"""The version of the program, as the build has it."""

import re
from pathlib import Path

BUILD = Path(__file__).resolve().parents[3] / "CMakeLists.txt"
# Without the number of corrections.
SHORT = re.search(r"^project\(\w+ VERSION (\d+\.\d+)", BUILD.read_text(encoding="utf-8"), re.MULTILINE)[1]
