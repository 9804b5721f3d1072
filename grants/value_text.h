#pragma once

#include "base/record_reader.h"
#include "base/record_writer.h"
#include "grants/day.h"
#include "grants/money.h"

/// How days and amounts are spelled in files.
namespace quillfern {

template <>
struct TextValue<grants::Day> {
    static std::optional<grants::Day> parse(std::string_view text) { return grants::Day::parse(text); }
    static std::string problem(std::string_view text) { return "Not a date: " + std::string(text); }
};

template <>
struct TextValue<grants::Money> {
    static constexpr std::string_view other_kind = "Not an amount";

    static std::optional<grants::Money> parse(std::string_view text) { return grants::Money::parse(text); }
    /// Files written by hand or by other tools have numbers; each counts as the decimal that it spells.
    static std::optional<grants::Money> parse_number(std::string_view number) { return grants::Money::parse(number); }
    static std::string problem(std::string_view) { return std::string(other_kind); }
};

template <>
struct ValueText<grants::Day> {
    static void write(auto& sink, const grants::Day& day) { sink.plain_text(day.text()); }
};

template <>
struct ValueText<grants::Money> {
    static void write(auto& sink, grants::Money amount) { sink.plain_text(amount.text()); }
};

} // namespace quillfern
