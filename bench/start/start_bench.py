#!/usr/bin/python3
"""start_bench.py PROGRAM PEER [PAIRS]: start to first paint against an empty main window, on the display at hand.

The two are started back to back in alternating order; the figure is the median of the ratios of the pairs.
"""
import os
import statistics
import subprocess
import sys
import tempfile
import time


def seconds(command, environment):
    start = time.perf_counter()
    subprocess.run(command, env=environment, check=True, stderr=subprocess.DEVNULL)
    return time.perf_counter() - start


def main():
    program, peer = sys.argv[1:3]
    pairs = int(sys.argv[3]) if len(sys.argv) > 3 else 31
    with tempfile.TemporaryDirectory() as home:
        environment = dict(os.environ, LANG="C.UTF-8", XDG_CONFIG_HOME=home, XDG_STATE_HOME=home, XDG_DATA_HOME=home)
        ours = [program, "--sample", "--exit-after-paint"]
        for command in (ours, [peer]):
            seconds(command, environment)  # into the caches
        measured = []
        for pair in range(pairs):
            order = [ours, [peer]] if pair % 2 else [[peer], ours]
            times = {id(command): seconds(command, environment) for command in order}
            own = times[id(ours)]
            measured.append((own, sum(times.values()) - own))
    ratio = statistics.median(own / other for own, other in measured)
    own, other = (statistics.median(column) * 1000 for column in zip(*measured))
    print(f"start to first paint: {own:.1f} ms, an empty window {other:.1f} ms, ratio {ratio:.2f} ({pairs} pairs)")


if __name__ == "__main__":
    main()
