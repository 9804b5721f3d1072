#!/usr/bin/python3
"""Every source file is formatted as .clang-format says.

    format.py ROOT CLANG_FORMAT

To format a file: clang-format -i FILE.
"""
import pathlib
import subprocess
import sys

NOT_OURS = {"build", ".git"}


def sources(root):
    for folder in sorted(root.iterdir()):
        if folder.is_dir() and folder.name not in NOT_OURS:
            yield from (file for file in sorted(folder.rglob("*")) if file.suffix in (".h", ".cpp"))


def misformatted(clang_format, files, style):
    """clang-format's words about the files, one line for each that needs formatting."""
    run = subprocess.run([clang_format, "--dry-run", "-Werror", "--ferror-limit=1", f"--style={style}", *files],
                         text=True, capture_output=True)
    return [line for line in run.stderr.splitlines() if "error:" in line] if run.returncode else []


def self_test(clang_format, style):
    run = subprocess.run([clang_format, "--dry-run", "-Werror", f"--style={style}", "--assume-filename=a.cpp"],
                         input="int  main( ){return 0 ;}\n", text=True, capture_output=True)
    assert run.returncode != 0, "a badly formatted file went unnoticed"


def main(root, clang_format):
    style = f"file:{root / '.clang-format'}"
    self_test(clang_format, style)
    files = list(sources(root))
    complaints = misformatted(clang_format, files, style)
    print("\n".join(complaints) or f"{len(files)} files are formatted")
    return 1 if complaints or not files else 0


if __name__ == "__main__":
    sys.exit(main(pathlib.Path(sys.argv[1]).resolve(), sys.argv[2]))
