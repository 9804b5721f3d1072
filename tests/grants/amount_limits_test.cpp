#include "grants/amount_limits.h"
#include "grants/summaries.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace quillfern::grants {
namespace {

constexpr std::int64_t limit = (INT64_MAX - 50) / 100;

GrantFile file_of(std::vector<Shared<Grant>> grants)
{
    GrantFile file;
    file.grants = std::move(grants);
    return file;
}

Grant asking(std::int64_t cents)
{
    Grant grant;
    grant.ask = Money{cents};
    grant.probability = 100;
    return grant;
}

TEST(AmountLimits, LetThroughWhatCanBeMultipliedByAnyPercentage)
{
    EXPECT_TRUE(figures_fit(GrantFile()));
    for (const std::int64_t sign : {1, -1}) {
        EXPECT_TRUE(figures_fit(file_of({asking(sign * limit)})));
        EXPECT_EQ(weighted_ask(asking(sign * limit)), Money{sign * limit});
        EXPECT_FALSE(figures_fit(file_of({asking(sign * (limit + 1))})));
    }
    EXPECT_FALSE(figures_fit(file_of({asking(INT64_MIN)})));
}

TEST(AmountLimits, CountEveryAmountWhateverItsSign)
{
    Grant grant = asking(-limit / 4);
    grant.awarded = Money{limit / 4};
    grant.payments.emplace_back().amount = Money{-limit / 4};
    grant.payments.emplace_back().receivedAmount = Money{limit / 4};
    EXPECT_TRUE(figures_fit(file_of({grant})));
    EXPECT_FALSE(figures_fit(file_of({grant, asking(-4)})));
    const std::vector<Shared<Grant>> many(1000, asking(INT64_MAX)); // beyond 64 bits
    EXPECT_FALSE(figures_fit(file_of(many)));
}

} // namespace
} // namespace quillfern::grants
