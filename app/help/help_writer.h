#pragma once

#include "app/help/help_topics.h"

class QTextDocument;

namespace quillfern::app {

/// The margins around the text, in the design's lengths.
inline constexpr double help_side_margin = 44;
inline constexpr double help_widest_text = 740;

/// Fills the document with a topic in the colours and type of the moment. A link's address is the topic's name.
void write_help(QTextDocument& document, HelpTopic topic);

} // namespace quillfern::app
