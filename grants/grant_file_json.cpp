#include "grants/grant_file_json.h"

#include "board/record_fields.h"
#include "grants/record_fields.h"
#include "grants/value_text.h"
#include "platform/json_reader.h"
#include "platform/json_writer.h"

#include <algorithm>

namespace quillfern::grants {

/// A file from before versions were written.
constexpr std::int64_t unnumbered_format = 1;

void after_read(Grant& grant, const SeenKeys<Grant>& seen, ReadState& state)
{
    if (!seen.has("id"))
        grant.id = state.fresh.uuid();
    if (!seen.has("created"))
        grant.created = state.fresh.now;
    if (!seen.has("modified"))
        grant.modified = state.fresh.now;
}

void after_read(OrgProfile& profile, const SeenKeys<OrgProfile>&, ReadState& state)
{
    const std::int64_t month = std::clamp<std::int64_t>(profile.fiscalYearStartMonth, 1, 12);
    if (month == profile.fiscalYearStartMonth)
        return;
    state.enter("fiscalYearStartMonth");
    state.note(std::to_string(profile.fiscalYearStartMonth) + " is no month; read as " + std::to_string(month));
    state.leave();
    profile.fiscalYearStartMonth = month;
}

void after_read(GrantFile& file, const SeenKeys<GrantFile>& seen, ReadState& state)
{
    if (!seen.has("formatVersion"))
        file.formatVersion = unnumbered_format;
    if (!seen.has("board"))
        file.board = file.board.with([&](board::Board& empty) {
            empty.id = state.fresh.uuid();
            empty.created = state.fresh.now;
        });
}

namespace {

/// A board of a newer format may hold keys that this program would drop on saving: it refuses the file as the file's
/// own newer format does.
std::optional<NewerFormat> newer_format(const GrantFile& file)
{
    if (file.formatVersion > GrantFile::current_format)
        return NewerFormat{"Format version", file.formatVersion};
    if (file.board->formatVersion > board::Board::current_format)
        return NewerFormat{"Board format version", file.board->formatVersion};
    return std::nullopt;
}

} // namespace

GrantFile in_current_format(GrantFile file)
{
    file.formatVersion = GrantFile::current_format;
    if (file.board->formatVersion != board::Board::current_format)
        file.board = file.board.with([](board::Board& older) { older.formatVersion = board::Board::current_format; });
    return file;
}

Result<GrantFileRead, GrantFileError> read_grant_file(std::string json, const FreshValues& fresh)
{
    ReadState state(fresh);
    GrantFile file;
    if (!platform::read_json(json, state, file))
        return fail(GrantFileError(state.error()));
    if (const auto newer = newer_format(file))
        return fail(GrantFileError(*newer));
    return GrantFileRead{std::move(file), std::move(state.notes)};
}

std::string write_grant_file(const GrantFile& file)
{
    constexpr std::size_t usual_grant_bytes = 5000;
    platform::JsonWriter json;
    json.reserve(file.grants.size() * usual_grant_bytes + 4096);
    write(json, in_current_format(file));
    return std::move(json).finish();
}

std::string write_grant(const Grant& grant)
{
    constexpr std::size_t level = 2; // inside the file's object and its list
    platform::JsonWriter json(level);
    write(json, grant);
    std::string text = std::move(json).finish();
    text.pop_back();
    return text;
}

} // namespace quillfern::grants
