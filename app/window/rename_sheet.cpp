#include "app/window/rename_sheet.h"

#include "app/document/file_names.h"
#include "desktop/style.h"
#include "desktop/text_label.h"

#include <QBoxLayout>
#include <QLineEdit>
#include <QPushButton>

namespace quillfern::app {
namespace {

using desktop::Role;
using desktop::scaled;
using desktop::TextLabel;
using desktop::TextStyle;

} // namespace

RenameSheet::RenameSheet(const QString& name, QWidget* parent)
    : Sheet(parent), name_(new QLineEdit(name, this)),
      problem_(new TextLabel({}, TextStyle::second, Role::danger, this)),
      rename_(new QPushButton(QStringLiteral("Rename"), this))
{
    setObjectName(QStringLiteral("renameSheet"));
    setWindowTitle(QStringLiteral("Rename"));
    name_->setObjectName(QStringLiteral("renameName"));
    name_->setAccessibleName(QStringLiteral("Name"));
    name_->selectAll();
    rename_->setObjectName(QStringLiteral("renameDo"));
    desktop::set_button_kind(rename_, desktop::ButtonKind::primary);
    rename_->setDefault(true);
    lay_out();
    connect(name_, &QLineEdit::textChanged, this, &RenameSheet::judge);
    connect(rename_, &QPushButton::clicked, this, [this] {
        const QString chosen = name_->text().trimmed();
        accept();
        Q_EMIT name_chosen(chosen);
    });
    judge();
    name_->setFocus();
}

void RenameSheet::lay_out()
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(scaled(24), scaled(20), scaled(24), scaled(18));
    column->setSpacing(scaled(8));
    column->addWidget(new TextLabel(QStringLiteral("Rename the file"), TextStyle::sheetTitle, Role::text, this));
    column->addWidget(name_);
    column->addWidget(problem_);
    column->addSpacing(scaled(8));
    column->addLayout(make_foot(rename_));
    setFixedWidth(scaled(440));
}

void RenameSheet::judge()
{
    const QString problem = QString::fromStdString(file_name_problem(name_->text().trimmed().toStdString()));
    problem_->setText(problem);
    rename_->setEnabled(problem.isEmpty());
}

} // namespace quillfern::app
