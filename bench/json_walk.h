#pragma once

#include <cstddef>
#include <string>

namespace quillfern::bench {

/// The peer of a reader: walks the whole text with simdjson's On-Demand parser and touches every value as a reader has
/// to, strings unescaped, numbers and literals parsed. The text's capacity holds the parser's padding.
std::size_t walk_json(const std::string& json);

} // namespace quillfern::bench
