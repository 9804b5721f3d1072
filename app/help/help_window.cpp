#include "app/help/help_window.h"

#include "app/help/help_article_view.h"
#include "app/help/help_topic_list.h"
#include "app/state/app_model.h"
#include "desktop/icons.h"
#include "desktop/menu_builder.h"
#include "desktop/surface.h"
#include "desktop/text_label.h"

#include <QAction>
#include <QBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QShortcut>

namespace quillfern::app {

using desktop::Role;
using desktop::scaled;

HelpWindow::HelpWindow(Application& application, AppModel& model)
    : AppWindow(application), model_(model), search_(new QLineEdit(this)), list_(new HelpTopicList(this)),
      nothing_found_(new desktop::TextLabel({}, desktop::TextStyle::second, Role::text2, this)),
      article_(new HelpArticleView(this))
{
    setObjectName(QStringLiteral("helpWindow"));
    setWindowTitle(QStringLiteral("Help — Quillfern"));
    // A window to read in needs no menu bar; its commands keep their shortcuts.
    for (const QAction* menu : menuBar()->actions())
        addActions(menu->menu()->actions());
    menuBar()->hide();

    auto* content = new desktop::Surface(Role::hairline2, this);
    auto* row = new QHBoxLayout(content);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(1);
    row->addWidget(make_side());
    row->addWidget(article_, 1);
    setCentralWidget(content);
    setMinimumSize(scaled(720), scaled(480));
    const QSize room = screen()->availableSize() - QSize(scaled(20), scaled(40)); // for the desktop's own frame
    resize(QSize(scaled(1120), scaled(768)).boundedTo(room));

    connect(list_, &HelpTopicList::chosen, &model_, &AppModel::set_help_topic);
    connect(article_, &HelpArticleView::topic_chosen, &model_, &AppModel::set_help_topic);
    connect(&model_, &AppModel::help_topic_changed, this, &HelpWindow::show_topic);
    show_topic(model_.state().helpTopic);
    list_->setFocus();
}

QWidget* HelpWindow::make_side()
{
    auto* side = new desktop::Surface(Role::sidebar, this);
    side->setFixedWidth(scaled(337));
    search_->setObjectName(QStringLiteral("helpSearch"));
    search_->setPlaceholderText(QStringLiteral("Search help"));
    search_->setAccessibleName(search_->placeholderText());
    search_->addAction(desktop::line_icon(QStringLiteral("search")), QLineEdit::LeadingPosition);
    search_->installEventFilter(this);
    connect(search_, &QLineEdit::textChanged, this, &HelpWindow::search);
    connect(search_, &QLineEdit::returnPressed, list_, &HelpTopicList::choose_first);
    connect(new QShortcut(Qt::CTRL | Qt::Key_F, this), &QShortcut::activated, search_, [this] {
        search_->setFocus(Qt::ShortcutFocusReason);
        search_->selectAll();
    });
    connect(new QShortcut(QKeySequence(Qt::Key_Escape), this), &QShortcut::activated, this, &HelpWindow::leave);
    nothing_found_->setWordWrap(true);
    nothing_found_->setContentsMargins(scaled(10), 0, scaled(10), 0);
    nothing_found_->hide();

    auto* column = new QVBoxLayout(side);
    column->setContentsMargins(0, scaled(12), 0, scaled(8));
    column->setSpacing(scaled(10));
    auto* field = new QHBoxLayout;
    field->setContentsMargins(scaled(14), 0, scaled(14), 0);
    field->addWidget(search_);
    auto* topics = new QHBoxLayout;
    topics->setContentsMargins(scaled(10), 0, scaled(10), 0);
    topics->addWidget(list_);
    column->addLayout(field);
    column->addWidget(nothing_found_);
    column->addLayout(topics, 1);
    return side;
}

void HelpWindow::show_topic(HelpTopic topic)
{
    list_->select(topic);
    article_->show_topic(topic);
}

void HelpWindow::search(const QString& text)
{
    const int found = list_->search(text);
    nothing_found_->setText(QStringLiteral("No topics match “%1”").arg(text));
    nothing_found_->setVisible(found == 0);
}

/// Esc gives up the search; when there is none, the window.
void HelpWindow::leave()
{
    if (search_->text().isEmpty())
        close();
    else
        search_->clear();
}

bool HelpWindow::eventFilter(QObject* watched, QEvent* event)
{
    const bool down = watched == search_ && event->type() == QEvent::KeyPress
        && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Down;
    if (down) {
        if (!list_->current_is_found())
            list_->choose_first();
        list_->setFocus(Qt::TabFocusReason);
    }
    return down || AppWindow::eventFilter(watched, event);
}

} // namespace quillfern::app
