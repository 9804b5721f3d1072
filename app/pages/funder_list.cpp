#include "app/pages/funder_list.h"

#include "app/pages/funder_list_delegate.h"
#include "desktop/qt_text.h"

#include <QAbstractListModel>

#include <utility>

namespace quillfern::app {

using desktop::to_qt;

class FunderListModel : public QAbstractListModel {
public:
    using QAbstractListModel::QAbstractListModel;

    void set_lines(const std::vector<FunderLine>& lines)
    {
        if (lines == lines_)
            return;
        beginResetModel();
        lines_ = lines;
        endResetModel();
    }

    const std::vector<FunderLine>& lines() const { return lines_; }

    int rowCount(const QModelIndex& parent) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(lines_.size());
    }

    QVariant data(const QModelIndex& index, int role) const override
    {
        if (!index.isValid())
            return {};
        const FunderLine& line = lines_[static_cast<std::size_t>(index.row())];
        if (role == Qt::DisplayRole)
            return to_qt(line.name);
        if (role == Qt::ToolTipRole) // a list has little room beside a record
            return to_qt(line.name + '\n' + line.line);
        return role == Qt::AccessibleTextRole ? QVariant(to_qt(line.spoken)) : QVariant();
    }

private:
    std::vector<FunderLine> lines_;
};

FunderList::FunderList(QWidget* parent) : QListView(parent), model_(new FunderListModel(this))
{
    setObjectName(QStringLiteral("funderList"));
    setAccessibleName(QStringLiteral("Funders"));
    setFrameShape(QFrame::NoFrame);
    viewport()->setAutoFillBackground(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setResizeMode(QListView::Adjust);
    setMouseTracking(true);
    setModel(model_);
    setItemDelegate(new FunderListDelegate(*this));
}

const FunderLine& FunderList::line(int row) const
{
    return model_->lines()[static_cast<std::size_t>(row)];
}

void FunderList::show_lines(const std::vector<FunderLine>& lines, const std::optional<Uuid>& chosen)
{
    showing_ = true;
    model_->set_lines(lines);
    for (std::size_t row = 0; row < lines.size(); ++row)
        if (lines[row].id == chosen && currentIndex().row() != static_cast<int>(row))
            setCurrentIndex(model_->index(static_cast<int>(row), 0));
    showing_ = false;
}

void FunderList::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    QListView::currentChanged(current, previous);
    if (!showing_ && current.isValid())
        Q_EMIT funder_chosen(line(current.row()).id);
}

} // namespace quillfern::app
