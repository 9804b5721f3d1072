#include "app/pages/agenda_model.h"

#include "desktop/qt_text.h"

#include <cstddef>
#include <utility>

namespace quillfern::app {
namespace {

using desktop::to_qt;

std::vector<AgendaModel::Line> lines_of(const std::vector<AgendaSection>& sections)
{
    std::vector<AgendaModel::Line> lines;
    for (const AgendaSection& section : sections) {
        lines.emplace_back(AgendaHeading{section.bucket, section.title, static_cast<int>(section.rows.size())});
        for (std::size_t i = 0; i < section.rows.size(); ++i)
            lines.emplace_back(AgendaCell{section.rows[i], section.bucket, i == 0, i + 1 == section.rows.size()});
    }
    return lines;
}

QVariant heading_data(const AgendaHeading& heading, int role)
{
    if (role == Qt::DisplayRole)
        return to_qt(heading.title);
    if (role == Qt::AccessibleTextRole)
        return to_qt(heading.title + ", " + std::to_string(heading.count));
    return {};
}

QVariant cell_data(const AgendaCell& cell, int role)
{
    switch (role) {
    case Qt::DisplayRole:
        return to_qt(cell.row.title);
    case Qt::AccessibleTextRole:
        return to_qt(cell.row.spoken);
    case Qt::AccessibleDescriptionRole:
        return cell.row.action.empty() ? QString() : QStringLiteral("Space: %1").arg(to_qt(cell.row.action));
    case AgendaModel::id_role:
        return to_qt(cell.row.id);
    case AgendaModel::action_role:
        return to_qt(cell.row.action);
    default:
        return {};
    }
}

} // namespace

void AgendaModel::set_sections(const std::vector<AgendaSection>& sections)
{
    std::vector<Line> lines = lines_of(sections);
    if (lines == lines_)
        return;
    beginResetModel();
    lines_ = std::move(lines);
    endResetModel();
}

QModelIndex AgendaModel::index_of(const QString& item_id) const
{
    for (int row = 0; row < rowCount(); ++row)
        if (data(index(row), id_role).toString() == item_id)
            return index(row);
    return {};
}

int AgendaModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(lines_.size());
}

QVariant AgendaModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    const Line& shown = line(index.row());
    if (const auto* heading = std::get_if<AgendaHeading>(&shown))
        return heading_data(*heading, role);
    return cell_data(*std::get_if<AgendaCell>(&shown), role);
}

Qt::ItemFlags AgendaModel::flags(const QModelIndex& index) const
{
    const bool is_cell = index.isValid() && std::holds_alternative<AgendaCell>(line(index.row()));
    return is_cell ? Qt::ItemIsEnabled | Qt::ItemIsSelectable : Qt::NoItemFlags;
}

} // namespace quillfern::app
