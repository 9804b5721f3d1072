#include "cli/board_answer.h"

#include "board/board_values.h"
#include "board/labels.h"
#include "board/motion_numbering.h"
#include "board/record_fields.h"
#include "cli/json.h"
#include "cli/text_table.h"

/// Printed by this verb only.
namespace quillfern {

template <>
inline constexpr auto fields<cli::PrintedMember> = field_list(required("id", &cli::PrintedMember::id),
    required("name", &cli::PrintedMember::name), required("role", &cli::PrintedMember::role),
    required("votes", &cli::PrintedMember::votes));

template <>
inline constexpr auto fields<cli::PrintedMotion> = field_list(required("id", &cli::PrintedMotion::id),
    required("meetingID", &cli::PrintedMotion::meetingID), required("number", &cli::PrintedMotion::number),
    required("status", &cli::PrintedMotion::status), required("rule", &cli::PrintedMotion::rule),
    required("result", &cli::PrintedMotion::result), required("tallySentence", &cli::PrintedMotion::tallySentence));

template <>
inline constexpr auto fields<cli::BoardAnswer> = field_list(required("displayName", &cli::BoardAnswer::displayName),
    required("bodyDisplayName", &cli::BoardAnswer::bodyDisplayName), required("seats", &cli::BoardAnswer::seats),
    required("quorum", &cli::BoardAnswer::quorum), required("members", &cli::BoardAnswer::members),
    required("motions", &cli::BoardAnswer::motions), required("nextMotionNumber", &cli::BoardAnswer::nextMotionNumber));

} // namespace quillfern

namespace quillfern::cli {

using namespace board;

namespace {

constexpr Text seats_word{"Voting seats", "Puestos con voto"};
constexpr Text quorum_word{"Quorum", "Quórum"};
constexpr Text present_word{"Present", "Presentes"};
constexpr Text met_word{"quorum met", "hay quórum"};
constexpr Text not_met_word{"no quorum", "sin quórum"};
constexpr Text members_word{"Members", "Miembros"};
constexpr Text votes_word{"votes", "con voto"};
constexpr Text motions_word{"Motions", "Mociones"};
constexpr Text ayes_needed_word{" needed", " necesarios"};
constexpr Text next_word{"Next motion", "Próxima moción"};

PrintedMotion printed(const Motion& motion, const Meeting& meeting, Lang lang)
{
    PrintedMotion one{motion.id, meeting.id, motion.number, motion.status, rule_label(motion.rule, lang), {}, {}};
    one.result = vote_result(motion);
    if (one.result)
        one.tallySentence = tally_sentence(one.result->tally, lang);
    return one;
}

std::string outcome_text(const PrintedMotion& motion, Lang lang)
{
    const bool decided = motion.status == MotionStatus::voted && motion.result;
    return std::string(decided ? label(motion.result->outcome, lang) : label(motion.status, lang));
}

std::string warnings_text(const PrintedMotion& motion, Lang lang)
{
    std::string text;
    if (motion.result)
        for (const VoteWarning warning : motion.result->warnings)
            text.append(text.empty() ? "" : " ").append(label(warning, lang));
    return text;
}

void add_motion(TextTable& table, const PrintedMotion& motion, Lang lang)
{
    const std::string needed =
        motion.result ? std::to_string(motion.result->ayesNeeded).append(ayes_needed_word(lang)) : std::string();
    table.row({motion.number, outcome_text(motion, lang), motion.tallySentence.value_or(""), needed, motion.rule,
        warnings_text(motion, lang)});
}

std::string summary_text(const BoardAnswer& answer, Lang lang)
{
    TextTable table({TextTable::left, TextTable::left});
    table.heading(answer.displayName + ", " + answer.bodyDisplayName);
    const auto add = [&](const Text& name, std::string value) {
        table.row({std::string(name(lang)), std::move(value)});
    };
    add(seats_word, std::to_string(answer.seats));
    add(quorum_word, std::to_string(answer.quorum.needed));
    add(present_word,
        std::to_string(answer.quorum.present)
            .append(", ")
            .append(answer.quorum.met() ? met_word(lang) : not_met_word(lang)));
    add(next_word, answer.nextMotionNumber);
    return table.text();
}

} // namespace

BoardAnswer board_answer(const Board& board, std::int64_t present, std::int64_t year, Lang lang)
{
    BoardAnswer answer;
    answer.displayName = display_name(board, lang);
    answer.bodyDisplayName = body_display_name(board, lang);
    answer.seats = seat_count(board);
    answer.quorum = quorum_status(board, present);
    for (const Member& member : current_members(board))
        answer.members.push_back({member.id, member.name, member.role, member.votes});
    for (const Shared<Meeting>& meeting : board.meetings)
        for (const Motion& motion : meeting->motions)
            answer.motions.push_back(printed(motion, meeting, lang));
    answer.nextMotionNumber = MotionNumbering::next_number(board, year);
    return answer;
}

std::string as_json(const BoardAnswer& answer)
{
    return json_text(answer);
}

std::string as_text(const BoardAnswer& answer, Lang lang)
{
    TextTable members(std::vector<TextTable::Alignment>(3, TextTable::left));
    members.heading(members_word(lang));
    for (const PrintedMember& member : answer.members)
        members.row({member.name, std::string(label(member.role, lang)),
            member.votes ? std::string(votes_word(lang)) : std::string()});
    TextTable motions(std::vector<TextTable::Alignment>(6, TextTable::left));
    motions.heading(motions_word(lang));
    for (const PrintedMotion& motion : answer.motions)
        add_motion(motions, motion, lang);
    std::string text = summary_text(answer, lang);
    if (!answer.members.empty())
        text.append("\n").append(members.text());
    if (!answer.motions.empty())
        text.append("\n").append(motions.text());
    return text;
}

} // namespace quillfern::cli
