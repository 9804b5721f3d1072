#include "desktop/alert.h"

#include "desktop/icon_tile.h"
#include "desktop/style.h"
#include "desktop/text_label.h"

#include <QBoxLayout>
#include <QPushButton>

#include <utility>

namespace quillfern::desktop {
namespace {

constexpr double text_width = 380;

TextLabel* wrapped(const QString& text, TextStyle style, Role role, QWidget* parent)
{
    auto* label = new TextLabel(text, style, role, parent);
    label->setWordWrap(true);
    label->setFixedWidth(scaled(text_width));
    label->make_selectable();
    return label;
}

} // namespace

Alert::Alert(const AlertWords& words, const QString& icon_name, const QString& destructive_verb, QWidget* parent)
    : Sheet(parent)
{
    setObjectName(QStringLiteral("alert"));
    setWindowTitle(QStringLiteral("Quillfern"));
    setAccessibleName(words.title);
    setAccessibleDescription(words.message);
    lay_out(words, icon_name, make_buttons(destructive_verb));
}

QLayout* Alert::make_buttons(const QString& destructive_verb)
{
    const bool asks = !destructive_verb.isEmpty();
    auto* row = new QHBoxLayout;
    row->setSpacing(scaled(10));
    row->addStretch();
    auto* safe = new QPushButton(asks ? QStringLiteral("Cancel") : QStringLiteral("OK"), this);
    set_button_kind(safe, asks ? ButtonKind::normal : ButtonKind::primary);
    safe->setMinimumWidth(scaled(84));
    safe->setDefault(true);
    safe->setFocus();
    connect(safe, &QPushButton::clicked, this, asks ? &QDialog::reject : &QDialog::accept);
    row->addWidget(safe);
    if (asks) {
        auto* verb = new QPushButton(destructive_verb, this);
        set_button_kind(verb, ButtonKind::destructive);
        verb->setAutoDefault(false);
        connect(verb, &QPushButton::clicked, this, &QDialog::accept);
        row->addWidget(verb);
    }
    return row;
}

void Alert::lay_out(const AlertWords& words, const QString& icon_name, QLayout* buttons)
{
    auto* message = wrapped(words.message, TextStyle::body, Role::text2, this);
    message->setObjectName(QStringLiteral("alertMessage"));
    auto* title = wrapped(words.title, TextStyle::alertTitle, Role::text, this);
    title->setObjectName(QStringLiteral("alertTitle"));
    auto* text = new QVBoxLayout;
    text->setSpacing(scaled(6));
    text->addWidget(title);
    text->addWidget(message);
    if (!words.detail.isEmpty())
        text->addWidget(wrapped(words.detail, TextStyle::caption, Role::text3, this));

    auto* top = new QHBoxLayout;
    top->setSpacing(scaled(16));
    top->addWidget(new IconTile(icon_name, scaled(34), IconTile::Tone::danger, this), 0, Qt::AlignTop);
    top->addLayout(text);

    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(scaled(22), scaled(20), scaled(20), scaled(18));
    all->setSpacing(scaled(20));
    all->setSizeConstraint(QLayout::SetFixedSize);
    all->addLayout(top);
    all->addLayout(buttons);
}

Alert* show_alert(const AlertWords& words, QWidget* parent, std::function<void()> closed)
{
    auto* alert = new Alert(words, QStringLiteral("warning"), {}, parent);
    if (closed)
        QObject::connect(alert, &QDialog::finished, alert, [closed = std::move(closed)] { closed(); });
    alert->open();
    return alert;
}

Alert* ask_before(
    const AlertWords& words, const QString& destructive_verb, QWidget* parent, std::function<void()> confirmed)
{
    auto* alert = new Alert(words, QStringLiteral("warning"), destructive_verb, parent);
    QObject::connect(alert, &QDialog::accepted, alert, [confirmed = std::move(confirmed)] { confirmed(); });
    alert->open();
    return alert;
}

} // namespace quillfern::desktop
