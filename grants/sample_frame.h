#pragma once

#include "base/instant.h"
#include "base/uuid.h"
#include "grants/day.h"

#include <cstdint>
#include <string>

/// The sample organization's own frame of reference: its story is written as of September 10, 2026, and moved as a
/// whole to the day on which it is shown.
namespace quillfern::grants {

enum class SampleKind : std::uint8_t { funder = 1, person, grant, report, payment, milestone, attachment };

/// The same record has the same identifier in every run, so that output can be compared.
Uuid sample_id(SampleKind kind, std::uint32_t number);

class SampleFrame {
public:
    SampleFrame(const Day& today, Lang lang);

    /// The story's day, moved.
    Day on(std::int64_t year, std::int64_t month, std::int64_t day) const;
    Instant at(std::int64_t year, std::int64_t month, std::int64_t day, std::int64_t hour) const;

    Lang lang() const { return lang_; }
    std::string text(Text text) const { return std::string(text(lang_)); }

private:
    std::int64_t shift_;
    Lang lang_;
};

/// 2025–26, for a school year that begins on the day.
std::string season(const Day& first);

} // namespace quillfern::grants
