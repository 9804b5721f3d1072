#include "base/instant.h"

#include <gtest/gtest.h>

#include <string>

namespace quillfern {
namespace {

TEST(Instant, ReadsEveryFormOfOneMoment)
{
    for (const std::string text :
        {"2025-03-07T14:03:22.125Z", "2025-03-07T14:03:22.1250Z", "2025-03-07T15:03:22.125+01:00",
            "2025-03-07T15:03:22.125+0100", "2025-03-07T05:33:22.125-08:30", "2025-03-08T00:03:22.1249999+10:00"})
        EXPECT_EQ(Instant::parse(text).value_or(Instant{}).text(), "2025-03-07T14:03:22.125Z") << text;
}

TEST(Instant, AFractionRoundsWithCarryUpToTheYear)
{
    const struct {
        std::string text;
        std::string stored;
    } cases[] = {
        {"2024-12-31T23:59:59.9995Z", "2025-01-01T00:00:00.000Z"},
        {"2024-12-31T23:59:59.99949999999999999999Z", "2024-12-31T23:59:59.999Z"},
        {"1969-12-31T23:59:59.0005Z", "1969-12-31T23:59:59.001Z"},
        {"2024-02-29T00:00:00Z", "2024-02-29T00:00:00.000Z"},
        {"0001-01-01T00:00:00.001Z", "0001-01-01T00:00:00.001Z"},
    };
    for (const auto& [text, stored] : cases)
        EXPECT_EQ(Instant::parse(text).value_or(Instant{}).text(), stored) << text;
}

TEST(Instant, RefusesTextsThatMeanAnotherMomentElsewhereOrNone)
{
    for (const std::string text :
        {"", "2025-03-07", "2025-03-07T14:03:22", "2025-03-07T14:03Z", "2025-03-07T14:03:22.Z", "2025-02-29T00:00:00Z",
            "2025-13-01T00:00:00Z", "2025-03-07T24:00:00Z", "2025-03-07T14:60:00Z", "2025-03-07T14:03:60Z",
            "2025-03-07 14:03:22Z", "2025-03-07T14:03:22+24:00", "2025-03-07T14:03:22ZZ", "+2025-03-07T14:03:22Z",
            "9999-12-31T23:59:59.9995Z", "0000-01-01T00:00:00+00:01"})
        EXPECT_EQ(Instant::parse(text), std::nullopt) << text;
}

} // namespace
} // namespace quillfern
