"""Attacks the saver from outside: attack.py ATTACK PROBE.

Each attack is made on the sound saver, which must stand it, and on a sabotaged one, which must be found out. Exit
status: 0 the saver stood it and the sabotage was noticed, 1 not so, 77 the machine does not let this attack run.
"""

import collections
import os
import random
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import time

SKIPPED = 77


class Broken(Exception):
    """The document, or the saver's promise, was broken."""


class Document:
    """A document in a folder of its own."""

    def __init__(self, probe, folder=None):
        self.probe = probe
        self.folder = tempfile.mkdtemp(prefix="quillfern-faults-", dir=folder)
        self.path = os.path.join(self.folder, "Pantry.quillfern")
        self.number = 1
        os.environ["XDG_RUNTIME_DIR"] = tempfile.mkdtemp(prefix="run-", dir=self.folder)
        self.run("make", self.number, must=True)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        shutil.rmtree(self.folder, ignore_errors=True)

    def command(self, verb, *arguments):
        return [self.probe, verb, self.path, *map(str, arguments)]

    def run(self, verb, *arguments, must=False):
        done = subprocess.run(self.command(verb, *arguments), capture_output=True, text=True)
        if must and done.returncode != 0:
            raise Broken(f"{verb}: {done.stdout.strip()} {done.stderr.strip()}")
        return done

    def check(self, *allowed):
        """Reads the document: it must be one of these states, whole."""
        checked = self.run("check", must=True)
        self.number = int(checked.stdout)
        if allowed and self.number not in allowed:
            raise Broken(f"state {self.number} instead of {allowed}")

    def save_soundly(self):
        """After whatever happened, the next save works and leaves nothing behind."""
        self.run("save", self.number + 1, must=True)
        self.check(self.number + 1)
        if debris := self.debris():
            raise Broken(f"left behind: {debris}")

    def debris(self):
        return [name for name in os.listdir(self.folder) if name.startswith(".~")]


def expect_found_out(attack, what):
    try:
        attack()
    except Broken as broken:
        print(f"{what}: found out ({broken})")
        return
    raise Broken(f"{what}: the sabotage went unnoticed")


# Tracing


def can_trace():
    if not shutil.which("strace"):
        return "strace is not installed"
    tried = subprocess.run(["strace", "-o", "/dev/null", "true"], capture_output=True, text=True)
    return None if tried.returncode == 0 else "this machine does not allow tracing: " + tried.stderr.strip()


def trace(document, way):
    """The lines of one traced save, as (thread, call), from the start of the program."""
    log = os.path.join(document.folder, "trace")
    command = document.command("save", document.number + 1, way)
    done = subprocess.run(["strace", "-f", "-y", "-o", log, *command], capture_output=True, text=True)
    if done.returncode != 0:
        raise Broken(f"the traced save fails: {done.stdout}")
    document.number += 1
    with open(log, encoding="utf-8", errors="replace") as lines:
        return whole_calls(line.rstrip("\n").split(None, 1) for line in lines)


def whole_calls(lines):
    """Puts together the calls whose lines another thread has split, at the place of their end."""
    begun, calls = {}, []
    for thread, call in lines:
        if call.endswith("<unfinished ...>"):
            begun[thread] = call.removesuffix("<unfinished ...>")
            continue
        if resumed := re.match(r"<\.\.\. \w+ resumed>(.*)", call):
            call = begun.pop(thread, "") + resumed.group(1).lstrip()
        calls.append((thread, re.sub(r"\)\s+= ", ") = ", call)))
    return calls


def is_start(call):
    return call.startswith("write(1<") and '"OPENED' in call


def calls_of_a_save(document, way):
    """The calls of the thread that saves, by name: their numbers from the start of the program.

    A second thread writes the text into the tree that is being built, which is no document yet.
    """
    lines = trace(document, way)
    main_thread = lines[0][0]
    before, total, started = {}, collections.Counter(), False
    for thread, call in lines:
        name = re.match(r"(\w+)\(", call)
        if thread != main_thread or not name:
            continue
        if is_start(call):
            before, started = dict(total), True
        total[name.group(1)] += 1
    assert started
    return {name: range(before.get(name, 0) + 1, count + 1) for name, count in total.items()}


def kill_at_every_call(probe, way, folder=None):
    with Document(probe, folder) as document:
        kills = 0
        for name, numbers in calls_of_a_save(document, way).items():
            for number in numbers:
                old = document.number
                inject = f"inject={name}:signal=KILL:when={number}"
                command = document.command("save", old + 1, way)
                subprocess.run(["strace", "-f", "-o", "/dev/null", "-e", inject, *command],
                               capture_output=True, check=False)
                kills += 1
                try:
                    document.check(old, old + 1)
                    document.save_soundly()
                except Broken as broken:
                    raise Broken(f"killed at {name} number {number}: {broken}") from None
        print(f"{way}: killed at each of {kills} system calls")


def attack_kill_at_every_call(probe):
    if reason := can_trace():
        return reason
    kill_at_every_call(probe, "sound")
    kill_at_every_call(probe, "two-steps")
    expect_found_out(lambda: kill_at_every_call(probe, "in-place"), "writing in place")


def flush_order(probe, way):
    """Every new file and folder is flushed before the rename, and the folder above after it, before the save is told."""
    with Document(probe) as document:
        started, unflushed, renamed, parent_flushed = False, {}, False, False
        for _, call in trace(document, way):
            started = started or is_start(call)
            if not started:
                continue
            opened = re.match(r"openat\(.*O_CREAT.* = \d+<(.*)>$", call)
            made = re.match(r'mkdirat\(\d+<(.*?)>, "(.*?)"', call)
            synced = re.match(r"fsync\(\d+<(.*?)>", call)
            if opened:
                unflushed[opened.group(1)] = call
            elif made:
                unflushed[os.path.join(*made.groups())] = call
            elif synced:
                unflushed.pop(synced.group(1), None)
                parent_flushed = parent_flushed or (renamed and synced.group(1) == os.path.realpath(document.folder))
            elif re.match(r'rename.*, "Pantry\.quillfern"(, \w+)?\) = 0$', call):
                if unflushed:
                    raise Broken(f"renamed before these were flushed: {sorted(unflushed)}")
                renamed, parent_flushed = True, False
            elif '"SAVED' in call:
                break
        if not renamed or not parent_flushed:
            raise Broken("saved without flushing the folder above")
        print(f"{way}: flushed in order")


def attack_flush_order(probe):
    if reason := can_trace():
        return reason
    flush_order(probe, "sound")
    flush_order(probe, "two-steps")
    expect_found_out(lambda: flush_order(probe, "no-parent-flush"), "no flush of the folder above")
    expect_found_out(lambda: flush_order(probe, "no-file-flush"), "no flush of files")


# Killing at random


def random_kills(probe, way, kills):
    chance = random.Random(20260307)
    with Document(probe) as document:
        saves = 0
        for kill in range(kills):
            start = document.number
            saver = subprocess.Popen(document.command("loop", start + 1, way), stdout=subprocess.PIPE)
            saver.stdout.readline()  # it has opened the document
            time.sleep(chance.uniform(0, 0.03))
            saver.send_signal(signal.SIGKILL)
            saver.communicate()
            try:
                document.check()
            except Broken as broken:
                raise Broken(f"kill {kill + 1}: {broken}") from None
            if document.number < start:
                raise Broken(f"kill {kill + 1}: state {start} was saved, {document.number} is there")
            saves += document.number - start
        document.save_soundly()
        print(f"{way}: {kills} random kills among {saves} saves")


def attack_random_kills(probe):
    random_kills(probe, "sound", 300)
    random_kills(probe, "two-steps", 100)
    expect_found_out(lambda: random_kills(probe, "in-place", 300), "writing in place")


# A reader in the way


def racing_reader(probe, way, seconds):
    with Document(probe) as document:
        saver = subprocess.Popen(document.command("loop", document.number + 1, way), stdout=subprocess.DEVNULL)
        try:
            watched = document.run("watch", seconds, must=True)
        finally:
            saver.kill()
            saver.wait()
        print(f"{way}: the reader saw {watched.stdout.strip()}, each whole")


def attack_racing_reader(probe):
    racing_reader(probe, "sound", 4)
    racing_reader(probe, "two-steps", 4)
    expect_found_out(lambda: racing_reader(probe, "in-place", 10), "writing in place")


# A full disk


def full_disk(probe, way, mounted):
    """Saves with less and less room, from plenty to none."""
    with Document(probe, mounted) as document:
        ballast = os.path.join(mounted, "ballast")
        refused = 0
        for room in range(400, -1, -12):
            disk = os.statvfs(mounted)
            with open(ballast, "wb") as file:
                file.write(bytes(max(0, disk.f_bavail * disk.f_frsize - room * 1024)))
            old = document.number
            saved = document.run("save", old + 1, way)
            if saved.returncode == 3:
                raise Broken(saved.stdout)
            document.check(old if saved.returncode else old + 1)
            if saved.returncode:
                refused += 1
                if "No space left" not in saved.stdout:
                    raise Broken(f"refused for another reason: {saved.stdout}")
            if document.debris():
                raise Broken(f"left behind: {document.debris()}")
            os.remove(ballast)
        document.save_soundly()
        if not refused:
            raise Broken("the disk was never full")
        print(f"{way}: {refused} saves refused for a full disk")


def full_store(probe, mounted):
    """The disk of the earlier versions is full, or their folder cannot be made: documents are saved all the same."""
    store = os.path.join(mounted, "store")
    ballast = os.path.join(mounted, "ballast")
    with Document(probe) as document:
        beside = 0
        for room in range(0, 400, 24):
            disk = os.statvfs(mounted)
            with open(ballast, "wb") as file:
                file.write(bytes(max(0, disk.f_bavail * disk.f_frsize - room * 1024)))
            told = "BESIDE" in document.run("save", document.number + 1, "sound", store, must=True).stdout
            document.check(document.number + 1)
            if told != bool(document.debris()):
                raise Broken(f"told: {told}, beside the document: {document.debris()}")
            beside += told
            os.remove(ballast)
            document.save_soundly()
            shutil.rmtree(store, ignore_errors=True)
        document.run("save", document.number + 1, "sound", "/dev/null", must=True)
        document.check(document.number + 1)
        if beside in (0, 17) or not document.debris():
            raise Broken(f"{beside} previous states did not fit")
        print(f"full store: {beside} previous states stay beside the document")


def attack_full_disk(probe):
    if "QUILLFERN_OWN_MOUNTS" not in os.environ:
        return in_own_mounts()
    mounted = tempfile.mkdtemp(prefix="quillfern-disk-")
    try:
        if subprocess.run(["mount", "-t", "tmpfs", "-o", "size=2m", "tmpfs", mounted], check=False).returncode != 0:
            return "this machine does not allow mounting"
        full_disk(probe, "sound", mounted)
        full_disk(probe, "two-steps", mounted)
        full_store(probe, mounted)
        expect_found_out(lambda: full_disk(probe, "in-place", mounted), "writing in place")
    finally:
        subprocess.run(["umount", mounted], check=False, capture_output=True)
        os.rmdir(mounted)
    return None


def in_own_mounts():
    """Runs this attack again where mounting needs no rights and nobody else sees it."""
    unshare = ["unshare", "--mount"] if os.geteuid() == 0 else ["unshare", "--map-root-user", "--mount"]
    if not shutil.which("unshare") or subprocess.run([*unshare, "true"], capture_output=True, check=False).returncode:
        return "this machine does not allow mounting"
    again = [*unshare, sys.executable, *sys.argv]
    sys.exit(subprocess.run(again, env={**os.environ, "QUILLFERN_OWN_MOUNTS": "1"}, check=False).returncode)


def main():
    sys.stdout.reconfigure(line_buffering=True)
    _, attack, probe = sys.argv
    try:
        reason = globals()["attack_" + attack](probe)
    except Broken as broken:
        print("BROKEN:", broken)
        return 1
    if reason:
        print("SKIPPED:", reason)
        return SKIPPED
    return 0


sys.exit(main())
