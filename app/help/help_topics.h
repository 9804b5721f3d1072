#pragma once

#include "app/state/help_topic.h"

#include <array>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace quillfern::app {

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
