#!/usr/bin/python3
"""The verbs of quillfern-cli for boards."""
import json
import uuid

from program import CommandLineTest, main


def identifier(number):
    return str(uuid.UUID(int=0x40008000000000000000 + number)).upper()


BOARD = {
    "name": " Elm Court ", "motionPrefix": "E", "seats": 5,
    "members": [{"id": identifier(1), "name": "Member 10"}, {"id": identifier(2), "name": "Member 9"},
                {"id": identifier(3), "name": "Ann", "role": "president"},
                {"id": identifier(4), "name": "Gone", "inOffice": False}],
    "meetings": [{"id": identifier(10), "motions": [
        {"id": identifier(11), "number": "E2026-009", "status": "voted",
         "vote": {"ayes": 3, "nays": 3, "recusals": 1, "presentVoting": 4, "quorumMet": False}},
        {"id": identifier(12), "number": "E2026-12A", "status": "tabled",
         "rule": {"threshold": "twoThirds", "basis": "present"}}]}]}


class Board(CommandLineTest):
    def board_package(self, text, name="Elm.marrowind"):
        package = self.folder / name
        package.mkdir()
        (package / "Board.json").write_text(text)
        return package

    def test_counts_seats_quorum_and_votes_wherever_the_board_is_kept(self):
        expected = {
            "displayName": "Elm Court", "bodyDisplayName": "Board of Directors", "seats": 5,
            "quorum": {"present": 2, "needed": 3, "base": 5},
            "members": [{"id": identifier(3), "name": "Ann", "role": "president", "votes": True},
                        {"id": identifier(2), "name": "Member 9", "role": "director", "votes": True},
                        {"id": identifier(1), "name": "Member 10", "role": "director", "votes": True}],
            "motions": [
                {"id": identifier(11), "meetingID": identifier(10), "number": "E2026-009", "status": "voted",
                 "rule": "Majority of votes cast", "tallySentence": "3 in favor, 3 opposed, 1 recused",
                 "result": {"outcome": "failed", "ayesNeeded": 4, "denominator": 6, "quorumMet": False,
                            "tally": {"ayes": 3, "nays": 3, "abstentions": 0, "recusals": 1, "absent": 0},
                            "warnings": ["noQuorum", "moreVotesThanPresent"]}},
                {"id": identifier(12), "meetingID": identifier(10), "number": "E2026-12A", "status": "tabled",
                 "rule": "Two-thirds of members present"}],
            "nextMotionNumber": "E2026-010"}
        words = ("--present", 2, "--today", "2026-11-21")
        organization = self.package({"formatVersion": 2, "board": BOARD})
        self.assertEqual(self.json("board", organization, *words), expected)
        alone = self.board_package(json.dumps(BOARD))
        self.assertEqual(self.json("board", alone, *words), expected)
        self.assertEqual(self.json("board", alone, *words, "--year", 2027)["nextMotionNumber"], "E2027-001")
        self.assertIn("Mayoría de los votos emitidos", self.answer("board", alone, "--lang", "es"))

    def test_exports_the_board_of_an_organization(self):
        organization = self.package({"formatVersion": 2, "board": BOARD})
        self.answer("export", "board", organization, "--out", "Out.marrowind")
        exported = self.folder / "Out.marrowind"
        self.assertEqual(sorted(entry.name for entry in exported.iterdir()), ["Board.json", "Read Me.txt"])
        self.assertTrue((exported / "Read Me.txt").read_text().startswith("Elm Court\nThis is a Marrowind board file"))
        words = ("--today", "2026-11-21")
        self.assertEqual(self.json("board", exported, *words), self.json("board", organization, *words))
        self.assertIn("--force replaces it", self.refusal(1, "export", "board", organization, "--out", "Out.marrowind"))
        self.answer("export", "board", organization, "--out", "Out.marrowind", "--force")

    def test_refuses_in_words_what_is_no_board(self):
        for number, (text, reason) in enumerate([
                ("[]", "Expected an object"), ("17", "Expected an object"), ("[" * 200 + "]" * 200, "Expected an object"),
                ('{"members": [{"name": "Ann"}]}', "members[0].id: Missing"), ('{"formatVersion": 2}', "newer version")]):
            package = self.board_package(text, f"{number}.marrowind")
            self.assertIn(reason, self.refusal(1, "board", package))
        (self.folder / "empty.marrowind").mkdir()
        self.assertIn("Board.json", self.refusal(1, "board", "empty.marrowind"))
        (self.folder / "plain.marrowind").write_text("{}")
        self.assertIn("folder", self.refusal(1, "board", "plain.marrowind"))
        for present in ("many", -1, 10000):
            self.refusal(2, "board", "empty.marrowind", "--present", present)

    def test_tells_of_the_boards_values_that_could_not_be_read(self):
        file = {"board": dict(BOARD, seats="\x1b[2J"), "org": {"fiscalYearStartMonth": "July"}}
        for words in (["board"], ["export", "board", "--out", "Out.marrowind"]):
            for path in (self.package(file, name=f"{words[0]}.quillfern"),
                         self.board_package(json.dumps(file["board"]), f"{words[0]}.marrowind")):
                [note] = self.notes(*words, path, *(["--force"] if len(words) > 1 else []))
                self.assertIn("seats", note)
                self.assertNotIn("\x1b", note)


if __name__ == "__main__":
    main()
