"""Smooth noise that repeats, the same on every machine."""


def _lattice(x, y, seed):
    """A value from 0 to 1 for a lattice point."""
    h = (x * 374761393 + y * 668265263 + seed * 2147483647 + 1013904223) & 0xFFFFFFFF
    h = ((h ^ (h >> 13)) * 1274126177) & 0xFFFFFFFF
    h = ((h ^ (h >> 16)) * 2246822519) & 0xFFFFFFFF
    return ((h ^ (h >> 15)) & 0xFFFFFF) / 0xFFFFFF


def _ease(t):
    return t * t * (3 - 2 * t)


def value(x, y, columns, rows, seed):
    """Noise from 0 to 1 with lattice cells of size 1; repeats after `columns` and `rows`."""
    x0, y0 = int(x // 1), int(y // 1)
    tx, ty = _ease(x - x0), _ease(y - y0)

    def at(dx, dy):
        return _lattice((x0 + dx) % columns, (y0 + dy) % rows, seed)

    top = at(0, 0) + (at(1, 0) - at(0, 0)) * tx
    low = at(0, 1) + (at(1, 1) - at(0, 1)) * tx
    return top + (low - top) * ty


def layered(u, v, columns, rows, seed, layers):
    """Several octaves, each of half the size and strength; `u` and `v` run from 0 to 1 over a tile."""
    total, strength, weight = 0.0, 1.0, 0.0
    for layer in range(layers):
        total += strength * value(u * columns, v * rows, columns, rows, seed + layer)
        weight += strength
        strength *= 0.5
        columns, rows = columns * 2, rows * 2
    return total / weight
