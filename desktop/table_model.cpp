#include "desktop/table_model.h"

#include "platform/locale_text.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace quillfern::desktop {
namespace {

/// What a cell is sorted by, made once a sort.
struct SortKey {
    std::optional<qint64> order;
    std::string text;
};

SortKey key_of(const TableCell& cell, bool by_order)
{
    return by_order ? SortKey{cell.order, {}} : SortKey{{}, platform::numbered_name_sort_key(cell.text.toStdString())};
}

} // namespace

TableModel::TableModel(std::vector<TableColumn> columns, QObject* parent)
    : QAbstractTableModel(parent), columns_(std::move(columns))
{
}

void TableModel::set_rows(std::vector<TableRow> rows)
{
    if (rows == rows_)
        return;
    beginResetModel();
    rows_ = std::move(rows);
    arrange();
    endResetModel();
}

void TableModel::set_title(int column, const QString& title)
{
    TableColumn& named = columns_[static_cast<std::size_t>(column)];
    if (std::exchange(named.title, title) != title)
        Q_EMIT headerDataChanged(Qt::Horizontal, column, column);
}

const TableCell& TableModel::cell(const QModelIndex& index) const
{
    return row(index.row()).cells[static_cast<std::size_t>(index.column())];
}

int TableModel::row_of(const QString& id) const
{
    for (int shown = 0; shown < rowCount(); ++shown)
        if (row(shown).id == id)
            return shown;
    return -1;
}

int TableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int TableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(columns_.size());
}

QVariant TableModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    const TableCell& shown = cell(index);
    switch (role) {
    case Qt::DisplayRole:
        return shown.text;
    case Qt::AccessibleTextRole:
        if (index.column() == 0)
            return row(index.row()).spoken;
        return shown.second.isEmpty() ? shown.text : shown.text + QStringLiteral(", ") + shown.second;
    default:
        return {};
    }
}

QVariant TableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return columns_[static_cast<std::size_t>(section)].title;
}

void TableModel::sort(int column, Qt::SortOrder order)
{
    if (column == sorted_by_ && order == direction_)
        return;
    beginResetModel();
    sorted_by_ = column;
    direction_ = order;
    arrange();
    endResetModel();
}

void TableModel::arrange()
{
    order_.resize(rows_.size());
    std::iota(order_.begin(), order_.end(), std::size_t{0});
    if (sorted_by_ < 0)
        return;
    const auto column = static_cast<std::size_t>(sorted_by_);
    const bool by_order = std::any_of(
        rows_.begin(), rows_.end(), [column](const TableRow& row) { return row.cells[column].order.has_value(); });
    std::vector<SortKey> keys;
    for (const TableRow& row : rows_)
        keys.push_back(key_of(row.cells[column], by_order));
    std::stable_sort(order_.begin(), order_.end(), [&](std::size_t a, std::size_t b) {
        if (by_order && !(keys[a].order && keys[b].order))
            return keys[a].order && !keys[b].order;
        if (direction_ == Qt::DescendingOrder)
            std::swap(a, b);
        return by_order ? *keys[a].order < *keys[b].order : keys[a].text < keys[b].text;
    });
}

} // namespace quillfern::desktop
