#pragma once

#include "desktop/chips.h"
#include "desktop/tokens.h"

#include <QAbstractTableModel>
#include <QString>

#include <optional>
#include <vector>

namespace quillfern::desktop {

struct TableColumn {
    enum class Content {
        words, ///< elided when there is no room
        figures, ///< amounts and dates: never elided, digits below each other
    };

    QString title = {};
    Content content = Content::words;
    Qt::Alignment alignment = Qt::AlignLeft;
    double width = 0; ///< of the design; 0: whatever the others leave
    int leaves = 0; ///< when room is short, the column with the highest number leaves first; 0: it stays
};

/// What one cell shows: one or two lines of text, or a chip.
struct TableCell {
    QString text = {};
    QString second = {}; ///< below the text; empty: none
    Role role = Role::text;
    bool strong = false;
    std::optional<Chip> chip = {}; ///< on screen instead of the text
    std::optional<qint64> order = {}; ///< what its column is sorted by; absent: by the text

    friend bool operator==(const TableCell&, const TableCell&) = default;
};

struct TableRow {
    QString id; ///< by which a choice survives new rows
    QString spoken; ///< the whole row in one sentence, for screen readers
    std::vector<TableCell> cells; ///< one a column

    friend bool operator==(const TableRow&, const TableRow&) = default;
};

/// The rows of a table in their own order, or sorted by a column.
class TableModel : public QAbstractTableModel {
    Q_OBJECT
public:
    explicit TableModel(std::vector<TableColumn> columns, QObject* parent = nullptr);

    void set_rows(std::vector<TableRow> rows);
    void set_title(int column, const QString& title);

    const std::vector<TableColumn>& columns() const { return columns_; }
    const TableRow& row(int shown) const { return rows_[order_[static_cast<std::size_t>(shown)]]; }
    const TableCell& cell(const QModelIndex& index) const;
    int row_of(const QString& id) const; ///< -1 when no row has it

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    /// A column of -1 brings back the rows' own order. Cells with an order come before those without one.
    void sort(int column, Qt::SortOrder order) override;

private:
    void arrange();

    std::vector<TableColumn> columns_;
    std::vector<TableRow> rows_;
    std::vector<std::size_t> order_; ///< the rows as shown
    int sorted_by_ = -1;
    Qt::SortOrder direction_ = Qt::AscendingOrder;
};

} // namespace quillfern::desktop
