#include "desktop/empty_state.h"

#include "desktop/icon_tile.h"
#include "desktop/text_label.h"

#include <QPushButton>
#include <QVBoxLayout>

namespace quillfern::desktop {

EmptyState::EmptyState(const QString& icon_name, const QString& heading, const QString& line, QWidget* parent)
    : QWidget(parent)
{
    auto* title = new TextLabel(heading, TextStyle::alertTitle, Role::text, this);
    auto* hint = new TextLabel(line, TextStyle::body, Role::text2, this);
    hint->setWordWrap(true);
    hint->setAlignment(Qt::AlignCenter);
    auto* column = new QVBoxLayout(this);
    column->setSpacing(scaled(6));
    column->addStretch(4);
    column->addWidget(new IconTile(icon_name, scaled(52), IconTile::Tone::plain, this), 0, Qt::AlignHCenter);
    column->addSpacing(scaled(8));
    column->addWidget(title, 0, Qt::AlignHCenter);
    column->addWidget(hint);
    column->addStretch(5);
    setAccessibleName(heading);
    setAccessibleDescription(line);
}

QPushButton* EmptyState::add_button(const QString& text)
{
    auto* button = new QPushButton(text, this);
    auto* column = static_cast<QVBoxLayout*>(layout());
    column->insertSpacing(column->count() - 1, scaled(8));
    column->insertWidget(column->count() - 1, button, 0, Qt::AlignHCenter);
    return button;
}

} // namespace quillfern::desktop
