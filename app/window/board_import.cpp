#include "app/window/board_import.h"

#include "app/pages/count_words.h"
#include "app/window/board_open_dialog.h"
#include "board/board_file.h"
#include "desktop/qt_text.h"
#include "grants/board_import.h"
#include "grants/package_messages.h"
#include "platform/clock.h"
#include "platform/random_uuid.h"

#include <QFile>
#include <QFileInfo>
#include <QPointer>
#include <QStringList>

#include <algorithm>
#include <utility>

namespace quillfern::app {
namespace {

using desktop::AlertWords;
using desktop::to_qt;

using BoardResult = Result<board::BoardRead, board::ReadError>;

BoardResult read_json(const QString& path, const FreshValues& fresh)
{
    const qint64 limit = board::board_package_layout().mainFileLimit;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return fail(board::ReadError(board::Unreadable{file.errorString().toStdString()}));
    if (file.size() > limit)
        return fail(board::ReadError(board::Unreadable{"too large for a board"}));
    return board::read_board_text(file.readAll().toStdString(), fresh);
}

BoardResult read_board_at(const QString& path)
{
    const FreshValues fresh{platform::random_uuid, platform::now()};
    const QFileInfo info(path);
    if (info.isFile())
        return read_json(path, fresh);
    return board::read_board_file(QFile::encodeName(info.canonicalFilePath()).toStdString(), fresh);
}

AlertWords unreadable_words(const board::ReadError& error)
{
    if (std::holds_alternative<board::NewerFormat>(error))
        return {QStringLiteral("This board file is from a newer version"),
            QStringLiteral("Update the app (%1 › Check for Updates…) and try again. Nothing was changed.")
                .arg(QLatin1String(grants::product_name.data(), static_cast<qsizetype>(grants::product_name.size()))),
            {}};
    const auto* unreadable = std::get_if<board::Unreadable>(&error);
    return {QStringLiteral("That isn’t a board file this app can read"),
        QStringLiteral("Choose a .marrowind board file, or the Board.json inside one. Nothing was changed."),
        unreadable ? to_qt(unreadable->detail) : QString()};
}

BoardImportAnswer refused(const grants::BoardImportRefusal& refusal)
{
    BoardImportAnswer answer;
    if (const auto* other = std::get_if<grants::OtherBoard>(&refusal))
        answer.alert = {QStringLiteral("This file already has a board"),
            to_qt(other->name)
                + QStringLiteral("’s board is in this file. Make a new file (File › New) and import the board there: "
                                 "each file is one organization."),
            {}};
    else
        answer.toast = QStringLiteral("This board is already in this file. Nothing changed.");
    return answer;
}

QString counts_toast(const grants::BoardCounts& counts)
{
    return QStringLiteral("Board imported: ")
        + to_qt(count_words(counts.members, "member") + ", " + count_words(counts.meetings, "meeting") + ", "
            + count_words(counts.motions, "motion") + ", " + count_words(counts.actions, "action"));
}

/// No words when all of the board came.
AlertWords notes_words(const ReadNotes& notes)
{
    constexpr std::size_t most_sentences = 8;
    if (notes.empty())
        return {};
    QStringList sentences;
    for (std::size_t i = 0; i < std::min(notes.size(), most_sentences); ++i)
        sentences.append(to_qt(notes[i]));
    if (notes.size() > most_sentences)
        sentences.append(QStringLiteral("… and %1 more").arg(notes.size() - most_sentences));
    return {QStringLiteral("Some of this board couldn’t be read."),
        QStringLiteral("What is listed here was left out or took its usual value. The rest has been imported, and the "
                       "board file is as it was."),
        sentences.join(QLatin1Char('\n'))};
}

void take(
    const BoardImportAnswer& answer, const grants::GrantFile& current, QWidget* window, const BoardImported& imported)
{
    if (!answer.toast.isEmpty())
        imported(answer.next.value_or(current), QStringLiteral("Import Board"), answer.toast);
    if (!answer.alert.title.isEmpty())
        desktop::show_alert(answer.alert, window);
}

} // namespace

BoardImportAnswer import_board_file(const grants::GrantFile& current, const QString& path)
{
    const BoardResult read = read_board_at(path);
    BoardImportAnswer answer;
    if (!read) {
        answer.alert = unreadable_words(read.error());
        return answer;
    }
    auto imported = grants::import_board(current, read->board);
    if (!imported)
        return refused(imported.error());
    answer.next = std::move(imported->file);
    answer.toast = counts_toast(imported->counts);
    answer.alert = notes_words(read->notes);
    return answer;
}

void start_board_import(std::function<grants::GrantFile()> current, QWidget* window, BoardImported imported)
{
    auto* dialog = new BoardOpenDialog(window);
    QObject::connect(dialog, &BoardOpenDialog::board_chosen, dialog,
        [current = std::move(current), imported = std::move(imported), above = QPointer<QWidget>(window)](
            const QString& path) {
            const grants::GrantFile file = current();
            take(import_board_file(file, path), file, above, imported);
        });
    dialog->open();
}

} // namespace quillfern::app
