#pragma once

#include "app/window/sidebar_presentation.h"

#include <QAbstractListModel>

#include <cstddef>
#include <optional>
#include <vector>

namespace quillfern::app {

/// The sidebar's rows, with a line of its own for each rule between groups.
class SidebarModel : public QAbstractListModel {
    Q_OBJECT
public:
    using QAbstractListModel::QAbstractListModel;

    void set_rows(const std::vector<SidebarRow>& rows);

    /// Absent for a rule.
    const std::optional<SidebarRow>& line(int row) const { return lines_[static_cast<std::size_t>(row)]; }
    QModelIndex index_of(SidebarItem item) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    std::vector<std::optional<SidebarRow>> lines_;
};

} // namespace quillfern::app
