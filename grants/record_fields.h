#pragma once

#include "base/case_names.h"
#include "base/fields.h"
#include "grants/agenda.h"
#include "grants/grant_file.h"

/// How the grant side's records are spelled in files and in the command line's JSON.
namespace quillfern {

template <>
inline constexpr auto case_names<grants::Stage> = names(
    "prospect", "loi", "drafting", "submitted", "awarded", "declined", "withdrawn");
template <>
inline constexpr auto case_names<grants::FunderKind> = names(
    "privateFoundation", "communityFoundation", "corporate", "government", "faithBased", "other");
template <>
inline constexpr auto case_names<grants::DateAnchor> = names(
    "loiDue", "applicationDue", "decision", "awardStart", "awardEnd");
template <>
inline constexpr auto case_names<grants::ReportFrequency> = names(
    "finalOnly", "annual", "semiannual", "quarterly", "monthly");
template <>
inline constexpr auto case_names<grants::ReportStatus> = names("notStarted", "drafting", "submitted");
template <>
inline constexpr auto case_names<grants::AttachmentKind> = names(
    "proposal", "awardLetter", "agreement", "budget", "report", "correspondence", "other");
template <>
inline constexpr auto case_names<grants::PersonRole> = names(
    "staff", "volunteer", "programOfficer", "advisor", "other");
template <>
inline constexpr auto case_names<grants::AgendaKind> = names(
    "loi", "application", "decision", "reportDraft", "report", "payment", "milestone");
template <>
inline constexpr auto case_names<grants::Bucket> = names("overdue", "thisWeek", "next30", "next90", "later");

template <>
inline constexpr auto case_names<grants::FunderSource> = names("irs990PF", "manual");
template <>
inline constexpr auto case_names<grants::DateRule> = names("on", "offset");

template <>
inline constexpr auto fields<grants::Irs990PFSource> = field_list(
    required("taxYear", &grants::Irs990PFSource::taxYear), required("ein", &grants::Irs990PFSource::ein));
template <>
inline constexpr auto fields<grants::ManualSource> = field_list();
template <>
inline constexpr auto fields<grants::OnDay> = field_list(required("_0", &grants::OnDay::day));
template <>
inline constexpr auto fields<grants::OffsetFrom> = field_list(
    required("days", &grants::OffsetFrom::days), required("from", &grants::OffsetFrom::from));

template <>
inline constexpr auto fields<grants::Funder> = field_list(required("id", &grants::Funder::id),
    required("name", &grants::Funder::name), required("kind", &grants::Funder::kind),
    required("website", &grants::Funder::website), required("contactName", &grants::Funder::contactName),
    required("contactEmail", &grants::Funder::contactEmail), required("contactPhone", &grants::Funder::contactPhone),
    required("address", &grants::Funder::address), required("focus", &grants::Funder::focus),
    required("cycle", &grants::Funder::cycle), required("notes", &grants::Funder::notes),
    required("ein", &grants::Funder::ein), required("source", &grants::Funder::source));

template <>
inline constexpr auto fields<grants::Milestone> = field_list(required("id", &grants::Milestone::id),
    required("title", &grants::Milestone::title), required("rule", &grants::Milestone::rule),
    required("done", &grants::Milestone::done));

template <>
inline constexpr auto fields<grants::ReportPlan> = field_list(required("frequency", &grants::ReportPlan::frequency),
    required("dueDays", &grants::ReportPlan::dueDays), required("finalDueDays", &grants::ReportPlan::finalDueDays));

template <>
inline constexpr auto fields<grants::ReportPeriod> = field_list(required("id", &grants::ReportPeriod::id),
    required("title", &grants::ReportPeriod::title), strict("periodStart", &grants::ReportPeriod::periodStart),
    strict("periodEnd", &grants::ReportPeriod::periodEnd), required("due", &grants::ReportPeriod::due),
    required("isFinal", &grants::ReportPeriod::isFinal), required("status", &grants::ReportPeriod::status),
    strict("submittedOn", &grants::ReportPeriod::submittedOn), required("generated", &grants::ReportPeriod::generated),
    strict("draftLeadDays", &grants::ReportPeriod::draftLeadDays), required("notes", &grants::ReportPeriod::notes));

template <>
inline constexpr auto fields<grants::Payment> = field_list(required("id", &grants::Payment::id),
    required("expected", &grants::Payment::expected), required("amount", &grants::Payment::amount),
    strict("receivedOn", &grants::Payment::receivedOn), strict("receivedAmount", &grants::Payment::receivedAmount),
    required("note", &grants::Payment::note));

template <>
inline constexpr auto fields<grants::Attachment> = field_list(required("id", &grants::Attachment::id),
    required("storedName", &grants::Attachment::storedName),
    required("originalName", &grants::Attachment::originalName), required("kind", &grants::Attachment::kind),
    required("added", &grants::Attachment::added), required("byteCount", &grants::Attachment::byteCount));

template <>
inline constexpr auto fields<grants::Person> = field_list(required("id", &grants::Person::id),
    required("name", &grants::Person::name), required("role", &grants::Person::role),
    required("title", &grants::Person::title), required("email", &grants::Person::email),
    required("phone", &grants::Person::phone), strict("funderID", &grants::Person::funderID),
    required("notes", &grants::Person::notes));

/// Every key of a grant may be missing: the value of a new, empty grant stands in.
template <>
inline constexpr auto fields<grants::Grant> = field_list(strict("id", &grants::Grant::id),
    strict("title", &grants::Grant::title), strict("funderID", &grants::Grant::funderID),
    strict("stage", &grants::Grant::stage), strict("program", &grants::Grant::program),
    strict("owner", &grants::Grant::owner), strict("ask", &grants::Grant::ask),
    strict("awarded", &grants::Grant::awarded), strict("probability", &grants::Grant::probability),
    strict("loiDue", &grants::Grant::loiDue), strict("loiSubmittedOn", &grants::Grant::loiSubmittedOn),
    strict("applicationDue", &grants::Grant::applicationDue), strict("submittedOn", &grants::Grant::submittedOn),
    strict("decisionExpected", &grants::Grant::decisionExpected), strict("decidedOn", &grants::Grant::decidedOn),
    strict("awardStart", &grants::Grant::awardStart), strict("awardEnd", &grants::Grant::awardEnd),
    strict("reportPlan", &grants::Grant::reportPlan), strict("reports", &grants::Grant::reports),
    strict("payments", &grants::Grant::payments), strict("milestones", &grants::Grant::milestones),
    strict("attachments", &grants::Grant::attachments), strict("notes", &grants::Grant::notes),
    strict("created", &grants::Grant::created), strict("modified", &grants::Grant::modified),
    strict("boardMotionID", &grants::Grant::boardMotionID), strict("boardItemID", &grants::Grant::boardItemID));

template <>
inline constexpr auto fields<grants::FileSettings> = field_list(
    strict("draftLeadDays", &grants::FileSettings::draftLeadDays),
    strict("defaultReportPlan", &grants::FileSettings::defaultReportPlan));

template <>
inline constexpr auto fields<grants::OrgProfile> = field_list(lenient("name", &grants::OrgProfile::name),
    lenient("legalName", &grants::OrgProfile::legalName), lenient("ein", &grants::OrgProfile::ein),
    lenient("street", &grants::OrgProfile::street), lenient("city", &grants::OrgProfile::city),
    lenient("region", &grants::OrgProfile::region), lenient("postalCode", &grants::OrgProfile::postalCode),
    lenient("country", &grants::OrgProfile::country), lenient("phone", &grants::OrgProfile::phone),
    lenient("email", &grants::OrgProfile::email), lenient("website", &grants::OrgProfile::website),
    lenient("contactName", &grants::OrgProfile::contactName),
    lenient("contactTitle", &grants::OrgProfile::contactTitle), lenient("mission", &grants::OrgProfile::mission),
    lenient("fiscalYearStartMonth", &grants::OrgProfile::fiscalYearStartMonth),
    lenient("currencyCode", &grants::OrgProfile::currencyCode), lenient("logoFile", &grants::OrgProfile::logoFile));

template <>
inline constexpr auto fields<grants::GrantFile> = field_list(strict("formatVersion", &grants::GrantFile::formatVersion),
    strict("org", &grants::GrantFile::org), strict("funders", &grants::GrantFile::funders),
    strict("grants", &grants::GrantFile::grants), strict("settings", &grants::GrantFile::settings),
    strict("calendarAdded", &grants::GrantFile::calendarAdded), strict("board", &grants::GrantFile::board),
    strict("people", &grants::GrantFile::people));

/// Printed by the command line only; no file holds an agenda.
template <>
inline constexpr auto fields<grants::AgendaItem> = field_list(required("id", &grants::AgendaItem::id),
    required("kind", &grants::AgendaItem::kind), required("day", &grants::AgendaItem::day),
    required("grantID", &grants::AgendaItem::grantID), required("itemID", &grants::AgendaItem::itemID),
    required("detail", &grants::AgendaItem::detail), required("grantTitle", &grants::AgendaItem::grantTitle),
    required("funderName", &grants::AgendaItem::funderName), required("amount", &grants::AgendaItem::amount),
    required("done", &grants::AgendaItem::done), required("client", &grants::AgendaItem::client));

} // namespace quillfern
