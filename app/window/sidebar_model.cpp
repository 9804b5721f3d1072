#include "app/window/sidebar_model.h"

#include "desktop/qt_text.h"

#include <utility>

namespace quillfern::app {

void SidebarModel::set_rows(const std::vector<SidebarRow>& rows)
{
    std::vector<std::optional<SidebarRow>> lines;
    for (const SidebarRow& row : rows) {
        if (row.opens_group)
            lines.emplace_back();
        lines.emplace_back(row);
    }
    if (lines == lines_)
        return;
    const bool same_places = lines.size() == lines_.size(); // the destinations never change, what they say does
    if (same_places) {
        lines_ = std::move(lines);
        Q_EMIT dataChanged(index(0), index(rowCount() - 1));
        return;
    }
    beginResetModel();
    lines_ = std::move(lines);
    endResetModel();
}

QModelIndex SidebarModel::index_of(SidebarItem item) const
{
    for (int row = 0; row < rowCount(); ++row)
        if (line(row) && line(row)->item == item)
            return index(row);
    return {};
}

int SidebarModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(lines_.size());
}

QVariant SidebarModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || !line(index.row()))
        return {};
    const SidebarRow& row = *line(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return desktop::to_qt(row.label);
    case Qt::AccessibleTextRole:
        return desktop::to_qt(row.spoken);
    case Qt::AccessibleDescriptionRole:
        return desktop::to_qt(row.second.empty() ? row.hint : row.second);
    case Qt::ToolTipRole:
        return row.hint.empty() ? QVariant() : QVariant(desktop::to_qt(row.hint));
    default:
        return {};
    }
}

Qt::ItemFlags SidebarModel::flags(const QModelIndex& index) const
{
    const bool can_show = index.isValid() && line(index.row()) && line(index.row())->enabled;
    return can_show ? Qt::ItemIsEnabled | Qt::ItemIsSelectable : Qt::NoItemFlags;
}

} // namespace quillfern::app
