#pragma once

#include "desktop/table_model.h"

#include <QTableView>

namespace quillfern::desktop {

/// The rows of a table below its head. Columns share the width: one takes what the others leave, and where that is too
/// little, columns leave in their order. One row is chosen at a time.
class TableView : public QTableView {
    Q_OBJECT
public:
    explicit TableView(std::vector<TableColumn> columns, QWidget* parent = nullptr);

    TableModel& table() const { return *model_; }
    void set_rows(std::vector<TableRow> rows);

    /// The id of the chosen row; empty: none.
    QString chosen() const;

    /// As high as its rows, on a page that scrolls as a whole: it then asks the page to bring a row into sight.
    void show_all_rows();

    /// Whether the last row is also the end of the card, with its round corners.
    void set_ends_card(bool ends) { ends_card_ = ends; }
    bool ends_card() const { return ends_card_; }

    int hovered_row() const { return hovered_row_; }
    int content_height() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;

Q_SIGNALS:
    void row_chosen(const QString& id);
    void wants_in_sight(const QRect& row);
    void columns_changed();

protected:
    void initViewItemOption(QStyleOptionViewItem* option) const override;
    void resizeEvent(QResizeEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

private:
    void fit_columns();
    int content_width(int column) const;
    int wanted_width(int column) const;
    int next_to_leave(const std::vector<bool>& hidden) const;
    void set_hovered_row(int row);
    void choose_again(const QString& id);

    TableModel* model_;
    bool shows_all_rows_ = false;
    bool ends_card_ = true;
    bool resetting_ = false;
    int hovered_row_ = -1;
};

} // namespace quillfern::desktop
