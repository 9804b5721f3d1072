#include "app/help/update_check.h"

#include "app/help/appcast.h"

namespace quillfern::app {
namespace {

UpdateAnswer failed()
{
    return {UpdateAnswer::Kind::failed,
        {QStringLiteral("Couldn’t check for updates"), QStringLiteral("Check your internet connection and try again."),
            {}},
        {}};
}

UpdateAnswer up_to_date(const QString& current)
{
    return {UpdateAnswer::Kind::upToDate,
        {QStringLiteral("You’re up to date"), QStringLiteral("Quillfern %1 is the newest version.").arg(current), {}},
        {}};
}

UpdateAnswer newer(const AppcastItem& item, const QString& current, const QUrl& page)
{
    return {UpdateAnswer::Kind::newer,
        {QStringLiteral("Quillfern %1 is available").arg(QString::fromStdString(item.version.text())),
            QStringLiteral("You have version %1. The download opens in your browser; nothing is installed by itself.")
                .arg(current),
            {}},
        item.link.isEmpty() ? page : item.link};
}

} // namespace

UpdateAnswer judge_updates(const std::optional<QByteArray>& feed, const QString& current, const QUrl& page)
{
    const auto running = ProgramVersion::parse(current.toStdString());
    const auto items = feed ? read_appcast(*feed) : std::nullopt;
    if (!items || !running)
        return failed();
    const auto item = newer_version(*items, *running);
    return item ? newer(*item, current, page) : up_to_date(current);
}

} // namespace quillfern::app
