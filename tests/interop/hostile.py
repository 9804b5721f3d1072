"""An organization whose texts try to break out of the files that we write, and what such a file should hold."""
import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).parent.parent / "cli"))

FUNDER = "AAAAAAAA-0000-4000-8000-000000000001"
FUNDER_NAME = 'Fundación; 河, "Ñandú"'
TITLES = ["Plain", "Comma, semicolon; colon: \"quote\"", "back\\slash", "Two\nlines", "Ñandú 🌿 naïve",
          "END:VEVENT", "=SUM(A1)", "+1-2", "-x", "@cmd", "=HYPERLINK(\"http://x\";\"y\")", "'already", " blank ",
          "é" * 60, "cafe\u0301, o\u0308;"]


def identifier(kind, number):
    return f"{kind * 8}-0000-4000-8000-{number:012d}"


def grant(number, title):
    return {
        "id": identifier("B", number), "title": title, "funderID": FUNDER, "stage": "awarded", "ask": "12500.50",
        "awarded": "-0.05", "probability": 60, "awardStart": "2027-01-01", "awardEnd": "2027-12-31",
        "program": f"{title}\n{title}" if number % 2 else "", "owner": "Maya", "notes": f"{title}\n{title}",
        "reports": [{"id": identifier("C", number), "title": "Final", "due": f"2027-12-{number + 1:02d}",
                     "status": "notStarted", "generated": True, "isFinal": True, "notes": ""}],
        "payments": [{"id": identifier("D", number), "expected": f"2027-03-{number + 1:02d}", "amount": "1234.56",
                      "note": "half"}],
    }


def organization():
    funder = {"id": FUNDER, "name": FUNDER_NAME, "kind": "other", "source": {"manual": {}},
              **dict.fromkeys(("website", "contactName", "contactEmail", "contactPhone", "address", "focus", "cycle",
                               "notes", "ein"), "")}
    return {"formatVersion": 2, "org": {"name": "Linden; Ferry, Pantry"}, "funders": [funder],
            "grants": [grant(number, title) for number, title in enumerate(TITLES)]}
