#include "board/motion_numbering.h"

#include <gtest/gtest.h>

using namespace quillfern;
using namespace quillfern::board;

namespace {

Board with_numbers(std::string prefix, std::vector<std::string> numbers)
{
    Board board;
    board.motionPrefix = std::move(prefix);
    for (std::string& number : numbers) { // one meeting each: numbers are collected over all meetings
        Meeting meeting;
        meeting.motions.emplace_back().number = std::move(number);
        board.meetings.push_back(std::move(meeting));
    }
    return board;
}

} // namespace

TEST(MotionNumbering, GivesOneMoreThanTheHighestUnderThePresentPrefix)
{
    const struct {
        std::string prefix;
        std::vector<std::string> numbers;
        std::string next;
    } cases[] = {
        {"", {}, "2025-001"},
        {"", {"2025-001", "2025-007", "2025-002"}, "2025-008"},
        {"", {"2024-014"}, "2025-001"},
        {"", {"2025-12A", "2025-", "2025- 3", "2025-3 ", "2025", ""}, "2025-001"},
        {"", {"2025-999"}, "2025-1000"},
        {"", {"2025-1000", "2025-0007"}, "2025-1001"},
        {"HOA-", {"2025-004"}, "HOA-2025-001"},
        {"M", {"M2025-002", "m2025-009", "2025-009"}, "M2025-003"},
        {"20", {"202025-004", "2025-009"}, "202025-005"},
        {"", {"2025-+7", "2025-+-9", "2025-++9", "2025-1e3", "2025-0x10"}, "2025-008"},
        {"", {"2025--5", "2025-003"}, "2025-004"},
        {"", {"2025--5"}, "2025--04"},
        {"", {"2025-٧", "2025-７", "2025-½"}, "2025-001"},
        {"", {"2025-002", "2025-99999999999999999999", "2025-9223372036854775807"}, "2025-003"},
        {"", {"2025-9223372036854775806"}, "2025-9223372036854775807"},
    };
    for (const auto& one : cases)
        EXPECT_EQ(MotionNumbering::next_number(with_numbers(one.prefix, one.numbers), 2025), one.next);
}
