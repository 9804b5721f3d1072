#include "app/window/welcome_sheet.h"

#include "app/window/welcome_greeting.h"
#include "desktop/choice_row.h"
#include "desktop/text_label.h"

#include <QBoxLayout>
#include <QPushButton>

namespace quillfern::app {

using desktop::ChoiceRow;
using desktop::Role;
using desktop::scaled;
using desktop::TextLabel;
using desktop::TextStyle;

WelcomeSheet::WelcomeSheet(const WelcomeOffers& offers, QWidget* parent) : Sheet(parent)
{
    setObjectName(QStringLiteral("welcome"));
    setWindowTitle(QStringLiteral("Welcome to Quillfern"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(scaled(36), scaled(30), scaled(36), scaled(26));
    column->setSpacing(scaled(10));
    column->addLayout(make_greeting(windowTitle(), this));
    column->addSpacing(scaled(14));
    add_rows(offers);
    column->addSpacing(scaled(12));
    add_foot(offers.emptyFile);
    setFixedWidth(scaled(640));
    connect(this, &QDialog::rejected, this, &WelcomeSheet::dismissed);
}

QWidget* WelcomeSheet::add_row(const QString& icon, const QString& title, const QString& line, Chosen chosen)
{
    auto* row = new ChoiceRow(icon, title, line, this);
    layout()->addWidget(row);
    connect(row, &ChoiceRow::clicked, this, [this, chosen] {
        accept();
        Q_EMIT(this->*chosen)();
    });
    return row;
}

void WelcomeSheet::add_rows(const WelcomeOffers& offers)
{
    QWidget* sample = add_row(QStringLiteral("sample"), QStringLiteral("Open the Sample Organization"),
        QStringLiteral("A made-up pantry to look around in; it opens in its own window"), &WelcomeSheet::sample_chosen);
    sample->setObjectName(QStringLiteral("welcomeSample"));
    QWidget* csv = add_row(QStringLiteral("table"), QStringLiteral("Import a Spreadsheet…"),
        QStringLiteral("Bring in the grants you keep in a spreadsheet (CSV)"), &WelcomeSheet::import_csv_chosen);
    csv->setObjectName(QStringLiteral("welcomeCSV"));
    csv->setEnabled(offers.importCSV);
    QWidget* board = add_row(QStringLiteral("members"), QStringLiteral("Import a Marrowind Board…"),
        QStringLiteral("Bring in a board file made with Marrowind: members, meetings, motions and action items"),
        &WelcomeSheet::import_board_chosen);
    board->setObjectName(QStringLiteral("welcomeBoard"));
    board->setEnabled(offers.importBoard);
    sample->setFocus();
}

/// The ring shows from the start where Return leads.
void WelcomeSheet::showEvent(QShowEvent* event)
{
    Sheet::showEvent(event);
    setAttribute(Qt::WA_KeyboardFocusChange);
}

void WelcomeSheet::add_foot(bool empty_file)
{
    auto* empty =
        new QPushButton(empty_file ? QStringLiteral("Start with an Empty File") : QStringLiteral("Not Now"), this);
    empty->setObjectName(QStringLiteral("welcomeEmpty"));
    empty->setAutoDefault(false);
    connect(empty, &QPushButton::clicked, this, &QDialog::reject);
    auto* foot = new QHBoxLayout;
    foot->addWidget(new TextLabel(QStringLiteral("Nothing leaves your computer unless you send it yourself."),
                        TextStyle::second, Role::text3, this),
        1);
    foot->addWidget(empty);
    static_cast<QBoxLayout*>(layout())->addLayout(foot);
}

} // namespace quillfern::app
