#pragma once

#include "app/pages/figure.h"
#include "grants/agenda.h"

#include <string>
#include <unordered_map>

namespace quillfern::app {

/// The next thing to do for a grant, an overdue one before all others.
struct NextDate {
    Figure date; ///< Sep 11, 2026; "Nothing due" when there is none
    std::string what; ///< Milestone; empty when nothing is due
    bool overdue = false;

    friend bool operator==(const NextDate&, const NextDate&) = default;
};

/// The next dates of all grants, from one look at the agenda.
class NextDates {
public:
    NextDates(const grants::GrantFile& file, const grants::Day& today);

    const NextDate& of(const Uuid& grant) const;

private:
    std::unordered_map<Uuid, NextDate> by_grant_;
    NextDate nothing_;
};

} // namespace quillfern::app
