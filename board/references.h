#pragma once

#include "board/edits.h"

#include <optional>
#include <set>

namespace quillfern::board {

/// Records that are about to leave the board, each kind apart: ids need to be unique only within their kind.
struct Leaving {
    std::set<Uuid> members;
    std::set<Uuid> meetings;
    std::set<Uuid> items;
    std::set<Uuid> motions;
    std::set<Uuid> actions;
};

/// The board without any reference to the leaving records. Where a member goes, the name stays beside the cleared
/// reference. Refused when a locked meeting holds such a reference.
Edited without_references(const Board& board, const Leaving& leaving);

/// The id that an edit makes a record point at, when it did not point there before. An edit that leaves a dangling
/// reference of a damaged file alone is no reason to refuse it; one that makes a new one is.
template <class Record>
std::optional<Uuid> new_reference(const Record* before, const Record& after, std::optional<Uuid> Record::*reference)
{
    return before && before->*reference == after.*reference ? std::nullopt : after.*reference;
}

} // namespace quillfern::board
