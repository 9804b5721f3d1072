#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace quillfern {

/// Where and why a document could not be read.
struct ReadError {
    std::string path; ///< the keys that lead to the value: grants[2].payments[0].amount; empty for the document
    std::string message; ///< "Not an amount"
    std::size_t line = 0; ///< from 1; 0 when the error has no place
    std::size_t column = 0; ///< from 1, in bytes

    std::string text() const; ///< all of it in one line
};

/// What a lenient read replaced by a default or left out: one sentence each, naming the key path.
using ReadNotes = std::vector<std::string>;

} // namespace quillfern
