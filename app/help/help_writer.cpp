#include "app/help/help_writer.h"

#include "desktop/qt_text.h"
#include "desktop/tokens.h"
#include "desktop/type.h"

#include <QTextCursor>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextTable>

namespace quillfern::app {
namespace {

using desktop::Role;
using desktop::scaled;
using desktop::TextStyle;
using desktop::to_qt;

constexpr double head_margin = 36; ///< above the title
constexpr double table_first_column = 28; ///< percent of the width
constexpr double cell_side = 16;

QTextCharFormat letters(TextStyle style, Role role)
{
    QTextCharFormat format;
    format.setFont(desktop::text_font(style));
    format.setForeground(desktop::color(role));
    return format;
}

QTextBlockFormat lines(TextStyle style, double above, double below)
{
    QTextBlockFormat format;
    format.setLineHeight(desktop::line_height(style), QTextBlockFormat::FixedHeight);
    format.setTopMargin(scaled(above));
    format.setBottomMargin(scaled(below));
    return format;
}

/// Writes the blocks one below the other.
class Writer {
public:
    explicit Writer(QTextDocument& document) : cursor_(&document) { }

    void title(HelpTopic topic)
    {
        QTextBlockFormat format = lines(TextStyle::title, 0, 16);
        format.setHeadingLevel(1);
        block(format, letters(TextStyle::title, Role::text));
        cursor_.insertText(to_qt(help_title(topic)));
    }

    void operator()(const HelpHeading& heading)
    {
        QTextBlockFormat format = lines(TextStyle::readingStrong, 10, 6);
        format.setHeadingLevel(2);
        block(format, letters(TextStyle::readingStrong, Role::text));
        cursor_.insertText(to_qt(heading.text));
    }

    void operator()(const HelpParagraph& paragraph)
    {
        block(lines(TextStyle::reading, 0, 14), letters(TextStyle::reading, Role::text));
        cursor_.insertText(to_qt(paragraph.text));
    }

    void operator()(const HelpTable& table)
    {
        QTextTable* grid = cursor_.insertTable(static_cast<int>(table.rows.size()) + 1, 2, grid_format());
        fill(grid->cellAt(0, 0), table.head.first, TextStyle::secondMedium, Role::text2, 8);
        fill(grid->cellAt(0, 1), table.head.second, TextStyle::secondMedium, Role::text2, 8);
        for (std::size_t i = 0; i < table.rows.size(); ++i) {
            const int row = static_cast<int>(i) + 1;
            fill(grid->cellAt(row, 0), table.rows[i].first, TextStyle::bodyStrong, Role::text, 11);
            fill(grid->cellAt(row, 1), table.rows[i].second, TextStyle::body, Role::text, 11);
        }
        cursor_.movePosition(QTextCursor::End);
        first_ = true; // the empty paragraph that follows every table takes the next block
    }

    void see_also(const std::vector<HelpTopic>& topics)
    {
        block(lines(TextStyle::body, 4, 28), letters(TextStyle::body, Role::text2));
        cursor_.insertText(QStringLiteral("See also: "));
        for (std::size_t i = 0; i < topics.size(); ++i) {
            if (i > 0)
                cursor_.insertText(QStringLiteral(" · "), letters(TextStyle::body, Role::text3));
            QTextCharFormat link = letters(TextStyle::bodyMedium, Role::accent);
            link.setAnchor(true);
            link.setAnchorHref(to_qt(help_name(topics[i])));
            cursor_.insertText(to_qt(help_title(topics[i])), link);
        }
    }

private:
    void block(const QTextBlockFormat& format, const QTextCharFormat& characters)
    {
        if (first_)
            cursor_.setBlockFormat(format);
        else
            cursor_.insertBlock(format);
        cursor_.setBlockCharFormat(characters);
        cursor_.setCharFormat(characters);
        first_ = false;
    }

    static QTextTableFormat grid_format()
    {
        QTextTableFormat format;
        format.setBorder(0);
        format.setCellSpacing(0);
        format.setCellPadding(0);
        format.setTopMargin(scaled(2));
        format.setBottomMargin(scaled(16));
        format.setWidth(QTextLength(QTextLength::PercentageLength, 100));
        format.setColumnWidthConstraints({QTextLength(QTextLength::PercentageLength, table_first_column),
            QTextLength(QTextLength::PercentageLength, 100 - table_first_column)});
        return format;
    }

    static void fill(QTextTableCell cell, std::string_view text, TextStyle style, Role role, double above)
    {
        QTextTableCellFormat around;
        around.setLeftPadding(scaled(cell_side));
        around.setRightPadding(scaled(cell_side));
        around.setTopPadding(scaled(above));
        around.setBottomPadding(scaled(above));
        around.setVerticalAlignment(QTextCharFormat::AlignMiddle);
        QTextCursor cursor = cell.firstCursorPosition();
        cursor.setBlockFormat(lines(style, 0, 0));
        cursor.insertText(to_qt(text), letters(style, role));
        cell.setFormat(around); // last: the cell keeps its format where its first paragraph keeps that of its letters
    }

    QTextCursor cursor_;
    bool first_ = true; ///< the cursor stands in an empty paragraph already
};

} // namespace

void write_help(QTextDocument& document, HelpTopic topic)
{
    document.clear();
    document.setUndoRedoEnabled(false);
    document.setDocumentMargin(0);
    QTextFrameFormat frame = document.rootFrame()->frameFormat();
    frame.setLeftMargin(scaled(help_side_margin));
    frame.setRightMargin(scaled(help_side_margin));
    frame.setTopMargin(scaled(head_margin));
    document.rootFrame()->setFrameFormat(frame);

    Writer writer(document);
    writer.title(topic);
    const HelpArticle article = help_article(topic);
    for (const HelpBlock& block : article.blocks)
        std::visit([&writer](const auto& part) { writer(part); }, block);
    writer.see_also(article.seeAlso);
}

} // namespace quillfern::app
