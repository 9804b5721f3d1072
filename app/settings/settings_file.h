#pragma once

#include <QObject>
#include <QSettings>
#include <QString>
#include <QVariantMap>

#include <memory>

namespace quillfern::app {

/// The file in which the program keeps what it remembers of its user, one value a key.
///
/// Nothing that stands there keeps the program from starting: what cannot be read as settings (damaged, a folder, not
/// allowed to be read) is renamed to "….damaged" before anything is written, and every value is absent. A value that
/// cannot be written holds until the program ends. problem() says either for the user.
class SettingsFile : public QObject {
    Q_OBJECT
public:
    explicit SettingsFile(const QString& path = default_path(), QObject* parent = nullptr);

    /// Where QSettings keeps the settings of this program.
    static QString default_path();

    /// Absent: an invalid variant. What was written by hand may come as a text or a list of texts.
    QVariant value(const QString& key) const;

    void keep(const QVariantMap& values);

    /// A sentence or two for the user; empty: all is well.
    const QString& problem() const { return problem_; }

Q_SIGNALS:
    void problem_changed();

private:
    void tell(const QString& problem);
    QString clear_the_way();

    QString path_;
    std::unique_ptr<QSettings> stored_; ///< null when the file cannot be used
    QVariantMap kept_; ///< what was changed since the start
    QString at_start_; ///< what was wrong when the program started
    QString problem_;
};

} // namespace quillfern::app
