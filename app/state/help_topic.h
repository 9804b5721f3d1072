#pragma once

#include <cstddef>

namespace quillfern::app {

/// The topics of the help window, in the order of its list.
enum class HelpTopic {
    start,
    reports,
    pipeline,
    deadlines,
    payments,
    files,
    importing,
    pdf,
    calendar,
    board,
    agenda,
    live,
    votes,
    actions,
    minutes,
    archive,
    handoff,
    people,
    grantsAndBoard,
    marrowind,
    portfolio,
    sharing,
    privacy,
    notDo,
};

inline constexpr std::size_t help_topic_count = static_cast<std::size_t>(HelpTopic::notDo) + 1;

} // namespace quillfern::app
