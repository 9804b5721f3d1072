#pragma once

#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillfern::app {

/// A version of the program, such as 1.4, 1.4.2 or 2.0-beta1. Missing numbers count as 0, so 1.4 is 1.4.0; what is
/// before a release ("-beta1") is older than the release, and among such texts plain comparison decides.
class ProgramVersion {
public:
    /// Up to eight numbers of up to nine digits, with points between, then perhaps a hyphen and letters, digits, points
    /// or hyphens. Anything else is no version.
    static std::optional<ProgramVersion> parse(std::string_view text);

    const std::string& text() const { return text_; }

    friend std::strong_ordering operator<=>(const ProgramVersion& a, const ProgramVersion& b);
    friend bool operator==(const ProgramVersion& a, const ProgramVersion& b) { return (a <=> b) == 0; }

private:
    std::string text_; ///< as written
    std::vector<std::int64_t> numbers_; ///< without zeros at the end
    std::string before_release_; ///< empty: a release
};

} // namespace quillfern::app
