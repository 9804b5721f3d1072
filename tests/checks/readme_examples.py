#!/usr/bin/python3
"""The examples of README.md do what it says.

    readme_examples.py README FOLDER_OF_QUILLFERN_CLI

A fenced block marked `console` is a session: lines that start with "$ " are typed, the lines below are the answer. All
blocks are one session in an empty folder, from top to bottom. A line of only "…" stands for any lines. Blocks with
another mark (`sh`) are commands for the reader's own machine and are not run.

Before it looks at the README it runs examples that are wrong, and fails when one of them passes.
"""
import os
import pathlib
import re
import subprocess
import sys
import tempfile

BLOCK = re.compile(r"^```console\n(.*?)^```$", re.MULTILINE | re.DOTALL)


def examples_of(readme):
    """The session as a list of (command, expected lines)."""
    examples = []
    for block in BLOCK.findall(readme):
        for line in block.splitlines():
            if line.startswith("$ "):
                examples.append((line[2:], []))
            else:
                examples[-1][1].append(line)
    return examples


def matches(expected, actual):
    parts = [r"(?:.*\n)*?" if line.strip() == "…" else re.escape(line.rstrip()) + r"\n" for line in expected]
    return re.fullmatch("".join(parts), "".join(line.rstrip() + "\n" for line in actual)) is not None


def complaints_about(readme, program_folder):
    complaints, examples = [], examples_of(readme)
    environment = dict(os.environ, PATH=f"{program_folder}:{os.environ['PATH']}", LANG="C.UTF-8", LC_ALL="C.UTF-8")
    with tempfile.TemporaryDirectory() as folder:
        for command, expected in examples:
            run = subprocess.run(["bash", "-c", command], cwd=folder, env=environment, text=True,
                                 stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
            if run.returncode != 0:
                complaints.append(f"$ {command}\nends with status {run.returncode}:\n{run.stdout}")
            elif not matches(expected, run.stdout.splitlines()):
                complaints.append(f"$ {command}\nprints:\n{run.stdout}")
    return complaints, len(examples)


def self_test():
    def noticed(session):
        return bool(complaints_about(f"Text\n\n```console\n{session}\n```\n", "/nowhere")[0])

    assert noticed("$ false")
    assert noticed("$ printf 'one\\ntwo\\n'\none")
    assert noticed("$ echo one\ntwo")
    assert noticed("$ echo one\n…\ntwo")
    assert not noticed("$ printf 'one\\ntwo\\nthree\\n'\none\n…\n$ echo kept > file\n$ cat file\nkept")


def main(readme, program_folder):
    self_test()
    complaints, count = complaints_about(readme.read_text(), program_folder)
    print("\n".join(complaints) or f"{count} examples do what README.md says")
    return 1 if complaints or count == 0 else 0


if __name__ == "__main__":
    sys.exit(main(pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2]).resolve()))
