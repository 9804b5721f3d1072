#include "app/help/help_article_view.h"

#include "app/help/help_writer.h"
#include "desktop/painters.h"
#include "desktop/qt_text.h"
#include "desktop/type.h"

#include <QAbstractTextDocumentLayout>
#include <QEvent>
#include <QPainter>
#include <QPainterPath>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextTable>

#include <algorithm>

namespace quillfern::app {

using desktop::color;
using desktop::Role;
using desktop::scaled;

HelpArticleView::HelpArticleView(QWidget* parent) : QTextBrowser(parent)
{
    setObjectName(QStringLiteral("helpArticle"));
    setFrameShape(QFrame::NoFrame);
    setOpenLinks(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(this, &QTextBrowser::anchorClicked, this, [this](const QUrl& link) { follow(link.path()); });
}

void HelpArticleView::show_topic(HelpTopic topic)
{
    topic_ = topic;
    write();
    verticalScrollBar()->setValue(0);
}

void HelpArticleView::write()
{
    write_help(*document(), topic_);
    setAccessibleName(desktop::to_qt(help_title(topic_)));
}

void HelpArticleView::follow(const QString& name)
{
    for (std::size_t i = 0; i < help_topic_count; ++i)
        if (const auto topic = static_cast<HelpTopic>(i); desktop::to_qt(help_name(topic)) == name)
            Q_EMIT topic_chosen(topic);
}

void HelpArticleView::changeEvent(QEvent* event)
{
    QTextBrowser::changeEvent(event);
    if (event->type() != QEvent::PaletteChange || document()->isEmpty())
        return;
    const int scrolled = verticalScrollBar()->value();
    write();
    verticalScrollBar()->setValue(scrolled);
}

void HelpArticleView::resizeEvent(QResizeEvent* event)
{
    const int widest = scaled(help_widest_text + 2 * help_side_margin);
    setLineWrapMode(QTextEdit::FixedPixelWidth);
    setLineWrapColumnOrWidth(std::min(widest, viewport()->width()));
    QTextBrowser::resizeEvent(event);
}

void HelpArticleView::paintEvent(QPaintEvent* event)
{
    {
        QPainter painter(viewport());
        painter.setRenderHint(QPainter::Antialiasing);
        painter.translate(-horizontalScrollBar()->value(), -verticalScrollBar()->value());
        for (QTextFrame* frame : document()->rootFrame()->childFrames())
            if (const auto* table = qobject_cast<QTextTable*>(frame))
                paint_card(painter, *table);
    }
    QTextBrowser::paintEvent(event);
}

/// The toolkit's own tables know neither round corners nor lines between rows alone.
void HelpArticleView::paint_card(QPainter& painter, const QTextTable& table) const
{
    const QAbstractTextDocumentLayout& layout = *document()->documentLayout();
    const QTextFrameFormat format = table.frameFormat();
    const QTextTableCellFormat corner = table.cellAt(0, 0).format().toTableCellFormat();
    // The layout gives a table's place as that of the text in its first cell.
    const QRectF card = layout.frameBoundingRect(const_cast<QTextTable*>(&table))
                            .translated(-corner.leftPadding(), -corner.topPadding())
                            .adjusted(0, format.topMargin(), 0, -format.bottomMargin())
                            .toAlignedRect();
    desktop::paint_box(painter, card, scaled(10), color(Role::card), color(Role::hairline));
    QPainterPath inside;
    inside.addRoundedRect(card.adjusted(1, 1, -1, -1), scaled(9), scaled(9));
    for (int row = 1; row < table.rows(); ++row) {
        double top = card.bottom();
        for (int column = 0; column < table.columns(); ++column) {
            const QTextTableCell cell = table.cellAt(row, column);
            const double text = layout.blockBoundingRect(cell.firstCursorPosition().block()).top();
            top = std::min(top, text - cell.format().toTableCellFormat().topPadding());
        }
        const int line = qRound(top);
        if (row == 1) {
            painter.save();
            painter.setClipPath(inside);
            painter.fillRect(QRectF(card.left(), card.top(), card.width(), line - card.top()), color(Role::cardAlt));
            painter.restore();
        }
        painter.fillRect(QRectF(card.left() + 1, line, card.width() - 2, 1), color(Role::hairline));
    }
}

} // namespace quillfern::app
