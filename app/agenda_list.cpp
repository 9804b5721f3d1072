#include "app/agenda_list.h"

#include "app/agenda_delegate.h"

#include <algorithm>
#include <cstdlib>

namespace quillfern::app {

AgendaList::AgendaList(QWidget* parent) : QListView(parent)
{
    setObjectName(QStringLiteral("agenda"));
    setAccessibleName(QStringLiteral("Agenda"));
    setFrameShape(QFrame::NoFrame);
    viewport()->setAutoFillBackground(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setResizeMode(QListView::Adjust);
    setMouseTracking(true);
    setItemDelegate(new AgendaDelegate(this));
}

void AgendaList::setModel(QAbstractItemModel* model)
{
    QListView::setModel(model);
    connect(model, &QAbstractItemModel::modelReset, this, &AgendaList::take_height);
    take_height();
}

void AgendaList::take_height()
{
    int height = 0;
    for (int row = 0; model() && row < model()->rowCount(); ++row)
        height += itemDelegate()->sizeHint({}, model()->index(row, 0)).height();
    setFixedHeight(height);
}

void AgendaList::scrollTo(const QModelIndex& index, ScrollHint)
{
    if (index.isValid())
        Q_EMIT wants_in_sight(visualRect(index));
}

QModelIndex AgendaList::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    if (action == MovePageDown || action == MovePageUp)
        return row_a_page_away(action == MovePageDown ? 1 : -1);
    return QListView::moveCursor(action, modifiers);
}

/// The farthest row that can be chosen within what the page shows at once.
QModelIndex AgendaList::row_a_page_away(int direction) const
{
    const QModelIndex from = currentIndex();
    const int start = from.isValid() ? visualRect(from).center().y() : 0;
    const int page = viewport()->visibleRegion().boundingRect().height();
    QModelIndex found = from;
    int row = from.isValid() ? from.row() + direction : 0;
    for (; row >= 0 && row < model()->rowCount(); row += direction) {
        const QModelIndex candidate = model()->index(row, 0);
        if (std::abs(visualRect(candidate).center().y() - start) > std::max(page, 1))
            break;
        if (candidate.flags().testFlag(Qt::ItemIsSelectable))
            found = candidate;
    }
    return found;
}

} // namespace quillfern::app
