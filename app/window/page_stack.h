#pragma once

#include "app/state/sidebar_item.h"
#include "app/state/window_model.h"
#include "grants/grant_file.h"

#include <QStackedWidget>

#include <map>

namespace quillfern::app {

class Page;
class TodayPage;

/// The pages of one document window, of which the sidebar's choice is shown.
class PageStack : public QStackedWidget {
    Q_OBJECT
public:
    PageStack(WindowModel& model, QWidget* parent);

    /// Draws the page that the state has selected.
    void show_file(const grants::GrantFile& file, const WindowState& state);

    TodayPage& today() { return *today_; }
    void focus_page();
    bool has_keyboard() const;

private:
    QWidget* draw_selected(const grants::GrantFile& file, const WindowState& state);
    Page* page_of(SidebarItem item);

    WindowModel& model_;
    TodayPage* today_;
    std::map<SidebarItem, Page*> others_; ///< made when they are first shown
};

} // namespace quillfern::app
