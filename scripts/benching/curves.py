"""Cost against size: measured, and drawn as SVG pictures."""
import math
import statistics
from xml.sax.saxutils import escape

from .commands import CONVERSIONS
from .timing import in_turn

WIDTH, HEIGHT, LEFT, BOTTOM, TOP, RIGHT = 640, 400, 64, 48, 40, 150
COLOURS = ["#1b6ca8", "#c8553d", "#588157", "#8e5ea2"]


def _median(times):
    return statistics.median(elapsed for elapsed, _ in times) if times else None


def paths(commands, rounds, sizes):
    """{name: [ms of each size]}: ours and the peer's, one conversion after the other."""
    lines = {}
    for name, peer in (("SVG to PDF", "rsvg-convert"), ("SVG to PNG", "rsvg-convert"), ("EPS to PDF", "gs")):
        _, kind, output_format, _, command = next(row for row in CONVERSIONS if (row[0], row[3]) == (name, peer))
        ours, theirs = [], []
        for size in sizes:
            file = commands.drawings(kind, size)
            times = in_turn({"ours": commands.ours([file], output_format),
                             "theirs": command(file, commands.folder / "theirs")}, rounds, commands.say)
            ours.append(_median(times["ours"]))
            theirs.append(_median(times["theirs"]))
        lines[name] = (sizes, {"norvex": ours, peer: theirs})
    return lines


def files(commands, rounds, numbers):
    """Ours alone: milliseconds a file."""
    result = []
    for number in numbers:
        given = commands.drawings.many("eps", 100, number)
        time = _median(in_turn({"ours": commands.ours(given, "pdf")}, rounds, commands.say)["ours"])
        result.append(time / number if time else None)
    return numbers, {"norvex, ms a file": result}


def jobs(commands, rounds, numbers, count):
    given = commands.drawings.many("eps", 100, count)
    result = []
    for number in numbers:
        command = commands.ours(given, "pdf")
        command[2:2] = ["--jobs", str(number)]
        result.append(_median(in_turn({"ours": command}, rounds, commands.say)["ours"]))
    return numbers, {f"norvex, {count} files": result}


def _round_step(most):
    """A step of which four or a few more reach `most`."""
    power = 10 ** math.floor(math.log10(most / 4))
    return next(factor * power for factor in (1, 2, 2.5, 5, 10) if factor * power * 5 >= most)


def draw(path, title, across, up, sizes, lines):
    """Both axes from zero: what grows linearly is a straight line."""
    known = [value for values in lines.values() for value in values if value is not None]
    if not known:
        return
    step = _round_step(max(known))
    most, widest = step * math.ceil(max(known) / step), max(sizes)

    def place(size, value):
        return (round(LEFT + (WIDTH - LEFT - RIGHT) * size / widest, 1),
                round(HEIGHT - BOTTOM - (HEIGHT - BOTTOM - TOP) * value / most, 1))

    parts = [f'<svg xmlns="http://www.w3.org/2000/svg" width="{WIDTH}" height="{HEIGHT}" font-family="sans-serif" '
             f'font-size="12"><title>{escape(title)}</title><rect width="100%" height="100%" fill="#fff"/>',
             f'<text x="{LEFT}" y="22" font-size="14">{escape(title)}</text>']
    for line in range(round(most / step) + 1):
        x, y = place(0, step * line)
        parts.append(f'<path d="M{x} {y}H{WIDTH - RIGHT}" stroke="#ddd"/>'
                     f'<text x="{x - 6}" y="{y + 4}" text-anchor="end">{step * line:,g}</text>')
    for size in sizes:
        x, y = place(size, 0)
        if size == widest or x - LEFT > 28:
            parts.append(f'<text x="{x}" y="{y + 16}" text-anchor="middle">{size:,}</text>')
    x, y = place(widest / 2, 0)
    parts.append(f'<text x="{x}" y="{y + 36}" text-anchor="middle">{escape(across)}</text>'
                 f'<text x="{LEFT - 6}" y="{TOP - 12}" text-anchor="end">{escape(up)}</text>')
    for number, (name, values) in enumerate(lines.items()):
        points = [place(size, value) for size, value in zip(sizes, values) if value is not None]
        colour = COLOURS[number % len(COLOURS)]
        parts.append(f'<polyline points="{" ".join(f"{x},{y}" for x, y in points)}" fill="none" stroke="{colour}" '
                     f'stroke-width="2"/>')
        parts += [f'<circle cx="{x}" cy="{y}" r="3" fill="{colour}"/>' for x, y in points]
        parts.append(f'<text x="{points[-1][0] + 8}" y="{points[-1][1] + 4}" fill="{colour}">{escape(name)}</text>')
    path.write_text("\n".join(parts) + "\n</svg>\n")
