#include "desktop/alert.h"

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

Alert::Alert(const AlertWords& words, const AlertOffer& offer, QWidget* parent) : Sheet(parent)
{
    setObjectName(QStringLiteral("alert"));
    setWindowTitle(QStringLiteral("Quillfern"));
    setAccessibleName(words.title);
    setAccessibleDescription(words.message);
    lay_out(words, offer);
}

QPushButton* Alert::make_button(const QString& text, ButtonKind kind, int result)
{
    auto* button = new QPushButton(text, this);
    set_button_kind(button, kind);
    button->setMinimumWidth(scaled(84));
    button->setAutoDefault(kind != ButtonKind::destructive);
    connect(button, &QPushButton::clicked, this, [this, result] { done(result); });
    return button;
}

/// Destructive choices stand apart at the left, unless there is nothing else to choose; the primary one is the last.
QLayout* Alert::make_buttons(const std::vector<AlertChoice>& choices)
{
    QPushButton* first = choices.empty() ? make_button(QStringLiteral("OK"), ButtonKind::primary, Rejected)
                                         : make_button(QStringLiteral("Cancel"), ButtonKind::normal, Rejected);
    first->setObjectName(QStringLiteral("alertCancel"));
    auto* row = new QHBoxLayout;
    row->setSpacing(scaled(10));
    row->addStretch();
    row->addWidget(first);
    QPushButton* primary = nullptr;
    for (std::size_t i = 0; i < choices.size(); ++i) {
        const ButtonKind kind = choices[i].kind;
        QPushButton* button = make_button(choices[i].text, kind, static_cast<int>(i) + 1);
        if (kind == ButtonKind::primary)
            primary = button;
        else if (kind == ButtonKind::destructive && choices.size() > 1)
            row->insertWidget(0, button);
        else
            row->addWidget(button);
    }
    if (primary)
        row->addWidget(first = primary);
    first->setDefault(true);
    first->setFocus();
    return row;
}

void Alert::lay_out(const AlertWords& words, const AlertOffer& offer)
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
    top->addWidget(new IconTile(offer.icon, scaled(34), offer.tone, this), 0, Qt::AlignTop);
    top->addLayout(text);
    top->addStretch(); // a long row of buttons makes the alert wider than its words

    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(scaled(22), scaled(20), scaled(20), scaled(18));
    all->setSpacing(scaled(20));
    all->setSizeConstraint(QLayout::SetFixedSize);
    all->addLayout(top);
    all->addLayout(make_buttons(offer.choices));
}

Alert* choose(const AlertWords& words, const AlertOffer& offer, QWidget* parent, std::function<void()> cancelled)
{
    auto* alert = new Alert(words, offer, parent);
    QObject::connect(
        alert, &QDialog::finished, alert, [choices = offer.choices, cancelled = std::move(cancelled)](int result) {
            const auto& answer = result > 0 ? choices[static_cast<std::size_t>(result) - 1].chosen : cancelled;
            if (answer)
                answer();
        });
    alert->open();
    return alert;
}

Alert* show_alert(const AlertWords& words, QWidget* parent, std::function<void()> closed)
{
    return choose(words, {}, parent, std::move(closed));
}

Alert* show_note(const AlertWords& words, const QString& icon, QWidget* parent)
{
    return choose(words, {icon, IconTile::Tone::accent, {}}, parent);
}

Alert* offer(const AlertWords& words, const AlertForm& form, QWidget* parent, std::function<void()> chosen)
{
    const ButtonKind kind = form.destructive ? ButtonKind::destructive : ButtonKind::primary;
    return choose(words, {form.icon, form.tone, {{form.verb, kind, std::move(chosen)}}}, parent);
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
