"""Programs with a window: from command to complete picture, and the memory with one picture open."""
import contextlib
import os
import pathlib
import shutil
import subprocess
import time

from .timing import Row

# group, kind, curves, milliseconds without a change after which it is complete, [(peer, target)]
PICTURES = [
    ("small EPS on screen", "eps", 900, 1500, [("gv", 0.8), ("evince", 0.35), ("okular", 0.35)]),
    ("large EPS on screen", "eps", 7000, 5000, [("gv", 0.8), ("evince", 0.35), ("okular", 0.35)]),
    ("PDF on screen", "pdf", 900, 1500, [("mupdf", 1.3), ("evince", 0.25), ("okular", None)]),
    ("SVG on screen", "svg", 1600, 1500, [("eog", 0.3), ("inkscape", None)]),
]
MEMORY = [("evince", None), ("okular", None), ("mupdf", None), ("gv", None)]
LIMIT_MB = 45


@contextlib.contextmanager
def screen():
    """A display of its own with a window manager."""
    reading, writing = os.pipe()
    server = subprocess.Popen(["Xvfb", "-displayfd", str(writing), "-screen", "0", "1600x1100x24", "-nolisten", "tcp"],
                              pass_fds=[writing], stderr=subprocess.DEVNULL)
    os.close(writing)
    with os.fdopen(reading) as told:
        display = ":" + told.readline().strip()
    environment = {**os.environ, "DISPLAY": display, "NO_AT_BRIDGE": "1"}
    environment.pop("WAYLAND_DISPLAY", None)
    manager = subprocess.Popen(["openbox"], env=environment, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    time.sleep(1)
    try:
        yield environment
    finally:
        for program in (manager, server):
            program.terminate()
            program.wait()


def first_pictures(norvex, open_bench, drawings, rounds, say):
    rows = []
    with screen() as environment:
        for group, kind, count, still, wanted in PICTURES:
            peers = [(peer, target) for peer, target in wanted if shutil.which(peer)]
            command = [open_bench, "--samples", "--still", still, drawings(kind, count), str(rounds), norvex,
                       *(shutil.which(peer) for peer, _ in peers)]
            told = subprocess.run([str(part) for part in command], env=environment, stdout=subprocess.PIPE,
                                  stderr=subprocess.DEVNULL, text=True, check=True).stdout
            samples = [[float(number) for number in line.split("\t")[1:]] for line in told.splitlines()]
            for (peer, target), theirs in zip(peers, samples[1:]):
                rows.append(Row(group, "first picture", peer, samples[0], theirs, target))
            say(f"{group}: done")
    return rows


def _descendants(pid):
    found, queue = [], [pid]
    while queue:
        parent = queue.pop()
        found.append(parent)
        for task in pathlib.Path(f"/proc/{parent}/task").glob("*/children"):
            with contextlib.suppress(OSError):
                queue += [int(child) for child in task.read_text().split()]
    return found


def proportional_megabytes(pid):
    """Of a process and all below it."""
    total = 0
    for each in _descendants(pid):
        with contextlib.suppress(OSError):
            for line in pathlib.Path(f"/proc/{each}/smaps_rollup").read_text().splitlines():
                if line.startswith("Pss:"):
                    total += int(line.split()[1])
    return total / 1024


def memory(norvex, drawings, rounds, say):
    file = drawings("pdf", 900)
    programs = {"norvex": norvex} | {peer: shutil.which(peer) for peer, _ in MEMORY if shutil.which(peer)}
    sizes = {name: [] for name in programs}
    with screen() as environment:
        for _ in range(rounds):
            for name, program in programs.items():
                child = subprocess.Popen([str(program), str(file)], env=environment, stdout=subprocess.DEVNULL,
                                         stderr=subprocess.DEVNULL)
                time.sleep(4)
                sizes[name].append(proportional_megabytes(child.pid))
                child.terminate()
                child.wait()
    say("memory: done")
    ours = sizes.pop("norvex")
    rows = [Row("memory", "one PDF open", "45 MB", ours, [LIMIT_MB] * len(ours), 1.0, unit="MB")]
    return rows + [Row("memory", "one PDF open", peer, ours, theirs, None, unit="MB") for peer, theirs in sizes.items()]
