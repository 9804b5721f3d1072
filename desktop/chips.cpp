#include "desktop/chips.h"

#include "desktop/icons.h"
#include "desktop/painters.h"
#include "desktop/type.h"

#include <QFontMetrics>
#include <QPainter>

#include <array>
#include <cstddef>

namespace quillfern::desktop {
namespace {

struct ToneRoles {
    Role fill;
    Role text;
};

constexpr std::array<ToneRoles, 5> tones = {{
    {Role::neutral, Role::text2},
    {Role::accentTint, Role::onAccentTint},
    {Role::warnTint, Role::onWarnTint},
    {Role::dangerTint, Role::onDangerTint},
    {Role::card, Role::text2},
}};

constexpr double side_padding = 10;
constexpr double icon_side = 14;
constexpr double picture_gap = 6;
constexpr double pip_width = 3;
constexpr double pip_gap = 1;
constexpr int pip_count = 4;

int picture_width(const Chip& chip)
{
    if (chip.pips > 0)
        return scaled(pip_count * pip_width + (pip_count - 1) * pip_gap + picture_gap);
    return chip.icon.isEmpty() ? 0 : scaled(icon_side + picture_gap);
}

void paint_pips(QPainter& painter, const QRect& pill, int filled)
{
    const int height = scaled(10);
    for (int i = 0; i < pip_count; ++i) {
        const QRectF pip(pill.left() + scaled(side_padding) + i * ui_scale() * (pip_width + pip_gap),
            pill.top() + (pill.height() - height) / 2.0, pip_width * ui_scale(), height);
        paint_box(painter, pip, 1, color(i < filled ? Role::accent : Role::pipOff));
    }
}

} // namespace

QSize chip_size(const Chip& chip)
{
    const int text = QFontMetrics(text_font(TextStyle::secondMedium)).horizontalAdvance(chip.text);
    return {2 * scaled(side_padding) + picture_width(chip) + text, scaled(24)};
}

void paint_chip(QPainter& painter, const QRect& area, const Chip& chip, bool on_selection)
{
    const QSize size = chip_size(chip).boundedTo(area.size());
    const QRect pill(QPoint(area.left(), area.top() + (area.height() - size.height()) / 2), size);
    const ToneRoles roles = tones[static_cast<std::size_t>(chip.tone)];
    const bool framed = chip.tone == ChipTone::outline;
    paint_box(painter, pill, pill.height() / 2.0, color(on_selection ? Role::card : roles.fill),
        framed ? color(Role::border) : QColor());
    if (chip.pips > 0) {
        paint_pips(painter, pill, chip.pips);
    } else if (!chip.icon.isEmpty()) {
        const int side = scaled(icon_side);
        const QPixmap picture = icon_pixmap(chip.icon, roles.text, side, painter.device()->devicePixelRatioF());
        painter.drawPixmap(pill.left() + scaled(side_padding), pill.top() + (pill.height() - side) / 2, picture);
    }
    const QRect words = pill.adjusted(scaled(side_padding) + picture_width(chip), 0, -scaled(side_padding) + 1, 0);
    draw_line(painter, words, chip.text, text_font(TextStyle::secondMedium), roles.text);
}

ChipLabel::ChipLabel(const Chip& chip, QWidget* parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    set_chip(chip);
}

void ChipLabel::set_chip(const Chip& chip)
{
    chip_ = chip;
    setAccessibleName(chip.text);
    updateGeometry();
    update();
}

void ChipLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    paint_chip(painter, rect(), chip_);
}

} // namespace quillfern::desktop
