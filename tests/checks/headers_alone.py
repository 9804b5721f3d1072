#!/usr/bin/python3
"""Every header compiles alone: whoever includes it needs to know nothing else to include before it.

    headers_alone.py ROOT COMPILE_COMMANDS

A header that some source file includes first, before anything else, is proved by the build already, and so is what
that header includes first. The others are compiled here, each on its own and without making code, with the flags of a
source file of the same folder. A folder that this build leaves out (the desktop on a server) is left out here, too, and
so are the tests' own headers.

Before it looks at the tree it plants a header that needs another one first, and fails when that goes unnoticed.
"""
import concurrent.futures
import json
import os
import pathlib
import re
import shlex
import subprocess
import sys
import tempfile

FIRST_INCLUDE = re.compile(r'^\s*#\s*include\s*[<"]([^>"]+)[>"]', re.MULTILINE)


NOT_CHECKED = {"build", "tests", "bench"}


def sources_by_folder(root, compile_commands):
    """For each folder of the tree the entries of the compilation database for its source files."""
    folders = {}
    for entry in json.loads(compile_commands.read_text()):
        source = pathlib.Path(entry["file"])
        if source.is_relative_to(root):
            folders.setdefault(source.parent, []).append(entry)
    return folders


def flags_of(entry):
    """The compile command without its source, its output and its compiler cache."""
    words = shlex.split(entry["command"])
    while "ccache" in os.path.basename(words[0]):
        words = words[1:]
    output = words.index("-o")
    return [word for word in words[:output] + words[output + 2:] if word not in ("-c", entry["file"])]


def first_include(file):
    found = FIRST_INCLUDE.search(file.read_text()) if file.exists() else None
    return found.group(1) if found else None


def proved_by_the_build(root, folders):
    """Names of headers that stand first in some source file, or first in such a header."""
    proved = set()
    for entry in (entry for entries in folders.values() for entry in entries):
        name = first_include(pathlib.Path(entry["file"]))
        while name and name not in proved:
            proved.add(name)
            name = first_include(root / name)
    return proved


def complaint_about(root, header, entry):
    """The compiler's words on a header that does not compile alone, or nothing."""
    name = header.relative_to(root)
    run = subprocess.run(flags_of(entry) + ["-fsyntax-only", "-x", "c++", "-"], cwd=entry["directory"],
                         input=f'#include "{root / name}"\n', text=True, capture_output=True)
    return f"{name} does not compile alone:\n{run.stderr}" if run.returncode else ""


def check(root, compile_commands):
    folders = sources_by_folder(root, compile_commands)
    proved = proved_by_the_build(root, folders)
    headers = [(header, entries[0]) for folder, entries in folders.items()
               if not NOT_CHECKED.intersection(folder.relative_to(root).parts) for header in sorted(folder.glob("*.h"))]
    unproved = [pair for pair in headers if str(pair[0].relative_to(root)) not in proved]
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        complaints = pool.map(lambda pair: complaint_about(root, *pair), unproved)
    return [complaint for complaint in complaints if complaint], len(headers), len(unproved)


def self_test():
    with tempfile.TemporaryDirectory() as folder:
        root = pathlib.Path(folder).resolve()
        files = {
            "base/alone.h": "#pragma once\n#include <string>\ninline std::string a() { return {}; }\n",
            "base/needy.h": "#pragma once\ninline std::string b() { return {}; }\n",
            "base/proved.h": '#pragma once\n#include "base/proved_too.h"\nint proved();\n',
            "base/proved_too.h": "#pragma once\n",
            "base/proved.cpp": '#include "base/proved.h"\nint proved() { return 1; }\n',
        }
        (root / "base").mkdir()
        for name, text in files.items():
            (root / name).write_text(text)
        source = str(root / "base/proved.cpp")
        database = root / "compile_commands.json"
        command = f"ccache c++ -std=c++20 -Werror -I{root} -o proved.o -c {source}"
        database.write_text(json.dumps([{"directory": folder, "file": source, "command": command}]))
        complaints, headers, unproved = check(root, database)
        assert (headers, unproved) == (4, 2), "the headers were not told apart"
        assert len(complaints) == 1 and complaints[0].startswith("base/needy.h"), "the needy header went unnoticed"


def main(root, compile_commands):
    self_test()
    complaints, headers, compiled = check(root, compile_commands)
    print("\n".join(complaints) or f"{headers} headers compile alone ({compiled} compiled here)")
    return 1 if complaints or headers == 0 else 0


if __name__ == "__main__":
    sys.exit(main(pathlib.Path(sys.argv[1]).resolve(), pathlib.Path(sys.argv[2])))
