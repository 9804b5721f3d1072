#include "app/window/document_desk.h"

#include "app/application.h"
#include "app/document/document_words.h"
#include "app/state/window_model.h"
#include "app/window/document_mover.h"
#include "app/window/revert_sheet.h"
#include "desktop/alert.h"
#include "desktop/save_panel.h"
#include "grants/attachments.h"
#include "grants/package_messages.h"

#include <QDate>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSignalBlocker>
#include <QWidget>

#include <utility>

namespace quillfern::app {
namespace {

using desktop::AlertChoice;
using desktop::ButtonKind;
using platform::Existing;
using platform::PackageChange;
using platform::SaveProblem;

const QString file_kind = QStringLiteral("Quillfern organizations");
constexpr int most_names = 100;

/// A free name for this window's version beside the document: "Pantry (kept 2026-03-07).quillfern".
QString path_beside(const QString& path)
{
    const QFileInfo info(path);
    const QString base =
        QStringLiteral("%1 (kept %2)").arg(document_name(path), QDate::currentDate().toString(Qt::ISODate));
    QString candidate = base;
    for (int i = 2; i < most_names && QFileInfo::exists(info.dir().filePath(with_suffix(candidate))); ++i)
        candidate = QStringLiteral("%1 %2").arg(base).arg(i);
    return info.dir().filePath(with_suffix(candidate));
}

} // namespace

DocumentDesk::DocumentDesk(OpenDocument& document, WindowModel& model, Application& application, QWidget& window)
    : QObject(&window), document_(document), model_(model), application_(application), window_(window),
      mover_(new DocumentMover(document, model, application, window))
{
    connect(mover_, &DocumentMover::changed_outside, this, &DocumentDesk::ask_about_change);
    connect(&document_, &OpenDocument::saved, this, &DocumentDesk::take_saved);
    connect(&document_, &OpenDocument::save_failed, this, &DocumentDesk::take_failure);
}

QString DocumentDesk::name() const
{
    return document_.disk().is_named() ? QFileInfo(document_.disk().path()).fileName() : document_.title();
}

void DocumentDesk::perform(Notice::Action action)
{
    switch (action) {
    case Notice::Action::duplicate:
        return duplicate();
    case Notice::Action::tryLock:
        return try_lock();
    case Notice::Action::reload:
        return reload();
    case Notice::Action::keepBoth:
        return keep_both();
    case Notice::Action::saveAs:
        return save_as();
    case Notice::Action::save:
        return save();
    case Notice::Action::revert:
        return revert_to_saved();
    }
}

void DocumentDesk::save()
{
    if (!document_.disk().is_named() || !document_.disk().is_writable())
        return save_as();
    document_.look_at_disk();
    if (document_.disk_change() != PackageChange::same)
        return ask_about_change(document_.disk_change());
    start([this] { document_.save(OpenDocument::Asked::byUser); });
}

void DocumentDesk::start(std::function<void()> save)
{
    last_save_ = std::move(save);
    last_save_();
}

void DocumentDesk::save_to(const QString& path, Existing existing)
{
    start([this, path, existing] { document_.save_as(path, existing); });
}

void DocumentDesk::save_as()
{
    const QString& path = document_.disk().path();
    if (path.isEmpty())
        ask_where(proposed_file_name(document_.document().package()), QString());
    else
        ask_where(document_name(path), QFileInfo(path).path());
}

void DocumentDesk::ask_where(const QString& proposed, const QString& folder)
{
    auto* panel = new desktop::PackageSavePanel(file_kind, proposed, folder, &window_);
    connect(panel, &desktop::PackageSavePanel::path_chosen, this, &DocumentDesk::save_to_chosen);
    connect(panel, &QDialog::rejected, this, [this] { decide_close(false); });
    panel->open();
}

void DocumentDesk::save_to_chosen(const QString& path)
{
    if (QFileInfo::exists(path))
        return ask_to_replace(path);
    save_to(path, Existing::refuse);
}

void DocumentDesk::ask_to_replace(const QString& path)
{
    const QFileInfo file(path);
    desktop::choose({QStringLiteral("Replace “%1”?").arg(file.fileName()),
                        QStringLiteral("A file of this name is in “%1” already. Replacing it puts what is in it with "
                                       "the earlier versions.")
                            .arg(file.dir().dirName()),
                        {}},
        {QStringLiteral("warning"), desktop::IconTile::Tone::warn,
            {{QStringLiteral("Replace"), ButtonKind::destructive,
                [this, path] { save_to(path, Existing::replacePackage); }}}},
        &window_, [this, path] { ask_where(document_name(path), QFileInfo(path).path()); });
}

void DocumentDesk::duplicate()
{
    application_.open_copy(document_);
}

void DocumentDesk::rename()
{
    mover_->rename();
}

void DocumentDesk::move_to()
{
    mover_->move_to();
}

void DocumentDesk::revert()
{
    auto* sheet = new RevertSheet(document_, application_.storage().versions(), &window_);
    connect(sheet, &RevertSheet::saved_chosen, this, &DocumentDesk::revert_to_saved);
    connect(sheet, &RevertSheet::version_chosen, this, [this](const grants::OrgPackage& version) {
        document_.document().edit(QStringLiteral("Revert to Earlier Version"), version);
    });
    connect(sheet, &QDialog::accepted, this,
        [this] { model_.tell("An earlier version is shown. Edit › Undo brings the later one back."); });
    sheet->open();
}

bool DocumentDesk::can_revert() const
{
    const DocumentFile& disk = document_.disk();
    const Document& document = document_.document();
    return disk.is_named() && ((document.is_modified() && document.saved()) || disk.has_versions());
}

void DocumentDesk::revert_to_saved()
{
    if (const auto& saved = document_.document().saved())
        document_.document().edit(QStringLiteral("Revert to Saved"), saved->package);
}

void DocumentDesk::reload()
{
    decide_close(false); // to be looked at
    const auto done = document_.reload();
    if (!done) {
        const auto words = grants::package_message(done.error(), name().toStdString());
        desktop::show_alert({QString::fromStdString(words.title), QString::fromStdString(words.text),
                                QString::fromStdString(done.error().text)},
            &window_);
        return;
    }
    model_.tell("The other version is shown. Edit › Undo brings this window’s back.");
}

void DocumentDesk::keep_both()
{
    save_to(path_beside(document_.disk().path()), Existing::refuse);
}

void DocumentDesk::try_lock()
{
    if (!document_.disk().try_lock())
        return model_.tell("The other program still has the file open.");
    const auto done = document_.reload(); // what the other program has saved meanwhile
    Q_EMIT access_changed();
    if (!done)
        document_.look_at_disk();
}

void DocumentDesk::take_saved(const platform::SaveOutcome& outcome, OpenDocument::Asked asked)
{
    application_.recent_documents().add(document_.disk().path());
    if (asked == OpenDocument::Asked::byUser && !closing_)
        model_.tell("Saved “" + name().toStdString() + "”.");
    const bool has_more_to_say = explain(outcome);
    decide_close(!document_.document().is_modified() && !has_more_to_say);
}

/// Once: what cannot be put away now is met again at every save, and some of them nobody has asked for. Only another
/// program's version is worth keeping a window open for.
bool DocumentDesk::explain(const platform::SaveOutcome& outcome)
{
    const QStringList sentences = outcome_sentences(outcome);
    if (sentences.isEmpty() || (closing_ && outcome.conflict.empty())
        || sentences == std::exchange(explained_, sentences))
        return false;
    desktop::show_alert({QStringLiteral("“%1” is saved").arg(name()), sentences.join(QLatin1Char('\n')), {}}, &window_);
    return true;
}

void DocumentDesk::take_failure(const SaveFailure& failure, OpenDocument::Asked asked)
{
    if (asked == OpenDocument::Asked::byItself && !closing_)
        return; // the strip over the page says so
    const SaveProblem problem = failure.error.problem;
    if (!failure.lock && (problem == SaveProblem::changedOnDisk || problem == SaveProblem::gone)) {
        decide_close(false);
        return ask_about_change(document_.disk_change());
    }
    const bool lost = !failure.lock && problem == SaveProblem::attachmentLost;
    DocumentWords words = failure_words(failure, name());
    if (lost)
        words.message = lost_files_words(document_.document().package());
    std::vector<AlertChoice> choices = {lost
            ? AlertChoice{QStringLiteral("Save Anyway"), ButtonKind::primary, [this] { save_without_lost_files(); }}
            : AlertChoice{QStringLiteral("Save As…"), ButtonKind::primary, [this] { save_as(); }}};
    if (closing_)
        choices.insert(choices.begin(),
            {QStringLiteral("Close Without Saving"), ButtonKind::destructive, [this] { decide_close(true); }});
    desktop::choose({words.title, words.message, {}},
        {QStringLiteral("warning"), desktop::IconTile::Tone::warn, std::move(choices)}, &window_,
        [this] { decide_close(false); });
}

void DocumentDesk::save_without_lost_files()
{
    const auto present = grants::read_package(QFile::encodeName(document_.disk().path()).toStdString());
    document_.document().edit(QStringLiteral("Leave Out Lost Files"),
        grants::without_lost_files(document_.document().package(), present ? &present->package : nullptr));
    last_save_();
}

void DocumentDesk::ask_about_change(PackageChange change)
{
    const DocumentWords words = change_words(change, name(), document_.document().package());
    std::vector<AlertChoice> choices = {{QStringLiteral("Save As…"), ButtonKind::normal, [this] { save_as(); }}};
    if (change == PackageChange::changed) {
        choices.push_back({QStringLiteral("Reload"), ButtonKind::normal, [this] { reload(); }});
        choices.push_back({QStringLiteral("Keep Both"), ButtonKind::primary, [this] { keep_both(); }});
    }
    desktop::choose({words.title, words.message, {}},
        {QStringLiteral("warning"), desktop::IconTile::Tone::warn, std::move(choices)}, &window_,
        [this] { decide_close(false); });
}

bool DocumentDesk::may_close()
{
    document_.disk().finish();
    if (!document_.document().is_modified())
        return true;
    if (document_.saves_itself())
        return try_to_save_before_closing();
    ask_whether_to_keep();
    return false;
}

/// What saves itself needs no question. When it fails, the words of the failure offer to close all the same.
bool DocumentDesk::try_to_save_before_closing()
{
    closing_ = true;
    closes_ = false;
    {
        const QSignalBlocker nobody_waits(this); // the answer is returned
        start([this] { document_.save(OpenDocument::Asked::byItself); });
        document_.disk().finish();
    }
    if (!closing_ && !closes_)
        Q_EMIT close_decided(false);
    return closes_;
}

void DocumentDesk::ask_whether_to_keep()
{
    closing_ = true;
    const bool named = document_.disk().is_named();
    const QString question = named ? QStringLiteral("Do you want to keep the changes in “%1”?").arg(name())
                                   : QStringLiteral("Do you want to keep the new document “%1”?").arg(name());
    const QString consequence = QStringLiteral("What isn’t saved can’t be brought back.");
    desktop::choose({question, consequence, {}},
        {QStringLiteral("warning"), desktop::IconTile::Tone::warn,
            {{named ? QStringLiteral("Don’t Save") : QStringLiteral("Delete"), ButtonKind::destructive,
                 [this] { decide_close(true); }},
                {named ? QStringLiteral("Save") : QStringLiteral("Save…"), ButtonKind::primary, [this] { save(); }}}},
        &window_, [this] { decide_close(false); });
}

void DocumentDesk::decide_close(bool close)
{
    if (!std::exchange(closing_, false))
        return;
    closes_ = close;
    Q_EMIT close_decided(close);
}

} // namespace quillfern::app
