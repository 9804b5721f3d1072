#include "platform/clock.h"
#include "platform/random_uuid.h"

#include <cstdlib>
#include <ctime>
#include <gtest/gtest.h>
#include <set>

namespace quillfern::platform {
namespace {

/// Sets the user's time zone for one test. The rules are written out so that no installed zone data are needed.
class Clock : public testing::Test {
protected:
    void use_zone(const char* zone)
    {
        setenv("TZ", zone, 1);
        tzset();
    }
    void TearDown() override
    {
        unsetenv("TZ");
        tzset();
    }
};

TEST_F(Clock, TheDateIsTheOneOnTheUsersWall)
{
    const Instant evening = *Instant::parse("2026-09-10T23:30:00.999Z");
    use_zone("EST5EDT,M3.2.0,M11.1.0");
    EXPECT_EQ(local_date(evening).day, 10);
    use_zone("JST-9");
    EXPECT_EQ(local_date(evening).day, 11);
    EXPECT_EQ(local_date(*Instant::parse("1969-12-31T14:59:59.999Z")).day, 31) << "before 1970";
}

TEST_F(Clock, ATimeOfDayBecomesAMomentAcrossDaylightSaving)
{
    use_zone("EST5EDT,M3.2.0,M11.1.0");
    const auto text = [](CivilDate date, int hour, int minute) {
        return local_instant(date, hour, minute).value_or(Instant{}).text();
    };
    EXPECT_EQ(text({2026, 1, 10}, 9, 0), "2026-01-10T14:00:00.000Z");
    EXPECT_EQ(text({2026, 7, 10}, 9, 0), "2026-07-10T13:00:00.000Z");
    const auto skipped = local_instant({2026, 3, 8}, 2, 30);
    ASSERT_TRUE(skipped);
    EXPECT_EQ(local_date(*skipped).day, 8);
    EXPECT_EQ(local_instant({10'000'000'000, 1, 1}, 9, 0), std::nullopt);
}

TEST(RandomUuid, IsOfVersionFourAndNeverTheSame)
{
    std::set<Uuid> seen;
    for (int i = 0; i < 1000; ++i) {
        const Uuid uuid = random_uuid();
        EXPECT_EQ(uuid.text()[14], '4');
        EXPECT_NE(std::string_view("89AB").find(uuid.text()[19]), std::string_view::npos);
        EXPECT_TRUE(seen.insert(uuid).second);
    }
}

} // namespace
} // namespace quillfern::platform
