#include "grants/sample_grant.h"

#include "grants/report_scheduler.h"
#include "grants/sample_files.h"

namespace quillfern::grants {
namespace {

std::string extension(const std::string& name)
{
    const std::size_t dot = name.rfind('.');
    return dot == std::string::npos ? std::string() : name.substr(dot);
}

} // namespace

SampleGrant::SampleGrant(const SampleFrame& frame, std::uint32_t number, Stage stage, SampleFunder funder)
    : frame_(frame), number_(number)
{
    grant.id = sample_id(SampleKind::grant, number);
    grant.stage = stage;
    grant.funderID = sample_id(SampleKind::funder, static_cast<std::uint32_t>(funder));
    grant.created = frame.at(2025, 7, 14, 15);
    grant.modified = frame.at(2026, 9, 9, 20);
}

SampleGrant& SampleGrant::named(std::string title, std::string program, std::string_view owner)
{
    grant.title = std::move(title);
    grant.program = std::move(program);
    grant.owner = owner;
    return *this;
}

SampleGrant& SampleGrant::asking(std::int64_t units)
{
    grant.ask = Money::from_units(units);
    return *this;
}

SampleGrant& SampleGrant::awarded(std::int64_t units, const Day& start, const Day& end, ReportFrequency frequency)
{
    grant.awarded = Money::from_units(units);
    grant.awardStart = start;
    grant.awardEnd = end;
    if (frequency != ReportFrequency::finalOnly)
        grant.reportPlan = ReportPlan{frequency, 30, 30};
    std::size_t made = 0;
    grant.reports = generate_reports(
        grant, FileSettings{}, frame_.lang(), [&] { return sample_id(SampleKind::report, record_number(made++)); });
    return *this;
}

SampleGrant& SampleGrant::payment(const Day& expected, std::int64_t units, std::string note)
{
    const Uuid id = sample_id(SampleKind::payment, record_number(grant.payments.size()));
    grant.payments.push_back({id, expected, Money::from_units(units), {}, {}, std::move(note)});
    return *this;
}

SampleGrant& SampleGrant::received(const Day& day)
{
    grant.payments.back().receivedOn = day;
    return *this;
}

SampleGrant& SampleGrant::milestone(std::string title, DateRule rule, bool done)
{
    const Uuid id = sample_id(SampleKind::milestone, record_number(grant.milestones.size()));
    grant.milestones.push_back({id, std::move(title), rule, done});
    return *this;
}

SampleGrant& SampleGrant::pdf(
    const std::string& name, AttachmentKind kind, Instant added, const std::vector<std::string>& lines)
{
    std::string bytes = simple_pdf(name, lines);
    return file(name + ".pdf", kind, added, std::move(bytes));
}

SampleGrant& SampleGrant::file(std::string name, AttachmentKind kind, Instant added, std::string bytes)
{
    const Uuid id = sample_id(SampleKind::attachment, record_number(grant.attachments.size()));
    const std::string stored = id.lower_text() + extension(name);
    grant.attachments.push_back({id, stored, std::move(name), kind, added, std::ssize(bytes)});
    files[stored] = std::move(bytes);
    return *this;
}

/// Room for a hundred records of each kind in a grant.
std::uint32_t SampleGrant::record_number(std::size_t index) const
{
    return number_ * 100 + static_cast<std::uint32_t>(index);
}

} // namespace quillfern::grants
