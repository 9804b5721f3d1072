#include "app/window/about_dialog.h"

#include "desktop/icons.h"
#include "desktop/style.h"
#include "desktop/text_label.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace quillfern::app {
namespace {

using desktop::Role;
using desktop::scaled;
using desktop::TextLabel;
using desktop::TextStyle;

constexpr double text_width = 440;

TextLabel* line(const QString& text, TextStyle style, Role role, QWidget* parent)
{
    auto* label = new TextLabel(text, style, role, parent);
    label->setAlignment(Qt::AlignHCenter);
    label->setWordWrap(true);
    label->setFixedWidth(scaled(text_width));
    label->make_selectable();
    return label;
}

} // namespace

AboutDialog::AboutDialog(QWidget* parent) : Sheet(parent)
{
    setObjectName(QStringLiteral("about"));
    setWindowTitle(QStringLiteral("About Quillfern"));
    auto* mark = new QLabel(this);
    mark->setPixmap(
        desktop::icon_pixmap(QStringLiteral("quillfern-app"), Role::accent, scaled(72), devicePixelRatioF()));
    auto* ok = new QPushButton(QStringLiteral("OK"), this);
    desktop::set_button_kind(ok, desktop::ButtonKind::primary);
    ok->setMinimumWidth(scaled(84));
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(scaled(36), scaled(28), scaled(36), scaled(20));
    column->setSpacing(scaled(4));
    column->addWidget(mark, 0, Qt::AlignHCenter);
    column->addSpacing(scaled(10));
    column->addWidget(line(QStringLiteral("Quillfern"), TextStyle::title, Role::text, this));
    column->addWidget(line(
        QStringLiteral("Version %1").arg(QApplication::applicationVersion()), TextStyle::second, Role::text2, this));
    column->addSpacing(scaled(12));
    column->addWidget(line(QStringLiteral("Grants and the board for small nonprofits, kept on your Mac"),
        TextStyle::body, Role::text, this));
    column->addWidget(
        line(QStringLiteral("Not legal advice: check your bylaws and state law."), TextStyle::body, Role::text2, this));
    column->addSpacing(scaled(12));
    column->addWidget(
        line(QStringLiteral("Made with Qt (LGPL 3), ICU (Unicode License), simdjson and OpenSSL (Apache 2.0), "
                            "CLI11 (BSD 3-clause), and the typefaces Inter and Liberation (SIL OFL 1.1)."),
            TextStyle::caption, Role::text3, this));
    column->addSpacing(scaled(16));
    column->addWidget(ok, 0, Qt::AlignHCenter);
    column->setSizeConstraint(QLayout::SetFixedSize);
    ok->setFocus();
}

} // namespace quillfern::app
