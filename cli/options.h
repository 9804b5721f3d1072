#pragma once

#include "base/instant.h"
#include "base/text.h"
#include "base/uuid.h"
#include "grants/csv_reader.h"
#include "grants/day.h"

#include <cstdint>
#include <optional>
#include <string>

namespace CLI {
class App;
}

/// Options of the verbs, each bound to a variable that must live until the verb has run. A value that does not fit is a
/// wrong command line; an option that is not given leaves its variable alone.
namespace quillfern::cli {

void add_package(CLI::App& verb, std::string& path); ///< the organization package, without a name

void add_today(CLI::App& verb, grants::Day& today);
void add_lang(CLI::App& verb, Lang& lang);
void add_json(CLI::App& verb, bool& json);
void add_out(CLI::App& verb, std::string& path, bool& force, const std::string& description);

void add_flag(CLI::App& verb, const std::string& name, bool& value, const std::string& description);
void add_flag_of(CLI::App& verb, const std::string& name, bool& value, const std::string& needed_option,
    const std::string& description); ///< one that makes sense beside another option only
void add_required_uuid(CLI::App& verb, const std::string& name, Uuid& value, const std::string& description);

void add_file(CLI::App& verb, std::string& path, const std::string& description); ///< a file to read, without a name
void add_delimiter(CLI::App& verb, std::optional<grants::Delimiter>& delimiter);
void add_fiscal_year(CLI::App& verb, std::optional<std::int64_t>& year);
void add_year(CLI::App& verb, std::optional<std::int64_t>& year);
void add_present(CLI::App& verb, std::int64_t& members);
void add_alert_days(CLI::App& verb, std::int64_t& days);
void add_dtstamp(CLI::App& verb, Instant& exported_at);

} // namespace quillfern::cli
