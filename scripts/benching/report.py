"""The table: on the terminal, as JSON, and between the marks of a page."""
import json
import re
import statistics

HEAD = ["what", "", "beside", "ours", "theirs", "ratio", "best round", "processor", "goal", "met"]
BEGIN, END = "<!-- written by scripts/bench -->", "<!-- end of what scripts/bench writes -->"


def _cells(row):
    ratio = row.ratio()
    if ratio is None:
        return [row.group, row.name, row.peer] + ["–"] * (len(HEAD) - 3)
    sign = "≥" if row.more_is_better else "≤"
    target = f"{sign} {row.target:g}" if row.target else "–"
    met = {True: "yes", False: "no", None: "–"}[row.met()]
    return [row.group, row.name, row.peer, f"{statistics.median(row.ours):.0f} {row.unit}",
            f"{statistics.median(row.theirs):.0f} {row.unit}", f"{ratio:.2f}", f"{row.best():.2f}",
            f"{row.work_ratio():.2f}" if row.work_ratio() else "–", target, met]




def as_text(rows):
    table = [HEAD] + [_cells(row) for row in rows]
    widths = [max(len(line[column]) for line in table) for column in range(len(HEAD))]
    return "\n".join("  ".join(cell.ljust(width) for cell, width in zip(line, widths)).rstrip() for line in table)


def as_markdown(rows):
    lines = ["| " + " | ".join(HEAD) + " |", "|" + "---|" * len(HEAD)]
    return "\n".join(lines + ["| " + " | ".join(_cells(row)) + " |" for row in rows])


def write_json(path, rows, machine):
    path.write_text(json.dumps({"machine": machine, "rows": [row.as_json() for row in rows]}, indent=1) + "\n")


def write_page(path, text):
    """What stands between the marks becomes `text`; the rest of the page is somebody's words."""
    page = path.read_text()
    if BEGIN not in page or END not in page:
        raise SystemExit(f"{path}: the marks between which the table belongs are missing")
    before, _, rest = page.partition(BEGIN)
    path.write_text(before + BEGIN + "\n" + text.strip() + "\n" + END + rest.partition(END)[2])


def write_selection(path, rows, date):
    """The rows of another page that name what was measured get its figures; which rows they are is the page's choice."""
    cells = [_cells(row) for row in rows]
    figures = {(f"{line[0]}: {line[1]}", line[2]): line[3:5] for line in cells}
    lines = []
    for line in path.read_text().split("\n"):
        row = line[2:-2].split(" | ") if line.startswith("| ") and line.endswith(" |") else []
        if len(row) == 4 and tuple(row[:2]) in figures:
            line = "| " + " | ".join(row[:2] + figures[tuple(row[:2])]) + " |"
        lines.append(re.sub(r"(Measured by `scripts/bench` on )\S+", rf"\g<1>{date}", line))
    path.write_text("\n".join(lines))
