#pragma once

#include "base/instant.h"
#include "base/uuid.h"
#include "grants/day.h"
#include "grants/money.h"

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

/// The records of one organization's grants.
///
/// All are plain values; references between them are ids. The order of an enumeration's cases is the order of pickers
/// and of the pipeline, and a case's name is its text in files.
namespace quillfern::grants {

enum class Stage { prospect, loi, drafting, submitted, awarded, declined, withdrawn };
enum class FunderKind { privateFoundation, communityFoundation, corporate, government, faithBased, other };
enum class DateAnchor { loiDue, applicationDue, decision, awardStart, awardEnd };
enum class ReportFrequency { finalOnly, annual, semiannual, quarterly, monthly };
enum class ReportStatus { notStarted, drafting, submitted };
enum class AttachmentKind { proposal, awardLetter, agreement, budget, report, correspondence, other };
enum class PersonRole { staff, volunteer, programOfficer, advisor, other };

/// The funder's details were taken from its IRS Form 990-PF of a tax year.
struct Irs990PFSource {
    std::int64_t taxYear = 0;
    std::string ein;

    friend bool operator==(const Irs990PFSource&, const Irs990PFSource&) = default;
};

/// The funder's details were typed in by the user.
struct ManualSource {
    friend bool operator==(const ManualSource&, const ManualSource&) = default;
};

using FunderSource = std::variant<Irs990PFSource, ManualSource>;

struct Funder {
    Uuid id;
    std::string name;
    FunderKind kind = FunderKind::other;
    std::string website;
    std::string contactName;
    std::string contactEmail;
    std::string contactPhone;
    std::string address;
    std::string focus;
    std::string cycle; ///< the giving cycle as the user describes it
    std::string notes;
    std::string ein;
    FunderSource source = ManualSource{};

    friend bool operator==(const Funder&, const Funder&) = default;
};

/// A fixed day.
struct OnDay {
    Day day;

    friend bool operator==(const OnDay&, const OnDay&) = default;
};

/// A signed number of days from one of the grant's own dates.
struct OffsetFrom {
    std::int64_t days = 0;
    DateAnchor from = DateAnchor::loiDue;

    friend bool operator==(const OffsetFrom&, const OffsetFrom&) = default;
};

using DateRule = std::variant<OnDay, OffsetFrom>;

struct Milestone {
    Uuid id;
    std::string title;
    DateRule rule;
    bool done = false;

    friend bool operator==(const Milestone&, const Milestone&) = default;
};

struct ReportPlan {
    ReportFrequency frequency = ReportFrequency::finalOnly;
    std::int64_t dueDays = 30; ///< days after a period's end that an interim report is due
    std::int64_t finalDueDays = 30; ///< days after the award's end that the final report is due

    friend bool operator==(const ReportPlan&, const ReportPlan&) = default;
};

/// One report owed to the funder.
struct ReportPeriod {
    Uuid id;
    std::string title;
    std::optional<Day> periodStart;
    std::optional<Day> periodEnd;
    Day due;
    bool isFinal = false;
    ReportStatus status = ReportStatus::notStarted;
    std::optional<Day> submittedOn;
    bool generated = false; ///< made by the report scheduler, not by the user
    std::optional<std::int64_t> draftLeadDays; ///< absent: the file's setting applies
    std::string notes;

    friend bool operator==(const ReportPeriod&, const ReportPeriod&) = default;
};

struct Payment {
    Uuid id;
    Day expected;
    Money amount;
    std::optional<Day> receivedOn;
    std::optional<Money> receivedAmount; ///< absent: the whole `amount` came
    std::string note;

    friend bool operator==(const Payment&, const Payment&) = default;
};

/// A file kept inside the organization package.
struct Attachment {
    Uuid id;
    std::string storedName; ///< its name inside the package
    std::string originalName; ///< the name the user's file had
    AttachmentKind kind = AttachmentKind::other;
    Instant added;
    std::int64_t byteCount = 0;

    friend bool operator==(const Attachment&, const Attachment&) = default;
};

struct Person {
    Uuid id;
    std::string name;
    PersonRole role = PersonRole::other;
    std::string title;
    std::string email;
    std::string phone;
    std::optional<Uuid> funderID; ///< for a program officer
    std::string notes;

    friend bool operator==(const Person&, const Person&) = default;
};

struct Grant {
    Uuid id;
    std::string title;
    std::optional<Uuid> funderID;
    Stage stage = Stage::prospect;
    std::string program;
    std::string owner; ///< the staff member responsible
    std::optional<Money> ask;
    std::optional<Money> awarded;
    std::optional<std::int64_t> probability; ///< percent
    std::optional<Day> loiDue;
    std::optional<Day> loiSubmittedOn;
    std::optional<Day> applicationDue;
    std::optional<Day> submittedOn;
    std::optional<Day> decisionExpected;
    std::optional<Day> decidedOn;
    std::optional<Day> awardStart;
    std::optional<Day> awardEnd;
    std::optional<ReportPlan> reportPlan; ///< absent: the file's `defaultReportPlan`
    std::vector<ReportPeriod> reports;
    std::vector<Payment> payments;
    std::vector<Milestone> milestones;
    std::vector<Attachment> attachments;
    std::string notes;
    Instant created;
    Instant modified;
    std::optional<Uuid> boardMotionID;
    std::optional<Uuid> boardItemID;

    friend bool operator==(const Grant&, const Grant&) = default;
};

struct FileSettings {
    std::int64_t draftLeadDays = 10; ///< how many days before a report's due date its draft is due
    ReportPlan defaultReportPlan;

    friend bool operator==(const FileSettings&, const FileSettings&) = default;
};

/// The day a rule means for a grant; absent while the anchor is not set. The decision anchor is the day of the decision
/// once there is one, the expected day before.
std::optional<Day> resolve(const DateRule& rule, const Grant& grant);

/// The day on which a report's draft should be started.
Day draft_day(const ReportPeriod& report, const FileSettings& settings);

inline bool is_received(const Payment& payment)
{
    return payment.receivedOn.has_value();
}

/// What came in; meaningful once the payment is received.
inline Money received_amount(const Payment& payment)
{
    return payment.receivedAmount.value_or(payment.amount);
}

/// A request is open while it is still in progress: neither awarded, declined nor withdrawn.
constexpr bool is_open(Stage stage)
{
    return stage <= Stage::submitted;
}

} // namespace quillfern::grants
