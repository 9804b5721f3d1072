#pragma once

#include "app/app_window.h"
#include "app/document.h"
#include "app/window_model.h"

#include <optional>

class QSplitter;
class QStackedWidget;

namespace quillfern::app {

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

protected:
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void lay_out();
    void redraw();
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
};

} // namespace quillfern::app
