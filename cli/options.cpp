#include "cli/options.h"

#include "base/decimal.h"

#include <CLI/CLI.hpp>

#include <optional>

namespace quillfern::cli {

/// An option whose text `parse` turns into a value, or into nothing when it does not fit.
template <class T, class Parse>
static CLI::Option* add_parsed(CLI::App& verb, const std::string& name, T& value, const std::string& kind,
    const std::string& description, Parse parse)
{
    const auto take = [&value, name, kind, parse](const std::string& text) {
        const auto parsed = parse(text);
        if (!parsed)
            throw CLI::ValidationError(name, "not " + kind + ": " + text);
        value = *parsed;
    };
    return verb.add_option_function<std::string>(name, take, description);
}

static CLI::Option* add_path(CLI::App& verb, const std::string& name, std::string& path, const std::string& description)
{
    const auto problem = [](const std::string& text) { return text.empty() ? "an empty name" : ""; };
    return verb.add_option(name, path, description)->required()->check(CLI::Validator(problem, ""));
}

void add_package(CLI::App& verb, std::string& path)
{
    add_path(verb, "PATH", path, "The organization package")->option_text(" ");
}

void add_today(CLI::App& verb, grants::Day& today)
{
    add_parsed(
        verb, "--today", today, "a date (YYYY-MM-DD)", "The day to count from, instead of today", grants::Day::parse)
        ->option_text("YYYY-MM-DD");
}

static std::optional<Lang> parse_lang(const std::string& text)
{
    if (text == "en")
        return Lang::en;
    if (text == "es")
        return Lang::es;
    return std::nullopt;
}

void add_lang(CLI::App& verb, Lang& lang)
{
    add_parsed(verb, "--lang", lang, "a language (en, es)", "The language of the texts: en or es", parse_lang)
        ->option_text("LANG");
}

void add_json(CLI::App& verb, bool& json)
{
    add_flag(verb, "--json", json, "Print JSON instead of text");
}

void add_out(CLI::App& verb, std::string& path, bool& force, const std::string& description)
{
    add_path(verb, "--out", path, description)->option_text("FILE");
    add_flag(verb, "--force", force, "Replace what stands there");
}

void add_flag(CLI::App& verb, const std::string& name, bool& value, const std::string& description)
{
    verb.add_flag(name, value, description);
}

void add_flag_of(CLI::App& verb, const std::string& name, bool& value, const std::string& needed_option,
    const std::string& description)
{
    verb.add_flag(name, value, description)->needs(verb.get_option(needed_option));
}

void add_required_uuid(CLI::App& verb, const std::string& name, Uuid& value, const std::string& description)
{
    add_parsed(verb, name, value, "a UUID", description, Uuid::parse)->required()->option_text("UUID");
}

void add_file(CLI::App& verb, std::string& path, const std::string& description)
{
    add_path(verb, "FILE", path, description)->option_text(" ");
}

static std::optional<grants::Delimiter> parse_delimiter(const std::string& text)
{
    if (text == "comma")
        return grants::Delimiter::comma;
    if (text == "semicolon")
        return grants::Delimiter::semicolon;
    if (text == "tab")
        return grants::Delimiter::tab;
    return std::nullopt;
}

void add_delimiter(CLI::App& verb, std::optional<grants::Delimiter>& delimiter)
{
    add_parsed(verb, "--delimiter", delimiter, "a delimiter (comma, semicolon, tab)",
        "What separates the cells, instead of a guess: comma, semicolon or tab", parse_delimiter)
        ->option_text("NAME");
}

/// A whole number of at most four digits.
static std::optional<std::int64_t> parse_small_number(const std::string& text)
{
    constexpr std::int64_t largest = 9999;
    const std::optional<std::int64_t> number = parse_whole_decimal(text);
    return number && *number >= -largest && *number <= largest ? number : std::nullopt;
}

static std::optional<std::int64_t> parse_year(const std::string& text)
{
    const std::optional<std::int64_t> number = parse_small_number(text);
    return number && *number > 0 ? number : std::nullopt;
}

void add_fiscal_year(CLI::App& verb, std::optional<std::int64_t>& year)
{
    add_parsed(verb, "--fiscal-year", year, "a year (1 to 9999)", "Only what belongs to this fiscal year", parse_year)
        ->option_text("YEAR");
}

void add_year(CLI::App& verb, std::optional<std::int64_t>& year)
{
    add_parsed(verb, "--year", year, "a year (1 to 9999)", "Number the next motion for this year", parse_year)
        ->option_text("YEAR");
}

static std::optional<std::int64_t> parse_count(const std::string& text)
{
    const std::optional<std::int64_t> number = parse_small_number(text);
    return number && *number >= 0 ? number : std::nullopt;
}

void add_present(CLI::App& verb, std::int64_t& members)
{
    add_parsed(verb, "--present", members, "a number of members (0 to 9999)",
        "How many voting members are present, for the quorum", parse_count)
        ->option_text("N");
}

void add_alert_days(CLI::App& verb, std::int64_t& days)
{
    add_parsed(verb, "--alert-days", days, "a number of days (up to 9999)",
        "Remind at 09:00 so many days before; 0 for no reminders", parse_small_number)
        ->option_text("N");
}

/// YYYYMMDDTHHMMSSZ, the form of the file's own line.
static std::optional<Instant> parse_stamp(const std::string& text)
{
    if (text.size() != 16)
        return std::nullopt;
    return Instant::parse(text.substr(0, 4) + '-' + text.substr(4, 2) + '-' + text.substr(6, 2) + text.substr(8, 3)
        + ':' + text.substr(11, 2) + ':' + text.substr(13));
}

void add_dtstamp(CLI::App& verb, Instant& exported_at)
{
    add_parsed(verb, "--dtstamp", exported_at, "a UTC time (YYYYMMDDTHHMMSSZ)",
        "The time of the export, instead of now", parse_stamp)
        ->option_text("YYYYMMDDTHHMMSSZ");
}

} // namespace quillfern::cli
