#pragma once

#include "desktop/table_model.h"

#include <QWidget>

namespace quillfern::desktop {

class TableView;

/// The sums below a table, each below its column.
class TableTotals : public QWidget {
    Q_OBJECT
public:
    explicit TableTotals(const TableView& view, QWidget* parent = nullptr);

    void set_cells(std::vector<TableCell> cells, const QString& spoken);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const TableView& view_;
    std::vector<TableCell> cells_;
};

} // namespace quillfern::desktop
