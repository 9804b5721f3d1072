#pragma once

#include "grants/day.h"

#include <cstdint>
#include <optional>
#include <string>

namespace quillfern::grants {

/// Who the organization is. Reading is tolerant key by key: what is missing or unreadable takes the default here.
struct OrgProfile {
    std::string name;
    std::string legalName; ///< the registered name when it differs from `name`
    std::string ein;
    std::string street;
    std::string city;
    std::string region; ///< state or province
    std::string postalCode;
    std::string country;
    std::string phone;
    std::string email;
    std::string website;
    std::string contactName;
    std::string contactTitle;
    std::string mission;
    std::int64_t fiscalYearStartMonth = 1; ///< 1 to 12; clamped on reading
    std::string currencyCode = "USD"; ///< ISO 4217
    std::optional<std::string> logoFile; ///< the logo's name in the package, when there is one

    friend bool operator==(const OrgProfile&, const OrgProfile&) = default;
};

struct DayRange {
    Day first;
    Day last;

    friend bool operator==(const DayRange&, const DayRange&) = default;
};

/// Turns days into fiscal years, which are named by the calendar year in which they end.
struct FiscalCalendar {
    std::int64_t startMonth = 1; ///< 1 to 12; below counts as 1, above as 12

    std::int64_t year_of(const Day& day) const;
    DayRange range(std::int64_t fiscal_year) const;

    friend bool operator==(const FiscalCalendar&, const FiscalCalendar&) = default;
};

FiscalCalendar fiscal_calendar(const OrgProfile& profile);

/// FY2027
std::string fiscal_year_label(std::int64_t fiscal_year);

} // namespace quillfern::grants
