#pragma once

#include "app/state/export_kind.h"
#include "base/instant.h"
#include "base/text.h"
#include "grants/grant_file.h"
#include "grants/ics_export.h"

#include <array>
#include <cstdint>
#include <string>

namespace quillfern::app {

/// What the user has chosen on the export sheet.
struct ExportChoices {
    ExportKind kind = ExportKind::grantsCSV;
    Lang lang = Lang::en;
    bool draftDates = true;
    bool payments = true;
    bool decisions = false;
    bool alert = true;
    std::int64_t alertDays = 7;

    friend bool operator==(const ExportChoices&, const ExportChoices&) = default;
};

/// The days before a deadline on which an alert can be asked for.
inline constexpr std::array<std::int64_t, 5> alert_day_choices = {1, 2, 3, 7, 14};

std::string alert_words(std::int64_t days); ///< 7 days before, 9:00 AM

/// What the sheet says about the file and the choices.
struct ExportWords {
    std::string draftDates; ///< how many open ones there are
    std::string payments;
    std::string decisions;
    std::string result; ///< 32 dates will be saved.
    std::string about; ///< Open dates of Linden Ferry Community Pantry
    bool any = false; ///< there is something to save

    friend bool operator==(const ExportWords&, const ExportWords&) = default;
};

ExportWords export_words(const grants::GrantFile& file, const ExportChoices& choices);

/// The whole text of the file to be saved.
std::string export_text(const grants::GrantFile& file, const ExportChoices& choices, Instant now);

/// What to call it: the organization's name and what it is, with characters that file systems forbid left out.
std::string export_file_name(const grants::GrantFile& file, const ExportChoices& choices);

std::string export_suffix(ExportKind kind); ///< without the dot

} // namespace quillfern::app
