#include "app/pages/pipeline_chart.h"

#include "desktop/figures.h"
#include "desktop/painters.h"
#include "desktop/qt_text.h"
#include "desktop/type.h"

#include <QAccessible>
#include <QFontMetrics>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <utility>

namespace quillfern::app {
namespace {

using desktop::color;
using desktop::Role;
using desktop::scaled;
using desktop::text_font;
using desktop::TextStyle;
using desktop::to_qt;

constexpr double head_height = 40;
constexpr double row_height = 34;
constexpr double foot_height = 7;
constexpr double side_padding = 18;
constexpr double label_width = 134;
constexpr double count_width = 36;
constexpr double amount_width = 108;
constexpr double narrow_amount_width = 92;
constexpr double narrow_below = 900;
constexpr double bar_height = 20;
constexpr double swatch_side = 11;
constexpr double bar_radius = 3;

/// The columns of a row.
struct Columns {
    QRect label;
    QRect count;
    QRect bar;
    QRect asked;
    QRect weighted;
    QRect awarded;

    explicit Columns(const QRect& row)
    {
        const auto column = [&row](int left, int width) { return QRect(left, row.top(), width, row.height()); };
        const int amount = scaled(row.width() < scaled(narrow_below) ? narrow_amount_width : amount_width);
        label = column(row.left() + scaled(side_padding), scaled(label_width));
        count = column(label.right() + 1, scaled(count_width) + scaled(8));
        awarded = column(row.right() + 1 - scaled(side_padding) - amount, amount);
        weighted = column(awarded.left() - amount, amount);
        asked = column(weighted.left() - amount, amount);
        const int bar_left = count.right() + 1 + scaled(16);
        bar = column(bar_left, asked.left() - bar_left);
    }
};

void paint_amount(QPainter& painter, const QRect& box, const std::string& text, Role role, bool strong = false)
{
    const bool applies = text != no_figure;
    painter.setPen(color(applies ? role : Role::text3));
    desktop::draw_figures(painter, box, Qt::AlignRight, to_qt(text),
        text_font(strong && applies ? TextStyle::bodyStrong : TextStyle::body));
}

void paint_bar(QPainter& painter, const QRect& column, const StageBar& bar)
{
    const auto width = [&column](double share) { return static_cast<int>(std::lround(share * column.width())); };
    const int high = scaled(bar_height);
    const QRect place(column.left(), column.top() + (column.height() - high) / 2, width(bar.length), high);
    if (place.width() <= 0)
        return;
    const double radius = std::min<double>(scaled(bar_radius), place.width() / 2.0);
    if (bar.outlined)
        return desktop::paint_box(painter, place, radius, color(Role::neutral), color(Role::border));
    desktop::paint_box(painter, place, radius, color(Role::chartSoft));
    painter.save();
    painter.setClipRect(place.left(), place.top(), width(bar.solid), place.height());
    desktop::paint_box(painter, place, radius, color(Role::chart));
    painter.restore();
}

/// A swatch and its word, as long as both have room; returns where the next one may stand.
int paint_legend_entry(QPainter& painter, const QRect& line, int left, Role swatch, const QString& text)
{
    const int side = scaled(swatch_side);
    const QFont& font = text_font(TextStyle::second);
    const int word = left + side + scaled(7);
    const int width = QFontMetrics(font).horizontalAdvance(text) + 1;
    if (word + width > line.right())
        return word + width;
    const QRect box(left, line.top() + (line.height() - side) / 2, side, side);
    desktop::paint_box(painter, box, scaled(3), color(swatch));
    desktop::draw_line(painter, QRect(word, line.top(), width, line.height()), text, font, Role::text2);
    return word + width + scaled(12);
}

} // namespace

PipelineChart::PipelineChart(QWidget* parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("pipelineChart"));
    setAccessibleName(QStringLiteral("Pipeline by stage"));
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void PipelineChart::show_bars(const std::vector<StageBar>& bars, std::optional<grants::Stage> chosen)
{
    bars_ = bars;
    chosen_ = chosen;
    QString spoken;
    for (const StageBar& bar : bars_)
        spoken += to_qt(bar.spoken) + QStringLiteral(". ");
    const int row = chosen_row();
    setAccessibleDescription(
        row < 0 ? spoken : to_qt(bars_[static_cast<std::size_t>(row)].spoken) + QStringLiteral(", chosen"));
    updateGeometry();
    update();
}

QSize PipelineChart::sizeHint() const
{
    return {
        scaled(600), scaled(head_height) + static_cast<int>(bars_.size()) * scaled(row_height) + scaled(foot_height)};
}

int PipelineChart::chosen_row() const
{
    const auto found =
        std::find_if(bars_.begin(), bars_.end(), [this](const StageBar& bar) { return bar.stage == chosen_; });
    return found == bars_.end() ? -1 : static_cast<int>(found - bars_.begin());
}

QRect PipelineChart::row_rect(int row) const
{
    return QRect(1, scaled(head_height) + row * scaled(row_height), width() - 2, scaled(row_height));
}

int PipelineChart::row_at(int y) const
{
    const int below_head = y - scaled(head_height);
    const int row = below_head / scaled(row_height);
    return below_head >= 0 && row < static_cast<int>(bars_.size()) ? row : -1;
}

void PipelineChart::choose(int row)
{
    const bool is_row = row >= 0 && row < static_cast<int>(bars_.size());
    Q_EMIT stage_chosen(is_row ? std::optional(bars_[static_cast<std::size_t>(row)].stage) : std::nullopt);
}

void PipelineChart::set_hovered(int row)
{
    if (std::exchange(hovered_, row) != row)
        update();
}

void PipelineChart::mouseReleaseEvent(QMouseEvent* event)
{
    const int row = row_at(event->position().toPoint().y());
    if (event->button() == Qt::LeftButton && row >= 0)
        choose(row == chosen_row() ? -1 : row);
}

void PipelineChart::mouseMoveEvent(QMouseEvent* event)
{
    set_hovered(row_at(event->position().toPoint().y()));
}

void PipelineChart::leaveEvent(QEvent*)
{
    set_hovered(-1);
}

void PipelineChart::keyPressEvent(QKeyEvent* event)
{
    const int last = static_cast<int>(bars_.size()) - 1;
    const int row = chosen_row();
    switch (event->key()) {
    case Qt::Key_Down:
        return choose(std::min(row + 1, last));
    case Qt::Key_Up:
        return choose(row < 0 ? last : std::max(row - 1, 0));
    case Qt::Key_Escape:
        return choose(-1);
    default:
        QWidget::keyPressEvent(event);
    }
}

bool PipelineChart::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip)
        setToolTip(row_at(static_cast<QHelpEvent*>(event)->pos().y()) < 0
                ? QString()
                : QStringLiteral("Click to list only this stage; click again to list all open requests."));
    return QWidget::event(event);
}

void PipelineChart::paint_head(QPainter& painter) const
{
    const Columns columns(QRect(1, scaled(4), width() - 2, scaled(head_height) - scaled(4)));
    const auto head = [&painter](const QRect& box, const char* text, Qt::Alignment alignment) {
        desktop::draw_line(painter, box, QString::fromUtf8(text), text_font(TextStyle::second), Role::text2, alignment);
    };
    head(columns.label, "Stage", Qt::AlignLeft);
    head(columns.count, "No.", Qt::AlignRight);
    head(columns.asked, "Asked", Qt::AlignRight);
    head(columns.weighted, "Weighted", Qt::AlignRight);
    head(columns.awarded, "Awarded", Qt::AlignRight);
    const int next =
        paint_legend_entry(painter, columns.bar, columns.bar.left(), Role::chartSoft, QStringLiteral("Asked"));
    paint_legend_entry(painter, columns.bar, next, Role::chart, QStringLiteral("Weighted or awarded"));
}

void PipelineChart::paint_row(QPainter& painter, int row) const
{
    const StageBar& bar = bars_[static_cast<std::size_t>(row)];
    const QRect place = row_rect(row);
    const Columns columns(place);
    if (row == chosen_row() || row == hovered_)
        painter.fillRect(place, color(row == chosen_row() ? Role::accentTint : Role::cardAlt));
    if (bar.stage == grants::Stage::awarded) // what is decided
        painter.fillRect(QRect(place.left(), place.top(), place.width(), 1), color(Role::hairline));
    desktop::draw_line(painter, columns.label, to_qt(bar.label), text_font(TextStyle::bodyMedium), Role::text);
    paint_amount(painter, columns.count, bar.count, Role::text2);
    paint_bar(painter, columns.bar, bar);
    paint_amount(painter, columns.asked, bar.asked, Role::text);
    paint_amount(painter, columns.weighted, bar.weighted, Role::text2);
    paint_amount(painter, columns.awarded, bar.awarded, Role::text, true);
}

void PipelineChart::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    desktop::paint_box(painter, rect(), scaled(10), color(Role::card), color(Role::hairline));
    paint_head(painter);
    for (int row = 0; row < static_cast<int>(bars_.size()); ++row)
        paint_row(painter, row);
    if (hasFocus() && window()->testAttribute(Qt::WA_KeyboardFocusChange))
        desktop::paint_focus(painter, rect(), scaled(10));
}

} // namespace quillfern::app
