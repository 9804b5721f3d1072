#include "board/minutes_record.h"

#include "base/trim.h"
#include "board/labels.h"

namespace quillfern::board {
namespace {

constexpr Text cannot_go{"Minutes can't go from “", "El acta no puede pasar de «"};
constexpr Text goes_to{"” to “", "» a «"};
constexpr Text went{"”.", "»."};
constexpr Text before_meeting{
    "The approval date can't be before the meeting.", "La fecha de aprobación no puede ser anterior a la reunión."};
constexpr Text reason_needed{
    "Say why the approved minutes are being reopened.", "Indique por qué se reabre el acta aprobada."};

constexpr Text draft_status{"Draft: not yet approved by the board.", "Borrador: aún no aprobado por la junta."};
constexpr Text circulated_status{
    "Draft sent to the board for approval; not yet approved.", "Borrador enviado a la junta; aún no aprobado."};
constexpr Text approved_status{"Approved by the board on", "Aprobada por la junta el"};

constexpr Text draft_watermark{"DRAFT", "BORRADOR"};
constexpr Text circulated_watermark{"DRAFT – PENDING APPROVAL", "BORRADOR – PENDIENTE DE APROBACIÓN"};

Failure<MinutesError> not_allowed(MinutesState from, MinutesState to)
{
    return fail(MinutesError(MinutesNotAllowed{from, to}));
}

void change_state(MinutesRecord& record, MinutesState to, Instant date, std::string note)
{
    record.history.push_back({date, record.state, to, std::move(note)});
    record.state = to;
}

} // namespace

Result<Done, MinutesError> circulate(MinutesRecord& record, Instant date)
{
    if (record.state != MinutesState::draft)
        return not_allowed(record.state, MinutesState::circulated);
    change_state(record, MinutesState::circulated, date, {});
    return Done{};
}

Result<Done, MinutesError> approve(
    MinutesRecord& record, const MinutesApproval& approval, Instant meeting_date, const Calendar& calendar)
{
    if (record.state == MinutesState::approved)
        return not_allowed(record.state, MinutesState::approved);
    if (calendar.day_number(approval.date) < calendar.day_number(meeting_date))
        return fail(MinutesError(ApprovedBeforeMeeting{}));
    const std::string reference(trimmed(approval.reference));
    change_state(record, MinutesState::approved, approval.date, reference);
    record.approvedOn = approval.date;
    record.approvalReference = reference;
    record.approvedAtMeetingID = approval.meetingID;
    return Done{};
}

Result<Done, MinutesError> reopen(MinutesRecord& record, Instant date, std::string_view note)
{
    const std::string_view reason = trimmed(note);
    if (record.state == MinutesState::draft)
        return not_allowed(record.state, MinutesState::draft);
    if (record.state == MinutesState::approved && reason.empty())
        return fail(MinutesError(ReasonNeeded{}));
    change_state(record, MinutesState::draft, date, std::string(reason));
    record.approvedOn.reset();
    record.approvalReference.clear();
    record.approvedAtMeetingID.reset();
    return Done{};
}

std::string message(const MinutesError& error, Lang lang)
{
    if (std::holds_alternative<ApprovedBeforeMeeting>(error))
        return std::string(before_meeting(lang));
    if (std::holds_alternative<ReasonNeeded>(error))
        return std::string(reason_needed(lang));
    const auto& refused = std::get<MinutesNotAllowed>(error);
    std::string text(cannot_go(lang));
    text.append(label(refused.from, lang)).append(goes_to(lang));
    return text.append(label(refused.to, lang)).append(went(lang));
}

std::string_view status_text(MinutesState state, Lang lang)
{
    switch (state) {
    case MinutesState::draft:
        return draft_status(lang);
    case MinutesState::circulated:
        return circulated_status(lang);
    case MinutesState::approved:
        break;
    }
    return approved_status(lang);
}

std::string_view watermark(MinutesState state, Lang lang)
{
    switch (state) {
    case MinutesState::draft:
        return draft_watermark(lang);
    case MinutesState::circulated:
        return circulated_watermark(lang);
    case MinutesState::approved:
        break;
    }
    return {};
}

} // namespace quillfern::board
