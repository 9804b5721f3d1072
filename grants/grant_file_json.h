#pragma once

#include "base/read_state.h"
#include "base/result.h"
#include "grants/grant_file.h"

#include <string>

namespace quillfern::grants {

/// A file, or the board in it, whose format version is newer than this program's; nothing of it is used.
struct NewerFormat {
    std::string_view what; ///< "Format version" or "Board format version"
    std::int64_t formatVersion = 0;
};

struct GrantFileRead {
    GrantFile file;
    ReadNotes notes; ///< what was replaced by a default or left out
};

using GrantFileError = std::variant<ReadError, NewerFormat>;

/// Decodes the text of "Quillfern.json". Nothing is opened by half: a malformed text, a value of a wrong type, a bad
/// date, amount or case anywhere refuses the whole; only the profile and the board are tolerant key by key. `json` may
/// be changed (room for the parser's padding).
Result<GrantFileRead, GrantFileError> read_grant_file(std::string json, const FreshValues& fresh);

/// The file as it is written, and reads back: its format and its board's are the current ones.
GrantFile in_current_format(GrantFile file);

/// The text of "Quillfern.json" in the current format: pretty-printed, keys sorted, the same bytes for equal files.
std::string write_grant_file(const GrantFile& file);

/// One grant as it stands in that text, from its opening brace to its closing one.
std::string write_grant(const Grant& grant);

} // namespace quillfern::grants
