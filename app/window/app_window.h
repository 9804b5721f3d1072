#pragma once

#include "app/window/commands.h"

#include <QMainWindow>

#include <memory>

class QMenu;
class QUndoStack;

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

    void new_document() override;
    void choose_file() override;
    void open_sample() override;
    void quit() override;
    void show_settings() override;
    void show_help() override;
    void show_help(HelpTopic topic) override;
    void email_support() override;
    void check_for_updates() override;
    void show_about() override;

    void close_window() override;
    void minimize() override;
    void undo() override;
    void redo() override;
    void cut() override;
    void copy() override;
    void paste() override;
    void select_all() override;

    void ask(const WindowRequest& request) override;
    void save() override;
    void duplicate() override;
    void rename() override;
    void move_to() override;
    void revert() override;
    void find() override;
    void toggle_sidebar() override;

    void come_forward();

    /// The steps that Undo takes back here; null: the window has none.
    virtual QUndoStack* undo_manager() { return nullptr; }

protected:
    Application& application() const { return application_; }
    desktop::WindowMenus& menus() const { return *menus_; }

    /// What the commands of this window can do now, but for texts.
    virtual CommandState command_state() const { return {}; }
    void update_commands();

    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void name_steps();
    void list_recent_documents();
    void list_windows();
    void open_edit_menu();
    void close_edit_menu();

    Application& application_;
    desktop::TextAbilities text_; ///< while the Edit menu is open
    QMenu* recent_;
    std::unique_ptr<desktop::WindowMenus> menus_;
    QList<QAction*> window_entries_;
};

} // namespace quillfern::app
