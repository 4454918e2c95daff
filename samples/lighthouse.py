"""The sample drawing: a lighthouse at dusk, as a list of filled paths.

Points, origin at the lower-left corner of the page, y up. scene() and swatches() give
(colour, path) with colour (r, g, b) from 0 to 1 and path a list of ('m', x, y), ('l', x, y),
('c', x1, y1, x2, y2, x3, y3) and ('h',). Always the same picture: the random numbers have a fixed seed.
"""

import math
import random

PAGE = (720, 560)
FRAME = (26, 82, 694, 534)  # left, bottom, right, top
PAPER = (0.973, 0.957, 0.918)
INK = (0.165, 0.176, 0.290)
HORIZON = 246
SUN = (236, HORIZON - 4)
LAMP = (548, 463)
MOON = (92, 424)
TOWER_X, TOWER_FOOT, TOWER_TOP = 548, 286, 440


def mix(a, b, t):
    t = max(0.0, min(1.0, t))
    return tuple(p + (q - p) * t for p, q in zip(a, b))


def ramp(stops, t):
    for (t0, c0), (t1, c1) in zip(stops, stops[1:]):
        if t <= t1:
            return mix(c0, c1, (t - t0) / (t1 - t0))
    return stops[-1][1]


def rgb(text):
    return tuple(int(text[i:i + 2], 16) / 255 for i in (0, 2, 4))


SKY = [(0, rgb('fff2c2')), (.06, rgb('ffe09a')), (.16, rgb('ffbd76')), (.29, rgb('f6916e')),
       (.42, rgb('d66c7c')), (.56, rgb('9c548a')), (.72, rgb('5f4489')), (.88, rgb('343574')),
       (1.05, rgb('1b2458')), (1.3, rgb('111942'))]
SEA = [(0, rgb('f2ab84')), (.06, rgb('cf8088')), (.2, rgb('8c6190')), (.42, rgb('53508a')),
       (.7, rgb('2d3a72')), (1, rgb('172350'))]


def sky_at(x, y):
    return ramp(SKY, math.hypot((x - SUN[0]) / 1.45, y - SUN[1]) / 330)


class Shape(list):
    """A path that a writer with procedures of its own may also write as a name and numbers."""

    def __init__(self, items, name, *numbers):
        super().__init__(items)
        self.name, self.numbers = name, numbers


def polygon(*points):
    items = [('m', *points[0])] + [('l', *p) for p in points[1:]] + [('h',)]
    name = {3: 'T', 4: 'Q'}.get(len(points))
    return Shape(items, name, *[v for p in points for v in p]) if name else items


def box(x0, y0, x1, y1):
    return Shape(polygon((x0, y0), (x1, y0), (x1, y1), (x0, y1)), 'B', x0, y0, x1, y1)


def ellipse(x, y, a, b):
    k = 0.5523
    return Shape([('m', x + a, y), ('c', x + a, y + k * b, x + k * a, y + b, x, y + b),
            ('c', x - k * a, y + b, x - a, y + k * b, x - a, y),
            ('c', x - a, y - k * b, x - k * a, y - b, x, y - b),
            ('c', x + k * a, y - b, x + a, y - k * b, x + a, y), ('h',)], 'E', x, y, a, b)


def lens(x, y, half, up, down):
    """A sliver with pointed ends: a wave's glint, a streak of cloud."""
    return Shape([('m', x - half, y), ('c', x - half * .4, y + up, x + half * .4, y + up, x + half, y),
                  ('c', x + half * .4, y - down, x - half * .4, y - down, x - half, y), ('h',)],
                 'W', x, y, half, up, down)


def smooth(points):
    """An open curve through the points (horizontal tangents stay soft), as path items."""
    items = [('m', *points[0])]
    for i in range(len(points) - 1):
        p0, p1 = points[max(i - 1, 0)], points[i]
        p2, p3 = points[i + 1], points[min(i + 2, len(points) - 1)]
        items.append(('c', p1[0] + (p2[0] - p0[0]) / 6, p1[1] + (p2[1] - p0[1]) / 6,
                      p2[0] - (p3[0] - p1[0]) / 6, p2[1] - (p3[1] - p1[1]) / 6, *p2))
    return items


def glow(x, y, reach, rings, fans, colour, power):
    """Light around a point, in cells: the sky behind it is not of one colour."""
    for i in range(rings - 1, -1, -1):
        r0, r1 = reach * i / rings, reach * (i + 1) / rings + .3
        for j in range(fans):
            a0, a1 = 2 * math.pi * j / fans, 2 * math.pi * (j + 1) / fans + .01
            am, rm = (a0 + a1) / 2, (r0 + r1) / 2
            cell = [(x + r * math.cos(a), y + r * math.sin(a)) for r, a in ((r0, a0), (r1, a0), (r1, a1), (r0, a1))]
            yield mix(sky_at(x + rm * math.cos(am), y + rm * math.sin(am)), colour,
                      power * (1 - rm / reach) ** 1.7), polygon(*cell)


def sky(rng):
    yield sky_at(FRAME[0], 900), polygon((26, 82), (694, 82), (694, 534), (26, 534))
    for i in range(56, 0, -1):
        r = 405 * i / 56
        yield ramp(SKY, r / 330), ellipse(SUN[0], SUN[1], r * 1.45, r)
    for _ in range(110):
        x, y = rng.uniform(30, 690), 534 - 250 * rng.random() ** 1.6
        dark = math.hypot((x - SUN[0]) / 1.45, y - SUN[1]) / 330
        if dark < .55 or math.hypot(x - MOON[0], y - MOON[1]) < 34:
            continue
        colour = mix(sky_at(x, y), (1, .98, .92), .35 + .6 * min(1, (dark - .5) * 2) * rng.random())
        r = rng.uniform(.35, .95)
        if rng.random() < .14:
            r *= 3.2
            yield colour, polygon(*[(x + math.sin(a * math.pi / 4) * (r if a % 2 == 0 else r * .2),
                                     y + math.cos(a * math.pi / 4) * (r if a % 2 == 0 else r * .2))
                                    for a in range(8)])
        else:
            yield colour, ellipse(x, y, r, r)
    x, y = MOON  # a faint halo and a crescent
    yield from glow(x, y, 32, 5, 11, rgb('fbeecb'), .5)
    yield rgb('fdf3d2'), [('m', x + 4, y + 14), ('c', x - 12, y + 12, x - 19, y - 4, x - 10, y - 14),
                          ('c', x - 4, y - 20, x + 6, y - 20, x + 12, y - 14),
                          ('c', x - 2, y - 14, x - 9, y, x + 4, y + 14), ('h',)]
    for i in range(14, 0, -1):
        yield mix(rgb('fffdf0'), sky_at(SUN[0] + 30, SUN[1] + 22), i / 15), ellipse(*SUN, 24 + i * 1.5, 24 + i * 1.5)
    yield rgb('fffdf2'), ellipse(*SUN, 25, 25)


def clouds(rng):
    for x, y, w, h in [(130, 318, 120, 9), (330, 345, 150, 11), (210, 384, 105, 8), (420, 300, 95, 7),
                       (70, 358, 90, 7), (380, 408, 110, 8), (612, 372, 92, 8), (300, 286, 70, 4), (600, 318, 80, 5)]:
        for i in range(7):
            dx, dy = rng.uniform(-.55, .55) * w, rng.uniform(-1, 1) * h
            half, up = w * rng.uniform(.35, .8), h * rng.uniform(.5, 1)
            base = sky_at(x + dx, y + dy)
            yield mix(base, rgb('5a3a6e'), .38), lens(x + dx, y + dy, half, up, up * .5)
            yield mix(base, rgb('ffc98a'), .5), lens(x + dx - 4, y + dy - up * .12, half * .9, up * .18, up * .42)


def beam(rng):
    """Cells of light around the lamp, each its sky colour made lighter."""
    yield from glow(*LAMP, 42, 6, 12, rgb('ffe9a8'), .8)
    for centre, half, reach, power, rings, fans in [(math.radians(170), math.radians(7.5), 420, .72, 36, 6),
                                                    (math.radians(-9), math.radians(7.5), 200, .6, 9, 5)]:
        for i in range(rings - 1, -1, -1):
            r0, r1 = reach * i / rings, reach * (i + 1) / rings + .6
            for j in range(fans):
                a0 = centre + half * (2 * j / fans - 1)
                a1 = centre + half * (2 * (j + 1) / fans - 1) + .002
                am, rm = (a0 + a1) / 2, (r0 + r1) / 2
                k = power * math.cos((am - centre) / half * math.pi / 2) ** 1.8 * (1 - rm / reach) ** 1.3
                x, y = LAMP[0] + rm * math.cos(am), LAMP[1] + rm * math.sin(am)
                if y < HORIZON:
                    continue
                yield mix(sky_at(x, y), rgb('fff3c4'), k), polygon(
                    *[(LAMP[0] + r * math.cos(a), LAMP[1] + r * math.sin(a))
                      for r, a in ((r0, a0), (r1, a0), (r1, a1), (r0, a1))])


def headlands(rng):
    for left, right, top, tint in [(26, 300, 15, .25), (560, 694, 22, .38), (26, 170, 27, .55)]:
        ridge = [(left, HORIZON)]
        steps = 12
        for i in range(steps + 1):
            t = i / steps
            fall = (1 - t) ** .8 if left < 100 else t ** .6
            ridge.append((left + (right - left) * t, HORIZON + top * fall * (.8 + .35 * rng.random())))
        colour = mix(sky_at((left + right) / 2, HORIZON + 30), rgb('4a3468'), tint)
        yield colour, smooth(ridge) + [('l', right, HORIZON - 1), ('l', left, HORIZON - 1), ('h',)]


def sea(rng):
    depth = HORIZON - FRAME[1]
    for i in range(40):
        y = HORIZON - depth * (i / 40) ** 1.25
        yield ramp(SEA, i / 39), box(26, 82, 694, y)
    marks = []
    for _ in range(230):
        t = rng.random() ** .8
        marks.append((t, rng.uniform(20, 700), False))
    for _ in range(210):
        t = rng.random() ** .75
        marks.append((t, SUN[0] + rng.gauss(0, 1) * (9 + 62 * t), True))
    for t, x, gold in sorted(marks):
        y = HORIZON - 1.5 - (depth - 2) * t
        half = (3 + 22 * t) * rng.uniform(.5, 1.3) * (.72 if gold else 1)
        thick = (.35 + 2.3 * t) * rng.uniform(.6, 1.1)
        if gold:
            glow = math.exp(-((x - SUN[0]) / (26 + 70 * t)) ** 2)
            colour = mix(ramp(SEA, t), mix(rgb('ffe7a6'), rgb('ff9d6b'), t), .35 + .65 * glow)
        else:
            colour = mix(ramp(SEA, t), rgb('101a45') if rng.random() < .6 else rgb('a884b4'), rng.uniform(.1, .38))
        yield colour, lens(x, y, half, thick, thick * .5)


def boat(rng):
    x, y = 344, 226
    yield rgb('2b2347'), [('m', x - 13, y), ('c', x - 8, y - 6, x + 9, y - 6, x + 14, y + 1), ('h',)]
    yield rgb('f8d9b0'), [('m', x + 1, y + 2), ('l', x + 1, y + 30), ('c', x + 12, y + 20, x + 14, y + 10, x + 13, y + 3), ('h',)]
    yield rgb('c98a86'), [('m', x - 1, y + 2), ('l', x - 1, y + 26), ('c', x - 8, y + 16, x - 11, y + 8, x - 11, y + 3), ('h',)]
    yield rgb('2b2347'), polygon((x - .8, y), (x + .4, y), (x + .4, y + 33), (x - .4, y + 33))
    for i in range(5):
        yield mix(ramp(SEA, .25), rgb('2b2347'), .5 - .08 * i), lens(x + rng.uniform(-2, 2), y - 7 - i * 3.4, 13 - i * 1.6, .9, .5)


def cliff_top(x):
    if x < 430:
        return 120 + 120 * ((x - 366) / 64) ** .55 if x > 366 else 120
    if x < 486:
        return 240 + 48 * ((x - 430) / 56) ** .7
    return 288 + 3 * math.sin(x / 23) - max(0, x - 640) * .12


def cliff_foot(x):
    return 108 + 7 * math.sin((x - 362) / 7.4)


def cliff(rng):
    outline = [(x, cliff_top(x)) for x in range(366, 704, 8)]
    yield rgb('3b2b4c'), polygon(*outline, *[(x, cliff_foot(x)) for x in range(702, 350, -8)])
    columns, rows = 21, 8
    grid = []
    for i in range(columns + 1):
        x = 362 + (700 - 362) * i / columns
        top = cliff_top(x)
        line = []
        for j in range(rows + 1):
            foot = cliff_foot(x)
            t = j / rows
            wobble = (0 if j in (0, rows) else 1)
            line.append((x + wobble * rng.uniform(-6, 6), top + (foot - top) * t + wobble * rng.uniform(-4, 4),
                         rng.random()))
        grid.append(line)
    for i in range(columns):
        for j in range(rows):
            a, b, c, d = grid[i][j], grid[i + 1][j], grid[i + 1][j + 1], grid[i][j + 1]
            for p, q, r in ((a, b, c), (a, c, d)):
                slope = (p[2] + q[2] + r[2]) / 3 + (r[2] - q[2]) * .5
                lit = slope * (1.15 - (p[0] - 366) / 520) * (1 - j / rows * .35)
                colour = ramp([(0, rgb('1f1a38')), (.3, rgb('40305a')), (.55, rgb('7d4f68')), (.8, rgb('c97b6c')),
                               (1.1, rgb('f0ac7c'))], lit)
                yield colour, polygon(p[:2], q[:2], r[:2])
    for i in range(110):  # grass on the brow, dark below and warm at its tips
        x = rng.uniform(430, 700)
        y = cliff_top(x) + rng.uniform(-7, 2)
        h, lean = rng.uniform(3, 8), rng.uniform(-3, 2)
        yield mix(rgb('28324a'), rgb('d79a63'), rng.random() ** 2.2), [
            ('m', x - .9, y), ('c', x - .6, y + h * .5, x + lean * .5, y + h * .8, x + lean, y + h),
            ('c', x + lean * .5 + .5, y + h * .6, x + .9, y + h * .4, x + 1, y), ('h',)]
    for i in range(55):  # foam where the rock meets the sea
        x = rng.uniform(344, 700)
        y = cliff_foot(x) + rng.uniform(-7, 3)
        yield mix(rgb('8a7fb0'), rgb('fbe9e2'), rng.random()), lens(x, y, rng.uniform(5, 17), rng.uniform(.8, 2.6), .8)


def half_width(y):
    t = (y - TOWER_FOOT) / (TOWER_TOP - TOWER_FOOT)
    return 25 - 10 * t + 3 * max(0, .12 - t) * 8


def round_wall(y0, y1, w0, w1, light, shade, slices=14, bend=3.2):
    """A piece of a round wall: upright slices, lit from the left."""
    for i in range(slices):
        u0, u1 = 2 * i / slices - 1, 2 * (i + 1) / slices - 1
        um = (u0 + u1) / 2
        k = max(0, math.cos(math.asin(um) + .85)) ** .8
        over = .35 if i + 1 < slices else 0
        b0, b1 = -bend * math.sqrt(max(0, 1 - u0 * u0)), -bend * math.sqrt(max(0, 1 - u1 * u1))
        yield mix(shade, light, k), polygon((TOWER_X + u0 * w0, y0 + b0), (TOWER_X + u1 * w0 + over, y0 + b1),
                                            (TOWER_X + u1 * w1 + over, y1 + b1), (TOWER_X + u0 * w1, y1 + b0))


def cottage(rng):
    yield rgb('4b3a63'), box(588, 286, 664, 318)
    yield rgb('e9c6b4'), polygon((588, 286), (612, 286), (612, 318), (600, 334), (588, 318))
    for i in range(10):
        yield mix(rgb('cfa5a8'), rgb('6b5483'), i / 9), box(612 + i * 5.2, 286, 664, 318)
    yield rgb('6e2f4b'), polygon((600, 337), (652, 337), (669, 316), (614, 316))
    for i in range(6):
        yield mix(rgb('a8465a'), rgb('5a2848'), i / 6), polygon((600 + i * 2.33, 337 - i * 3.5), (652 + i * 2.83, 337 - i * 3.5),
                                                              (654.9 + i * 2.83, 333.5 - i * 3.5), (602.3 + i * 2.33, 333.5 - i * 3.5))
    yield rgb('f2d0b8'), polygon((600, 338), (600, 333), (586, 314), (584, 317))
    yield rgb('7d4a60'), box(634, 334, 643, 348)
    yield rgb('4a2f50'), box(638.5, 334, 643, 348)
    yield rgb('b06a6c'), box(632.5, 346.5, 644.5, 349.5)
    for x in (596, 622, 644):
        w = 8 if x == 596 else 10
        yield rgb('3a2848'), box(x - 1, 295, x + w + 1, 309)
        for i in range(5):
            yield mix(rgb('ffb14f'), rgb('fff0b0'), i / 4), box(x + i * .5, 296 + i * .7, x + w - i * .5, 308 - i * .9)
        yield rgb('6b4030'), box(x + w / 2 - .4, 296, x + w / 2 + .4, 308)
        yield rgb('6b4030'), box(x, 301.6, x + w, 302.4)


def tower(rng):
    yield from round_wall(TOWER_FOOT - 6, TOWER_FOOT + 6, 33, 31, rgb('d8b6a6'), rgb('40305a'))
    bands = 7
    for i in range(bands):
        y0 = TOWER_FOOT + 4 + (TOWER_TOP - TOWER_FOOT - 4) * i / bands
        y1 = TOWER_FOOT + 4 + (TOWER_TOP - TOWER_FOOT - 4) * (i + 1) / bands
        red = i % 2 == 0
        yield from round_wall(y0, y1 + .4, half_width(y0), half_width(y1), rgb('f0644f') if red else rgb('fff1de'),
                              rgb('4d1c44') if red else rgb('5e5288'))
    for x, y, r in [(-6, 330, 4.2), (3, 372, 3.6), (-4, 412, 3.1)]:
        x += TOWER_X
        window = [('m', x - r, y - r * 1.6), ('l', x + r, y - r * 1.6), ('l', x + r, y + r),
                  ('c', x + r, y + r * 2.4, x - r, y + r * 2.4, x - r, y + r), ('h',)]
        yield rgb('3a2444'), [tuple(v if isinstance(v, str) else (x if k % 2 else y) + (v - (x if k % 2 else y)) * 1.35
                                    for k, v in enumerate(item)) for item in window]
        yield rgb('ffd67a'), window
        yield rgb('5e3a38'), box(x - .4, y - r * 1.6, x + .4, y + r * 1.9)
    yield rgb('35203f'), [('m', 539, 284), ('l', 556, 284), ('l', 556, 304), ('c', 556, 313, 539, 313, 539, 304), ('h',)]
    yield rgb('7f4436'), [('m', 541, 284), ('l', 554, 284), ('l', 554, 303), ('c', 554, 310.5, 541, 310.5, 541, 303), ('h',)]
    for x in (545.3, 549.6):
        yield rgb('4e2a33'), box(x, 284, x + .6, 307)
    # gallery, lamp room, dome
    yield from round_wall(438, 444, 17, 22, rgb('a5788a'), rgb('2a2145'), 12, 2)
    yield from round_wall(443, 447, 23, 23, rgb('f1c9ae'), rgb('3c315c'), 12, 2.6)
    for i in range(10, 0, -1):
        yield mix(rgb('ffcf63'), rgb('fffef2'), (10 - i) / 9), box(TOWER_X - 1.3 * i, 447, TOWER_X + 1.3 * i, 470)
    yield rgb('fffff6'), ellipse(LAMP[0], LAMP[1] - 4, 5, 8)
    for x in (-13, -6.8, 0, 6.8, 13):
        yield rgb('37274a'), box(TOWER_X + x - .7, 447, TOWER_X + x + .7, 471)
    yield rgb('37274a'), box(TOWER_X - 13.5, 457.4, TOWER_X + 13.5, 458.4)
    for i in range(15):
        x = TOWER_X - 22.4 + i * 3.2
        yield rgb('2c2141'), box(x - .35, 445, x + .35, 455)
    for y in (449.5, 454.6):
        yield rgb('2c2141'), box(TOWER_X - 23, y, TOWER_X + 23, y + .9)
    yield from round_wall(470, 473, 16.5, 16.5, rgb('e77c62'), rgb('3d1a3d'), 12, 1.5)
    for i in range(12):
        u0, u1 = 2 * i / 12 - 1, 2 * (i + 1) / 12 - 1
        k = max(0, math.cos(math.asin((u0 + u1) / 2) + .85)) ** .8
        yield mix(rgb('4d1c44'), rgb('f0644f'), k), [
            ('m', TOWER_X + u0 * 15.5, 472), ('c', TOWER_X + u0 * 15, 481, TOWER_X + u0 * 9, 486, TOWER_X, 488),
            ('c', TOWER_X + u1 * 9, 486, TOWER_X + u1 * 15, 481, TOWER_X + u1 * 15.5 + .2, 472), ('h',)]
    yield rgb('37274a'), box(TOWER_X - .8, 487, TOWER_X + .8, 500)
    yield rgb('f2b98e'), ellipse(TOWER_X, 491, 2.6, 2.6)


def gulls(rng):
    for x, y, s in [(300, 430, 9), (326, 443, 6.5), (282, 452, 5), (404, 372, 6), (448, 420, 8), (470, 409, 5)]:
        yield mix(sky_at(x, y), rgb('2a1f45'), .75), [
            ('m', x - s, y + s * .25), ('c', x - s * .6, y + s * .62, x - s * .2, y + s * .4, x, y),
            ('c', x + s * .2, y + s * .45, x + s * .6, y + s * .7, x + s, y + s * .32),
            ('c', x + s * .55, y + s * .5, x + s * .2, y + s * .25, x, y - s * .16),
            ('c', x - s * .2, y + s * .2, x - s * .6, y + s * .45, x - s, y + s * .25), ('h',)]


def rocks(rng):
    for x, y, w, h in [(74, 96, 60, 34), (20, 98, 40, 52), (128, 88, 34, 20), (330, 104, 20, 13), (372, 100, 30, 22)]:
        crown = [(x - w, 78)] + [(x - w + 2 * w * i / 7, y + h * math.sin(math.pi * i / 7) * rng.uniform(.6, 1.05))
                                 for i in range(1, 7)] + [(x + w, 78)]
        yield rgb('1a1733'), polygon(*crown)
        low = [(px + rng.uniform(-4, 4), 78 + (py - 78) * rng.uniform(.35, .6)) for px, py in crown]
        for i in range(7):
            for p, q, r in ((crown[i], crown[i + 1], low[i]), (low[i], crown[i + 1], low[i + 1]),
                            (low[i], low[i + 1], ((low[i][0] + low[i + 1][0]) / 2, 76))):
                lit = 1 - i / 7 if x > SUN[0] else i / 7
                yield mix(rgb('1e193a'), rgb('a7616a'), lit * rng.uniform(.15, .8)), polygon(p, q, r)
        for _ in range(7):
            yield mix(rgb('8a7fb0'), rgb('fbe9e2'), rng.random()), lens(x + rng.uniform(-w, w), 86 + rng.uniform(-5, 5),
                                                                       rng.uniform(6, 16), rng.uniform(.8, 2.2), .7)


def swatches():
    """A thin line around the drawing and the colours of the sky below it; not clipped."""
    left, bottom, right, top = FRAME
    yield INK, polygon((left - 1, bottom - 1), (right + 1, bottom - 1), (right + 1, top + 1), (left - 1, top + 1)) + \
        polygon((left, bottom), (left, top), (right, top), (right, bottom))
    for i in range(12):
        yield ramp(SKY, .02 + i * .1), ellipse(right - 8 - 19 * i, 49, 7, 7)


TEXTS = [('Times-Italic', 27, INK, FRAME[0], 41, 'Lighthouse at Dusk'),
         ('Helvetica', 8.5, mix(INK, PAPER, .35), FRAME[0], 25, 'A drawing of flat colours in bands, made by a script. Text stays text.')]


def scene():
    """What is clipped to FRAME."""
    rng = random.Random(1874)
    items = []
    for part in (sky, clouds, beam, headlands, sea, boat, cliff, cottage, tower, gulls, rocks):
        items += part(rng)
    return items
