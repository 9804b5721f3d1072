#include "app/window/welcome_greeting.h"

#include "desktop/icons.h"
#include "desktop/text_label.h"

#include <QBoxLayout>
#include <QLabel>

namespace quillfern::app {

using desktop::Role;
using desktop::scaled;
using desktop::TextLabel;
using desktop::TextStyle;

QLayout* make_greeting(const QString& title, QWidget* parent)
{
    auto* mark = new QLabel(parent);
    mark->setPixmap(
        desktop::icon_pixmap(QStringLiteral("quillfern-app"), Role::accent, scaled(68), parent->devicePixelRatioF()));
    auto* words = new QVBoxLayout;
    words->setSpacing(scaled(4));
    words->addStretch();
    words->addWidget(new TextLabel(title, TextStyle::title, Role::text, parent));
    words->addWidget(new TextLabel(QStringLiteral("Grants and the board, in one file on your own computer."),
        TextStyle::body, Role::text2, parent));
    words->addStretch();
    auto* greeting = new QHBoxLayout;
    greeting->setSpacing(scaled(20));
    greeting->addWidget(mark);
    greeting->addLayout(words, 1);
    return greeting;
}

} // namespace quillfern::app
