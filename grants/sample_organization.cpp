#include "grants/sample_organization.h"

#include "board/sample_board.h"
#include "grants/agenda.h"
#include "grants/sample_grant.h"

namespace quillfern::grants {

std::string_view sample_logo_png(); // made from resources/sample-logo.png by the build

namespace {

/// July in the story. Any other day gets the month that begins as long before it, give or take half a month: all of
/// this year's decisions then fall after its first day.
std::int64_t fiscal_year_start(const SampleFrame& frame)
{
    return frame.on(2026, 7, 2).month;
}

OrgProfile profile(const SampleFrame& frame)
{
    OrgProfile org;
    org.name = "Linden Ferry Community Pantry";
    org.legalName = "Linden Ferry Community Pantry Association";
    org.ein = "00-4417230";
    org.street = "212 Ferry Street";
    org.city = "Linden Ferry";
    org.region = "Ohio";
    org.postalCode = "44099";
    org.country = frame.text({"United States", "Estados Unidos"});
    org.phone = "(555) 010-0142";
    org.email = "office@lindenferry.example";
    org.website = "lindenferrypantry.example";
    org.contactName = marguerite;
    org.contactTitle = frame.text({"Executive Director", "Directora ejecutiva"});
    org.mission =
        frame.text({"So that no household in Kestrel County goes without a week of good food, we gather, store and "
                    "bring groceries to the people who need them, with respect.",
            "Para que ningún hogar del condado de Kestrel pase una semana sin buena comida, reunimos, "
            "guardamos y llevamos alimentos a quienes los necesitan, con respeto."});
    org.fiscalYearStartMonth = fiscal_year_start(frame);
    org.logoFile = "Logo.png";
    return org;
}

void add_grants(SampleContent& content, std::vector<SampleGrant> grants)
{
    for (SampleGrant& sample : grants) {
        content.attachments.merge(sample.files);
        content.file.grants.emplace_back(std::move(sample.grant));
    }
}

/// The letters and applications are in the user's calendar already, the other dates are not.
std::map<std::string, Day> days_in_calendar(const GrantFile& file)
{
    std::map<std::string, Day> added;
    for (const AgendaItem& item : open_agenda(file))
        if (item.kind == AgendaKind::loi || item.kind == AgendaKind::application)
            added[item.id] = item.day;
    return added;
}

} // namespace

SampleContent sample_content(const Day& today, Lang lang, const board::Calendar& calendar)
{
    const SampleFrame frame(today, lang);
    SampleContent content;
    GrantFile& file = content.file;
    file.org = profile(frame);
    for (Funder& funder : sample_funders(frame))
        file.funders.emplace_back(std::move(funder));
    add_grants(content, sample_awards(frame));
    add_grants(content, sample_requests(frame));
    for (Person& person : sample_people(frame))
        file.people.emplace_back(std::move(person));
    file.calendarAdded = days_in_calendar(file);
    file.board = board::sample_board(board::SampleBoard::nonprofit, today.days_since_epoch(), lang, calendar);
    content.logo = sample_logo_png();
    return content;
}

OrgPackage sample_organization(const Day& today, Lang lang, const board::Calendar& calendar)
{
    SampleContent content = sample_content(today, lang, calendar);
    AttachmentBytes attachments;
    for (auto& [stored_name, bytes] : content.attachments)
        attachments.emplace(stored_name, platform::Blob(std::move(bytes)));
    return {std::move(content.file), std::move(attachments), platform::Blob(std::string(content.logo))};
}

} // namespace quillfern::grants
