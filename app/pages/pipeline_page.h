#pragma once

#include "app/pages/page.h"

class QStackedWidget;

namespace quillfern::desktop {
class PageHeader;
class PageScroll;
class StatTiles;
class TableCard;
} // namespace quillfern::desktop

namespace quillfern::app {

class PipelineChart;
struct PipelinePresentation;

/// The page that says what is asked for and what may come of it: figures, the stages as bars, and the requests.
class PipelinePage : public Page {
    Q_OBJECT
public:
    explicit PipelinePage(WindowModel& model, QWidget* parent = nullptr);

    void show_file(const grants::GrantFile& file, const WindowState& state) override;

private:
    void lay_out_body();
    void show_rows(const PipelinePresentation& presentation);

    WindowModel& model_;
    desktop::PageHeader* header_;
    QStackedWidget* body_;
    desktop::PageScroll* scroll_;
    desktop::StatTiles* tiles_;
    PipelineChart* chart_;
    desktop::TableCard* table_;
};

} // namespace quillfern::app
