#include "desktop/facts_line.h"

#include "desktop/painters.h"
#include "desktop/type.h"

#include <QFontMetrics>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace quillfern::desktop {
namespace {

const QFont& font_of(const Fact& fact)
{
    return text_font(fact.strong ? TextStyle::bodyStrong : TextStyle::body);
}

int width_of(const Fact& fact)
{
    return QFontMetrics(font_of(fact)).horizontalAdvance(fact.text);
}

} // namespace

FactsLine::FactsLine(QWidget* parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void FactsLine::set_facts(std::vector<Fact> facts)
{
    facts_ = std::move(facts);
    QString spoken;
    for (const Fact& fact : facts_)
        spoken += fact.text;
    setAccessibleName(spoken);
    updateGeometry();
    update();
}

QSize FactsLine::sizeHint() const
{
    int width = 0;
    for (const Fact& fact : facts_)
        width += width_of(fact);
    return {width, line_height(TextStyle::body)};
}

QSize FactsLine::minimumSizeHint() const
{
    return {0, line_height(TextStyle::body)};
}

void FactsLine::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    int x = 0;
    for (const Fact& fact : facts_) {
        const int room = std::min(width_of(fact) + 1, width() - x);
        if (room <= 0)
            return;
        draw_line(painter, QRect(x, 0, room, height()), fact.text, font_of(fact), fact.role);
        x += width_of(fact);
    }
}

} // namespace quillfern::desktop
