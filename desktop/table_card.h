#pragma once

#include "desktop/table_view.h"

#include <QWidget>

namespace quillfern::desktop {

class TableTotals;

/// A table on a card: its head, its rows, and below them a row of totals where there is one.
class TableCard : public QWidget {
    Q_OBJECT
public:
    explicit TableCard(std::vector<TableColumn> columns, QWidget* parent = nullptr);

    TableView& view() const { return *view_; }

    /// Totals stay in sight while the rows scroll. One cell a column; `spoken` says them to screen readers.
    void set_totals(std::vector<TableCell> cells, const QString& spoken);

    /// What stands in the place of rows when there are none.
    void set_note(const QString& note);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    TableView* view_;
    TableTotals* totals_ = nullptr;
    QString note_;
};

} // namespace quillfern::desktop
