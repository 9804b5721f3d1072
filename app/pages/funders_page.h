#pragma once

#include "app/pages/page.h"

class QStackedWidget;

namespace quillfern::desktop {
class Card;
class PageHeader;
class PageScroll;
} // namespace quillfern::desktop

namespace quillfern::app {

class FunderList;
class FunderRecordView;

/// The page of the funders: the list at the left, the chosen one's record at the right.
class FundersPage : public Page {
    Q_OBJECT
public:
    explicit FundersPage(WindowModel& model, QWidget* parent = nullptr);

    void show_file(const grants::GrantFile& file, const WindowState& state) override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QWidget* make_body();

    WindowModel& model_;
    desktop::PageHeader* header_;
    QStackedWidget* body_;
    desktop::Card* list_card_ = nullptr;
    FunderList* list_ = nullptr;
    desktop::PageScroll* scroll_ = nullptr;
    FunderRecordView* record_ = nullptr;
};

} // namespace quillfern::app
