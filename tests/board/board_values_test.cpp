#include "board/board_values.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace quillfern;
using namespace quillfern::board;
using testing::ElementsAre;

namespace {

Uuid id(std::uint8_t number)
{
    Uuid uuid;
    uuid.bytes[15] = number;
    uuid.bytes[0] = 0xB0;
    return uuid;
}

std::vector<std::string> names(const std::vector<Member>& members)
{
    std::vector<std::string> all;
    for (const Member& member : members)
        all.push_back(member.name);
    return all;
}

} // namespace

TEST(Board, NamesItselfEvenWhenNothingIsFilledIn)
{
    Board board;
    board.name = " \u00A0\n";
    EXPECT_EQ(display_name(board, Lang::en), "Untitled board");
    EXPECT_EQ(display_name(board, Lang::es), "Junta sin nombre");
    EXPECT_EQ(body_display_name(board, Lang::es), "Junta Directiva");
    board.name = " Linden Ferry ";
    EXPECT_EQ(display_name(board, Lang::en), "Linden Ferry");
    EXPECT_EQ(display_name(Member{}, Lang::en), "Unnamed member");
}

TEST(Board, ListsMembersInOfficeByRoleThenByNameWithNumbersByValue)
{
    Board board;
    board.members = {Member::with_role(id(1), "Member 10", Role::director),
        Member::with_role(id(2), "Zoe", Role::treasurer), Member::with_role(id(3), "member 9", Role::director),
        Member::with_role(id(4), "Ann", Role::exOfficio), Member::with_role(id(5), "Gone", Role::president),
        Member::with_role(id(6), "Ángela", Role::director), Member::with_role(id(7), "Bea", Role::director)};
    board.members[4].inOffice = false;
    EXPECT_THAT(names(current_members(board)), ElementsAre("Zoe", "Ángela", "Bea", "member 9", "Member 10", "Ann"));
    EXPECT_EQ(member_holding(board, Role::director)->name, "Ángela");
    EXPECT_FALSE(member_holding(board, Role::president).has_value());
    EXPECT_THAT(names(voting_members(board)), ElementsAre("Member 10", "Zoe", "member 9", "Ángela", "Bea"));
    EXPECT_EQ(seat_count(board), 5);
    EXPECT_EQ(quorum_status(board, 2), (QuorumStatus{2, 3, 5}));
    board.seats = 9;
    EXPECT_EQ(quorum_status(board, 5), (QuorumStatus{5, 5, 9}));
}

TEST(Board, CountsTowardTheQuorumVotersWhoArePresentOrRemote)
{
    Board board;
    Meeting meeting;
    const AttendanceStatus marks[] = {AttendanceStatus::present, AttendanceStatus::remote, AttendanceStatus::absent,
        AttendanceStatus::excused, AttendanceStatus::leftEarly, AttendanceStatus::present, AttendanceStatus::present};
    for (std::uint8_t i = 0; i < 7; ++i) {
        board.members.push_back(Member::with_role(id(i), std::to_string(i), i == 5 ? Role::staff : Role::director));
        meeting.attendance.push_back({id(i), marks[i]});
    }
    board.members[6].inOffice = false;
    meeting.attendance.push_back({id(0), AttendanceStatus::absent}); // a second mark: the first counts
    meeting.attendance.push_back({id(99), AttendanceStatus::present});
    EXPECT_THAT(names(voting_members_present(board, meeting)), ElementsAre("0", "1"));
}
