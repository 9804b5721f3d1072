#pragma once

#include "grants/grant_file.h"

#include <cstdint>
#include <string>

namespace quillfern::app {

/// The money of awards in one fiscal year: what came in, what should have come, what is still to come. The words of an
/// amount of nothing are there too; whoever shows them may leave them out.
struct AwardMoney {
    std::string title; ///< Award money, FY2027
    grants::Money received; ///< in the year, whichever year the award belongs to
    grants::Money overdue; ///< not received though expected before today; in the present year, since any year
    grants::Money expected; ///< from today to the year's end
    std::string receivedText;
    std::string overdueText;
    std::string expectedText;
    std::string expectedLabel; ///< Still expected by June 30

    friend bool operator==(const AwardMoney&, const AwardMoney&) = default;
};

AwardMoney award_money(const grants::GrantFile& file, const grants::Day& today, std::int64_t fiscal_year);

} // namespace quillfern::app
