"""How a picture is written: small, and the same bytes each time."""

from pathlib import Path

from PIL import Image

from . import svg


def png(image, target):
    target.parent.mkdir(parents=True, exist_ok=True)
    image.save(target, "PNG", optimize=True)


def jpeg(image, target):
    target.parent.mkdir(parents=True, exist_ok=True)
    image.convert("RGB").save(target, "JPEG", quality=95, subsampling=0, optimize=True)


def gif(image, target):
    """At most 128 colours, not dithered: dither would show as a grain of its own."""
    target.parent.mkdir(parents=True, exist_ok=True)
    few = image.convert("RGB").quantize(128, method=0, dither=0)
    few.save(target, "GIF", optimize=True)


def as_png(target):
    """Beside a picture of another format, what it shows: the program reads PNG without a plug-in."""
    with Image.open(target) as image:
        png(image if image.mode == "P" else image.convert("RGB"), target.with_suffix(".png"))


def doubled(target):
    """The name of the picture of twice the size: card.png becomes card@2x.png."""
    return target.with_name(target.stem + "@2x" + target.suffix)


def vector(drawing, width, height, target):
    """A drawing as PNG in its own size and in twice that size."""
    target = Path(target)
    png(svg.render(drawing, width, height), target)
    png(svg.render(drawing, 2 * width, 2 * height), doubled(target))


def vector_part(drawing, width, height, part, target):
    """As `vector`, with only the top left part, (width, height), of the drawing."""
    target = Path(target)
    for factor, name in ((1, target), (2, doubled(target))):
        whole = svg.render(drawing, factor * width, factor * height)
        png(whole.crop((0, 0, factor * part[0], factor * part[1])), name)


def text(written, target):
    target.parent.mkdir(parents=True, exist_ok=True)
    target.write_text(written)


def ico(images, target):
    """One file with all the sizes, each as drawn for its size."""
    largest = images[-1]
    largest.save(target, "ICO", sizes=[image.size for image in images], append_images=images[:-1])
