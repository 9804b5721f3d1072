#pragma once

#include "app/commands.h"

#include <QMainWindow>

#include <memory>

namespace quillfern::desktop {
class WindowMenus;
}

namespace quillfern::app {

class Application;

/// What every window of the program has: the menu bar with its commands, and opening what is dropped on it.
class AppWindow : public QMainWindow, public CommandTarget {
    Q_OBJECT
public:
    explicit AppWindow(Application& application);
    ~AppWindow() override;

    void choose_file() override;
    void open_sample() override;
    void close_window() override;
    void quit() override;
    void minimize() override;
    void show_page(SidebarItem page) override;
    void toggle_sidebar() override;
    void find() override;
    void export_file(ExportKind kind) override;
    void show_help() override;
    void show_help(HelpTopic topic) override;
    void email_support() override;
    void check_for_updates() override;
    void show_about() override;

protected:
    Application& application() const { return application_; }
    desktop::WindowMenus& menus() const { return *menus_; }
    void update_commands(const CommandState& state);

    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void list_windows();

    Application& application_;
    std::unique_ptr<desktop::WindowMenus> menus_;
    QList<QAction*> window_entries_;
};

} // namespace quillfern::app
