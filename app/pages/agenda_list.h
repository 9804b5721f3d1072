#pragma once

#include "app/pages/today_presentation.h"

#include <QListView>
#include <QPointer>

namespace quillfern::app {

class AgendaModel;

/// The agenda on a page that scrolls as a whole: the list is as high as its rows and asks the page to bring the
/// current row into sight.
///
/// The chosen row has a button with what can be done with its item; Space does the same.
class AgendaList : public QListView {
    Q_OBJECT
public:
    explicit AgendaList(QWidget* parent = nullptr);

    void set_agenda(AgendaModel* agenda);

    /// Shows other rows. When the chosen one is gone the next one that was there before takes its place.
    void show_sections(const std::vector<AgendaSection>& sections);

    /// Whether the rows' actions can be done at all.
    void set_actions_offered(bool offered);

    void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;

Q_SIGNALS:
    void wants_in_sight(const QRect& row);
    void action_requested(const QString& item_id);

protected:
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;

private:
    void take_height();
    QModelIndex row_a_page_away(int direction) const;
    QModelIndex chosen() const;
    void choose_current();
    QStringList ids_by_nearness() const;
    void take_button_away();
    void place_button();
    void request_action();

    AgendaModel* agenda_ = nullptr;
    QPointer<QWidget> button_; ///< of the chosen row; null: none
    QPersistentModelIndex button_row_;
    bool actions_offered_ = true;
};

} // namespace quillfern::app
