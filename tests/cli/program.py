"""Runs quillfern-cli on packages made by hand."""
import json
import os
import pathlib
import subprocess
import sys
import tempfile
import unittest

# A save that is refused may end with a message; a reader that waits for a FIFO never ends.
SECONDS_TO_ANSWER = 20


def contents(path):
    """Everything below a path: names, kinds, permissions and bytes."""
    def one(entry):
        if entry.is_symlink():
            return "link", os.readlink(entry)
        if entry.is_file():
            return oct(entry.stat().st_mode), entry.read_bytes()
        return oct(entry.lstat().st_mode), None

    return {str(entry): one(entry) for entry in [path, *sorted(path.rglob("*"))]}


class CommandLineTest(unittest.TestCase):
    program = ""

    def setUp(self):
        self.maxDiff = None
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)

    def run_program(self, *words):
        environment = dict(os.environ, LC_ALL="C.UTF-8", HOME=str(self.folder.parent), TZ="UTC",
                           XDG_STATE_HOME=f"{self.folder}.state", XDG_RUNTIME_DIR=f"{self.folder}.runtime")
        return subprocess.run([self.program, *map(str, words)], cwd=self.folder, env=environment, text=True,
                              capture_output=True, timeout=SECONDS_TO_ANSWER)

    def answer(self, *words):
        """What the program prints when it does as it is told."""
        run = self.run_program(*words)
        self.assertEqual((run.returncode, run.stderr), (0, ""), words)
        return run.stdout

    def notes(self, *words):
        """What the program says beside an answer that it gives."""
        run = self.run_program(*words)
        self.assertEqual(run.returncode, 0, (words, run.stderr))
        lines = run.stderr.splitlines()
        for line in lines:
            self.assertRegex(line, r"\Aquillfern-cli: note: ", words)
        return lines

    def json(self, *words):
        return json.loads(self.answer(*words, "--json"))

    def refusal(self, status, *words):
        """The reason for which the program refuses; nothing on disk may differ."""
        before = contents(self.folder)
        run = self.run_program(*words)
        self.assertEqual(contents(self.folder), before, words)
        self.assertEqual((run.returncode, run.stdout), (status, ""), (words, run.stderr))
        self.assertRegex(run.stderr, r"\Aquillfern-cli: [^\n]+\n\Z", words)
        return run.stderr.removeprefix("quillfern-cli: ").rstrip("\n")

    def package(self, file, attachments=None, name="Pantry.quillfern"):
        """A package that holds `file`: a value to write as JSON, or the bytes themselves."""
        package = self.folder / name
        package.mkdir()
        text = file if isinstance(file, bytes) else json.dumps(file).encode()
        (package / "Quillfern.json").write_bytes(text)
        if attachments is not None:
            (package / "Attachments").mkdir()
            for stored_name, data in attachments.items():
                (package / "Attachments" / stored_name).write_bytes(data)
        return package


def main():
    CommandLineTest.program = sys.argv.pop(1)
    unittest.main(module="__main__")
