#include "desktop/alert.h"

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

Alert::Alert(const AlertWords& words, const AlertForm& form, QWidget* parent) : Sheet(parent)
{
    setObjectName(QStringLiteral("alert"));
    setWindowTitle(QStringLiteral("Quillfern"));
    setAccessibleName(words.title);
    setAccessibleDescription(words.message);
    lay_out(words, form, make_buttons(form));
}

QPushButton* Alert::add_button(QBoxLayout* row, const QString& text, bool primary)
{
    auto* button = new QPushButton(text, this);
    set_button_kind(button, primary ? ButtonKind::primary : ButtonKind::normal);
    button->setMinimumWidth(scaled(84));
    row->addWidget(button);
    return button;
}

QLayout* Alert::make_buttons(const AlertForm& form)
{
    const bool asks = !form.verb.isEmpty();
    auto* row = new QHBoxLayout;
    row->setSpacing(scaled(10));
    row->addStretch();
    QPushButton* safe = add_button(row, asks ? QStringLiteral("Cancel") : QStringLiteral("OK"), !asks);
    connect(safe, &QPushButton::clicked, this, asks ? &QDialog::reject : &QDialog::accept);
    QPushButton* first = safe;
    if (asks) {
        QPushButton* verb = add_button(row, form.verb, !form.destructive);
        if (form.destructive)
            set_button_kind(verb, ButtonKind::destructive);
        connect(verb, &QPushButton::clicked, this, &QDialog::accept);
        first = form.destructive ? safe : verb;
        verb->setAutoDefault(first == verb);
    }
    first->setDefault(true);
    first->setFocus();
    return row;
}

void Alert::lay_out(const AlertWords& words, const AlertForm& form, QLayout* buttons)
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
    top->addWidget(new IconTile(form.icon, scaled(34), form.tone, this), 0, Qt::AlignTop);
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
    auto* alert = new Alert(words, {}, parent);
    if (closed)
        QObject::connect(alert, &QDialog::finished, alert, [closed = std::move(closed)] { closed(); });
    alert->open();
    return alert;
}

Alert* show_note(const AlertWords& words, const QString& icon, QWidget* parent)
{
    auto* alert = new Alert(words, {icon, IconTile::Tone::accent, {}, false}, parent);
    alert->open();
    return alert;
}

Alert* offer(const AlertWords& words, const AlertForm& form, QWidget* parent, std::function<void()> chosen)
{
    auto* alert = new Alert(words, form, parent);
    QObject::connect(alert, &QDialog::accepted, alert, [chosen = std::move(chosen)] { chosen(); });
    alert->open();
    return alert;
}

Alert* ask_before(
    const AlertWords& words, const QString& destructive_verb, QWidget* parent, std::function<void()> confirmed)
{
    AlertForm form;
    form.verb = destructive_verb;
    form.destructive = true;
    return offer(words, form, parent, std::move(confirmed));
}

} // namespace quillfern::desktop
