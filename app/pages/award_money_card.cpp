#include "app/pages/award_money_card.h"

#include "desktop/figures.h"
#include "desktop/painters.h"
#include "desktop/qt_text.h"
#include "desktop/share_bar.h"
#include "desktop/text_label.h"

#include <QFontMetrics>
#include <QPainter>
#include <QVBoxLayout>

#include <cmath>
#include <utility>

namespace quillfern::app {
namespace {

using desktop::Role;
using desktop::scaled;
using desktop::SharePattern;
using desktop::text_font;
using desktop::TextStyle;
using desktop::to_qt;

constexpr double entry_height = 25;
constexpr double swatch_side = 11;

struct LegendEntry {
    QString label;
    QString brief; ///< where the label has no room
    QString amount;
    SharePattern pattern = SharePattern::rest;
};

/// Nothing overdue is not worth a line.
std::vector<LegendEntry> entries_of(const AwardMoney& money)
{
    std::vector<LegendEntry> entries = {
        {QStringLiteral("Received"), {}, to_qt(money.receivedText), SharePattern::solid}};
    if (money.overdue.cents > 0)
        entries.push_back({QStringLiteral("Overdue"), {}, to_qt(money.overdueText), SharePattern::overdue});
    entries.push_back(
        {to_qt(money.expectedLabel), QStringLiteral("Still expected"), to_qt(money.expectedText), SharePattern::rest});
    return entries;
}

QString spoken(const std::vector<LegendEntry>& entries)
{
    QString words;
    for (const LegendEntry& entry : entries)
        words += entry.label + QLatin1Char(' ') + entry.amount + QStringLiteral(". ");
    return words;
}

} // namespace

/// What the parts of the bar stand for, with their amounts.
class AwardMoneyCard::Legend : public QWidget {
public:
    using QWidget::QWidget;

    void set_entries(std::vector<LegendEntry> entries)
    {
        entries_ = std::move(entries);
        setFixedHeight(static_cast<int>(entries_.size()) * scaled(entry_height));
        update();
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        for (std::size_t i = 0; i < entries_.size(); ++i) {
            const int high = scaled(entry_height);
            paint_entry(painter, QRect(0, static_cast<int>(i) * high, width(), high), entries_[i]);
        }
    }

private:
    static void paint_entry(QPainter& painter, const QRect& line, const LegendEntry& entry)
    {
        const int side = scaled(swatch_side);
        const Role role = entry.pattern == SharePattern::overdue ? Role::danger : Role::text;
        const QFont& strong = text_font(TextStyle::bodyStrong);
        desktop::paint_share_swatch(
            painter, QRect(line.left(), line.top() + (line.height() - side) / 2, side, side), entry.pattern);
        painter.setPen(desktop::color(role));
        desktop::draw_figures(painter, line, Qt::AlignRight, entry.amount, strong);
        const int amount = static_cast<int>(std::ceil(desktop::figures_width(entry.amount, strong)));
        const QRect room = line.adjusted(scaled(22), 0, -amount - scaled(8), 0);
        const QFont& font = text_font(TextStyle::body);
        const bool fits = entry.brief.isEmpty() || QFontMetrics(font).horizontalAdvance(entry.label) <= room.width();
        desktop::draw_line(painter, room, fits ? entry.label : entry.brief, font, role);
    }

    std::vector<LegendEntry> entries_;
};

AwardMoneyCard::AwardMoneyCard(QWidget* parent)
    : Card(parent), title_(new desktop::TextLabel({}, TextStyle::heading, Role::text, this)),
      bar_(new desktop::ShareBar(this)), legend_(new Legend(this))
{
    setObjectName(QStringLiteral("awardMoney"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(scaled(17), scaled(13), scaled(17), scaled(13));
    column->setSpacing(scaled(8));
    column->addWidget(title_);
    column->addWidget(bar_);
    column->addWidget(legend_);
}

void AwardMoneyCard::show_money(const AwardMoney& money)
{
    const std::vector<LegendEntry> entries = entries_of(money);
    title_->setText(to_qt(money.title));
    const auto share = [](grants::Money amount, SharePattern pattern) {
        return desktop::Share{static_cast<double>(amount.cents), pattern};
    };
    bar_->set_shares({share(money.received, SharePattern::solid), share(money.overdue, SharePattern::overdue),
                         share(money.expected, SharePattern::rest)},
        spoken(entries));
    legend_->set_entries(entries);
    legend_->setToolTip(to_qt(money.expectedLabel));
    setAccessibleName(to_qt(money.title));
    setAccessibleDescription(spoken(entries));
}

} // namespace quillfern::app
