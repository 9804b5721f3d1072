#include "app/help/help_topics.h"

#include "app/help/help_texts.h"

namespace quillfern::app {
namespace {

struct Entry {
    std::string_view name;
    std::string_view title;
    HelpArticle (*article)();
};

constexpr std::array<Entry, help_topic_count> entries = {{
    {"start", "Getting started", help_texts::start},
    {"reports", "Reporting dates", help_texts::reports},
    {"pipeline", "Pipeline, odds and fiscal years", help_texts::pipeline},
    {"deadlines", "Deadlines and relative dates", help_texts::deadlines},
    {"payments", "Award payments", help_texts::payments},
    {"files", "Attachments", help_texts::files},
    {"importing", "Importing a spreadsheet", help_texts::importing},
    {"pdf", "Board summary PDF", help_texts::pdf},
    {"calendar", "Calendar and reminders", help_texts::calendar},
    {"board", "Members, roles and quorum", help_texts::board},
    {"agenda", "Agendas, notices and the consent agenda", help_texts::agenda},
    {"live", "Taking minutes during the meeting", help_texts::live},
    {"votes", "Motions and how votes are counted", help_texts::votes},
    {"actions", "Action items and reminders", help_texts::actions},
    {"minutes", "Draft, approval and corrections", help_texts::minutes},
    {"archive", "The minute book and search", help_texts::archive},
    {"handoff", "Handing the board to the next secretary", help_texts::handoff},
    {"people", "People", help_texts::people},
    {"grantsAndBoard", "Grants and the board", help_texts::grants_and_board},
    {"marrowind", "Bringing in a Marrowind board", help_texts::marrowind},
    {"portfolio", "Portfolio for consultants", help_texts::portfolio},
    {"sharing", "Sharing and backups", help_texts::sharing},
    {"privacy", "Privacy", help_texts::privacy},
    {"notDo", "What Quillfern Doesn’t Do", help_texts::not_do},
}};

const Entry& entry(HelpTopic topic)
{
    return entries[static_cast<std::size_t>(topic)];
}

} // namespace

std::string_view help_title(HelpTopic topic)
{
    return entry(topic).title;
}

std::string_view help_name(HelpTopic topic)
{
    return entry(topic).name;
}

HelpArticle help_article(HelpTopic topic)
{
    return entry(topic).article();
}

} // namespace quillfern::app
