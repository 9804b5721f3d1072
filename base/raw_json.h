#pragma once

#include <string>

namespace quillfern {

/// A JSON value that is carried through as it stands, its own text and nothing around it. Empty when there is none.
struct RawJson {
    std::string text;

    friend bool operator==(const RawJson&, const RawJson&) = default;
};

} // namespace quillfern
