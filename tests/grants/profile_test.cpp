#include "grants/profile.h"

#include <gtest/gtest.h>

namespace quillfern::grants {
namespace {

TEST(FiscalCalendar, YearsAreNamedByTheYearTheyEndIn)
{
    const struct {
        std::int64_t start;
        Day day;
        std::int64_t year;
    } cases[] = {
        {7, {2026, 6, 30}, 2026},
        {7, {2026, 7, 1}, 2027},
        {1, {2026, 12, 31}, 2026},
        {2, {2026, 1, 31}, 2026},
        {12, {2026, 12, 1}, 2027},
        {0, {2026, 12, 31}, 2026},
        {13, {2026, 12, 1}, 2027},
        {13, {2026, 11, 30}, 2026},
    };
    for (const auto& [start, day, year] : cases)
        EXPECT_EQ(FiscalCalendar{start}.year_of(day), year) << start;
}

TEST(FiscalCalendar, RangesMeetWithoutAGapOrAnOverlap)
{
    EXPECT_EQ(FiscalCalendar{7}.range(2027), (DayRange{{2026, 7, 1}, {2027, 6, 30}}));
    EXPECT_EQ(FiscalCalendar{3}.range(2024), (DayRange{{2023, 3, 1}, {2024, 2, 29}}));
    EXPECT_EQ(FiscalCalendar{3}.range(2100), (DayRange{{2099, 3, 1}, {2100, 2, 28}}));
    EXPECT_EQ(FiscalCalendar{1}.range(2024), (DayRange{{2024, 1, 1}, {2024, 12, 31}}));
    for (std::int64_t start = -1; start <= 14; ++start) {
        const FiscalCalendar calendar{start};
        const DayRange range = calendar.range(2024);
        EXPECT_EQ(range.last.plus_days(1), calendar.range(2025).first);
        EXPECT_EQ(calendar.year_of(range.first), 2024);
        EXPECT_EQ(calendar.year_of(range.last), 2024);
    }
    EXPECT_EQ(fiscal_year_label(2027), "FY2027");
}

} // namespace
} // namespace quillfern::grants
