#include "app/app_window.h"

#include "app/about_dialog.h"
#include "app/application.h"
#include "app/main_window.h"
#include "desktop/menu_builder.h"

#include <QAction>
#include <QApplication>
#include <QDropEvent>
#include <QFileInfo>
#include <QMenu>
#include <QMimeData>
#include <QUrl>

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

} // namespace

AppWindow::AppWindow(Application& application) : application_(application)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setAcceptDrops(true);
    const auto run = [this](std::string_view id) { find_command(id)->act(*this); };
    menus_ = std::make_unique<desktop::WindowMenus>(*this, command_rows(), run);
    connect(menus_->menu(desktop::MenuId::window), &QMenu::aboutToShow, this, &AppWindow::list_windows);
    update_commands({});
}

AppWindow::~AppWindow() = default;

void AppWindow::update_commands(const CommandState& state)
{
    menus_->update([&state](std::string_view id) { return is_offered(*find_command(id), state); },
        [&state](std::string_view id) { return is_enabled(*find_command(id), state); });
}

void AppWindow::list_windows()
{
    qDeleteAll(window_entries_);
    window_entries_.clear();
    QMenu* menu = menus_->menu(desktop::MenuId::window);
    if (!application_.windows().isEmpty())
        window_entries_.append(menu->addSeparator());
    for (MainWindow* window : application_.windows()) {
        QAction* entry = menu->addAction(window->document().title().replace(QLatin1Char('&'), QLatin1String("&&")));
        entry->setCheckable(true);
        entry->setChecked(window == this);
        connect(entry, &QAction::triggered, window, &MainWindow::come_forward);
        window_entries_.append(entry);
    }
}

void AppWindow::choose_file()
{
    application_.choose_file(this);
}

void AppWindow::open_sample()
{
    application_.open_sample();
}

void AppWindow::close_window()
{
    close();
}

void AppWindow::quit()
{
    QApplication::closeAllWindows();
}

void AppWindow::minimize()
{
    showMinimized();
}

void AppWindow::show_page(SidebarItem) { }

void AppWindow::toggle_sidebar() { }

void AppWindow::find() { }

void AppWindow::export_file(ExportKind) { }

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
