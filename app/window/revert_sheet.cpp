#include "app/window/revert_sheet.h"

#include "app/document/open_document.h"
#include "desktop/alert.h"
#include "desktop/style.h"
#include "desktop/text_label.h"
#include "grants/org_package.h"
#include "platform/clock.h"

#include <QBoxLayout>
#include <QDateTime>
#include <QFile>
#include <QListWidget>
#include <QLocale>
#include <QPushButton>

namespace quillfern::app {
namespace {

using desktop::Role;
using desktop::scaled;
using desktop::TextLabel;
using desktop::TextStyle;

constexpr double row_height = 36;

} // namespace

QString moment_words(Instant moment, Instant now)
{
    const QLocale english(QLocale::English, QLocale::UnitedStates);
    const QDateTime then = QDateTime::fromMSecsSinceEpoch(moment.milliseconds);
    const qint64 days = then.date().daysTo(QDateTime::fromMSecsSinceEpoch(now.milliseconds).date());
    const QString day = days == 0 ? QStringLiteral("Today")
        : days == 1               ? QStringLiteral("Yesterday")
                                  : english.toString(then.date(), QStringLiteral("MMMM d, yyyy"));
    return day + QLatin1String(", ") + english.toString(then.time(), QStringLiteral("h:mm AP"));
}

RevertSheet::RevertSheet(const OpenDocument& document, platform::VersionsStore& store, QWidget* parent)
    : Sheet(parent), store_(store),
      versions_(store.versions_of(QFile::encodeName(document.disk().path()).toStdString())),
      lists_saved_(document.document().is_modified() && document.document().saved()), list_(new QListWidget(this)),
      revert_(new QPushButton(QStringLiteral("Revert"), this))
{
    setObjectName(QStringLiteral("revertSheet"));
    setWindowTitle(QStringLiteral("Revert to Saved"));
    list_->setObjectName(QStringLiteral("revertList"));
    list_->setAccessibleName(QStringLiteral("Saved states"));
    revert_->setObjectName(QStringLiteral("revertDo"));
    desktop::set_button_kind(revert_, desktop::ButtonKind::primary);
    revert_->setDefault(true);
    list_states(document);
    lay_out();
    connect(revert_, &QPushButton::clicked, this, &RevertSheet::revert);
    connect(list_, &QListWidget::itemActivated, this, &RevertSheet::revert);
    list_->setFocus();
}

void RevertSheet::list_states(const OpenDocument&)
{
    const auto add = [this](const QString& text) {
        auto* item = new QListWidgetItem(text, list_);
        item->setSizeHint(QSize(0, scaled(row_height)));
    };
    if (lists_saved_)
        add(QStringLiteral("The saved file"));
    const Instant now = platform::now();
    for (const platform::Version& version : versions_)
        add(moment_words(version.savedAt, now));
    list_->setCurrentRow(0);
    revert_->setEnabled(list_->count() > 0);
}

void RevertSheet::lay_out()
{
    const QString words = list_->count() > 0
        ? QStringLiteral("The state you choose takes the place of what the window shows. Edit › Undo brings that back.")
        : QStringLiteral("Nothing has changed since the file was saved, and no earlier version is kept.");
    auto* hint = new TextLabel(words, TextStyle::body, Role::text2, this);
    hint->setWordWrap(true);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(scaled(24), scaled(20), scaled(24), scaled(18));
    column->setSpacing(scaled(10));
    column->addWidget(
        new TextLabel(QStringLiteral("Go back to a saved state"), TextStyle::sheetTitle, Role::text, this));
    column->addWidget(hint);
    column->addWidget(list_);
    column->addLayout(make_foot(revert_));
    list_->setVisible(list_->count() > 0);
    list_->setMinimumHeight(scaled(row_height * 6));
    setFixedWidth(scaled(480));
}

void RevertSheet::revert()
{
    const int row = list_->currentRow();
    if (row < 0)
        return;
    if (lists_saved_ && row == 0) {
        accept();
        Q_EMIT saved_chosen();
        return;
    }
    const platform::Version& version = versions_[static_cast<std::size_t>(row - (lists_saved_ ? 1 : 0))];
    auto opened = grants::read_package(version.path);
    if (!opened || !store_.protect(opened->place->tree)) {
        desktop::show_alert({QStringLiteral("This version couldn’t be read."),
                                QStringLiteral("Nothing was changed. Choose another one."),
                                opened ? QString() : QString::fromStdString(opened.error().text)},
            this);
        return;
    }
    accept();
    Q_EMIT version_chosen(opened->package);
}

} // namespace quillfern::app
