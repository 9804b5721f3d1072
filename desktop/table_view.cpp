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
constexpr double enough_room = 300; ///< no other column leaves to give it more

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

/// How wide the longest content is. Only texts of the most characters are measured: measuring each of thousands would
/// be felt.
int TableView::content_width(int column) const
{
    const TableColumn& shape = model_->columns()[static_cast<std::size_t>(column)];
    qsizetype longest = 0;
    int width = 0;
    for (int row = 0; row < model_->rowCount(); ++row) {
        const TableCell& cell = model_->row(row).cells[static_cast<std::size_t>(column)];
        const qsizetype length = std::max(cell.text.size(), cell.second.size());
        if (length <= longest)
            continue;
        width = std::max(width, table_cell_width(cell, shape));
        longest = length;
    }
    return width + scaled(30);
}

/// The design's width; for figures, which are never elided, as much as they need. The column that takes the rest wants
/// its words in full before others may stay, within reason.
int TableView::wanted_width(int column) const
{
    const TableColumn& shape = model_->columns()[static_cast<std::size_t>(column)];
    if (shape.width <= 0)
        return std::clamp(content_width(column), scaled(least_room), scaled(enough_room));
    return shape.content == TableColumn::Content::figures ? std::max(scaled(shape.width), content_width(column))
                                                          : scaled(shape.width);
}

/// The column to leave out next; -1 when all that are left stay.
int TableView::next_to_leave(const std::vector<bool>& hidden) const
{
    int leaving = -1;
    int rank = 0;
    for (std::size_t column = 0; column < hidden.size(); ++column) {
        if (hidden[column] || model_->columns()[column].leaves <= rank)
            continue;
        leaving = static_cast<int>(column);
        rank = model_->columns()[column].leaves;
    }
    return leaving;
}

void TableView::fit_columns()
{
    std::vector<int> widths;
    std::size_t flexible = 0;
    int total = 0;
    for (int column = 0; column < model_->columnCount(); ++column) {
        widths.push_back(wanted_width(column));
        total += widths.back();
        if (model_->columns()[static_cast<std::size_t>(column)].width <= 0)
            flexible = static_cast<std::size_t>(column);
    }
    std::vector<bool> hidden(widths.size(), false);
    const int room = viewport()->width();
    for (int leaving = next_to_leave(hidden); total > room && leaving >= 0; leaving = next_to_leave(hidden)) {
        hidden[static_cast<std::size_t>(leaving)] = true;
        total -= widths[static_cast<std::size_t>(leaving)];
    }
    widths[flexible] = std::max(widths[flexible] + room - total, scaled(least_room) / 2);
    for (std::size_t column = 0; column < widths.size(); ++column) {
        setColumnHidden(static_cast<int>(column), hidden[column]);
        if (!hidden[column])
            setColumnWidth(static_cast<int>(column), widths[column]);
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
    viewport()->update(); // the focus frame goes round the whole row
    if (!resetting_ && current.isValid() && current.row() != previous.row())
        Q_EMIT row_chosen(chosen());
}

} // namespace quillfern::desktop
