"""Comparisons on the command line: single pictures, batches, large pictures, facts."""
import shutil

from .timing import Row, in_turn

GS_PDF = ["gs", "-q", "-dSAFER", "-dBATCH", "-dNOPAUSE", "-dEPSCrop", "-sDEVICE=pdfwrite", "-o"]
# With smooth edges, as ours are.
GS_PNG = ["gs", "-q", "-dSAFER", "-dBATCH", "-dNOPAUSE", "-dEPSCrop", "-dGraphicsAlphaBits=4", "-dTextAlphaBits=4",
          "-sDEVICE=png16m", "-r72", "-o"]

# name, kind of drawing, format, peer, its command for (file, out)
CONVERSIONS = [
    ("EPS to PDF", "eps", "pdf", "gs", lambda f, o: [*GS_PDF, f"{o}.pdf", f]),
    ("EPS to PNG", "eps", "png", "gs", lambda f, o: [*GS_PNG, f"{o}.png", f]),
    ("SVG to PNG", "svg", "png", "rsvg-convert",
     lambda f, o: ["rsvg-convert", "--unlimited", "--zoom=0.75", "-o", f"{o}.png", f]),
    ("SVG to PDF", "svg", "pdf", "rsvg-convert",
     lambda f, o: ["rsvg-convert", "--unlimited", "-f", "pdf", "-o", f"{o}.pdf", f]),
    ("SVG to PNG", "svg", "png", "inkscape",
     lambda f, o: ["inkscape", "--export-type=png", f"--export-filename={o}.png", f]),
    ("PDF to PNG", "pdf", "png", "pdftocairo",
     lambda f, o: ["pdftocairo", "-png", "-r", "72", "-singlefile", "-cropbox", f, o]),
    ("PDF to PNG", "pdf", "png", "mutool", lambda f, o: ["mutool", "draw", "-q", "-r", "72", "-o", f"{o}.png", f, "1"]),
    ("PDF to EPS", "pdf", "eps", "pdftocairo",
     lambda f, o: ["pdftocairo", "-eps", "-f", "1", "-l", "1", f, f"{o}.eps"]),
]
BATCH_TARGETS = {("EPS to PDF", "gs"): 3.0, ("SVG to PNG", "rsvg-convert"): 3.5, ("PDF to PNG", "pdftocairo"): 3.5,
                 ("SVG to PDF", "rsvg-convert"): 2.2, ("PDF to EPS", "pdftocairo"): 2.2}
LARGE = [("SVG to PDF", "rsvg-convert", 0.8), ("SVG to PNG", "rsvg-convert", 0.6), ("EPS to PNG", "gs", 0.5)]


class Commands:
    def __init__(self, norvex, drawings, folder, rounds, say):
        self.norvex, self.drawings, self.folder, self.rounds, self.say = norvex, drawings, folder, rounds, say

    def ours(self, files, output_format):
        target = self.folder / "ours"
        return [self.norvex, "convert", "--force", "--quiet", "--format", output_format, "--to", target, *files]

    def _row(self, group, name, peer, commands, target, **more):
        if shutil.which(peer) is None:
            self.say(f"{group}, {name}: {peer} is not installed")
            return []
        (self.folder / "ours").mkdir(exist_ok=True)
        times = in_turn(commands, more.pop("rounds", self.rounds), self.say)
        if None in times.values():
            return []
        elapsed, work = ([[pair[part] for pair in times[who]] for who in ("ours", "theirs")] for part in (0, 1))
        return [Row(group, name, peer, *elapsed, target, work=work, **more)]

    def single(self):
        rows = []
        for name, kind, output_format, peer, command in CONVERSIONS:
            file = self.drawings(kind, 100)
            target = 1.0 if (name, peer) == ("EPS to PDF", "gs") else None
            rows += self._row("one small picture", name, peer,
                              {"ours": self.ours([file], output_format),
                               "theirs": command(file, self.folder / "theirs")}, target)
        return rows

    def batch(self, number):
        rows = []
        for name, kind, output_format, peer, command in CONVERSIONS:
            if (name, peer) not in BATCH_TARGETS:
                continue
            files = self.drawings.many(kind, 100, number)
            rows += self._row(f"{number} small pictures", name, peer,
                              {"ours": self.ours(files, output_format),
                               "theirs": [command(file, self.folder / "theirs") for file in files]},
                              BATCH_TARGETS[name, peer], rounds=max(3, self.rounds // 3), more_is_better=True)
        return rows

    def large(self, count):
        rows = []
        for name, peer, target in LARGE:
            _, kind, output_format, _, command = next(row for row in CONVERSIONS if (row[0], row[3]) == (name, peer))
            file = self.drawings(kind, count)
            rows += self._row(f"{count:,} curves", name, peer,
                              {"ours": self.ours([file], output_format),
                               "theirs": command(file, self.folder / "theirs")}, target,
                              rounds=max(3, self.rounds // 3))
        return rows

    def facts(self, number):
        files = [file for kind in ("eps", "pdf", "svg") for file in self.drawings.many(kind, 100, number)]
        return self._row(f"{len(files)} pictures", "facts", "exiftool",
                         {"ours": [self.norvex, "info", *files], "theirs": ["exiftool", *files]}, 10.0,
                         more_is_better=True)
