#include "app/pages/record_lines.h"

#include "desktop/qt_text.h"
#include "desktop/text_label.h"

#include <QGridLayout>
#include <QUrl>

namespace quillfern::app {
namespace {

using desktop::Role;
using desktop::scaled;
using desktop::TextStyle;
using desktop::to_qt;

/// What a click opens; empty when the text is no address. Whoever wrote the file wrote the text, so nothing but a
/// recipient and a web page is ever made of it.
QUrl target_of(const RecordLine& line)
{
    const QString text = to_qt(line.text).trimmed();
    if (line.kind == RecordLine::Kind::email && text.contains(QLatin1Char('@')))
        return QUrl::fromEncoded("mailto:" + QUrl::toPercentEncoding(text, "@"));
    if (line.kind != RecordLine::Kind::web)
        return {};
    const QUrl url = QUrl::fromUserInput(text);
    const bool is_page = url.scheme() == QLatin1String("https") || url.scheme() == QLatin1String("http");
    return is_page && !url.host().isEmpty() ? url : QUrl();
}

QWidget* make_text(const RecordLine& line, QWidget* parent)
{
    const QString text = to_qt(line.text);
    const Role role = line.kind == RecordLine::Kind::hint ? Role::text2 : Role::text;
    auto* label = new desktop::TextLabel(text, TextStyle::body, role, parent);
    label->setWordWrap(true);
    label->make_selectable();
    const QUrl target = target_of(line);
    if (!target.isEmpty()) {
        label->setTextFormat(Qt::RichText);
        label->setText(QStringLiteral("<a style=\"text-decoration:none\" href=\"%1\">%2</a>")
                           .arg(QString::fromLatin1(target.toEncoded()).toHtmlEscaped(), text.toHtmlEscaped()));
        label->setTextInteractionFlags(Qt::TextBrowserInteraction);
        label->setOpenExternalLinks(true);
    }
    return label;
}

} // namespace

RecordLines::RecordLines(const std::vector<RecordLine>& lines, QWidget* parent) : QWidget(parent)
{
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(scaled(8));
    grid->setVerticalSpacing(scaled(10));
    grid->setColumnMinimumWidth(0, scaled(88));
    grid->setColumnStretch(1, 1);
    for (const RecordLine& line : lines) {
        const int row = grid->rowCount();
        auto* label = new desktop::TextLabel(to_qt(line.label), TextStyle::body, Role::text2, this);
        grid->addWidget(label, row, 0, Qt::AlignTop);
        grid->addWidget(make_text(line, this), row, 1, Qt::AlignTop);
    }
}

} // namespace quillfern::app
