#pragma once

#include "desktop/alert.h"

#include <QByteArray>
#include <QString>
#include <QUrl>

#include <optional>

namespace quillfern::app {

/// What a check for updates found, in the words of its alert.
struct UpdateAnswer {
    enum class Kind { upToDate, newer, failed };

    Kind kind;
    desktop::AlertWords words;
    QUrl download; ///< for a newer version: the page to open
};

/// `feed` is what the web gave, or nothing; `current` is the version of the running program and `page` the program's
/// own web page, for a newer version without an address of its own.
UpdateAnswer judge_updates(const std::optional<QByteArray>& feed, const QString& current, const QUrl& page);

} // namespace quillfern::app
