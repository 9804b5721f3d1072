#!/usr/bin/python3
"""Holds the sources to the table "Folders and arrows" of docs/ARCHITECTURE.md.

Four things are looked at: an include of another folder must be an arrow of the table; inside a folder whose rooms the
table lists, an include of another room must be an arrow as well; a library's header may be included only by the folders
that LIBRARIES names; and base/ includes the standard library and itself only.

    include_arrows.py ROOT

Before it looks at the tree it plants each kind of violation in a small tree of its own, and fails when one of them goes
unnoticed.
"""
import pathlib
import re
import sys
import tempfile

QT_FOLDERS = {"desktop", "boardui", "app", "helpers", "tests", "bench"}

# Which includes belong to a library, and which folders (or single files) may see that library.
LIBRARIES = {
    "Qt": (re.compile(r"^(Qt\w+/|Q[A-Z]\w*$)"), QT_FOLDERS),
    # A file is read in one place: the reader's templates are slow to compile.
    "simdjson": (re.compile(r"^(simdjson|platform/json_reader\.h)"),
                 {"platform", "tests", "bench", "grants/grant_file_json.cpp", "board/board_json.cpp",
                  "grants/carriage_returns.cpp"}),
    "ICU": (re.compile(r"^unicode/"), {"platform", "tests", "bench"}),
    "OpenSSL": (re.compile(r"^openssl/"), {"platform", "tests", "bench"}),
    "CLI11": (re.compile(r"^CLI/"), {"cli"}),
    "libecal": (re.compile(r"^(libecal|libedataserver|libical)"), {"helpers", "tests", "bench"}),
}

INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]', re.MULTILINE)
STANDARD_HEADER = re.compile(r"^[a-z_0-9]+$")
SOURCE_SUFFIXES = {".h", ".cpp", ".in"}


def table_rows(architecture):
    """The rows of the table, as (names of the folders in the first cell, text of the last cell)."""
    rows = []
    for line in architecture.splitlines():
        cells = [cell.strip() for cell in line.strip().strip("|").split("|")]
        if line.startswith("|") and len(cells) >= 3 and re.match(r"`[\w/]+/`", cells[0]):
            rows.append((re.findall(r"`([\w/]+)/`", cells[0]), cells[-1]))
    return rows


def allowed_includes(architecture):
    """For each folder of the table the folders that it may include; None where the table sets no limit."""
    rows = table_rows(architecture)
    if not rows:
        raise SystemExit("docs/ARCHITECTURE.md holds no table of folders")
    everything = {name for names, _ in rows for name in names}
    allowed = {}
    for names, text in rows:
        named = set(re.findall(r"`([\w/]+)`", text))
        if text == "":
            targets = None
        elif text.startswith("everything but"):
            targets = everything - named
        elif text.endswith("and below"):
            targets = named.union(*(allowed[name] for name in named))
        else:
            targets = named
        for name in names:
            allowed[name] = targets if targets is None else targets | {name}
    return allowed


def room_of(path, allowed):
    """The folder's room that the file is in; the folder when it is in none."""
    parts = path.split("/")
    room = "/".join(parts[:2])
    return room if len(parts) > 2 and room in allowed else parts[0]


def complaints_about(path, text, allowed):
    folder, room = path.split("/")[0], room_of(path, allowed)
    for match in INCLUDE.finditer(text):
        line = text.count("\n", 0, match.start(2)) + 1
        quoted, target = match.group(1) == '"', match.group(2)
        target_folder = target.split("/")[0] if "/" in target else folder
        limit = allowed[folder]
        if quoted and limit is not None and target_folder in allowed and target_folder not in limit:
            yield f"{path}:{line}: {folder}/ may not include {target_folder}/ ({target})"
        target_room = room_of(target, allowed) if quoted and target_folder == folder and "/" in target else room
        if room != folder and target_room != room and target_room not in allowed[room]:
            yield f"{path}:{line}: {room}/ may not include {target_room}/ ({target})"
        if folder == "base" and not quoted and not STANDARD_HEADER.match(target):
            yield f"{path}:{line}: base/ includes nothing but the standard library ({target})"
        for name, (pattern, places) in LIBRARIES.items():
            if pattern.match(target) and folder not in places and path not in places:
                yield f"{path}:{line}: {folder}/ may not include {name} ({target})"


def check(root):
    """All complaints about the tree, and how many files were read."""
    allowed = allowed_includes((root / "docs/ARCHITECTURE.md").read_text())
    complaints, files = [], 0
    for folder in {name.split("/")[0] for name in allowed}:
        for file in sorted((root / folder).rglob("*")):
            if file.suffix in SOURCE_SUFFIXES and file.is_file():
                files += 1
                complaints += complaints_about(str(file.relative_to(root)), file.read_text(), allowed)
    return complaints, files


def self_test(architecture):
    planted = [
        ("base/a.h", '#include "platform/b.h"'),
        ("base/a.h", "#include <unistd.h>"),
        ("base/a.h", "#include <simdjson.h>"),
        ("platform/a.h", '#include "grants/day.h"'),
        ("board/a.cpp", '#include "grants/day.h"'),
        ("board/a.cpp", "  #  include <unicode/ucol.h>"),
        ("grants/agenda.cpp", '#include "simdjson.h"'),
        ("grants/agenda.cpp", '#include "platform/json_reader.h"'),
        ("grants/a.h", "#include <QString>"),
        ("grants/a.cpp", '#include "app/window.h"'),
        ("desktop/a.cpp", '#include "grants/day.h"'),
        ("boardui/a.cpp", '#include "app/window.h"'),
        ("boardui/a.cpp", '#include "grants/day.h"'),
        ("app/a.cpp", '#include "cli/output.h"'),
        ("app/pages/a.cpp", '#include "cli/output.h"'),
        ("app/pages/a.cpp", '#include "app/window/b.h"'),
        ("app/state/a.h", '#include "app/application.h"'),
        ("cli/a.cpp", '#include "desktop/style.h"'),
        ("cli/a.cpp", "#include <QtCore/QString>"),
        ("helpers/a.cpp", '#include "grants/day.h"'),
    ]
    innocent = [
        ("base/a.h", '#include <string>\n#include "base/uuid.h"'),
        ("platform/a.cpp", '#include <unicode/ucol.h>\n#include <simdjson.h>\n#include "base/uuid.h"'),
        ("grants/grant_file_json.cpp", '#include "platform/json_reader.h"\n#include "board/records.h"\n#include "local.h"'),
        ("boardui/a.cpp", '#include <QWidget>\n#include "board/records.h"\n#include "base/uuid.h"'),
        ("app/pages/a.cpp", '#include "app/state/b.h"\n#include "app/pages/c.h"\n#include "grants/day.h"'),
        ("app/a.cpp", '#include "app/window/b.h"'),
        ("app/a.cpp", '#include "boardui/page.h"\n#include "grants/day.h"\n#include <QtCore/QString>'),
        ("tests/grants/a_test.cpp", '#include "grants/day.h"\n#include <gtest/gtest.h>'),
    ]
    for path, text in planted:
        assert complaints_in_a_tree_of(architecture, path, text), f"not noticed: {text} in {path}"
    for path, text in innocent:
        assert not complaints_in_a_tree_of(architecture, path, text), f"complains about {path}"


def complaints_in_a_tree_of(architecture, path, text):
    with tempfile.TemporaryDirectory() as folder:
        root = pathlib.Path(folder)
        (root / "docs").mkdir()
        (root / "docs/ARCHITECTURE.md").write_text(architecture)
        (root / path).parent.mkdir(parents=True, exist_ok=True)
        (root / path).write_text(text + "\n")
        return check(root)[0]


def main(root):
    self_test((root / "docs/ARCHITECTURE.md").read_text())
    complaints, files = check(root)
    print("\n".join(complaints) or f"{files} files lean the way docs/ARCHITECTURE.md draws it")
    return 1 if complaints or files == 0 else 0


if __name__ == "__main__":
    sys.exit(main(pathlib.Path(sys.argv[1]).resolve()))
