"""The twenty backdrop tiles, in the order of the list that offers them."""

from . import output, svg, textures, tiles


def drawn(drawing):
    return lambda width, height, scale: svg.render(drawing(), width * scale, height * scale)


def painted(painter):
    return lambda width, height, scale: textures.paint(painter, width, height, scale)


BACKDROPS = (
    ("DEFAULT", 96, 96, drawn(tiles.mosaic)),
    ("DIGITAL", 64, 64, drawn(tiles.digital)),
    ("DESERT", 160, 120, painted(textures.desert)),
    ("STUCCO", 100, 100, painted(textures.stucco)),
    ("BARS", 64, 64, painted(textures.bars)),
    ("BLUESPH", 64, 64, painted(textures.spheres)),
    ("CCURTIAN", 64, 64, painted(textures.curtain)),
    ("CH_LINK", 64, 64, drawn(tiles.chain_link)),
    ("GRANITE", 64, 64, painted(textures.granite)),
    ("NEONGRID", 64, 64, drawn(tiles.neon_grid)),
    ("NETWORK", 64, 64, drawn(tiles.network)),
    ("OHIOSTAR", 64, 64, drawn(tiles.ohio_star)),
    ("OLDBLUE", 64, 64, painted(textures.old_blue)),
    ("P_GRID", 64, 64, drawn(tiles.paper_grid)),
    ("REDBRICK", 64, 64, painted(textures.brick)),
    ("S_NOISE", 64, 64, painted(textures.soft_noise)),
    ("STRIPES", 16, 16, drawn(tiles.stripes)),
    ("THREADS", 64, 64, drawn(tiles.threads)),
    ("WD_FLOOR", 64, 64, painted(textures.wood_floor)),
    ("SOFTGRID", 64, 64, drawn(tiles.soft_grid)),
)

PHOTOGRAPHIC = ("DEFAULT", "DIGITAL")


def draw(folder):
    for key, width, height, tile in BACKDROPS:
        write, ending = (output.jpeg, "jpg") if key in PHOTOGRAPHIC else (output.gif, "gif")
        target = folder / f"{key}.{ending}"
        for path, scale in ((target, 1), (output.doubled(target), 2)):
            write(tile(width, height, scale), path)
            output.as_png(path)
