#include "app/pages/pipeline_page.h"

#include "app/pages/grant_cells.h"
#include "app/pages/pipeline_chart.h"
#include "app/pages/pipeline_presentation.h"
#include "desktop/empty_state.h"
#include "desktop/page_header.h"
#include "desktop/page_scroll.h"
#include "desktop/qt_text.h"
#include "desktop/stat_tiles.h"
#include "desktop/surface.h"
#include "desktop/table_card.h"

#include <QStackedWidget>
#include <QVBoxLayout>

namespace quillfern::app {
namespace {

using desktop::Role;
using desktop::TableCell;
using desktop::TableColumn;
using desktop::to_qt;

enum Column { title_column, stage_column, chance_column, asked_column, weighted_column, decision_column };

std::vector<TableColumn> columns()
{
    using enum TableColumn::Content;
    return {
        {QStringLiteral("Open request")},
        {QStringLiteral("Stage"), words, Qt::AlignLeft, 173},
        {QStringLiteral("Chance"), figures, Qt::AlignRight, 95, 1},
        {QStringLiteral("Asked"), figures, Qt::AlignRight, 112},
        {QStringLiteral("Weighted"), figures, Qt::AlignRight, 112, 2},
        {QStringLiteral("Decision expected"), figures, Qt::AlignLeft, 167},
    };
}

desktop::TableRow table_row(const RequestRow& row)
{
    return {row_id(row.id), to_qt(row.spoken),
        {title_cell(row.title, row.funder), stage_cell(row.stage), figure_cell(row.chance), figure_cell(row.asked),
            figure_cell(row.weighted, Role::text2),
            figure_cell(row.decision, row.late ? Role::danger : Role::text, row.late)}};
}

} // namespace

PipelinePage::PipelinePage(WindowModel& model, QWidget* parent)
    : Page(parent), model_(model), header_(new desktop::PageHeader(QStringLiteral("Pipeline"), this)),
      body_(new QStackedWidget(this)), scroll_(new desktop::PageScroll(body_)), tiles_(new desktop::StatTiles(scroll_)),
      chart_(new PipelineChart(scroll_)), table_(new desktop::TableCard(columns(), scroll_))
{
    setObjectName(QStringLiteral("pipelinePage"));
    lay_out_body();
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(header_);
    column->addWidget(body_, 1);
    setFocusProxy(chart_);
    connect(chart_, &PipelineChart::stage_chosen, this, [this](std::optional<grants::Stage> stage) {
        model_.edit([stage](WindowState& state) { state.pipelineStage = stage; });
    });
    connect(&table_->view(), &desktop::TableView::wants_in_sight, scroll_,
        [this](const QRect& row) { scroll_->bring_into_sight(table_->view(), row); });
}

void PipelinePage::lay_out_body()
{
    auto* card = new desktop::Card(scroll_);
    auto* inside = new QVBoxLayout(card);
    inside->setContentsMargins(0, 0, 0, 0);
    inside->addWidget(tiles_);
    table_->view().setAccessibleName(QStringLiteral("Requests"));
    table_->view().show_all_rows();
    scroll_->column()->addWidget(card);
    scroll_->column()->addWidget(chart_);
    scroll_->column()->addWidget(table_);
    scroll_->column()->addStretch();
    body_->addWidget(scroll_);
    body_->addWidget(new desktop::EmptyState(QStringLiteral("pipeline"), QStringLiteral("No grants yet"),
        QStringLiteral("What you ask for, and what may come of it, is added up here."), body_));
}

void PipelinePage::show_file(const grants::GrantFile& file, const WindowState& state)
{
    const PipelinePresentation presentation =
        pipeline_presentation(file, state.today, state.fiscalYear, state.pipelineStage);
    header_->set_facts({{to_qt(presentation.facts), Role::text2}});
    tiles_->set_tiles(stat_tiles(presentation.tiles));
    chart_->show_bars(presentation.bars, state.pipelineStage);
    show_rows(presentation);
    const bool decided = state.pipelineStage && !is_open(*state.pipelineStage);
    table_->view().table().set_title(title_column, to_qt(presentation.tableTitle));
    table_->view().table().set_title(
        decision_column, decided ? QStringLiteral("Decided") : QStringLiteral("Decision expected"));
    body_->setCurrentIndex(presentation.noGrants ? 1 : 0);
}

void PipelinePage::show_rows(const PipelinePresentation& presentation)
{
    std::vector<desktop::TableRow> rows;
    for (const RequestRow& row : presentation.rows)
        rows.push_back(table_row(row));
    table_->set_note(rows.empty() ? to_qt(presentation.noRows) : QString());
    table_->view().set_rows(std::move(rows));
}

} // namespace quillfern::app
