#include "app/start_window.h"

#include "desktop/choice_row.h"
#include "desktop/icons.h"
#include "desktop/surface.h"
#include "desktop/text_label.h"

#include <QBoxLayout>
#include <QLabel>

namespace quillfern::app {
namespace {

using desktop::ChoiceRow;
using desktop::Role;
using desktop::scaled;
using desktop::TextLabel;
using desktop::TextStyle;

QLayout* make_greeting(QWidget* parent)
{
    auto* mark = new QLabel(parent);
    const double ratio = parent->devicePixelRatioF();
    mark->setPixmap(desktop::icon_pixmap(QStringLiteral("quillfern-app"), Role::accent, scaled(68), ratio));
    auto* words = new QVBoxLayout;
    words->setSpacing(scaled(4));
    words->addStretch();
    words->addWidget(new TextLabel(QStringLiteral("Welcome to Quillfern"), TextStyle::title, Role::text, parent));
    words->addWidget(new TextLabel(QStringLiteral("Grants and the board, in one file on your own computer."),
        TextStyle::body, Role::text2, parent));
    words->addStretch();
    auto* greeting = new QHBoxLayout;
    greeting->setSpacing(scaled(20));
    greeting->addWidget(mark);
    greeting->addLayout(words, 1);
    return greeting;
}

} // namespace

StartWindow::StartWindow(Application& application) : AppWindow(application)
{
    setObjectName(QStringLiteral("startWindow"));
    setWindowTitle(QStringLiteral("Quillfern"));
    auto* page = new desktop::Surface(Role::page, this);
    auto* column = new QVBoxLayout(page);
    column->setContentsMargins(scaled(28), scaled(28), scaled(28), scaled(28));
    column->addStretch(2);
    column->addWidget(make_sheet(page), 0, Qt::AlignHCenter);
    column->addStretch(3);
    setCentralWidget(page);
    setMinimumSize(scaled(720), scaled(500));
    resize(scaled(820), scaled(560));
}

QWidget* StartWindow::make_sheet(QWidget* page)
{
    auto* sheet = new desktop::Card(page);
    auto* sample = new ChoiceRow(QStringLiteral("sample"), QStringLiteral("Open the Sample Organization"),
        QStringLiteral("A made-up pantry to look around in; it opens in its own window"), sheet);
    sample->setObjectName(QStringLiteral("startSample"));
    connect(sample, &ChoiceRow::clicked, this, &StartWindow::open_sample);
    auto* file = new ChoiceRow(QStringLiteral("file"), QStringLiteral("Open a File…"),
        QStringLiteral("An organization that is kept on this computer"), sheet);
    file->setObjectName(QStringLiteral("startOpen"));
    connect(file, &ChoiceRow::clicked, this, &StartWindow::choose_file);

    auto* column = new QVBoxLayout(sheet);
    column->setContentsMargins(scaled(36), scaled(30), scaled(36), scaled(26));
    column->setSpacing(scaled(10));
    column->addLayout(make_greeting(sheet));
    column->addSpacing(scaled(14));
    column->addWidget(sample);
    column->addWidget(file);
    column->addSpacing(scaled(12));
    column->addWidget(new TextLabel(QStringLiteral("Nothing leaves your computer unless you send it yourself."),
        TextStyle::second, Role::text3, sheet));
    sheet->setFixedWidth(scaled(640));
    sample->setFocus();
    return sheet;
}

} // namespace quillfern::app
