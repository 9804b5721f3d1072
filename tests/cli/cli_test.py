#!/usr/bin/python3
"""quillfern-cli, the real program, on real packages."""
import copy
import json
import os

from example import (ATTACHMENTS, AWARD, FUNDER, LATE_PAYMENT, REQUEST, STARTED_REPORT, PLANNED_REPORT, TODAY,
                     organization)
from program import CommandLineTest, contents, main


class Agenda(CommandLineTest):
    def test_lists_open_items_as_records_with_their_bucket(self):
        items = self.json("agenda", self.package(organization()), "--today", TODAY)
        self.assertEqual([(item["day"], item["kind"], item["bucket"]) for item in items], [
            ("2026-09-01", "payment", "overdue"),
            ("2026-09-17", "application", "thisWeek"),
            ("2026-09-30", "report", "next30"),
            ("2027-03-20", "reportDraft", "later"),
            ("2027-03-30", "report", "later"),
        ])
        self.assertEqual(items[0], {
            "amount": "15000.00", "bucket": "overdue", "client": "", "day": "2026-09-01", "detail": "", "done": False,
            "funderName": "Fundación 河", "grantID": AWARD, "grantTitle": "Cold storage",
            "id": f"payment-{AWARD.lower()}-{LATE_PAYMENT.lower()}",
            "itemID": LATE_PAYMENT, "kind": "payment"})
        self.assertNotIn("itemID", items[1])

    def test_json_is_sorted_and_pretty_and_keeps_every_script(self):
        text = self.answer("agenda", self.package(organization()), "--today", TODAY, "--json")
        items = json.loads(text)
        self.assertEqual(text, json.dumps(items, indent=2, sort_keys=True, ensure_ascii=False) + "\n")

    def test_lists_what_is_done_when_asked(self):
        items = self.json("agenda", self.package(organization()), "--today", TODAY, "--all")
        self.assertEqual([item["kind"] for item in items if item["done"]], ["payment", "reportDraft"])

    def test_is_readable_in_both_languages(self):
        package = self.package(organization())
        english = self.answer("agenda", package, "--today", TODAY)
        self.assertEqual(english.splitlines()[:5], [
            "Overdue",
            "  Sep 1, 2026   Payment expected    Cold storage                       Fundación 河  $15,000",
            "",
            "Next 7 days",
            "  Sep 17, 2026  Application due     Mobile pantry                                      $0.50",
        ])
        spanish = self.answer("agenda", package, "--today", TODAY, "--lang", "es", "--all")
        self.assertEqual([line for line in spanish.splitlines() if line and line[0] != " "],
                         ["Hecho", "Vencidos", "Próximos 7 días", "Próximos 30 días", "Más adelante"])
        self.assertEqual(self.answer("agenda", self.package({}, name="Empty.quillfern")), "Nothing is due.\n")


class Check(CommandLineTest):
    def test_counts_and_names_what_is_missing_or_unknown(self):
        found = self.json("check", self.package(organization(), ATTACHMENTS))
        warnings = found.pop("warnings")
        self.assertEqual(found, {
            "name": "Despensa Ñandú", "formatVersion": 1, "funders": 1, "grants": 2, "people": 0, "members": 0,
            "meetings": 0, "motions": 0, "actions": 0, "attachments": 2, "missingAttachments": ["lost.pdf"],
            "unreferencedAttachments": ["stray.pdf"]})
        self.assertEqual(len(warnings), 1)
        self.assertIn("grants[1].notes", warnings[0])

    def test_tells_what_a_lenient_read_replaced(self):
        file = organization()
        file["org"]["fiscalYearStartMonth"] = "July"
        warnings = self.json("check", self.package(file, ATTACHMENTS))["warnings"]
        self.assertTrue(any("org.fiscalYearStartMonth" in warning for warning in warnings), warnings)

    def test_warns_of_ids_that_stand_for_two_records(self):
        def repeat(file):
            file["grants"][1]["id"] = AWARD
            file["grants"][0]["payments"][1]["id"] = LATE_PAYMENT
        warnings = self.json("check", self.package(changed(repeat)))["warnings"]
        for path in ("grants[1].id", "grants[0].payments[1].id"):
            self.assertTrue(any(warning.startswith(path) for warning in warnings), warnings)

    def test_is_readable(self):
        text = self.answer("check", self.package(organization(), ATTACHMENTS))
        for words in ("Despensa Ñandú", "lost.pdf", "stray.pdf", "grants[1].notes"):
            self.assertIn(words, text)


class Reports(CommandLineTest):
    def test_prints_the_reports_as_they_are_and_leaves_the_package_alone(self):
        package = self.package(organization())
        before = contents(package)
        asked = ("reports", package, "--grant", AWARD.lower())
        self.assertEqual([report["id"] for report in self.json(*asked)["reports"]], [STARTED_REPORT, PLANNED_REPORT])
        planned = self.json(*asked, "--regenerate")
        self.assertEqual(planned["outcome"], {"added": 1, "kept": 1, "removed": 1})
        self.assertEqual([(report["title"], report["due"]) for report in planned["reports"]],
                         [("Half-year 1 report", "2026-09-30"), ("Final report", "2027-04-14")])
        self.assertEqual(contents(package), before)

    def test_saves_the_new_plan_when_asked(self):
        package = self.package(organization(), ATTACHMENTS)
        saved = self.json("reports", package, "--grant", AWARD, "--regenerate", "--save")
        self.assertEqual(self.json("reports", package, "--grant", AWARD)["reports"], saved["reports"])
        self.assertEqual((package / "Attachments" / "kept.pdf").read_bytes(), b"%PDF-1")
        self.assertEqual(json.loads((package / "Quillfern.json").read_text())["formatVersion"], 2)
        self.assertEqual([path.name for path in self.folder.iterdir()], [package.name])

    def test_saves_nothing_over_what_could_not_be_read(self):
        package = self.package(changed(unreadable_values), ATTACHMENTS)
        for words in (["reports", package, "--grant", AWARD, "--regenerate", "--save"],
                      ["export", "package", package, "--out", package, "--force"]):
            self.assertRegex(self.refusal(1, *words), "Nothing was written: .*org.fiscalYearStartMonth")

    def test_is_readable(self):
        text = self.answer("reports", self.package(organization()), "--grant", AWARD, "--regenerate", "--lang", "es")
        self.assertIn("30 sept 2026", text)
        self.assertIn("Informe final", text)
        self.assertTrue(text.endswith("Agregados 1, conservados 1, quitados 1.\n"), text)


class Files(CommandLineTest):
    def test_the_sample_is_whole_in_both_languages(self):
        for lang in ("en", "es"):
            path = self.folder / f"{lang}.quillfern"
            self.answer("sample", "--out", path, "--today", TODAY, "--lang", lang)
            found = self.json("check", path)
            self.assertEqual((found["missingAttachments"], found["unreferencedAttachments"], found["warnings"]),
                             ([], [], []))
            self.assertGreater(found["grants"], 10)
            buckets = {item["bucket"] for item in self.json("agenda", path, "--today", TODAY)}
            self.assertEqual(buckets, {"overdue", "thisWeek", "next30", "next90", "later"})

    def test_a_copy_holds_everything_in_the_current_format(self):
        package = self.package(organization(), ATTACHMENTS)
        copy = self.folder / "Copy.quillfern"
        self.answer("export", "package", package, "--out", copy)
        self.assertEqual(json.loads((copy / "Quillfern.json").read_text())["formatVersion"], 2)
        self.assertEqual({file.name: file.read_bytes() for file in (copy / "Attachments").iterdir()}, ATTACHMENTS)
        self.assertEqual(self.json("agenda", copy), self.json("agenda", package))

    def test_a_copy_tells_of_what_could_not_be_read_and_gives_the_terminal_no_orders(self):
        package = self.package(changed(unreadable_values))
        notes = self.notes("export", "package", package, "--out", "Copy.quillfern")
        self.assertTrue(any("org.fiscalYearStartMonth" in note for note in notes), notes)
        shown = self.answer("agenda", package, "--today", TODAY) + self.answer("summary", package, "--today", TODAY)
        for text in (shown, *notes, self.refusal(1, "agenda", "no\x1b[2J\u009bsuch")):
            self.assertNotRegex(text, "[\x00-\x09\x0b-\x1f\x7f-\x9f]")

    def test_what_exists_is_replaced_only_when_forced(self):
        package = self.package(organization())
        file = self.folder / "letter.txt"
        file.write_text("keep me")
        for words in (["sample"], ["export", "package", package]):
            for target in (file, self.package({}, name=f"{words[0]}.quillfern")):
                self.assertIn(target.name, self.refusal(1, *words, "--out", target))
            self.answer(*words, "--out", target, "--force")
            self.assertGreater(self.json("check", target)["grants"], 0)
            self.refusal(1, *words, "--out", self.folder / "nowhere" / "A.quillfern")


def changed(change):
    file = copy.deepcopy(organization())
    change(file)
    return file


def unreadable_values(file):
    file["org"]["fiscalYearStartMonth"] = "\x1b[2J"
    file["grants"][0]["title"] = "Cold \x1b[31m\u009b1mstorage"


# What is wrong with the organization file, and what the refusal must say about it.
BAD_FILES = {
    "cut off": (b'{"grants": [', "Malformed JSON"),
    "not JSON": (b"hello", "Expected an object"),
    "empty": (b"", "Malformed JSON"),
    "not UTF-8": (b'{"org": {"name": "\xff"}}', "UTF-8"),
    "a lone surrogate": (b'{"people": [], "x": "\\ud800"}', "surrogate"),
    "too deep": (b'{"x": ' + b"[" * 600 + b"]" * 600 + b"}", "512"),
    "a duplicate key": (b'{"people": [], "people": []}', "Duplicate key"),
    "a list at the top": ([], "Expected an object"),
    "wrong type": (changed(lambda file: file.update(grants={})), "grants: Expected a list"),
    "null for a list": (changed(lambda file: file.update(funders=None)), "funders: Expected a list"),
    "bad date": (changed(lambda file: file["grants"][1].update(applicationDue="2026-02-30")),
                 "grants[1].applicationDue: Not a date: 2026-02-30"),
    "bad amount": (changed(lambda file: file["grants"][0]["payments"][0].update(amount="1,000")),
                   "grants[0].payments[0].amount: Not an amount"),
    "amount out of range": (changed(lambda file: file["grants"][0].update(awarded=1e30)),
                            "grants[0].awarded: Not an amount"),
    "unknown stage": (changed(lambda file: file["grants"][0].update(stage="won")), "grants[0].stage: Unknown value: won"),
    "bad UUID": (changed(lambda file: file["grants"][0].update(id="42")), "grants[0].id: Not a UUID: 42"),
    "bad instant": (changed(lambda file: file["grants"][0].update(created="2026-01-01T00:00:00")),
                    "grants[0].created: Not an ISO 8601 date:"),
    "a funder without a name": (changed(lambda file: file["funders"][0].pop("name")), "funders[0].name: Missing"),
    "a newer format": ({"formatVersion": 3}, "newer version"),
}


class Refusals(CommandLineTest):
    def every_reader_refuses(self, path):
        asked = (["check", path], ["agenda", path, "--json"],
                 ["reports", path, "--grant", AWARD, "--regenerate", "--save"],
                 ["export", "package", path, "--out", self.folder / "Out.quillfern"])
        return {self.refusal(1, *words) for words in asked}

    def test_a_bad_file_is_refused_with_what_and_where(self):
        for what, (file, said) in BAD_FILES.items():
            with self.subTest(what):
                for reason in self.every_reader_refuses(self.package(file, name=f"{what}.quillfern")):
                    self.assertIn(said, reason)

    def test_what_is_no_package_is_refused(self):
        (self.folder / "plain.quillfern").write_text("{}")
        (self.folder / "empty.quillfern").mkdir()
        os.mkfifo(self.folder / "fifo.quillfern")
        def link(path):
            os.symlink("/etc/hostname", path)

        for name, put in {"fifo": os.mkfifo, "folder": os.mkdir, "link": link}.items():
            (self.folder / f"holds a {name}.quillfern").mkdir()
            put(self.folder / f"holds a {name}.quillfern" / "Quillfern.json")
        for path in [*self.folder.iterdir(), self.folder / "missing.quillfern"]:
            with self.subTest(path.name):
                for reason in self.every_reader_refuses(path):
                    self.assertIn(path.name, reason)

    def test_a_grant_that_the_file_lacks_is_refused(self):
        self.assertIn(FUNDER, self.refusal(1, "reports", self.package(organization()), "--grant", FUNDER))

    def test_a_wrong_command_line_says_what_is_wrong(self):
        package = self.package(organization())
        for words, said in (
            ([], "subcommand"),
            (["agenda"], "PATH"),
            (["agenda", ""], "PATH"),
            (["sample", "--out", ""], "--out"),
            (["frobnicate", package], "frobnicate"),
            (["agenda", package, "--frobnicate"], "--frobnicate"),
            (["agenda", "--frobnicate"], "--frobnicate"),
            (["export", "frobnicate", package], "frobnicate"),
            (["agenda", package, package], "Pantry"),
            (["agenda", package, "--today", "2026-02-30"], "2026-02-30"),
            (["agenda", package, "--today", ""], "--today"),
            (["agenda", package, "--lang", "fr"], "fr"),
            (["reports", package], "--grant"),
            (["reports", package, "--grant", "42"], "42"),
            (["reports", package, "--grant", REQUEST, "--save"], "--regenerate"),
            (["export"], "subcommand"),
            (["export", package], package.name),
            (["export", "package", package], "--out"),
            (["sample"], "--out"),
        ):
            with self.subTest(words):
                reason = self.refusal(2, *words)
                self.assertIn(said, reason)
                self.assertIn("--help", reason)

    def test_help_and_version_are_no_refusals(self):
        for words in (["--help"], ["agenda", "--help"], ["export", "package", "--help"], ["--version"]):
            self.assertIn("quillfern-cli", self.answer(*words))


if __name__ == "__main__":
    main()
