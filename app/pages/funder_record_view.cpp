#include "app/pages/funder_record_view.h"

#include "app/pages/grant_cells.h"
#include "app/pages/record_lines.h"
#include "desktop/qt_text.h"
#include "desktop/stat_tiles.h"
#include "desktop/surface.h"
#include "desktop/table_card.h"
#include "desktop/text_label.h"

#include <QBoxLayout>

namespace quillfern::app {
namespace {

using desktop::Role;
using desktop::scaled;
using desktop::TableColumn;
using desktop::TextStyle;
using desktop::to_qt;

constexpr double two_columns_from = 600;

std::vector<TableColumn> columns()
{
    using enum TableColumn::Content;
    return {
        {QStringLiteral("Grant")},
        {QStringLiteral("Stage"), words, Qt::AlignLeft, 173, 1},
        {QStringLiteral("Asked"), figures, Qt::AlignRight, 100, 2},
        {QStringLiteral("Next date"), figures, Qt::AlignLeft, 160},
    };
}

} // namespace

FunderRecordView::FunderRecordView(QWidget* parent)
    : QWidget(parent), name_(new desktop::TextLabel({}, TextStyle::sheetTitle, Role::text, this)),
      line_(new desktop::TextLabel({}, TextStyle::body, Role::text2, this)), tiles_(new desktop::StatTiles(this)),
      lines_card_(new desktop::Card(this)), lines_(new QBoxLayout(QBoxLayout::LeftToRight, lines_card_)),
      table_(new desktop::TableCard(columns(), this))
{
    name_->setWordWrap(true);
    name_->make_selectable();
    lines_->setContentsMargins(scaled(19), scaled(18), scaled(19), scaled(18));
    lines_->setSpacing(scaled(20));
    table_->view().setAccessibleName(QStringLiteral("Grants of this funder"));
    table_->view().show_all_rows();
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(scaled(16));
    column->addWidget(make_head());
    column->addWidget(lines_card_);
    column->addWidget(table_);
}

QWidget* FunderRecordView::make_head()
{
    auto* card = new desktop::Card(this);
    auto* words = new QVBoxLayout;
    words->setContentsMargins(scaled(19), scaled(16), scaled(19), scaled(14));
    words->setSpacing(scaled(2));
    words->addWidget(name_);
    words->addWidget(line_);
    auto* rule = new desktop::Surface(Role::hairline, card);
    rule->setFixedHeight(1);
    auto* column = new QVBoxLayout(card);
    column->setContentsMargins(1, 0, 1, 0);
    column->setSpacing(0);
    column->addLayout(words);
    column->addWidget(rule);
    column->addWidget(tiles_);
    return card;
}

desktop::TableView& FunderRecordView::grants() const
{
    return table_->view();
}

void FunderRecordView::show_record(const FunderRecord& record)
{
    if (record == shown_)
        return;
    name_->setText(to_qt(record.name));
    line_->setText(to_qt(record.line));
    tiles_->set_tiles(stat_tiles(record.tiles));
    show_lines(record);
    std::vector<desktop::TableRow> rows;
    for (const GrantRow& row : record.grants)
        rows.push_back({row_id(row.id), to_qt(row.spoken),
            {title_cell(row.title), stage_cell(row.stage), figure_cell(row.asked), next_date_cell(row.next)}});
    table_->set_note(rows.empty() ? QStringLiteral("No grants from this funder yet") : QString());
    table_->view().set_rows(std::move(rows));
    shown_ = record;
}

void FunderRecordView::show_lines(const FunderRecord& record)
{
    if (record.contact == shown_.contact && record.giving == shown_.giving)
        return;
    while (QLayoutItem* item = lines_->takeAt(0)) {
        delete item->widget();
        delete item;
    }
    for (const auto& part : {record.contact, record.giving})
        if (!part.empty())
            lines_->addWidget(new RecordLines(part, lines_card_), 1, Qt::AlignTop);
    lines_card_->setVisible(lines_->count() > 0);
    arrange_lines();
}

void FunderRecordView::arrange_lines()
{
    lines_->setDirection(width() < scaled(two_columns_from) ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
}

void FunderRecordView::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    arrange_lines();
}

} // namespace quillfern::app
