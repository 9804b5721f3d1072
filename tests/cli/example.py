"""One small organization, written as its file is."""

TODAY = "2026-09-10"
FUNDER = "AAAAAAAA-0000-4000-8000-000000000001"
AWARD = "BBBBBBBB-0000-4000-8000-000000000001"
REQUEST = "BBBBBBBB-0000-4000-8000-000000000002"
STARTED_REPORT = "CCCCCCCC-0000-4000-8000-000000000001"
PLANNED_REPORT = "CCCCCCCC-0000-4000-8000-000000000002"
LATE_PAYMENT = "DDDDDDDD-0000-4000-8000-000000000001"


def report(id, title, due, status):
    return {"id": id, "title": title, "due": due, "status": status, "generated": True, "isFinal": False, "notes": "",
            "draftLeadDays": 10}


def payment(id, expected, amount, **more):
    return {"id": id, "expected": expected, "amount": amount, "note": "", **more}


def attachment(id, stored_name):
    return {"id": id, "storedName": stored_name, "originalName": "Letter.pdf", "kind": "awardLetter",
            "added": "2026-03-01T12:00:00Z", "byteCount": 6}


def organization():
    """Two grants around TODAY: an award with reports, payments and files, and a request that is being written."""
    return {
        "formatVersion": 1,
        "org": {"name": "Despensa Ñandú"},
        "funders": [{"id": FUNDER, "name": "Fundación 河", "kind": "government", "source": {"manual": {}},
                     **dict.fromkeys(("website", "contactName", "contactEmail", "contactPhone", "address", "focus",
                                      "cycle", "notes", "ein"), "")}],
        "grants": [
            {
                "id": AWARD, "title": "Cold storage", "funderID": FUNDER, "stage": "awarded", "awarded": 30000,
                "awardStart": "2026-03-01", "awardEnd": "2027-02-28",
                "reportPlan": {"frequency": "semiannual", "dueDays": 30, "finalDueDays": 45},
                "reports": [report(STARTED_REPORT, "Half-year 1 report", "2026-09-30", "drafting"),
                            report(PLANNED_REPORT, "Old plan", "2027-03-30", "notStarted")],
                "payments": [payment(LATE_PAYMENT, "2026-09-01", "15000.00"),
                             payment("DDDDDDDD-0000-4000-8000-000000000002", "2026-03-15", "15000.00",
                                     receivedOn="2026-03-14")],
                "attachments": [attachment("EEEEEEEE-0000-4000-8000-000000000001", "kept.pdf"),
                                attachment("EEEEEEEE-0000-4000-8000-000000000002", "lost.pdf")],
            },
            {"id": REQUEST, "title": "Mobile pantry", "stage": "drafting", "ask": "0.50",
             "applicationDue": "2026-09-17", "notes": "one\r\ntwo"},
        ],
        "people": [],
    }


ATTACHMENTS = {"kept.pdf": b"%PDF-1", "stray.pdf": b"stray"}
