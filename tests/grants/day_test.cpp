#include "grants/day.h"

#include <gtest/gtest.h>
#include <limits>

namespace quillfern::grants {
namespace {

constexpr std::int64_t huge = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t tiny = std::numeric_limits<std::int64_t>::min();

TEST(Day, ReadsIsoTextWithBlanksAndMissingZeros)
{
    const struct {
        std::string_view text;
        std::string_view stored;
    } cases[] = {
        {"2024-02-29", "2024-02-29"},
        {" 2024-3-7\n", "2024-03-07"},
        {"\u00A02024-03-07", "2024-03-07"},
        {"-2024-03-07", "2024-03-07"},
        {"2024--3-7-", "2024-03-07"},
        {"1-1-1", "0001-01-01"},
        {"9999-12-31", "9999-12-31"},
        {"00002024-003-07", "2024-03-07"},
    };
    for (const auto& [text, stored] : cases)
        EXPECT_EQ(Day::parse(text).value_or(Day{}).text(), stored) << text;
}

TEST(Day, AnythingElseIsNoDay)
{
    for (const std::string_view text : {"", "-", "2023-02-29", "2024-13-01", "2024-00-10", "2024-01-00", "2024-04-31",
             "10000-01-01", "0-01-01", "2024-1", "2024-1-1-1", "2024 -1-1", "2024-1- 1", "2024/01/01", "2024-1-1x",
             "2024-+1-1", "2024-1.0-1", "18446744073709553640-1-1", "２０２４-1-1", "1900-02-29"})
        EXPECT_EQ(Day::parse(text), std::nullopt) << text;
}

TEST(Day, NormalisingRollsOverAsTheCalendarDoes)
{
    EXPECT_EQ(Day::normalised(2023, 2, 30).text(), "2023-03-02");
    EXPECT_EQ(Day::normalised(2024, 2, 30).text(), "2024-03-01");
    EXPECT_EQ(Day::normalised(2024, 14, 0).text(), "2025-01-31");
    EXPECT_EQ(Day::normalised(2024, 0, 31).text(), "2023-12-31");
    EXPECT_EQ(Day::normalised(2024, -23, 1).text(), "2022-01-01");
    EXPECT_EQ(Day::normalised(2024, 1, -365).text(), "2022-12-31");
    EXPECT_EQ(Day::normalised(huge, 1, 1).text(), "1970-01-01");
    EXPECT_EQ(Day::normalised(2024, tiny, 1).text(), "1970-01-01");
}

TEST(Day, MonthsAreAddedWithTheDayClamped)
{
    const struct {
        Day day;
        std::int64_t months;
        std::string_view result;
    } cases[] = {
        {{2024, 1, 31}, 1, "2024-02-29"},
        {{2024, 1, 31}, 13, "2025-02-28"},
        {{2024, 3, 31}, -1, "2024-02-29"},
        {{2024, 1, 15}, -1, "2023-12-15"},
        {{2024, 12, 31}, 6, "2025-06-30"},
        {{2024, 2, 29}, 48, "2028-02-29"},
        {{1, 1, 31}, -13, "-001-12-31"},
    };
    for (const auto& [day, months, result] : cases)
        EXPECT_EQ(day.plus_months(months).text(), result);
}

TEST(Day, DaysAreCountedWithoutClockChanges)
{
    const Day saturday{2024, 3, 9};
    EXPECT_EQ(days_between(saturday, {2024, 3, 11}), 2);
    EXPECT_EQ(days_between({2024, 3, 11}, saturday), -2);
    EXPECT_EQ(saturday.plus_days(-69).text(), "2023-12-31");
    EXPECT_EQ(saturday.weekday(), 7);
    EXPECT_EQ(saturday.plus_days(1).weekday(), 1);
    EXPECT_EQ((Day{1969, 12, 31}).weekday(), 4);
    for (std::int64_t days = -800'000; days < 800'000; days += 997)
        ASSERT_EQ(Day::from_days_since_epoch(days).days_since_epoch(), days);
}

TEST(Day, ArithmeticStopsAtTheFarthestDayInsteadOfWrapping)
{
    const Day day{2024, 3, 9};
    EXPECT_GT(day.plus_days(huge), day);
    EXPECT_LT(day.plus_days(tiny), day);
    EXPECT_GT(day.plus_months(huge), day);
    EXPECT_LT(day.plus_months(tiny), day);
    EXPECT_GT(day.plus_days(huge).plus_days(huge).plus_months(huge), day);
    EXPECT_LT(days_between(day.plus_days(huge), day.plus_days(tiny)), 0);
}

TEST(Day, DisplaysInTheDocumentsLanguage)
{
    EXPECT_EQ(display_text({2025, 3, 7}, Lang::en), "Mar 7, 2025");
    EXPECT_EQ(display_text({2025, 3, 7}, Lang::es), "7 mar 2025");
    EXPECT_EQ(month_title(2025, 3, Lang::en), "March 2025");
    EXPECT_EQ(month_title(2025, 3, Lang::es), "marzo de 2025");
}

} // namespace
} // namespace quillfern::grants
