#!/usr/bin/python3
"""Looks whether every picture is there, has its size, and, for a backdrop, repeats without a seam.

A picture that README.md shows must be sharp at twice the size in which it stands there.

Prints what is wrong and ends with status 1, or ends silently with 0. Needs the Debian package python3-pil.
"""

import re
import sys
from pathlib import Path

from PIL import Image, ImageStat

HERE = Path(__file__).resolve().parent
sys.path.insert(0, str(HERE))
sys.dont_write_bytecode = True

from sources.backdrops import BACKDROPS, PHOTOGRAPHIC  # noqa: E402
from sources.icons import DECK, ICO_SIZES, PROGRAM, SIZES  # noqa: E402

GENERATED = HERE / "generated"
DATA = HERE.parent
ROOT = DATA.parent

# Name in the generated folder, width, height; each has a picture of twice the size beside it.
PICTURES = [
    ("skins/white_flat.png", 323, 90), ("skins/white_3d.png", 327, 93),
    ("skins/yellow_flat.png", 323, 90), ("skins/yellow_3d.png", 327, 93),
    ("print/flip.png", 117, 37), ("print/nonflip.png", 117, 37), ("print/flip_disabled.png", 117, 37),
    *((f"steps/{step}.png", 360, 360) for step in range(1, 7)),
    *((f"../../help/pictures/step{step}.png", 208, 174) for step in range(1, 7)),
    ("splash.png", 414, 196), ("about_mail.png", 32, 32), ("info.png", 64, 64),
]

# A step's picture is covered from this line on, and cut off from this column on.
STEP_SHOWN = (257, 176)

# Spread of a backdrop's brightness above which it is no longer calm, out of 255.
CALM = 22.0

# How much the step across a tile's edge may exceed the largest step between neighbours inside it.
SEAM_SHARE, SEAM_MARGIN = 1.15, 1.5

TOTAL_BYTES = 1_000_000


def backdrop_file(key, double=False):
    ending = "jpg" if key in PHOTOGRAPHIC else "gif"
    return GENERATED / "backdrops" / f"{key}{'@2x' if double else ''}.{ending}"


def size_faults(path, width, height, kind):
    if not path.is_file():
        return [f"{path}: missing"]
    with Image.open(path) as image:
        faults = [] if image.format == kind else [f"{path}: {image.format}, not {kind}"]
        if image.size != (width, height):
            faults.append(f"{path}: {image.size[0]} by {image.size[1]}, not {width} by {height}")
        return faults


def columns_of(image):
    width, height = image.size
    pixels = list(image.getdata())
    return [pixels[x::width] for x in range(width)], [pixels[y * width:(y + 1) * width] for y in range(height)]


def difference(first, second):
    return sum(abs(a - b) for one, two in zip(first, second) for a, b in zip(one, two)) / (3 * len(first))


def seam_faults(path):
    with Image.open(path) as opened:
        image = opened.convert("RGB")
    faults = []
    for way, lines in zip(("left and right", "top and bottom"), columns_of(image)):
        inside = max(difference(a, b) for a, b in zip(lines, lines[1:]))
        across = difference(lines[-1], lines[0])
        if across > inside * SEAM_SHARE + SEAM_MARGIN:
            faults.append(f"{path}: seam between {way}: {across:.1f}, inside at most {inside:.1f}")
    spread = ImageStat.Stat(image.convert("L")).stddev[0]
    if spread > CALM:
        faults.append(f"{path}: too much contrast for a backdrop: {spread:.1f}")
    return faults


def other_form_faults(path):
    """The PNG beside it shows the same."""
    png = path.with_suffix(".png")
    with Image.open(path) as named:
        faults = size_faults(png, *named.size, "PNG")
        if not faults:
            with Image.open(png) as read:
                same = list(read.convert("RGB").getdata()) == list(named.convert("RGB").getdata())
            faults = [] if same else [f"{png}: not what {path.name} shows"]
    return faults


def backdrop_faults():
    faults = []
    for key, width, height, _ in BACKDROPS:
        kind = "JPEG" if key in PHOTOGRAPHIC else "GIF"
        for scale in (1, 2):
            path = backdrop_file(key, scale == 2)
            wrong = size_faults(path, width * scale, height * scale, kind)
            faults += wrong or seam_faults(path) + other_form_faults(path)
    return faults


def picture_faults():
    faults = []
    for name, width, height in PICTURES:
        path = GENERATED / name
        faults += size_faults(path, width, height, "PNG")
        faults += size_faults(path.with_name(f"{path.stem}@2x.png"), 2 * width, 2 * height, "PNG")
    return faults


def step_faults():
    """The subject of a step must lie whole inside the part that is seen."""
    faults = []
    for path in sorted((GENERATED / "steps").glob("?.png")):
        with Image.open(path) as image:
            box = image.getbbox()
        if box is None or box[2] > STEP_SHOWN[0] or box[3] > STEP_SHOWN[1]:
            faults.append(f"{path}: drawn outside the part that is seen: {box}")
    return faults


def icon_faults():
    theme = DATA / "icons/hicolor"
    faults = []
    for folder, name in (("apps", PROGRAM), ("mimetypes", DECK)):
        for size in SIZES:
            faults += size_faults(theme / f"{size}x{size}" / folder / f"{name}.png", size, size, "PNG")
        scalable = theme / "scalable" / folder / f"{name}.svg"
        faults += [] if scalable.is_file() else [f"{scalable}: missing"]
    with Image.open(DATA / "Notelet.ico") as icon:
        found = {size for size, _ in icon.info["sizes"]}
    return faults + ([] if found == set(ICO_SIZES) else [f"Notelet.ico: sizes {sorted(found)}"])


def shown_faults():
    """What README.md shows, by name and width."""
    shown = re.findall(r'<img src="([^"]+)" width="(\d+)"', (ROOT / "README.md").read_text(encoding="utf-8"))
    faults = [] if shown else ["README.md: shows no picture"]
    for name, width in shown:
        path = ROOT / name
        if not path.is_file():
            faults.append(f"README.md: {name} is missing")
            continue
        with Image.open(path) as image:
            if image.width < 2 * int(width):
                faults.append(f"README.md: {name}: {image.width} pixels for twice {width}")
    return faults


def weight_faults():
    total = sum(path.stat().st_size for path in GENERATED.rglob("*") if path.is_file())
    return [f"{GENERATED}: {total} bytes, at most {TOTAL_BYTES}"] if total > TOTAL_BYTES else []


def main():
    faults = backdrop_faults() + picture_faults() + step_faults() + icon_faults() + shown_faults() + weight_faults()
    for fault in faults:
        print(fault, file=sys.stderr)
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
