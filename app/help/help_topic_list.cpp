#include "app/help/help_topic_list.h"

#include "app/help/help_search.h"
#include "desktop/painters.h"
#include "desktop/qt_text.h"
#include "desktop/type.h"

#include <QPainter>
#include <QSignalBlocker>
#include <QStyledItemDelegate>

namespace quillfern::app {
namespace {

using desktop::color;
using desktop::Role;
using desktop::scaled;
using desktop::TextStyle;

constexpr double row_height = 28;
constexpr double row_gap = 1;

class RowDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        const QRect box = option.rect.adjusted(0, 0, 0, -scaled(row_gap));
        const bool selected = option.state.testFlag(QStyle::State_Selected);
        if (selected) {
            desktop::paint_box(*painter, box, scaled(7), color(Role::accentTint2));
            const QRect bar(box.left(), box.top() + scaled(7), scaled(3), box.height() - 2 * scaled(7));
            desktop::paint_box(*painter, bar, 1.5, color(Role::accent));
        } else if (option.state.testFlag(QStyle::State_MouseOver)) {
            desktop::paint_box(*painter, box, scaled(7), color(Role::hairline2));
        }
        if (option.state.testFlag(QStyle::State_HasFocus) && option.state.testFlag(QStyle::State_KeyboardFocusChange))
            desktop::paint_focus(*painter, box, scaled(7));
        desktop::draw_line(*painter, box.adjusted(scaled(10), 0, -scaled(6), 0), index.data().toString(),
            desktop::text_font(selected ? TextStyle::bodyStrong : TextStyle::body),
            selected ? Role::onAccentTint : Role::text);
    }

    QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override
    {
        return {0, scaled(row_height) + scaled(row_gap)};
    }
};

} // namespace

HelpTopicList::HelpTopicList(QWidget* parent) : QListWidget(parent)
{
    setObjectName(QStringLiteral("helpTopics"));
    setAccessibleName(QStringLiteral("Help topics"));
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setMouseTracking(true);
    setItemDelegate(new RowDelegate(this));
    viewport()->setAutoFillBackground(false);
    for (std::size_t i = 0; i < help_topic_count; ++i) {
        const QString title = desktop::to_qt(help_title(static_cast<HelpTopic>(i)));
        (new QListWidgetItem(title, this))->setToolTip(title);
    }
    connect(this, &QListWidget::currentRowChanged, this, [this](int row) {
        if (row >= 0)
            Q_EMIT chosen(static_cast<HelpTopic>(row));
    });
}

void HelpTopicList::select(HelpTopic topic)
{
    const QSignalBlocker quiet(this); // the topic is shown already
    setCurrentRow(static_cast<int>(topic));
}

int HelpTopicList::search(const QString& text)
{
    int found = 0;
    for (int row = 0; row < count(); ++row) {
        const bool matches = help_matches(static_cast<HelpTopic>(row), text);
        item(row)->setHidden(!matches);
        found += matches ? 1 : 0;
    }
    return found;
}

bool HelpTopicList::current_is_found() const
{
    return currentItem() && !currentItem()->isHidden();
}

void HelpTopicList::choose_first()
{
    for (int row = 0; row < count(); ++row)
        if (!item(row)->isHidden())
            return setCurrentRow(row);
}

} // namespace quillfern::app
