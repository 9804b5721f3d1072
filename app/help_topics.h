#pragma once

#include <array>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

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

std::string_view help_title(HelpTopic topic);

/// "votes"; how a link between topics names one.
std::string_view help_name(HelpTopic topic);

struct HelpHeading {
    std::string_view text;
};

struct HelpParagraph {
    std::string_view text;
};

/// Two columns: what it is, and what is said about it.
struct HelpTable {
    using Row = std::pair<std::string_view, std::string_view>;

    Row head;
    std::vector<Row> rows;
};

using HelpBlock = std::variant<HelpHeading, HelpParagraph, HelpTable>;

/// The text of a topic. It states the program's rules to the people who use it, so it changes with them.
struct HelpArticle {
    std::vector<HelpBlock> blocks;
    std::vector<HelpTopic> seeAlso;
};

HelpArticle help_article(HelpTopic topic);

} // namespace quillfern::app
