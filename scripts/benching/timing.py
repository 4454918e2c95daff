"""Commands timed in turn: whatever else the machine does meets each of them."""
import os
import statistics
import time


def run(command):
    """Elapsed and processor milliseconds of a command with all that it waits for, and its exit code."""
    silent = [(os.POSIX_SPAWN_OPEN, fd, "/dev/null", os.O_RDWR, 0) for fd in range(3)]
    start = time.monotonic()
    child = os.posix_spawnp(command[0], [str(part) for part in command], os.environ, file_actions=silent)
    _, status, used = os.wait4(child, 0)
    return (1000 * (time.monotonic() - start), 1000 * (used.ru_utime + used.ru_stime),
            os.waitstatus_to_exitcode(status))


class Row:
    """One line of the table: ours and a peer's milliseconds of the same rounds."""

    def __init__(self, group, name, peer, ours, theirs, target=None, unit="ms", more_is_better=False, work=None):
        self.group, self.name, self.peer, self.target = group, name, peer, target
        self.ours, self.theirs, self.unit = list(ours), list(theirs), unit
        self.work = work or ([], [])  # processor milliseconds likewise, where they were measured
        self.more_is_better = more_is_better  # the ratio tells how many times faster we are

    def ratios(self, ours=None, theirs=None):
        pairs = zip(self.ours if ours is None else ours, self.theirs if theirs is None else theirs)
        return [theirs / ours if self.more_is_better else ours / theirs for ours, theirs in pairs if ours and theirs]

    def ratio(self):
        return statistics.median(self.ratios()) if self.ratios() else None

    def work_ratio(self):
        """Other work on the machine disturbs it less than the elapsed time."""
        ratios = self.ratios(*self.work)
        return statistics.median(ratios) if ratios else None

    def best(self):
        """The round that was disturbed least."""
        if not self.ratios():
            return None
        return max(self.ratios()) if self.more_is_better else min(self.ratios())

    def met(self):
        if self.target is None or self.ratio() is None:
            return None
        return self.ratio() >= self.target if self.more_is_better else self.ratio() <= self.target

    def as_json(self):
        return {"group": self.group, "name": self.name, "peer": self.peer, "unit": self.unit, "ours": self.ours,
                "theirs": self.theirs, "processor": self.work, "ratio": self.ratio(), "best": self.best(),
                "processor_ratio": self.work_ratio(), "target": self.target,
                "times_faster": self.more_is_better, "met": self.met()}


def in_turn(commands, rounds, say):
    """{name: command or list of commands} → {name: [(elapsed, processor) ms of each round]}, None for one that fails."""
    times = {name: [] for name in commands}
    for _ in range(rounds):
        for name, command in commands.items():
            if times[name] is None:
                continue
            steps = command if isinstance(command[0], list) else [command]
            results = [run(step) for step in steps]
            if any(code != 0 for _, _, code in results):
                say(f"{name} fails: {' '.join(map(str, steps[0]))}")
                times[name] = None
            else:
                times[name].append((sum(elapsed for elapsed, _, _ in results), sum(work for _, work, _ in results)))
    return times
