#include "app/pages/agenda_list.h"

#include "app/pages/action_button.h"
#include "app/pages/agenda_delegate.h"
#include "app/pages/agenda_model.h"

#include <QKeyEvent>

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

void AgendaList::set_agenda(AgendaModel* agenda)
{
    agenda_ = agenda;
    setModel(agenda);
    connect(agenda, &AgendaModel::modelAboutToBeReset, this, &AgendaList::take_button_away);
    connect(agenda, &AgendaModel::modelReset, this, &AgendaList::take_height);
    take_height();
}

void AgendaList::show_sections(const std::vector<AgendaSection>& sections)
{
    const QStringList ids = ids_by_nearness();
    const auto selection = chosen().isValid() ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::NoUpdate;
    agenda_->set_sections(sections);
    if (currentIndex().isValid())
        return; // nothing has changed
    for (const QString& id : ids)
        if (const QModelIndex row = agenda_->index_of(id); row.isValid())
            return selectionModel()->setCurrentIndex(row, selection);
}

/// The current row's item, those below it, and then those above it.
QStringList AgendaList::ids_by_nearness() const
{
    QStringList ids;
    if (!currentIndex().isValid())
        return ids;
    const int current = currentIndex().row();
    for (int row = current; row < agenda_->rowCount(); ++row)
        ids.append(agenda_->index(row).data(AgendaModel::id_role).toString());
    for (int row = current - 1; row >= 0; --row)
        ids.append(agenda_->index(row).data(AgendaModel::id_role).toString());
    ids.removeAll(QString()); // headings
    return ids;
}

void AgendaList::set_actions_offered(bool offered)
{
    if (offered == actions_offered_)
        return;
    actions_offered_ = offered;
    take_button_away();
    place_button();
}

/// The current row while it is marked as chosen; when the page opens, the keyboard's place is not yet a choice.
QModelIndex AgendaList::chosen() const
{
    const QModelIndex row = currentIndex();
    return row.isValid() && selectionModel()->isSelected(row) ? row : QModelIndex();
}

void AgendaList::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected)
{
    QListView::selectionChanged(selected, deselected);
    take_button_away();
    place_button();
}

void AgendaList::take_button_away()
{
    if (!button_)
        return;
    if (button_->hasFocus())
        setFocus(Qt::OtherFocusReason);
    button_->hide();
    button_ = nullptr;
    setIndexWidget(button_row_, nullptr); // deletes it later: it may be what is being clicked
}

void AgendaList::place_button()
{
    const QModelIndex row = chosen();
    const QString title = row.data(AgendaModel::action_role).toString();
    if (!actions_offered_ || title.isEmpty())
        return;
    auto* button = new ActionButton(title, viewport());
    button->setAccessibleDescription(row.data(Qt::AccessibleTextRole).toString());
    connect(button, &ActionButton::clicked, this, &AgendaList::request_action);
    button_ = button;
    button_row_ = row;
    setIndexWidget(row, button);
}

void AgendaList::request_action()
{
    if (button_)
        Q_EMIT action_requested(chosen().data(AgendaModel::id_role).toString());
}

/// The toolkit takes the row's button for an editor and would hand it the keyboard.
bool AgendaList::edit(const QModelIndex&, EditTrigger, QEvent*)
{
    return false;
}

void AgendaList::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Space || !button_) {
        QListView::keyPressEvent(event);
        if (event->key() == Qt::Key_Home || event->key() == Qt::Key_Up)
            choose_current(); // the first row has the keyboard when the page opens, and going there is no move
        return;
    }
    if (!event->isAutoRepeat()) // a key held down must not go through the rows that move up
        request_action();
}

void AgendaList::choose_current()
{
    if (currentIndex().isValid() && !chosen().isValid())
        selectionModel()->select(currentIndex(), QItemSelectionModel::ClearAndSelect);
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
