#!/usr/bin/python3
"""The verbs of quillfern-cli that read and write spreadsheets and calendar files, and the figures."""
import os

from example import ATTACHMENTS, AWARD, FUNDER, REQUEST, TODAY, organization
from program import CommandLineTest, main


class Table(CommandLineTest):
    def table(self, data, *words):
        (self.folder / "sheet.csv").write_bytes(data)
        return self.json("table", "sheet.csv", *words)

    def test_prints_headers_and_rows_whatever_the_encoding_and_delimiter(self):
        # In Mac OS Roman, ê is a byte that Windows-1252 leaves undefined.
        expected = {"headers": ["Grant", "Ask"], "rows": [["Ñandê; a", "1,50"], [""], ["b"]]}
        text = 'Grant ;Ask\r\n"Ñandê; a";1,50\r\n\r\nb\r\n;\r\n'
        for encoding in ("utf-8", "utf-8-sig", "utf-16", "cp1252", "mac-roman"):
            self.assertEqual(self.table(text.encode(encoding)), expected, encoding)
        self.assertEqual(self.table(b"a;b,c\td\n", "--delimiter", "tab"), {"headers": ["a;b,c", "d"], "rows": []})
        self.assertEqual(self.table(b""), {"headers": [], "rows": []})

    def test_is_readable(self):
        (self.folder / "sheet.csv").write_text('Grant,Ask\n"Cold\nstorage",5\nLong title of a grant,12.50\n')
        self.assertEqual(self.answer("table", "sheet.csv").splitlines(), [
            "  Grant                  Ask", "  Cold storage           5", "  Long title of a grant  12.50"])
        (self.folder / "empty.csv").write_text("\n \n")
        self.assertEqual(self.answer("table", "empty.csv"), "There are no rows.\n")

    def test_tells_of_a_quote_that_is_left_open(self):
        (self.folder / "sheet.csv").write_text('Grant\nA\n"B\nC\n')
        run = self.run_program("table", "sheet.csv", "--json")
        self.assertNotIn('"C', run.stdout)
        self.assertIn("line 3", self.notes("table", "sheet.csv", "--json")[0])

    def test_refuses_what_is_no_text_file(self):
        (self.folder / "image.csv").write_bytes(b"\x89PNG\0\0\0,")
        self.assertIn("binary", self.refusal(1, "table", "image.csv"))
        self.assertIn("There is no file", self.refusal(1, "table", "missing.csv"))
        self.refusal(1, "table", self.folder)
        self.refusal(1, "table", "/dev/zero")
        self.refusal(2, "table", "image.csv", "--delimiter", "colon")


class Exports(CommandLineTest):
    def exported(self, kind, *words):
        self.answer("export", kind, *words, "--out", "out", "--force")
        return (self.folder / "out").read_bytes().decode()

    def test_writes_the_grants_and_reads_them_back(self):
        package = self.package(organization())
        text = self.exported("csv", package)
        self.assertEqual(text.splitlines()[1],
                         "Cold storage,Fundación 河,Awarded,,30000.00,,,,,,,2026-03-01,2027-02-28,2026-09-30,,,")
        self.assertTrue(self.exported("csv", package, "--lang", "es").startswith("Subvención,Financiador,Etapa,"))
        template = self.exported("template", "--lang", "es")
        self.assertTrue(template.startswith("Subvención,Financiador,Etapa,"))
        self.assertEqual(len(self.json("table", "out")["rows"]), 2)

    def test_writes_the_open_dates_that_were_asked_for(self):
        package = self.package(organization())
        text = self.exported("ics", package, "--dtstamp", "20260102T030405Z")
        self.assertEqual(text.count("BEGIN:VEVENT\r\n"), 3)
        self.assertEqual(text.count("DTSTAMP:20260102T030405Z\r\n"), 3)
        self.assertNotIn("VALARM", text)
        whole = self.exported("ics", package, "--drafts", "--payments", "--decisions", "--alert-days", "1")
        self.assertEqual(whole.count("TRIGGER:-PT15H\r\n"), 5)
        for wrong in (("--dtstamp", "2026-01-02"), ("--dtstamp", "20260132T000000Z"), ("--alert-days", "x")):
            self.refusal(2, "export", "ics", package, "--out", "other", *wrong)

    def test_replaces_a_file_only_when_told_to_and_leaves_nothing_half_written(self):
        package = self.package(organization(), ATTACHMENTS)
        (self.folder / "taken").write_text("mine")
        for kind in (["csv", package], ["ics", package], ["template"]):
            self.refusal(1, "export", *kind, "--out", "taken")
            self.refusal(1, "export", *kind, "--out", "no/folder/out")
            self.refusal(1, "export", *kind, "--out", self.folder, "--force")
        for inside in (package / "Quillfern.json", package / "new.csv", package / "Attachments" / "kept.pdf"):
            for kind in (["csv", package], ["ics", package], ["template"]):
                self.assertIn("inside a document",
                              self.refusal(1, "export", *kind, "--out", os.path.relpath(inside, self.folder), "--force"))
        self.exported("csv", package)
        self.assertEqual(sorted(entry.name for entry in self.folder.iterdir()), ["Pantry.quillfern", "out", "taken"])


class Summary(CommandLineTest):
    def test_prints_the_figures_of_the_file(self):
        figures = self.json("summary", self.package(organization()), "--today", TODAY)
        self.assertEqual([grant["id"] for grant in figures["grants"]], [AWARD, REQUEST])
        self.assertEqual(figures["grants"][1], {
            "id": REQUEST, "keyDay": "2026-09-17", "probability": 35, "stage": "drafting", "title": "Mobile pantry",
            "weighted": "0.18", "payments": dict.fromkeys(
                ("scheduled", "received", "outstanding", "overdue", "shortfall", "unscheduled"), "0.00")})
        self.assertEqual(figures["grants"][0]["payments"]["overdue"], "15000.00")
        self.assertEqual(figures["pipeline"]["awarded"], "30000.00")
        self.assertEqual(len(figures["pipeline"]["stages"]), 7)
        self.assertEqual(figures["fiscalYears"], [2026])
        self.assertEqual([history["funder"]["id"] for history in figures["funders"]], [FUNDER])
        self.assertEqual(figures["funders"][0]["nextDeadline"], "2026-09-30")
        for only_with_a_year in ("fiscalYear", "awards", "received"):
            self.assertNotIn(only_with_a_year, figures)

    def test_prints_the_figures_of_one_year(self):
        package = self.package(organization())
        figures = self.json("summary", package, "--today", TODAY, "--fiscal-year", "2026")
        self.assertEqual((figures["fiscalYear"], figures["awards"], figures["received"]), (2026, [AWARD], "15000.00"))
        other = self.json("summary", package, "--today", TODAY, "--fiscal-year", "2025")
        self.assertEqual((other["grants"], other["awards"], other["received"]), ([], [], "0.00"))
        self.refusal(2, "summary", package, "--fiscal-year", "soon")

    def test_refuses_amounts_that_cannot_be_added_up(self):
        file = organization()
        file["grants"][1]["ask"] = "92233720368547758.07"
        package = self.package(file)
        self.assertIn("too large to add up", self.refusal(1, "summary", package))
        self.assertIn("The amounts are too large to add up.", self.json("check", package)["warnings"])

    def test_is_readable_in_both_languages(self):
        package = self.package(organization())
        for lang, words in (("en", ("Pipeline", "Win rate: 100%", "FY2026")), ("es", ("Embudo", "Otorgada"))):
            text = self.answer("summary", package, "--today", TODAY, "--lang", lang)
            for word in words:
                self.assertIn(word, text)


if __name__ == "__main__":
    main()
