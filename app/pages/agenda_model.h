#pragma once

#include "app/pages/today_presentation.h"

#include <QAbstractListModel>

#include <variant>
#include <vector>

namespace quillfern::app {

/// The heading of a bucket among the rows of the agenda.
struct AgendaHeading {
    grants::Bucket bucket = grants::Bucket::overdue;
    std::string title;
    int count = 0;

    friend bool operator==(const AgendaHeading&, const AgendaHeading&) = default;
};

/// One row with its place in the card of its bucket.
struct AgendaCell {
    AgendaRow row;
    grants::Bucket bucket = grants::Bucket::overdue;
    bool first = false;
    bool last = false;

    friend bool operator==(const AgendaCell&, const AgendaCell&) = default;
};

/// The agenda as one list: each bucket's heading, then its rows. Headings can be neither chosen nor reached.
class AgendaModel : public QAbstractListModel {
    Q_OBJECT
public:
    using Line = std::variant<AgendaHeading, AgendaCell>;

    using QAbstractListModel::QAbstractListModel;

    /// Equal ones change nothing.
    void set_sections(const std::vector<AgendaSection>& sections);

    const Line& line(int row) const { return lines_[static_cast<std::size_t>(row)]; }
    QModelIndex index_of(const QString& item_id) const;

    /// The item's id, by which a choice survives a new day.
    static constexpr int id_role = Qt::UserRole;

    /// The title of what can be done with the item; empty: nothing.
    static constexpr int action_role = Qt::UserRole + 1;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    std::vector<Line> lines_;
};

} // namespace quillfern::app
