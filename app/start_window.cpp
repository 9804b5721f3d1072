#include "app/start_window.h"

#include "app/application.h"
#include "app/recent_row.h"
#include "app/settings/recent_documents.h"
#include "app/window/welcome_greeting.h"
#include "desktop/choice_row.h"
#include "desktop/menu_builder.h"
#include "desktop/qt_text.h"
#include "desktop/surface.h"
#include "desktop/text_label.h"

#include <QAction>
#include <QBoxLayout>
#include <QEvent>
#include <QScrollArea>

namespace quillfern::app {
namespace {

using desktop::ChoiceRow;
using desktop::Role;
using desktop::scaled;
using desktop::TextLabel;
using desktop::TextStyle;

constexpr double sheet_width = 640;
constexpr double recent_width = 300;

} // namespace

StartWindow::StartWindow(Application& application, RecentDocuments* recent) : AppWindow(application), recent_(recent)
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
    setMinimumSize(scaled(1010), scaled(560));
    resize(scaled(1040), scaled(600));
    if (recent_)
        connect(recent_, &RecentDocuments::changed, this, &StartWindow::list_recent);
    list_recent();
}

QWidget* StartWindow::make_sheet(QWidget* page)
{
    sheet_ = new desktop::Card(page);
    auto* row = new QHBoxLayout(sheet_);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addLayout(make_choices(sheet_), 1);
    row->addWidget(make_recent_part(sheet_));
    return sheet_;
}

QLayout* StartWindow::make_choices(QWidget* sheet)
{
    auto* column = new QVBoxLayout;
    column->setContentsMargins(scaled(36), scaled(30), scaled(36), scaled(26));
    column->setSpacing(scaled(10));
    column->addLayout(make_greeting(QStringLiteral("Quillfern"), sheet));
    column->addSpacing(scaled(14));
    QWidget* open = make_choice("open", QStringLiteral("file"), QStringLiteral("Open a File…"),
        QStringLiteral("An organization that is kept on this computer"), sheet);
    column->addWidget(open);
    column->addWidget(make_choice("new", QStringLiteral("add"), QStringLiteral("Start with an Empty File"),
        QStringLiteral("A new organization, with the defaults of the settings"), sheet));
    column->addWidget(
        make_choice("openSample", QStringLiteral("sample"), QStringLiteral("Open the Sample Organization"),
            QStringLiteral("A made-up pantry to look around in; it opens in its own window"), sheet));
    column->addSpacing(scaled(12));
    column->addWidget(new TextLabel(QStringLiteral("Nothing leaves your computer unless you send it yourself."),
        TextStyle::second, Role::text3, sheet));
    column->addStretch();
    open->setFocus();
    return column;
}

/// A row that does what the command does, and can when the command can.
QWidget* StartWindow::make_choice(
    std::string_view command, const QString& icon, const QString& title, const QString& line, QWidget* sheet)
{
    QAction* action = menus().action(command);
    auto* row = new ChoiceRow(icon, title, line, sheet);
    row->setObjectName(QStringLiteral("start.") + desktop::to_qt(command));
    row->setEnabled(action->isEnabled());
    connect(row, &ChoiceRow::clicked, action, &QAction::trigger);
    connect(action, &QAction::enabledChanged, row, &QWidget::setEnabled);
    return row;
}

QWidget* StartWindow::make_recent_part(QWidget* sheet)
{
    recent_part_ = new QWidget(sheet);
    recent_part_->setObjectName(QStringLiteral("recentDocuments"));
    recent_part_->setFixedWidth(scaled(recent_width));
    auto* rows = new QWidget;
    recent_rows_ = new QVBoxLayout(rows);
    recent_rows_->setContentsMargins(0, 0, scaled(4), 0);
    recent_rows_->setSpacing(scaled(2));
    auto* scroll = new QScrollArea(recent_part_);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setWidgetResizable(true);
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->setWidget(rows);
    scroll->viewport()->setAutoFillBackground(false);
    rows->setAutoFillBackground(false);
    auto* column = new QVBoxLayout(recent_part_);
    column->setContentsMargins(0, scaled(30), scaled(20), scaled(20));
    column->setSpacing(scaled(8));
    auto* title = new TextLabel(QStringLiteral("Recent files"), TextStyle::heading, Role::text, recent_part_);
    title->setIndent(scaled(10));
    column->addWidget(title);
    column->addWidget(scroll, 1);
    return recent_part_;
}

void StartWindow::list_recent()
{
    while (QLayoutItem* item = recent_rows_->takeAt(0)) {
        if (item->widget())
            item->widget()->deleteLater();
        delete item;
    }
    const auto documents = recent_ ? recent_->listed() : std::vector<RecentDocument>();
    for (const RecentDocument& document : documents) {
        auto* row = new RecentRow(document);
        recent_rows_->addWidget(row);
        connect(row, &RecentRow::clicked, this, [this, path = document.path] { application().open(path, this); });
    }
    recent_rows_->addStretch();
    recent_part_->setVisible(!documents.empty());
    sheet_->setFixedWidth(scaled(sheet_width + (documents.empty() ? 0 : recent_width)));
}

/// A drive may have come or gone while another program was in front.
void StartWindow::changeEvent(QEvent* event)
{
    AppWindow::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow() && recent_)
        list_recent();
}

} // namespace quillfern::app
