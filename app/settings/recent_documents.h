#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

#include <vector>

namespace quillfern::app {

class SettingsFile;

/// A document as a menu or a list of recent ones names it.
struct RecentDocument {
    QString path;
    QString name; ///< without the folder and the ending
    QString folder; ///< "~/Documents"
    bool missing = false; ///< there is nothing at its path now; the drive may only be away

    /// The name, and the folder where another document in the list has the same name.
    QString label;
};

/// The documents that were opened or saved last, by absolute path, newest first, each once, ten at most.
///
/// One that is missing stays in the list, greyed: it may be on a drive that is away.
class RecentDocuments : public QObject {
    Q_OBJECT
public:
    /// `file` must outlive the list.
    explicit RecentDocuments(SettingsFile& file, QObject* parent = nullptr);

    static constexpr qsizetype most = 10;

    const QStringList& paths() const { return paths_; }

    /// For showing: looks at each path, so call it when a menu opens rather than at the start.
    std::vector<RecentDocument> listed() const;

    /// Puts the document first.
    void add(const QString& path);
    void remove(const QString& path);

    /// The document has moved: it keeps its place. Nothing happens when it is not in the list.
    void rename(const QString& from, const QString& to);

    void clear();

Q_SIGNALS:
    void changed();

private:
    void replace(const QStringList& paths);

    SettingsFile& file_;
    QStringList paths_;
};

} // namespace quillfern::app
