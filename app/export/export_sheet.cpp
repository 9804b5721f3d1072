#include "app/export/export_sheet.h"

#include "app/export/calendar_options.h"
#include "app/export/export_kind_button.h"
#include "desktop/icon_tile.h"
#include "desktop/qt_text.h"
#include "desktop/style.h"
#include "desktop/surface.h"
#include "desktop/text_label.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

#include <utility>

namespace quillfern::app {
namespace {

using desktop::Role;
using desktop::scaled;
using desktop::Surface;
using desktop::TextLabel;
using desktop::TextStyle;
using desktop::to_qt;

QWidget* make_rule(QWidget* parent)
{
    auto* rule = new Surface(Role::hairline2, parent);
    rule->setFixedHeight(1);
    return rule;
}

} // namespace

ExportSheet::ExportSheet(grants::GrantFile file, ExportKind kind, QWidget* parent)
    : Sheet(parent), file_(std::move(file))
{
    choices_.kind = kind;
    setObjectName(QStringLiteral("exportSheet"));
    setWindowTitle(QStringLiteral("Export"));
    lay_out();
    (kind == ExportKind::calendar ? calendar_ : spreadsheet_)->setChecked(true);
    redraw();
    for (ExportKindButton* button : {spreadsheet_, calendar_})
        connect(button, &QAbstractButton::toggled, this, &ExportSheet::take_choices);
    connect(calendar_options_, &CalendarOptions::changed, this, &ExportSheet::take_choices);
    connect(language_, &QComboBox::activated, this, &ExportSheet::take_choices);
    for (const int key : {Qt::Key_Return, Qt::Key_Enter})
        connect(new QShortcut(Qt::CTRL | static_cast<Qt::Key>(key), this), &QShortcut::activated, save_,
            &QPushButton::click);
    save_->setFocus();
}

void ExportSheet::lay_out()
{
    auto* middle = new QHBoxLayout;
    middle->setSpacing(0);
    middle->addWidget(make_kinds());
    auto* line = new Surface(Role::hairline, this);
    line->setFixedWidth(1);
    middle->addWidget(line);
    middle->addWidget(make_options(), 1);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addLayout(middle, 1);
    column->addWidget(make_rule(this));
    column->addWidget(make_foot());
    setFixedWidth(scaled(860));
}

QWidget* ExportSheet::make_kinds()
{
    auto* pane = new Surface(Role::cardAlt, this);
    pane->setFixedWidth(scaled(296));
    spreadsheet_ = new ExportKindButton(QStringLiteral("table"), QStringLiteral("Grants spreadsheet (CSV)"),
        QStringLiteral("Every grant, 17 columns"), pane);
    spreadsheet_->setObjectName(QStringLiteral("kindSpreadsheet"));
    calendar_ = new ExportKindButton(
        QStringLiteral("calendar"), QStringLiteral("Calendar"), QStringLiteral("Dates as an .ics file"), pane);
    calendar_->setObjectName(QStringLiteral("kindCalendar"));
    auto* column = new QVBoxLayout(pane);
    column->setContentsMargins(scaled(12), scaled(12), scaled(12), scaled(12));
    column->setSpacing(scaled(2));
    column->addWidget(spreadsheet_);
    column->addWidget(calendar_);
    column->addStretch();
    return pane;
}

QWidget* ExportSheet::make_options()
{
    auto* pane = new QWidget(this);
    spreadsheet_words_ =
        new TextLabel(QStringLiteral("Every grant of every year, one row each, with the columns that an import "
                                     "understands. It opens in any spreadsheet program."),
            TextStyle::body, Role::text2, pane);
    spreadsheet_words_->setWordWrap(true);
    calendar_options_ = new CalendarOptions(choices_, pane);
    language_ = new QComboBox(pane);
    language_->setObjectName(QStringLiteral("exportLanguage"));
    language_->setAccessibleName(QStringLiteral("Language"));
    language_->addItems({QStringLiteral("English"), QStringLiteral("Español")});
    language_->setMinimumWidth(scaled(216));
    auto* language_row = new QHBoxLayout;
    language_row->addWidget(new TextLabel(QStringLiteral("Language"), TextStyle::bodyMedium, Role::text, pane));
    language_row->addStretch();
    language_row->addWidget(language_);

    auto* column = new QVBoxLayout(pane);
    column->setContentsMargins(scaled(24), scaled(18), scaled(24), scaled(16));
    column->setSpacing(scaled(12));
    column->addWidget(spreadsheet_words_);
    column->addWidget(calendar_options_);
    column->addWidget(make_rule(pane));
    column->addLayout(language_row);
    column->addWidget(make_rule(pane));
    column->addWidget(make_result());
    column->addStretch();
    return pane;
}

QWidget* ExportSheet::make_result()
{
    auto* part = new QWidget(this);
    result_ = new TextLabel({}, TextStyle::bodyMedium, Role::text, part);
    result_->setObjectName(QStringLiteral("exportResult"));
    hint_ = new TextLabel({}, TextStyle::second, Role::text2, part);
    auto* words = new QVBoxLayout;
    words->setSpacing(0);
    words->addWidget(result_);
    words->addWidget(hint_);
    auto* row = new QHBoxLayout(part);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(scaled(12));
    row->addWidget(new desktop::IconTile(QStringLiteral("export"), scaled(34), desktop::IconTile::Tone::accent, part));
    row->addLayout(words, 1);
    return part;
}

QWidget* ExportSheet::make_foot()
{
    auto* foot = new Surface(Role::cardAlt, this);
    about_ = new TextLabel({}, TextStyle::second, Role::text3, foot);
    auto* cancel = new QPushButton(QStringLiteral("Cancel"), foot);
    cancel->setAutoDefault(false);
    save_ = new QPushButton(foot);
    save_->setObjectName(QStringLiteral("exportSave"));
    save_->setDefault(true);
    desktop::set_button_kind(save_, desktop::ButtonKind::primary);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(save_, &QPushButton::clicked, this, [this] {
        accept();
        Q_EMIT save_requested(choices_);
    });
    auto* row = new QHBoxLayout(foot);
    row->setContentsMargins(scaled(24), scaled(14), scaled(24), scaled(14));
    row->setSpacing(scaled(10));
    row->addWidget(about_, 1);
    row->addWidget(cancel);
    row->addWidget(save_);
    return foot;
}

void ExportSheet::take_choices()
{
    choices_.kind = calendar_->isChecked() ? ExportKind::calendar : ExportKind::grantsCSV;
    choices_.lang = language_->currentIndex() == 0 ? Lang::en : Lang::es;
    calendar_options_->read(choices_);
    redraw();
}

void ExportSheet::redraw()
{
    const bool calendar = choices_.kind == ExportKind::calendar;
    const ExportWords words = export_words(file_, choices_);
    spreadsheet_words_->setVisible(!calendar);
    calendar_options_->setVisible(calendar);
    if (calendar)
        calendar_options_->show_words(words);
    result_->setText(to_qt(words.result));
    hint_->setText(calendar ? QStringLiteral("Importing the .ics file again updates its events.")
                            : QStringLiteral("Texts that a spreadsheet would run as a formula are made safe."));
    about_->setText(to_qt(words.about));
    save_->setText(calendar ? QStringLiteral("Save .ics File…") : QStringLiteral("Save CSV File…"));
    save_->setEnabled(words.any);
    adjustSize();
}

} // namespace quillfern::app
