#pragma once

#include "base/instant.h"
#include "base/shared.h"
#include "base/text.h"
#include "base/uuid.h"
#include "board/meeting.h"
#include "board/votes.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace quillfern::board {

using quillfern::Lang;

/// Members are listed in this order of roles.
enum class Role { president, vicePresident, secretary, treasurer, director, exOfficio, staff, other };
enum class OrgType { nonprofit, hoa, club, other };

/// Whether someone of the role votes when nothing is said about it.
constexpr bool votes_by_default(Role role)
{
    return role != Role::exOfficio && role != Role::staff;
}

struct Member {
    Uuid id;
    std::string name;
    Role role = Role::director;
    std::string title; ///< beside the role, in the board's own words
    bool votes = true;
    bool inOffice = true;
    std::string email;
    std::string phone;
    std::optional<Instant> termEnds;

    /// A member in office who votes as the role does.
    static Member with_role(const Uuid& id, std::string name, Role role)
    {
        Member member;
        member.id = id;
        member.name = std::move(name);
        member.role = role;
        member.votes = votes_by_default(role);
        return member;
    }

    friend bool operator==(const Member&, const Member&) = default;
};

/// The whole governance record of one organization.
struct Board {
    static constexpr std::int64_t current_format = 1;

    std::int64_t formatVersion = current_format;
    Uuid id;
    std::string name; ///< the organization's
    OrgType orgType = OrgType::nonprofit;
    std::string bodyName; ///< the governing body's, for example the board of directors
    std::string address;
    std::vector<Member> members;
    QuorumRule quorum = MajorityQuorum{};
    std::optional<std::int64_t> seats; ///< absent: as many as there are voting members
    VoteRule voteRule;
    std::string motionPrefix;
    std::string defaultLocation;
    std::int64_t defaultStartMinutes = 1140; ///< after midnight: seven in the evening
    std::int64_t defaultLengthMinutes = 90;
    std::vector<Shared<Meeting>> meetings;
    std::vector<ActionItem> actions;
    Instant created;
    bool sample = false; ///< true only for the sample boards

    friend bool operator==(const Board&, const Board&) = default;
};

} // namespace quillfern::board
