#!/usr/bin/python3
"""LibreOffice opens our spreadsheets and writes them again."""
import csv
import re
import shutil
import subprocess
import sys

from hostile import organization
from program import CommandLineTest, main

COLUMNS = 17
AMOUNTS = (3, 4)
# LibreOffice's own codes: comma, double quote, UTF-8, from line 1.
AS_TEXT = "44,34,76,1," + "/".join(f"{column}/2" for column in range(1, COLUMNS + 1)) + ",1033,false,false"
AS_IT_GUESSES = "44,34,76,1,,1033,false,true"


class LibreOffice(CommandLineTest):
    def convert(self, file, to, *options):
        """The converted file, in the folder next to the original."""
        out = self.folder / "converted"
        command = ["soffice", f"-env:UserInstallation=file://{self.folder}/profile", "--headless", *options,
                   "--convert-to", to, "--outdir", out, file]
        run = subprocess.run(command, cwd=self.folder, text=True, capture_output=True, timeout=200)
        self.assertEqual(run.returncode, 0, run.stderr)
        return out / f"{file.stem}.{to.split(':')[0]}"

    def rows(self, file):
        with open(file, encoding="utf-8", newline="") as text:
            return list(csv.reader(text))

    def spreadsheets(self):
        package = self.package(organization())
        for lang in ("en", "es"):
            self.answer("export", "csv", package, "--lang", lang, "--out", f"grants-{lang}.csv")
            self.answer("export", "template", "--lang", lang, "--out", f"template-{lang}.csv")
            yield self.folder / f"grants-{lang}.csv"
            yield self.folder / f"template-{lang}.csv"

    def test_keeps_every_cell_on_the_way_to_its_own_format_and_back(self):
        for sheet in self.spreadsheets():
            ods = self.convert(sheet, "ods", f"--infilter=CSV:{AS_TEXT}")
            back = self.convert(ods, f"csv:Text - txt - csv (StarCalc):{AS_IT_GUESSES}")
            self.assertEqual(self.rows(back), self.rows(sheet), sheet.name)
            self.assertEqual({len(row) for row in self.rows(back)}, {COLUMNS}, sheet.name)

    def test_runs_no_formula_and_reads_amounts_as_numbers_when_it_guesses(self):
        for sheet in self.spreadsheets():
            text = self.convert(sheet, "fods", f"--infilter=CSV:{AS_IT_GUESSES}").read_text()
            self.assertNotIn("table:formula", text, sheet.name)
            values = sorted(float(value) for value in re.findall(r'office:value-type="float" office:value="([^"]*)"', text))
            amounts = [row[column] for row in self.rows(sheet)[1:] for column in AMOUNTS]
            self.assertEqual(values, sorted(float(amount) for amount in amounts if amount), sheet.name)


if __name__ == "__main__":
    if not shutil.which("soffice"):
        print("LibreOffice is not installed")
        sys.exit(77)
    main()
