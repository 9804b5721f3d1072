#include "platform/locale_text.h"

#include "base/civil.h"

#include <gtest/gtest.h>

namespace quillfern::platform {
namespace {

const std::int64_t march_7 = days_from_civil(2025, 3, 7);

TEST(LocaleText, DatesInBothLanguages)
{
    const struct {
        DateStyle style;
        Lang lang;
        std::string_view text;
    } cases[] = {
        {DateStyle::short_, Lang::en, "3/7/25"},
        {DateStyle::medium, Lang::en, "Mar 7, 2025"},
        {DateStyle::long_, Lang::en, "March 7, 2025"},
        {DateStyle::full, Lang::en, "Friday, March 7, 2025"},
        {DateStyle::short_, Lang::es, "7/3/2025"},
        {DateStyle::medium, Lang::es, "7 mar 2025"},
        {DateStyle::long_, Lang::es, "7 de marzo de 2025"},
        {DateStyle::full, Lang::es, "viernes, 7 de marzo de 2025"},
    };
    for (const auto& [style, lang, text] : cases)
        EXPECT_EQ(format_date(march_7, style, lang), text);
    EXPECT_EQ(format_date_fields(march_7, "yMMMM", Lang::en), "March 2025");
    EXPECT_EQ(format_date_fields(march_7, "yMMMM", Lang::es), "marzo de 2025");
    EXPECT_EQ(format_date_fields(march_7, "MMMd", Lang::en), "Mar 7");
    EXPECT_EQ(format_time(18, 5, Lang::en), "6:05 PM") << "an ordinary space";
    EXPECT_EQ(format_time(0, 0, Lang::es), "12:00 a. m.");
}

TEST(LocaleText, DatesBeforeTheJulianCalendarEndedAndFarOnesStayOnTheirDay)
{
    EXPECT_EQ(format_date(days_from_civil(1, 1, 1), DateStyle::long_, Lang::en), "January 1, 1");
    EXPECT_EQ(format_date(days_from_civil(1582, 10, 10), DateStyle::long_, Lang::en), "October 10, 1582");
    EXPECT_EQ(format_date(days_from_civil(9999, 12, 31), DateStyle::long_, Lang::en), "December 31, 9999");
}

TEST(LocaleText, AmountsAreExactAndRoundHalvesAwayFromZero)
{
    const struct {
        std::int64_t cents;
        std::string_view code;
        int digits;
        Lang lang;
        std::string_view text;
    } cases[] = {
        {125000, "USD", 0, Lang::en, "$1,250"},
        {125050, "USD", 2, Lang::en, "$1,250.50"},
        {125050, "USD", 0, Lang::en, "$1,251"},
        {-125050, "USD", 0, Lang::en, "-$1,251"},
        {-5, "USD", 2, Lang::en, "-$0.05"},
        {INT64_MAX, "USD", 2, Lang::en, "$92,233,720,368,547,758.07"},
        {INT64_MIN, "USD", 2, Lang::en, "-$92,233,720,368,547,758.08"},
        {125050, "USD", 2, Lang::es, "$1,250.50"},
        {125000, "EUR", 0, Lang::en, "€1,250"},
        {125050, "JPY", 2, Lang::en, "¥1,250.50"},
        {125000, "CHF", 0, Lang::en, "CHF\u00A01,250"},
        {125000, "EUR", 0, Lang::es, "EUR\u00A01,250"},
        {125000, "ZZQ", 0, Lang::en, "ZZQ\u00A01,250"},
        {125000, "shells", 0, Lang::en, "shells\u00A01,250"},
        {125000, "", 0, Lang::en, "1,250"},
    };
    for (const auto& [cents, code, digits, lang, text] : cases)
        EXPECT_EQ(format_currency(cents, code, digits, lang), text) << code;
}

TEST(LocaleText, SortKeysPutNamesInTheOrderOfADirectory)
{
    EXPECT_EQ(name_sort_key("pemberwick"), name_sort_key("PEMBERWICK"));
    EXPECT_LT(name_sort_key("Élan Trust"), name_sort_key("Fern Fund"));
    EXPECT_LT(name_sort_key("Elan Trust"), name_sort_key("Élan Trust"));
    EXPECT_EQ(name_sort_key("\u00C9lan"), name_sort_key("E\u0301lan")) << "composed or not";
    EXPECT_LT(name_sort_key(""), name_sort_key("a"));
    EXPECT_LT(name_sort_key(std::string(10000, 'a')), name_sort_key(std::string(10001, 'a')));
    EXPECT_LT(numbered_name_sort_key("Seat 9"), numbered_name_sort_key("Seat 10"));
    EXPECT_NE(numbered_name_sort_key("seat"), numbered_name_sort_key("Seat"));
}

} // namespace
} // namespace quillfern::platform
