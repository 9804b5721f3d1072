#include "app/help/help_search.h"

#include "desktop/qt_text.h"

#include <algorithm>

namespace quillfern::app {
namespace {

using desktop::to_qt;

/// One text to look in; words on two lines of it are words of one topic all the same.
struct TextOfBlock {
    QString operator()(const HelpHeading& heading) const { return to_qt(heading.text); }
    QString operator()(const HelpParagraph& paragraph) const { return to_qt(paragraph.text); }
    QString operator()(const HelpTable& table) const
    {
        QString text = line(table.head);
        for (const HelpTable::Row& row : table.rows)
            text += line(row);
        return text;
    }

    static QString line(const HelpTable::Row& row)
    {
        return to_qt(row.first) + QLatin1Char('\n') + to_qt(row.second) + QLatin1Char('\n');
    }
};

QString text_of(HelpTopic topic)
{
    QString text = to_qt(help_title(topic));
    for (const HelpBlock& block : help_article(topic).blocks)
        text += QLatin1Char('\n') + std::visit(TextOfBlock(), block);
    return text;
}

/// The texts have curly apostrophes; keyboards have straight ones.
QString as_written(QString word)
{
    return word.replace(QLatin1Char('\''), QChar(0x2019));
}

} // namespace

bool help_matches(HelpTopic topic, const QString& text)
{
    const QStringList words = as_written(text).simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts);
    const QString searched = text_of(topic);
    return std::all_of(words.begin(), words.end(),
        [&searched](const QString& word) { return searched.contains(word, Qt::CaseInsensitive); });
}

} // namespace quillfern::app
