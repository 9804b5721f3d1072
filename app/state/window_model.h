#pragma once

#include "app/state/grant_tab.h"
#include "app/state/sidebar_item.h"
#include "app/state/window_messages.h"
#include "app/state/window_request.h"
#include "app/state/window_sheet.h"
#include "base/uuid.h"
#include "grants/day.h"
#include "grants/records.h"

#include <QObject>

#include <cstdint>
#include <optional>
#include <string>

namespace quillfern::app {

/// What one document window shows, apart from the document itself: a plain value.
struct WindowState {
    SidebarItem selection = SidebarItem::today;
    GrantTab grantTab = GrantTab::overview;
    std::optional<WindowSheet> sheet;
    std::optional<WindowRequest> request; ///< lives between the command that sets it and the window that takes it
    std::string search; ///< as typed in the tool bar
    std::int64_t fiscalYear = 0; ///< named by the year in which it ends
    grants::Day month; ///< the first day of the month that the calendar page shows
    std::optional<grants::Day> selectedDay; ///< picked on the calendar page; absent: the whole month is shown
    std::optional<Uuid> confirmDelete; ///< the grant that is removed once the user says so
    std::optional<Toast> toast;
    std::optional<AlertItem> alert;
    std::optional<Uuid> selectedFunder;
    std::optional<Uuid> shownGrant; ///< that `selection` = grant shows
    grants::Day today; ///< the date that everything in the window is told from
    std::optional<grants::Stage> grantsStage; ///< the stage that All Grants is filtered by
    std::optional<grants::Stage> pipelineStage; ///< the stage that Pipeline lists; absent: all open requests

    friend bool operator==(const WindowState&, const WindowState&) = default;
};

/// The state of one window, which tells when it changes. It is made with the window and dies with it.
class WindowModel : public QObject {
    Q_OBJECT
public:
    explicit WindowModel(const WindowState& state, QObject* parent = nullptr) : QObject(parent), state_(state) { }

    const WindowState& state() const { return state_; }

    /// Replaces the state; an equal one changes nothing and tells nobody.
    void set(const WindowState& state);

    template <class Edit>
    void edit(Edit&& edit)
    {
        WindowState next = state_;
        edit(next);
        set(next);
    }

    void ask(const WindowRequest& request);
    void tell(const std::string& toast);
    void alert(std::string title, std::string message);

Q_SIGNALS:
    void changed(const WindowState& before, const WindowState& after);

private:
    WindowState state_;
    std::int64_t alerts_ = 0; ///< how many there have been
};

} // namespace quillfern::app
