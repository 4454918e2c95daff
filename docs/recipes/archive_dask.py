#!/usr/bin/python3
"""find IN -name '*.svg' -print0 | archive_dask.py SCHEDULER IN OUT FORMAT > results.jsonl

Pipes names through norvex on every worker of a Dask cluster. A batch whose worker dies goes to another worker."""
import os, subprocess, sys
from distributed import Client, as_completed

scheduler, base, out, form = sys.argv[1:5]
command = [os.environ.get("NORVEX", "norvex"), "convert", "--files-from", "-", "--null", "--base", base,
           "--to", out, "--format", form, "--json-lines", "--force"]

def convert(names):
    return subprocess.run(command, input=b"\0".join(names), stdout=subprocess.PIPE).stdout

names = sys.stdin.buffer.read().rstrip(b"\0").split(b"\0")
with Client(scheduler) as client:
    batches = [names[i:i + 100] for i in range(0, len(names), 100)]
    for batch in as_completed(client.map(convert, batches, retries=5)):
        sys.stdout.buffer.write(batch.result())
