#!/usr/bin/python3
"""instance_test.py START_PROBE PROGRAM: starts the program many times, with owners that crash, hang or are lied to.

Every request is performed exactly once, whatever happens to the owner, and there is never more than one owner.
"""
import collections
import os
import pathlib
import signal
import socket
import statistics
import subprocess
import sys
import tempfile
import time
import unittest

STATE_VARIABLES = ("HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_STATE_HOME", "XDG_RUNTIME_DIR")
PATIENCE = "5000"  # milliseconds, the program's own
SHORT = "300"
PROBE, PROGRAM = map(os.path.abspath, sys.argv[1:3])


class StartTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        self.environment = dict(os.environ, QT_QPA_PLATFORM="offscreen", LANG="C.UTF-8",
                                DBUS_SESSION_BUS_ADDRESS="unix:path=/nowhere")
        self.environment.pop("XDG_ACTIVATION_TOKEN", None)
        self.environment.update({variable: str(self.folder) for variable in STATE_VARIABLES})
        self.running = []
        self.addCleanup(self.end)

    def end(self):
        for process in self.running:
            process.kill()
            process.wait()

    def start(self, *words, program=PROBE, **variables):
        """Its output goes to a file, so that a test can look at it while the program runs."""
        output = self.folder / f"output-{len(self.running)}"
        with output.open("wb") as file:
            process = subprocess.Popen([program, *words], stdout=file, stderr=subprocess.DEVNULL,
                                       env=dict(self.environment, **variables))
        process.output = output
        self.running.append(process)
        return process

    def wait_until(self, true, seconds=20):
        deadline = time.monotonic() + seconds
        while not true():
            self.assertLess(time.monotonic(), deadline, "waited in vain")
            time.sleep(0.005)

    def role(self, process):
        self.wait_until(lambda: "\n" in process.output.read_text())
        return process.output.read_text().split()[0]

    def owner(self):
        owner = self.start(PATIENCE, "/first")
        self.assertEqual(self.role(owner), "owner")
        self.wait_until(lambda: self.performed(owner))
        return owner

    def performed(self, *processes):
        lines = [line for process in processes or self.running for line in process.output.read_text().splitlines()]
        return sorted(line.split(" ", 1)[1] for line in lines if line.startswith("performs"))

    def call(self, data=b""):
        [path] = (self.folder / "quillfern").glob("start-*.socket")
        caller = socket.socket(socket.AF_UNIX)
        self.addCleanup(caller.close)
        caller.settimeout(15)
        caller.connect(str(path))
        caller.sendall(data)
        return caller

    def answer(self, data):
        """What the owner answers; nothing, too, when it has hung up in the middle of so much."""
        try:
            return self.call(data).recv(1)
        except (BrokenPipeError, ConnectionResetError):
            return b""


class Starts(StartTest):
    def test_of_twenty_at_once_one_owns_and_performs_every_request_once(self):
        for round_ in range(5):
            starts = [self.start(PATIENCE, f"/{round_}/{number}") for number in range(20)]
            roles = collections.Counter(self.role(start) for start in starts)
            self.assertEqual(roles, {"owner": 1, "handed-over": 19})
            self.wait_until(lambda: len(self.performed(*starts)) == 20)
            self.assertEqual(self.performed(*starts), sorted(f"/{round_}/{number}" for number in range(20)))
            self.end()

    def test_a_crash_leaves_nothing_in_the_way(self):
        for _ in range(10):
            owner = self.owner()
            owner.kill()
            owner.wait()

    def test_requests_survive_owners_that_die_under_them(self):
        starts = []
        for number in range(60):
            starts.append(self.start(PATIENCE, f"/{number}"))
            if number % 12 == 11:
                owners = [start for start in starts if start.poll() is None
                          and start.output.read_text().startswith("owner")]
                for owner in owners:
                    owner.kill()
        for start in starts:
            self.wait_until(lambda: start.poll() is not None or "\n" in start.output.read_text())
        roles = [start.output.read_text().split()[:1] for start in starts]
        self.assertNotIn(["alone"], roles)
        handed_over = [f"/{number}" for number, role in enumerate(roles) if role == ["handed-over"]]
        self.assertLessEqual(set(handed_over), set(self.performed(*starts)))

    def test_a_request_that_brings_the_owner_down_comes_back(self):
        owner = self.owner()
        second = self.start(PATIENCE, "/second", XDG_ACTIVATION_TOKEN="crash")
        self.assertEqual(self.role(second), "owner")
        self.assertNotEqual(owner.wait(), 0)

    def test_a_hanging_owner_is_left_alone_and_does_not_come_back_to_the_request(self):
        owner = self.owner()
        owner.send_signal(signal.SIGSTOP)
        second = self.start(SHORT, "/second")
        self.assertEqual(self.role(second), "alone")
        self.wait_until(lambda: self.performed(second))
        owner.send_signal(signal.SIGCONT)
        third = self.start(PATIENCE, "/third")
        self.assertEqual(self.role(third), "handed-over")
        self.assertEqual(self.performed(), ["/first", "/second", "/third"])

    def test_bad_callers_get_nowhere_and_hold_nobody_up(self):
        owner = self.owner()
        good = b"quillfern start 1\n"
        for garbage in (b"\0" * 100000, os.urandom(1000), b"quillfern start 9\n", good + b"\xff" * 4,
                        good + b"\3\0\0\0abc", b"x" * 3_000_000):
            self.assertIn(self.answer(garbage), (b"N", b""))
        for half in (b"", good, good + b"\x09\0\0\0\0\0/lo"):
            self.call(half).close()
        silent = [self.call(good[:number % 20]) for number in range(200)]
        self.assertEqual(self.role(self.start(PATIENCE, "/second")), "handed-over")
        self.assertEqual(self.performed(), ["/first", "/second"])
        self.assertIsNone(owner.poll())
        begin = time.monotonic()
        self.assertEqual(silent[-1].recv(1), b"")
        self.assertLess(time.monotonic() - begin, 12)

    def test_without_a_folder_or_with_too_long_a_name_everybody_runs_alone(self):
        long = self.folder / ("x" * 100)
        long.mkdir()
        self.assertEqual(self.role(self.start(PATIENCE, "/a", XDG_RUNTIME_DIR=str(long))), "alone")
        self.assertEqual(self.role(self.start(PATIENCE, "/b", XDG_RUNTIME_DIR=str(long))), "alone")

    def test_another_display_has_its_own(self):
        self.owner()
        self.assertEqual(self.role(self.start(PATIENCE, "/x", WAYLAND_DISPLAY="wayland-9")), "owner")
        self.assertEqual(self.role(self.start(PATIENCE, "/y", DISPLAY=":99")), "owner")

    def test_what_owning_costs_is_told(self):
        times = []
        for _ in range(20):
            owner = self.owner()
            times.append(int(owner.output.read_text().split()[1]))
            owner.kill()
            owner.wait()
        print(f"owning takes {statistics.median(times)} µs (median of {len(times)}), at most {max(times)} µs")


class Program(StartTest):
    def package(self, name):
        package = self.folder / f"{name}.quillfern"
        package.mkdir()
        (package / "Quillfern.json").write_text('{"formatVersion": 2, "org": {"name": "Pantry"}}')
        return package

    def locks(self):
        """How many documents are open."""
        return len(list((self.folder / "quillfern").glob("[0-9a-f]*.lock")))

    def listens(self):
        return list((self.folder / "quillfern").glob("start-*.socket"))

    def second(self, *words, folder="/"):
        begin = time.monotonic()
        done = subprocess.run([PROGRAM, *words], env=self.environment, timeout=30, cwd=folder)
        self.assertEqual(done.returncode, 0)
        return time.monotonic() - begin

    def test_a_second_start_opens_its_files_in_the_first(self):
        first = self.start(str(self.package("One")), program=PROGRAM)
        self.wait_until(self.listens)
        self.package("Two")
        self.second("Two.quillfern", folder=self.folder)
        self.assertEqual(self.locks(), 2)
        self.second("Two.quillfern/Quillfern.json", folder=self.folder)  # the same document
        self.second("--sample")
        self.second("missing.quillfern")
        times = [self.second() for _ in range(5)]
        print(f"a second start is over in {statistics.median(times) * 1000:.0f} ms")
        self.assertEqual(self.locks(), 2)
        self.assertIsNone(first.poll())

    def test_a_start_for_trying_out_runs_on_its_own(self):
        self.start(str(self.package("One")), program=PROGRAM)
        self.wait_until(self.listens)
        for words in (["--today", "2026-09-10"], ["--scheme", "dark"], ["-platform", "offscreen"]):
            other = self.start(*words, program=PROGRAM)
            with self.assertRaises(subprocess.TimeoutExpired):
                other.wait(1)
        self.second("--exit-after-paint")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
