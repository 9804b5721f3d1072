#pragma once

#include "base/instant.h"
#include "base/text.h"
#include "grants/agenda.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace quillfern::grants {

/// Turns agenda items into one iCalendar text (RFC 5545) of all-day events, which any calendar program imports.
///
/// The same item always has the same UID, so importing a later export updates events rather than doubling them.
///
///     const auto items = ICSExport::chosen(agenda(file), options);
///     const std::string text = ICSExport::text(items, options, {file.org.name, file.org.currencyCode, lang, now});
struct ICSExport {
    struct Options {
        bool includeDraftDates = false;
        bool includePayments = false;
        bool includeDecisions = false;
        std::int64_t alertDays = 0; ///< days before each event at which an alarm fires, at 09:00; 0 or less: none

        friend bool operator==(const Options&, const Options&) = default;
    };

    /// What all events of a calendar have in common.
    struct Calendar {
        std::string_view name; ///< the organization's
        std::string_view currencyCode; ///< ISO 4217
        Lang lang = Lang::en;
        Instant exportedAt;
    };

    /// The items to export, in their order: what is done is left out, and so are drafts, payments and expected
    /// decisions unless asked for.
    static std::vector<AgendaItem> chosen(const std::vector<AgendaItem>& items, const Options& options);

    /// The whole file's text for these items.
    static std::string text(const std::vector<AgendaItem>& items, const Options& options, const Calendar& calendar);
};

} // namespace quillfern::grants
