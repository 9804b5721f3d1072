#pragma once

#include "app/sidebar_item.h"
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
    grants::Day today; ///< the date that everything in the window is told from
    std::int64_t fiscalYear = 0; ///< named by the year in which it ends
    std::string search; ///< as typed in the tool bar
    std::optional<grants::Stage> grantsStage; ///< the stage that All Grants is filtered by
    std::optional<grants::Stage> pipelineStage; ///< the stage that Pipeline lists; absent: all open requests
    std::optional<Uuid> selectedFunder;

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

Q_SIGNALS:
    void changed(const WindowState& before, const WindowState& after);

private:
    WindowState state_;
};

} // namespace quillfern::app
