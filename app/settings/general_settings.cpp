#include "app/settings/general_settings.h"

#include "app/settings/preferences.h"
#include "app/settings/settings_form.h"
#include "desktop/segmented_control.h"
#include "desktop/text_label.h"

#include <QComboBox>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QVBoxLayout>

namespace quillfern::app {

using desktop::Role;
using desktop::scaled;
using desktop::TextStyle;

namespace {

constexpr int longest_name = 200; ///< characters that fit on the line of a report

} // namespace

GeneralSettings::GeneralSettings(Preferences& preferences, QWidget* parent)
    : QWidget(parent), preferences_(preferences), fiscal_start_(new QComboBox(this)),
      draft_lead_(make_days_field(most_draft_lead_days, this)),
      paper_(new desktop::SegmentedControl({QStringLiteral("US Letter"), QStringLiteral("A4")}, this)),
      prepared_by_(new QLineEdit(this)),
      welcome_(new QPushButton(QStringLiteral("Show the Welcome Screen Next Time"), this)),
      welcome_hint_(new desktop::TextLabel(
          QStringLiteral("It shows with the next window."), TextStyle::second, Role::text3, this))
{
    fiscal_start_->setObjectName(QStringLiteral("fiscalStart"));
    draft_lead_->setObjectName(QStringLiteral("draftLead"));
    paper_->setObjectName(QStringLiteral("paper"));
    prepared_by_->setObjectName(QStringLiteral("preparedBy"));
    welcome_->setObjectName(QStringLiteral("showWelcome"));
    for (int month = 1; month <= 12; ++month)
        fiscal_start_->addItem(QLocale(QLocale::English).standaloneMonthName(month));
    fiscal_start_->setFixedWidth(scaled(190));
    prepared_by_->setMaxLength(longest_name);
    prepared_by_->setAccessibleName(QStringLiteral("Prepared by (client status reports)"));
    welcome_->setAutoDefault(false);
    lay_out();
    show_values();
    connect(&preferences_, &Preferences::changed, this, &GeneralSettings::show_values);
    connect(fiscal_start_, &QComboBox::currentIndexChanged, this, &GeneralSettings::keep_changes);
    connect(draft_lead_, &QSpinBox::valueChanged, this, &GeneralSettings::keep_changes);
    connect(paper_, &desktop::SegmentedControl::chosen, this, &GeneralSettings::keep_changes);
    connect(prepared_by_, &QLineEdit::editingFinished, this, &GeneralSettings::keep_prepared_by);
    connect(welcome_, &QPushButton::clicked, this,
        [this] { preferences_.edit([](PreferenceValues& values) { values.welcomeDone = false; }); });
}

void GeneralSettings::lay_out()
{
    QVBoxLayout* column = make_settings_column(this);
    add_settings_heading(column, QStringLiteral("New files"));
    add_settings_row(column, QStringLiteral("Fiscal year begins in"), fiscal_start_);
    add_settings_row(column, QStringLiteral("Start report drafts"), draft_lead_,
        QStringLiteral("days before they are due"),
        QStringLiteral("Each file keeps its own; change an open file’s on its Organization page."));
    add_settings_rule(column);
    add_settings_heading(column, QStringLiteral("PDFs"));
    add_settings_row(column, QStringLiteral("Paper"), paper_);
    add_settings_row(column, QStringLiteral("Prepared by"), prepared_by_, {},
        QStringLiteral("Prepared by (client status reports): your name and business, as printed."));
    add_settings_rule(column);
    auto* welcome = new QVBoxLayout;
    welcome->setSpacing(scaled(4));
    welcome->addWidget(welcome_, 0, Qt::AlignLeft);
    welcome->addWidget(welcome_hint_);
    column->addLayout(welcome);
    column->addStretch();
}

void GeneralSettings::keep_changes()
{
    preferences_.edit([this](PreferenceValues& values) {
        values.defaultFiscalStart = fiscal_start_->currentIndex() + 1;
        values.defaultDraftLead = draft_lead_->value();
        values.paper = paper_->current() == 1 ? Paper::a4 : Paper::letter;
    });
}

void GeneralSettings::keep_prepared_by()
{
    preferences_.edit(
        [this](PreferenceValues& values) { values.preparedBy = prepared_by_->text().trimmed().toStdString(); });
}

void GeneralSettings::show_values()
{
    const PreferenceValues& values = preferences_.values();
    const QSignalBlocker fiscal_start(fiscal_start_);
    const QSignalBlocker draft_lead(draft_lead_);
    fiscal_start_->setCurrentIndex(static_cast<int>(values.defaultFiscalStart) - 1);
    draft_lead_->setValue(static_cast<int>(values.defaultDraftLead));
    paper_->set_current(values.paper == Paper::a4 ? 1 : 0);
    if (!prepared_by_->hasFocus())
        prepared_by_->setText(QString::fromStdString(values.preparedBy));
    welcome_->setEnabled(values.welcomeDone);
    welcome_hint_->setVisible(!values.welcomeDone);
}

/// A name that was being typed when the window was closed is kept as well.
void GeneralSettings::hideEvent(QHideEvent* event)
{
    keep_prepared_by();
    QWidget::hideEvent(event);
}

} // namespace quillfern::app
