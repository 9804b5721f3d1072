#pragma once

#include "app/app_window.h"
#include "app/document.h"
#include "app/window_model.h"

#include <map>
#include <optional>

class QSplitter;
class QStackedWidget;

namespace quillfern::desktop {
class Toast;
}

namespace quillfern::app {

class Page;
class Sidebar;
class TodayPage;
class WindowToolBar;

/// The window of one document: tool bar, sidebar, and the page that the sidebar has chosen.
class MainWindow : public AppWindow {
    Q_OBJECT
public:
    MainWindow(Application& application, std::unique_ptr<Document> document);
    ~MainWindow() override;

    const Document& document() const { return *document_; }
    WindowModel& model() { return model_; }
    void come_forward();

    void show_page(SidebarItem page) override;
    void toggle_sidebar() override;
    void find() override;
    void export_file(ExportKind kind) override;

    /// A short message over the page.
    void show_toast(const QString& text);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void lay_out();
    void connect_tool_bar();
    void redraw();
    void take_state(const WindowState& before, const WindowState& after);
    void show_state();
    QWidget* show_selected_page();
    Page* page_of(SidebarItem item);
    void focus_page();
    void arrange();
    void cycle_panes(int direction);
    void restore_placement();
    void save_placement() const;

    std::unique_ptr<Document> document_;
    WindowModel model_;
    std::optional<bool> sidebar_open_; ///< what the user asked for; absent: nothing yet
    int sidebar_width_; ///< of the full sidebar, as the user has dragged it
    QSplitter* splitter_;
    WindowToolBar* tool_bar_;
    Sidebar* sidebar_;
    QStackedWidget* pages_;
    TodayPage* today_page_;
    std::map<SidebarItem, Page*> other_pages_; ///< made when they are first shown
    desktop::Toast* toast_ = nullptr;
};

} // namespace quillfern::app
