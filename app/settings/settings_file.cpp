#include "app/settings/settings_file.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QStringDecoder>

namespace quillfern::app {
namespace {

/// Many times what the program ever writes there, in bytes; more is not worth reading at every start.
constexpr qint64 largest_file = 1'000'000;

bool is_text(const QByteArray& bytes)
{
    QStringDecoder utf8(QStringDecoder::Utf8);
    const QString text = utf8(bytes);
    return !utf8.hasError() && !text.contains(QChar::Null);
}

bool can_be_used(const QString& path)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || file.size() > largest_file || !file.open(QIODevice::ReadOnly))
        return false;
    if (!is_text(file.readAll()))
        return false;
    const QSettings probe(path, QSettings::IniFormat);
    probe.allKeys(); // only now are the lines looked at
    return probe.status() == QSettings::NoError;
}

/// A name beside the file that nothing has yet: an earlier damaged file is kept as well.
QString name_for_damaged(const QString& path)
{
    const QString first = path + QStringLiteral(".damaged");
    QString name = first;
    for (int number = 2; QFileInfo::exists(name) || QFileInfo(name).isSymLink(); ++number)
        name = first + QStringLiteral("-%1").arg(number);
    return name;
}

QString for_reader(const QString& path)
{
    const QString home = QDir::homePath() + QLatin1Char('/');
    return QDir::toNativeSeparators(path.startsWith(home) ? QStringLiteral("~/") + path.mid(home.size()) : path);
}

} // namespace

SettingsFile::SettingsFile(const QString& path, QObject* parent) : QObject(parent), path_(path)
{
    bool usable = !QFileInfo::exists(path_) || can_be_used(path_);
    if (!usable) {
        problem_ = at_start_ = clear_the_way();
        usable = !QFileInfo::exists(path_);
    }
    if (usable)
        stored_ = std::make_unique<QSettings>(path_, QSettings::IniFormat);
}

QString SettingsFile::default_path()
{
    return QStringLiteral("%1/%2/%3.conf")
        .arg(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation),
            QCoreApplication::organizationName(), QCoreApplication::applicationName());
}

QString SettingsFile::clear_the_way()
{
    const QString aside = name_for_damaged(path_);
    if (QFile::rename(path_, aside))
        return QStringLiteral("The settings couldn’t be read, so they have their usual values. What was there is kept "
                              "as “%1”.")
            .arg(for_reader(aside));
    return QStringLiteral("The settings couldn’t be read, and “%1” can’t be moved out of the way. Changes hold only "
                          "until you quit Quillfern.")
        .arg(for_reader(path_));
}

QVariant SettingsFile::value(const QString& key) const
{
    const auto kept = kept_.constFind(key);
    if (kept != kept_.constEnd())
        return *kept;
    return stored_ ? stored_->value(key) : QVariant();
}

void SettingsFile::keep(const QVariantMap& values)
{
    kept_.insert(values);
    if (!stored_)
        return;
    QSettings writer(path_, QSettings::IniFormat); // a new one: the status of the last write sticks to the old one
    for (auto value = values.begin(); value != values.end(); ++value)
        writer.setValue(value.key(), value.value());
    writer.sync();
    const bool written = writer.status() == QSettings::NoError;
    tell(written ? at_start_
                 : QStringLiteral("The settings can’t be saved in “%1”. Changes hold only until you quit Quillfern.")
                       .arg(for_reader(path_)));
}

void SettingsFile::tell(const QString& problem)
{
    if (problem == problem_)
        return;
    problem_ = problem;
    Q_EMIT problem_changed();
}

} // namespace quillfern::app
