#include "platform/version_pruning.h"

#include <functional>
#include <gmock/gmock.h>

namespace quillfern::platform {
namespace {

constexpr std::int64_t hour = 3'600'000; // milliseconds
constexpr std::int64_t day = 24 * hour;
constexpr std::int64_t gigabyte = 1024 * 1024 * 1024;
constexpr Instant now{20'000 * day + 12 * hour};

/// One state every so many hours, the newest an hour old.
std::vector<KeptState> states(std::size_t count, std::int64_t hours_apart, std::int64_t bytes = 1)
{
    std::vector<KeptState> result;
    for (std::size_t i = 0; i < count; ++i)
        result.push_back({{now.milliseconds - hour - static_cast<std::int64_t>(i) * hours_apart * hour}, bytes, false});
    return result;
}

std::vector<KeptState> with_use(std::vector<KeptState> states, std::size_t place)
{
    states[place].inUse = true;
    return states;
}

TEST(VersionPruning, Keeps_what_the_rule_says)
{
    const struct {
        const char* what;
        std::vector<KeptState> states;
        std::size_t kept;
    } cases[] = {
        {"nothing", {}, 0},
        {"fifty recent ones, however old", states(50, 24 * 365), 50},
        {"of an hour's pace: fifty, then one a day for the rest of thirty days, then one a week", states(24 * 300, 1),
            50 + 27 + 21},
        {"a pace of years", states(60, 24 * 365), 50},
        {"the newest, although it is too big", states(3, 1, 3 * gigabyte), 1},
        {"as many as fit", states(10, 1, gigabyte / 2), 4},
        {"too big ones that somebody reads from", with_use(states(4, 1, 3 * gigabyte), 2), 2},
        {"an old one that somebody reads from", with_use(states(60, 24 * 365), 59), 51},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.what);
        EXPECT_EQ(each.states.size() - states_to_drop(each.states, now).size(), each.kept);
    }
}

TEST(VersionPruning, Drops_the_oldest_first_and_keeps_the_newest_of_each_day)
{
    EXPECT_THAT(states_to_drop(states(5, 1, gigabyte), now), testing::ElementsAre(2, 3, 4));
    const PruningRule small{.recent = 1, .days = 3, .weeks = 0};
    EXPECT_THAT(states_to_drop(states(9, 8), now, small), testing::ElementsAre(1, 3, 4, 6, 7, 8));

    std::vector<KeptState> uneven = states(4, 1, gigabyte);
    uneven[2].bytes = 2 * gigabyte;
    uneven[3].bytes = 1;
    EXPECT_THAT(states_to_drop(uneven, now), testing::ElementsAre(2, 3)) << "an older one may share what is dropped";
}

} // namespace
} // namespace quillfern::platform
