#pragma once

#include <string>

namespace quillfern {

/// The text with every line break (CR LF or a lone CR) as one LF.
///
/// Every text that is typed, pasted or imported passes through here before it enters a record. Exports write a record's
/// text as it stands, and a CR in it would end a spreadsheet's row too early.
std::string with_line_feeds(std::string text);

} // namespace quillfern
