#pragma once

#include "app/state/window_model.h"
#include "app/window/app_window.h"

#include <memory>
#include <optional>

class QSplitter;

namespace quillfern::desktop {
class Toast;
} // namespace quillfern::desktop

namespace quillfern::app {

class DocumentDesk;
class DocumentNotice;
class OpenDocument;
class PageStack;
class Sidebar;
class WindowRequests;
class WindowToolBar;

/// The window of one document: tool bar, sidebar, and the page that the sidebar has chosen.
class MainWindow : public AppWindow {
    Q_OBJECT
public:
    MainWindow(Application& application, std::unique_ptr<OpenDocument> document);
    ~MainWindow() override;

    OpenDocument& document() { return *document_; }
    const OpenDocument& document() const { return *document_; }
    WindowModel& model() { return model_; }
    WindowRequests& requests() { return *requests_; }
    QUndoStack* undo_manager() override;

    /// What the Window menu calls it.
    QString menu_title() const;

    void ask(const WindowRequest& request) override;
    void save() override;
    void duplicate() override;
    void rename() override;
    void move_to() override;
    void revert() override;
    void find() override;
    void toggle_sidebar() override;

Q_SIGNALS:
    void stays_open(); ///< the user was asked whether to close it, and does not want to

protected:
    CommandState command_state() const override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void lay_out();
    QWidget* make_detail();
    void connect_document();
    void connect_tool_bar();
    void connect_pages();
    void redraw();
    void take_step();
    void show_condition();
    void take_state(const WindowState& before, const WindowState& after);
    void show_state();
    void arrange();
    void fit_screen();
    void restore_placement();

    std::unique_ptr<OpenDocument> document_;
    WindowModel model_;
    DocumentDesk* desk_;
    bool may_close_ = false; ///< the user has been asked
    std::optional<bool> sidebar_open_; ///< what the user asked for; absent: nothing yet
    int sidebar_width_; ///< of the full sidebar, as the user has dragged it
    QSplitter* splitter_;
    WindowToolBar* tool_bar_;
    Sidebar* sidebar_;
    DocumentNotice* notice_;
    PageStack* pages_;
    WindowRequests* requests_;
};

} // namespace quillfern::app
