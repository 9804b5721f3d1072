#!/usr/bin/python3
"""recovery_test.py PROBE [RUNS [real]]: kills an editing program at random moments and looks at what the next start
gives back: at most the edits of the longest wait may be lost, in untitled documents too, and the file on the disk is
whole. With fast snapshots unless they are to be at the real pace; then sabotaged ones must be found out, too. When the
program is asked to stop, nothing at all may be lost, and a document with a file needs no recovery.
"""
import concurrent.futures
import json
import os
import pathlib
import random
import signal
import subprocess
import sys
import tempfile
import time

LONGEST_WAIT = {"real": 10}  # seconds of edits
FAST_WAIT = 0.5
SLACK = 0.7  # for a loaded machine: writing takes time, too
LIFE = {"real": 45, "never": 5, "late": 5}  # at most, in seconds
FAST_LIFE = 3
STATE_VARIABLES = ("XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_STATE_HOME", "XDG_RUNTIME_DIR")


def environment(folder):
    own = dict(os.environ, QT_QPA_PLATFORM="offscreen", LANG="C.UTF-8", DBUS_SESSION_BUS_ADDRESS="unix:path=/nowhere")
    own.update({variable: str(folder) for variable in STATE_VARIABLES})
    return own


def edit_and_kill(probe, folder, package, pace, life, sent=signal.SIGKILL, meanwhile=lambda: None):
    """The edits that were made, as (number, seconds), and when the program died."""
    editor = subprocess.Popen([probe, "edit", str(folder / "state"), package, pace], stdout=subprocess.PIPE,
                              text=True, env=environment(folder))
    first = editor.stdout.readline()
    time.sleep(life)
    meanwhile()
    died = time.monotonic()
    editor.send_signal(sent)
    lines = [first] + editor.stdout.readlines()
    editor.wait()
    edits = [line.split() for line in lines if line.endswith("\n")]
    return [(int(number), int(when) / 1000) for number, when in edits], died


def recovered(probe, folder):
    done = subprocess.run([probe, "recover", str(folder / "state")], capture_output=True, text=True, check=True,
                          env=environment(folder), timeout=60)
    return [line.split() for line in done.stdout.splitlines()]


def one_crash(probe, pace, number):
    """Seconds of edits that are lost, and what is wrong."""
    chance = random.Random(number)
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        package = folder / "Pantry.quillfern"
        untitled = chance.random() < 0.5
        if not untitled:
            package.mkdir()
            (package / "Quillfern.json").write_text('{"formatVersion": 2, "org": {"name": "0"}}')
        life = chance.uniform(0, LIFE.get(pace, FAST_LIFE))
        edits, died = edit_and_kill(probe, folder, "-" if untitled else str(package), pace, life)
        on_disk = 0 if untitled else int(json.loads((package / "Quillfern.json").read_text())["org"]["name"])
        found = recovered(probe, folder)
        again = recovered(probe, folder)
        kept = max([on_disk] + [int(line[0]) for line in found])
        lost = [when for edit, when in edits if edit > kept]
        loss = died - lost[0] if lost else 0
        problems = []
        if loss > LONGEST_WAIT.get(pace, FAST_WAIT) + SLACK:
            problems.append(f"{loss:.2f} s of edits are lost")
        if any(line[1] != line[2] for line in found):
            problems.append(f"attachments are lost: {found}")
        if found != again:
            problems.append(f"{found} the first time, {again} the second")
        kind = "untitled" if untitled else "named"
        return loss, [f"crash {number} ({kind}): {problem}" for problem in problems]


def crashes(probe, pace, count):
    with concurrent.futures.ThreadPoolExecutor(max_workers=8 if pace == "real" else 4) as pool:
        results = list(pool.map(lambda number: one_crash(probe, pace, number), range(count)))
    print(f"{pace}: {count} crashes, {max(loss for loss, _ in results):.2f} s of edits lost at most", flush=True)
    return [problem for _, problems in results for problem in problems]


def one_stop(probe, pace, number):
    """In turn: a new document, one with a file, and one whose file another program has written to."""
    kind = ("untitled", "named", "changed outside")[number % 3]
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        main_file = folder / "Pantry.quillfern" / "Quillfern.json"
        main_file.parent.mkdir()
        write = lambda: main_file.write_text('{"formatVersion": 2, "org": {"name": "0"}}')
        write()
        stop = random.Random(number).choice((signal.SIGTERM, signal.SIGINT, signal.SIGHUP))
        edits, _ = edit_and_kill(probe, folder, "-" if kind == "untitled" else str(main_file.parent), pace,
                                 random.Random(number).uniform(0, 2), stop,
                                 write if kind == "changed outside" else lambda: None)
        last = edits[-1][0]
        on_disk = int(json.loads(main_file.read_text())["org"]["name"])
        found = [int(line[0]) for line in recovered(probe, folder)]
        as_it_should_be = on_disk == last and not found if kind == "named" else last in [on_disk] + found
        if as_it_should_be:
            return []
        return [f"stop {number} ({kind}, {stop.name}): edit {last}, {on_disk} on the disk, {found} recovered"]


def stops(probe, pace, count):
    with concurrent.futures.ThreadPoolExecutor(max_workers=4) as pool:
        problems = sum(pool.map(lambda number: one_stop(probe, pace, number), range(count)), [])
    print(f"{count} stops", flush=True)
    return problems


def main():
    probe = sys.argv[1]
    runs = int(sys.argv[2]) if len(sys.argv) > 2 else 100
    pace = sys.argv[3] if len(sys.argv) > 3 else "fast"
    problems = crashes(probe, pace, runs)
    if pace == "fast":
        for sabotage in ("never", "late"):
            if not crashes(probe, sabotage, 8):
                problems.append(f"{sabotage}: the sabotage went unnoticed")
    problems += stops(probe, pace, runs // 4)
    print("\n".join(problems) or "nothing is lost that should be there")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
