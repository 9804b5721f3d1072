#include "app/settings/settings_form.h"

#include "desktop/surface.h"
#include "desktop/text_label.h"

#include <QHBoxLayout>
#include <QSpinBox>
#include <QVBoxLayout>

namespace quillfern::app {

using desktop::Role;
using desktop::scaled;
using desktop::TextLabel;
using desktop::TextStyle;

QVBoxLayout* make_settings_column(QWidget* pane)
{
    auto* column = new QVBoxLayout(pane);
    column->setContentsMargins(scaled(24), scaled(22), scaled(24), scaled(20));
    column->setSpacing(scaled(12));
    return column;
}

void add_settings_heading(QBoxLayout* column, const QString& text)
{
    column->addWidget(new TextLabel(text, TextStyle::heading, Role::text));
}

void add_settings_rule(QBoxLayout* column)
{
    auto* rule = new desktop::Surface(Role::hairline2);
    rule->setFixedHeight(1);
    column->addSpacing(scaled(4));
    column->addWidget(rule);
    column->addSpacing(scaled(4));
}

void add_settings_row(
    QBoxLayout* column, const QString& label, QWidget* field, const QString& after, const QString& hint)
{
    auto* words = new TextLabel(label, TextStyle::body, Role::text2);
    words->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    words->setFixedSize(scaled(settings_label_width), scaled(34));
    words->setBuddy(field);
    if (field->accessibleName().isEmpty())
        field->setAccessibleName(after.isEmpty() ? label : label + QLatin1Char(' ') + after);
    field->setAccessibleDescription(hint);

    auto* line = new QHBoxLayout;
    line->setSpacing(scaled(9));
    line->addWidget(field);
    if (!after.isEmpty())
        line->addWidget(new TextLabel(after, TextStyle::body, Role::text));
    if (field->maximumWidth() < QWIDGETSIZE_MAX || field->sizePolicy().horizontalPolicy() == QSizePolicy::Fixed)
        line->addStretch();
    auto* stack = new QVBoxLayout;
    stack->setSpacing(scaled(4));
    stack->addLayout(line);
    if (!hint.isEmpty()) {
        auto* below = new TextLabel(hint, TextStyle::second, Role::text3);
        below->setWordWrap(true);
        stack->addWidget(below);
    }
    auto* row = new QHBoxLayout;
    row->setSpacing(scaled(14));
    row->addWidget(words, 0, Qt::AlignTop);
    row->addLayout(stack, 1);
    column->addLayout(row);
}

QSpinBox* make_days_field(int most, QWidget* parent)
{
    auto* field = new QSpinBox(parent);
    field->setRange(0, most);
    field->setButtonSymbols(QAbstractSpinBox::NoButtons);
    field->setAlignment(Qt::AlignRight);
    field->setKeyboardTracking(false);
    field->setFixedWidth(scaled(60));
    return field;
}

} // namespace quillfern::app
