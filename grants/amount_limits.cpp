#include "grants/amount_limits.h"

#include <cstdint>
#include <limits>
#include <optional>

namespace quillfern::grants {
namespace {

// A sum of 64-bit amounts, of as many as fit into any memory.
__extension__ using WideSum = unsigned __int128;

WideSum magnitude(Money amount)
{
    const auto cents = static_cast<std::uint64_t>(amount.cents);
    return amount.cents < 0 ? std::uint64_t{0} - cents : cents;
}

WideSum magnitude(const std::optional<Money>& amount)
{
    return magnitude(amount.value_or(Money{}));
}

/// No figure of the grant is larger, its parts that are subtracted included.
WideSum largest_figure(const Grant& grant)
{
    WideSum sum = magnitude(grant.ask) + magnitude(grant.awarded);
    for (const Payment& payment : grant.payments)
        sum += magnitude(payment.amount) + magnitude(payment.receivedAmount);
    return sum;
}

} // namespace

bool figures_fit(const GrantFile& file)
{
    // A percentage multiplies by 100 at most, and adds half of that to round.
    constexpr std::int64_t largest_sum = (std::numeric_limits<std::int64_t>::max() - 50) / 100;
    WideSum sum = 0;
    for (const Grant& grant : file.grants)
        sum += largest_figure(grant);
    return sum <= static_cast<WideSum>(largest_sum);
}

} // namespace quillfern::grants
