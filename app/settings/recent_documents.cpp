#include "app/settings/recent_documents.h"

#include "app/settings/settings_file.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace quillfern::app {
namespace {

const QString key = QStringLiteral("recentDocuments");

QString absolute(const QString& path)
{
    return QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

/// Absolute paths only, each once, no more than the list holds.
QStringList tidy(const QStringList& paths)
{
    QStringList kept;
    for (const QString& path : paths)
        if (QDir::isAbsolutePath(path))
            kept.append(QDir::cleanPath(path));
    kept.removeDuplicates();
    return kept.mid(0, RecentDocuments::most);
}

QString folder_for_reader(const QFileInfo& info)
{
    const QString folder = info.absolutePath();
    const QString home = QDir::homePath();
    if (folder == home || folder.startsWith(home + QLatin1Char('/')))
        return QLatin1Char('~') + folder.mid(home.size());
    return folder;
}

RecentDocument described(const QString& path)
{
    const QFileInfo info(path);
    return {path, info.completeBaseName(), folder_for_reader(info), !info.exists(), {}};
}

} // namespace

RecentDocuments::RecentDocuments(SettingsFile& file, QObject* parent)
    : QObject(parent), file_(file), paths_(tidy(file.value(key).toStringList()))
{
}

std::vector<RecentDocument> RecentDocuments::listed() const
{
    std::vector<RecentDocument> documents;
    for (const QString& path : paths_)
        documents.push_back(described(path));
    for (RecentDocument& document : documents) {
        const auto namesakes = std::count_if(documents.begin(), documents.end(),
            [&](const RecentDocument& other) { return other.name == document.name; });
        document.label = namesakes > 1 ? QStringLiteral("%1 — %2").arg(document.name, document.folder) : document.name;
    }
    return documents;
}

void RecentDocuments::add(const QString& path)
{
    replace(QStringList(absolute(path)) + paths_);
}

void RecentDocuments::remove(const QString& path)
{
    QStringList next = paths_;
    next.removeAll(absolute(path));
    replace(next);
}

void RecentDocuments::rename(const QString& from, const QString& to)
{
    if (absolute(from) == absolute(to) || !paths_.contains(absolute(from)))
        return;
    QStringList next = paths_;
    next.removeAll(absolute(to)); // it was replaced
    next[next.indexOf(absolute(from))] = absolute(to);
    replace(next);
}

void RecentDocuments::clear()
{
    replace({});
}

void RecentDocuments::replace(const QStringList& paths)
{
    const QStringList next = tidy(paths);
    if (next == paths_)
        return;
    paths_ = next;
    file_.keep({{key, paths_}});
    Q_EMIT changed();
}

} // namespace quillfern::app
