#!/usr/bin/python3
"""khal, a calendar program of its own, imports our calendar file."""
import os
import shutil
import subprocess
import sys

from hostile import FUNDER_NAME, organization
from program import CommandLineTest, main

FIELDS = ("{start-date}", "{end-date}", "{title}", "{description}", "{categories}")
BETWEEN_FIELDS, BETWEEN_EVENTS = "\x1f", "\x1e"
CONFIGURATION = """
[calendars]
[[grants]]
path = {folder}/calendar
[default]
default_calendar = grants
[locale]
timeformat = %H:%M
dateformat = %Y-%m-%d
longdateformat = %Y-%m-%d
datetimeformat = %Y-%m-%d %H:%M
longdatetimeformat = %Y-%m-%d %H:%M
local_timezone = UTC
default_timezone = UTC
[sqlite]
path = {folder}/khal.db
"""


class Khal(CommandLineTest):
    def khal(self, *words):
        run = subprocess.run(["khal", "-c", "khal.conf", *words], cwd=self.folder, text=True, capture_output=True,
                             timeout=120, env=dict(os.environ, HOME=str(self.folder), LC_ALL="C.UTF-8"))
        self.assertEqual(run.returncode, 0, run.stderr)
        return run.stdout

    def events(self):
        """One tuple of FIELDS for each event that khal has."""
        listed = self.khal("list", "--day-format", "", "--format", BETWEEN_FIELDS.join(FIELDS) + BETWEEN_EVENTS,
                           "2027-01-01", "2029-01-01")
        events = [event.strip("\n") for event in listed.split(BETWEEN_EVENTS)]
        return sorted(tuple(event.split(BETWEEN_FIELDS)) for event in events if event)

    def test_imports_every_event_with_its_texts_and_alarm_and_updates_on_the_second_time(self):
        package = self.package(organization())
        (self.folder / "calendar").mkdir()
        (self.folder / "khal.conf").write_text(CONFIGURATION.format(folder=self.folder))
        self.answer("export", "ics", package, "--payments", "--drafts", "--alert-days", "3", "--out", "out.ics")
        for _ in range(2):
            self.khal("import", "--batch", "out.ics")

        labels = {"payment": "Payment expected", "report": "Report due", "reportDraft": "Start report draft"}
        items = self.json("agenda", package)
        expected = []
        for item in items:
            amount = "\nAmount: $1,234.56" if item["kind"] == "payment" else ""
            expected.append((item["day"], item["day"], f"{labels[item['kind']]} · {item['grantTitle']}",
                             f"Grant: {item['grantTitle']}\nFunder: {FUNDER_NAME}{amount}\nFrom Quillfern",
                             labels[item["kind"]]))
        self.assertEqual(len(expected), 45)
        self.assertEqual(self.events(), sorted(expected))

        stored = list((self.folder / "calendar").glob("*.ics"))
        self.assertEqual(len(stored), len(expected))
        for file in stored:
            self.assertEqual(file.read_text().count("TRIGGER:-P2DT15H"), 1, file)


if __name__ == "__main__":
    if not shutil.which("khal"):
        print("khal is not installed")
        sys.exit(77)
    main()
