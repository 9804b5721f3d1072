#pragma once

#include "app/pages/all_grants_presentation.h"
#include "app/pages/page.h"

class QComboBox;
class QStackedWidget;

namespace quillfern::desktop {
class EmptyState;
class PageHeader;
class TableCard;
} // namespace quillfern::desktop

namespace quillfern::app {

/// The page that lists the grants of a fiscal year, those that the stage filter and the search leave.
class AllGrantsPage : public Page {
    Q_OBJECT
public:
    explicit AllGrantsPage(WindowModel& model, QWidget* parent = nullptr);

    void show_file(const grants::GrantFile& file, const WindowState& state) override;

private:
    void make_stage_filter();
    void show_facts();
    void show_rows(const AllGrantsPresentation& presentation);
    void show_empty(const AllGrantsPresentation& presentation);

    WindowModel& model_;
    desktop::PageHeader* header_;
    QComboBox* stages_;
    QStackedWidget* body_;
    desktop::TableCard* table_;
    desktop::EmptyState* empty_ = nullptr; ///< made anew for each text
    EmptyWords empty_words_;
    QString facts_;
    QString order_; ///< what the rows are ordered by, as long as no head sorts them
};

} // namespace quillfern::app
