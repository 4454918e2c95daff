"""The pictures that are measured: drawn here, the same ones on every machine."""
import pathlib
import random
import subprocess

SIDE = 600


def _curves(count):
    """Each a start, two handles, an end, a colour and a width; the first ones are the same for every count."""
    chance = random.Random(20)
    for _ in range(count):
        points = [round(chance.uniform(0, SIDE), 2) for _ in range(8)]
        yield points, [round(chance.random(), 3) for _ in range(3)], round(chance.uniform(0.3, 3), 2)


def svg(path, count):
    lines = [f'<svg xmlns="http://www.w3.org/2000/svg" width="{SIDE}" height="{SIDE}" viewBox="0 0 {SIDE} {SIDE}">']
    for points, colour, width in _curves(count):
        start, *rest = zip(points[::2], points[1::2])
        rgb = "".join(f"{round(255 * part):02x}" for part in colour)
        lines.append(f'<path d="M{start[0]} {start[1]}C{" ".join(f"{x} {y}" for x, y in rest)}" fill="none" '
                     f'stroke="#{rgb}" stroke-width="{width}"/>')
    path.write_text("\n".join(lines) + "\n</svg>\n")


def eps(path, count):
    lines = ["%!PS-Adobe-3.0 EPSF-3.0", f"%%BoundingBox: 0 0 {SIDE} {SIDE}", "%%Title: (Curves)", "%%EndComments",
             "/F /Helvetica findfont 12 scalefont def F setfont 20 20 moveto (Curves) show"]
    for points, colour, width in _curves(count):
        numbers = " ".join(str(point) for point in points[2:])
        lines.append(f"{' '.join(map(str, colour))} setrgbcolor {width} setlinewidth "
                     f"{points[0]} {points[1]} moveto {numbers} curveto stroke")
    path.write_text("\n".join(lines) + "\nshowpage\n%%EOF\n")


def pdf(path, count):
    source = path.with_suffix(".for-pdf.eps")
    eps(source, count)
    subprocess.run(["gs", "-q", "-dSAFER", "-dBATCH", "-dNOPAUSE", "-dEPSCrop", "-sDEVICE=pdfwrite", "-o", str(path),
                    str(source)], check=True)
    source.unlink()


class Drawings:
    """Makes a drawing when it is first asked for."""

    def __init__(self, folder):
        self.folder = pathlib.Path(folder)

    def __call__(self, kind, count, name=None):
        path = self.folder / f"{name or count}.{kind}"
        if not path.exists():
            {"svg": svg, "eps": eps, "pdf": pdf}[kind](path, count)
        return path

    def many(self, kind, count, number):
        """So many files of `count` curves."""
        return [self(kind, count, f"{count}-{index}") for index in range(number)]
