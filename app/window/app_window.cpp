#include "app/window/app_window.h"

#include "app/application.h"
#include "app/document/open_document.h"
#include "app/window/about_dialog.h"
#include "app/window/close_window_action.h"
#include "app/window/main_window.h"
#include "app/window/recent_menu.h"
#include "desktop/menu_builder.h"

#include <QAction>
#include <QDropEvent>
#include <QFileInfo>
#include <QMenu>
#include <QMimeData>
#include <QUndoStack>
#include <QUrl>

#include <algorithm>

namespace quillfern::app {
namespace {

/// The packages among what is dragged; anything else is not ours to open.
QStringList dragged_packages(const QMimeData& data)
{
    QStringList packages;
    for (const QUrl& url : data.urls()) {
        const QFileInfo info(url.toLocalFile());
        const bool ours =
            info.suffix() == QLatin1String("quillfern") || info.fileName() == QLatin1String("Quillfern.json");
        if (url.isLocalFile() && ours)
            packages.append(info.filePath());
    }
    return packages;
}

/// A window's line in the Window menu: of two windows of one organization, the files tell them apart.
QString entry_of(const MainWindow& window, const QList<MainWindow*>& all)
{
    const QString title = window.menu_title();
    const auto same_title =
        std::count_if(all.begin(), all.end(), [&title](const MainWindow* each) { return each->menu_title() == title; });
    if (same_title < 2)
        return title;
    const QString path = window.document().disk().path();
    return title + (path.isEmpty() ? QStringLiteral(" – not saved yet") : " – " + QFileInfo(path).fileName());
}

} // namespace

AppWindow::AppWindow(Application& application) : application_(application)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setAcceptDrops(true);
    const auto run = [this](std::string_view id) { find_command(id)->act(*this); };
    menus_ = std::make_unique<desktop::WindowMenus>(*this, command_rows(), run);
    recent_ = new QMenu(QStringLiteral("Open Recent"), this);
    recent_->setToolTipsVisible(true); // the path, for files of one name
    QMenu* file = menus_->menu(desktop::MenuId::file);
    file->insertMenu(menus_->action("openSample"), recent_);
    QMenu* edit = menus_->menu(desktop::MenuId::edit);
    connect(file, &QMenu::aboutToShow, this, &AppWindow::list_recent_documents);
    connect(edit, &QMenu::aboutToShow, this, &AppWindow::open_edit_menu);
    // The command that was chosen is given after the menu has closed.
    connect(edit, &QMenu::aboutToHide, this, &AppWindow::close_edit_menu, Qt::QueuedConnection);
    connect(menus_->menu(desktop::MenuId::window), &QMenu::aboutToShow, this, &AppWindow::list_windows);
    AppWindow::update_commands();
}

AppWindow::~AppWindow() = default;

void AppWindow::update_commands()
{
    CommandState state = command_state();
    state.text = text_;
    state.canUndo = state.canUndo || text_.undo;
    state.canRedo = state.canRedo || text_.redo;
    menus_->update([&state](std::string_view id) { return is_offered(*find_command(id), state); },
        [&state](std::string_view id) { return is_enabled(*find_command(id), state); });
    name_steps();
}

/// A step of the document is named; what a field takes back is not.
void AppWindow::name_steps()
{
    QUndoStack* steps = undo_manager();
    const auto words = [](const QString& verb, const QString& step) {
        return step.isEmpty() ? verb
                              : verb + QLatin1Char(' ') + QString(step).replace(QLatin1Char('&'), QLatin1String("&&"));
    };
    menus_->action("undo")->setText(
        words(QStringLiteral("Undo"), steps && !text_.undo ? steps->undoText() : QString()));
    menus_->action("redo")->setText(
        words(QStringLiteral("Redo"), steps && !text_.redo ? steps->redoText() : QString()));
}

/// Fields have the keys of these commands to themselves; the menu needs to know what it can do only while it is open.
void AppWindow::open_edit_menu()
{
    text_ = desktop::text_abilities(focusWidget());
    update_commands();
}

void AppWindow::close_edit_menu()
{
    text_ = {};
    update_commands();
}

void AppWindow::list_recent_documents()
{
    recent_->clear();
    fill_recent_menu(*recent_, application_, *this);
}

void AppWindow::list_windows()
{
    qDeleteAll(window_entries_);
    window_entries_.clear();
    QMenu* menu = menus_->menu(desktop::MenuId::window);
    if (!application_.windows().isEmpty())
        window_entries_.append(menu->addSeparator());
    for (MainWindow* window : application_.windows()) {
        QAction* entry =
            menu->addAction(entry_of(*window, application_.windows()).replace(QLatin1Char('&'), QLatin1String("&&")));
        entry->setCheckable(true);
        entry->setChecked(window == this);
        connect(entry, &QAction::triggered, window, &MainWindow::come_forward);
        window_entries_.append(entry);
    }
}

void AppWindow::new_document()
{
    application_.new_document();
}

void AppWindow::choose_file()
{
    application_.choose_file(this);
}

void AppWindow::open_sample()
{
    application_.open_sample();
}

void AppWindow::quit()
{
    application_.quit();
}

void AppWindow::show_settings()
{
    application_.show_settings();
}

void AppWindow::show_help()
{
    application_.help_desk().show();
}

void AppWindow::show_help(HelpTopic topic)
{
    application_.help_desk().show(topic);
}

void AppWindow::email_support()
{
    application_.help_desk().email_support(this);
}

void AppWindow::check_for_updates()
{
    application_.help_desk().check_for_updates(this);
}

void AppWindow::show_about()
{
    (new AboutDialog(this))->open();
}

void AppWindow::close_window()
{
    CloseWindowAction::run(this);
}

void AppWindow::minimize()
{
    showMinimized();
}

void AppWindow::come_forward()
{
    if (isMinimized())
        showNormal();
    raise();
    activateWindow();
}

void AppWindow::undo()
{
    if (desktop::text_abilities(focusWidget()).undo)
        desktop::edit_text(focusWidget(), desktop::TextOrder::undo);
    else if (QUndoStack* steps = undo_manager())
        steps->undo();
}

void AppWindow::redo()
{
    if (desktop::text_abilities(focusWidget()).redo)
        desktop::edit_text(focusWidget(), desktop::TextOrder::redo);
    else if (QUndoStack* steps = undo_manager())
        steps->redo();
}

void AppWindow::cut()
{
    desktop::edit_text(focusWidget(), desktop::TextOrder::cut);
}

void AppWindow::copy()
{
    desktop::edit_text(focusWidget(), desktop::TextOrder::copy);
}

void AppWindow::paste()
{
    desktop::edit_text(focusWidget(), desktop::TextOrder::paste);
}

void AppWindow::select_all()
{
    desktop::edit_text(focusWidget(), desktop::TextOrder::selectAll);
}

void AppWindow::ask(const WindowRequest&) { }

void AppWindow::save() { }

void AppWindow::duplicate() { }

void AppWindow::rename() { }

void AppWindow::move_to() { }

void AppWindow::revert() { }

void AppWindow::find() { }

void AppWindow::toggle_sidebar() { }

void AppWindow::dragEnterEvent(QDragEnterEvent* event)
{
    if (!dragged_packages(*event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void AppWindow::dropEvent(QDropEvent* event)
{
    for (const QString& path : dragged_packages(*event->mimeData()))
        application_.open(path, this);
    event->acceptProposedAction();
}

} // namespace quillfern::app
