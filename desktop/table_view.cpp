#include "desktop/table_view.h"

#include "desktop/table_delegate.h"
#include "desktop/table_header.h"
#include "desktop/table_painting.h"
#include "desktop/type.h"

#include <QMouseEvent>
#include <QScrollBar>

#include <algorithm>
#include <utility>

namespace quillfern::desktop {
namespace {

constexpr double least_room = 220; ///< for the column that takes what the others leave

} // namespace

TableView::TableView(std::vector<TableColumn> columns, QWidget* parent)
    : QTableView(parent), model_(new TableModel(std::move(columns), this))
{
    setHorizontalHeader(new TableHeader(this));
    setModel(model_);
    setItemDelegate(new TableDelegate(*this));
    setFrameShape(QFrame::NoFrame);
    viewport()->setAutoFillBackground(false);
    setShowGrid(false);
    setCornerButtonEnabled(false);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setMouseTracking(true);
    verticalHeader()->hide();
    verticalHeader()->setMinimumSectionSize(0);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(table_row_height());
    setSortingEnabled(true);
    connect(model_, &QAbstractItemModel::modelAboutToBeReset, this, [this] {
        const QString id = chosen();
        resetting_ = true;
        connect(
            model_, &QAbstractItemModel::modelReset, this, [this, id] { choose_again(id); },
            static_cast<Qt::ConnectionType>(Qt::SingleShotConnection));
    });
}

void TableView::set_rows(std::vector<TableRow> rows)
{
    model_->set_rows(std::move(rows));
    fit_columns();
    updateGeometry();
}

QString TableView::chosen() const
{
    return currentIndex().isValid() ? model_->row(currentIndex().row()).id : QString();
}

void TableView::choose_again(const QString& id)
{
    const int row = id.isEmpty() ? -1 : model_->row_of(id);
    if (row >= 0)
        selectRow(row);
    resetting_ = false;
}

void TableView::show_all_rows()
{
    shows_all_rows_ = true;
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

int TableView::content_height() const
{
    return table_head_height() + model_->rowCount() * table_row_height();
}

QSize TableView::sizeHint() const
{
    return {scaled(400), content_height()};
}

QSize TableView::minimumSizeHint() const
{
    const int few_rows = table_head_height() + 3 * table_row_height();
    return {scaled(200), shows_all_rows_ ? content_height() : std::min(few_rows, content_height())};
}

void TableView::scrollTo(const QModelIndex& index, ScrollHint hint)
{
    if (!shows_all_rows_)
        return QTableView::scrollTo(index, hint);
    if (index.isValid())
        Q_EMIT wants_in_sight(visualRect(index).translated(0, horizontalHeader()->height()));
}

void TableView::initViewItemOption(QStyleOptionViewItem* option) const
{
    QTableView::initViewItemOption(option);
    option->showDecorationSelected = false; // the delegate paints the whole row
}

void TableView::resizeEvent(QResizeEvent* event)
{
    QTableView::resizeEvent(event);
    fit_columns();
}

/// The design's width, or more where the longest text does not fit it. Only texts of the most characters are measured:
/// measuring each of thousands would be felt.
int TableView::wanted_width(int column) const
{
    const TableColumn& shape = model_->columns()[static_cast<std::size_t>(column)];
    const int designed = scaled(shape.width);
    if (shape.content == TableColumn::Content::words)
        return designed;
    qsizetype longest = 0;
    int content = 0;
    for (int row = 0; row < model_->rowCount(); ++row) {
        const TableCell& cell = model_->row(row).cells[static_cast<std::size_t>(column)];
        if (cell.text.size() < longest)
            continue;
        content = std::max(content, cell.text.size() > longest ? table_cell_width(cell, shape) : content);
        longest = cell.text.size();
    }
    return std::max(designed, content + scaled(30));
}

void TableView::fit_columns()
{
    const int count = model_->columnCount();
    const int room = viewport()->width();
    std::vector<int> widths;
    int flexible = -1;
    int fixed = 0;
    for (int column = 0; column < count; ++column) {
        const bool takes_rest = model_->columns()[static_cast<std::size_t>(column)].width <= 0;
        widths.push_back(takes_rest ? 0 : wanted_width(column));
        flexible = takes_rest ? column : flexible;
        fixed += widths.back();
    }
    std::vector<bool> hidden(widths.size(), false);
    while (room - fixed < scaled(least_room)) {
        int leaving = -1;
        for (int column = 0; column < count; ++column) {
            const auto at = static_cast<std::size_t>(column);
            const int rank = model_->columns()[at].leaves;
            if (!hidden[at] && rank > 0
                && (leaving < 0 || rank > model_->columns()[static_cast<std::size_t>(leaving)].leaves))
                leaving = column;
        }
        if (leaving < 0)
            break;
        hidden[static_cast<std::size_t>(leaving)] = true;
        fixed -= widths[static_cast<std::size_t>(leaving)];
    }
    if (flexible >= 0)
        widths[static_cast<std::size_t>(flexible)] = std::max(room - fixed, scaled(least_room) / 2);
    for (int column = 0; column < count; ++column) {
        setColumnHidden(column, hidden[static_cast<std::size_t>(column)]);
        if (!isColumnHidden(column))
            setColumnWidth(column, widths[static_cast<std::size_t>(column)]);
    }
    Q_EMIT columns_changed();
}

void TableView::set_hovered_row(int row)
{
    if (std::exchange(hovered_row_, row) != row)
        viewport()->update();
}

void TableView::mouseMoveEvent(QMouseEvent* event)
{
    set_hovered_row(rowAt(event->position().toPoint().y()));
    QTableView::mouseMoveEvent(event);
}

bool TableView::viewportEvent(QEvent* event)
{
    if (event->type() == QEvent::Leave)
        set_hovered_row(-1);
    return QTableView::viewportEvent(event);
}

void TableView::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    QTableView::currentChanged(current, previous);
    if (!resetting_ && current.isValid() && current.row() != previous.row())
        Q_EMIT row_chosen(chosen());
}

} // namespace quillfern::desktop
