#pragma once

#include <QListView>

namespace quillfern::app {

/// The agenda on a page that scrolls as a whole: the list is as high as its rows and asks the page to bring the
/// current row into sight.
class AgendaList : public QListView {
    Q_OBJECT
public:
    explicit AgendaList(QWidget* parent = nullptr);

    void setModel(QAbstractItemModel* model) override;
    void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;

Q_SIGNALS:
    void wants_in_sight(const QRect& row);

protected:
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;

private:
    void take_height();
    QModelIndex row_a_page_away(int direction) const;
};

} // namespace quillfern::app
