#pragma once

#include "app/state/window_model.h"
#include "grants/grant_file.h"

#include <QObject>
#include <QPointer>

class QDialog;

namespace quillfern::desktop {
class Toast;
}

namespace quillfern::app {

class Application;
class OpenDocument;

/// Does what a document window is asked for: takes each request off its state, opens the sheet that the state names,
/// shows its alert and its toast, and makes the edits that follow.
class WindowRequests : public QObject {
    Q_OBJECT
public:
    /// Toasts lie over `page`, sheets stand above `window`; both outlive this.
    WindowRequests(
        OpenDocument& document, WindowModel& model, Application& application, QWidget& window, QWidget& page);

    /// One undo step of the document, and a toast when there is something to say.
    void edit(const QString& label, grants::GrantFile next, const QString& toast = {});

    /// Does what a row of the agenda offers.
    void do_agenda_action(const QString& item);

    /// Goes to a page, if the window has it.
    void show_page(SidebarItem page);

private:
    void take_state(const WindowState& before, const WindowState& after);
    void perform(const WindowRequest& request);
    void perform(request::Plain request);
    void open_sheet(const WindowSheet& sheet);
    void confirm_delete(const Uuid& grant);
    void delete_grant(const Uuid& grant);
    void import_board();
    QDialog* open_welcome();
    void show_alert(const AlertItem& item);
    void show_toast(const Toast& toast);

    OpenDocument& document_;
    WindowModel& model_;
    Application& application_;
    QWidget& window_;
    QWidget& page_;
    desktop::Toast* toast_ = nullptr;
};

} // namespace quillfern::app
