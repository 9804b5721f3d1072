#pragma once

#include "app/help/program_version.h"

#include <QByteArray>
#include <QUrl>

#include <optional>
#include <vector>

namespace quillfern::app {

/// An appcast is the list of a program's versions as an RSS 2.0 feed. Each item is a version; its number stands on the
/// item's enclosure, or in elements of the item, in Sparkle's namespace
/// (https://sparkle-project.org/documentation/publishing/):
///
///     <item>
///       <link>https://quillfern.example/download</link>
///       <enclosure url="https://quillfern.example/quillfern_1.2_amd64.deb" sparkle:version="1.2" sparkle:os="linux"/>
///     </item>
struct AppcastItem {
    ProgramVersion version; ///< `shortVersionString`, which people read, where there is one; else `version`
    QUrl link; ///< where to get it: the item's page, else the enclosure. Always https; empty: none is usable
};

/// The versions for this system in the feed's order. Items for another system or a channel of their own, and those
/// without a version, are left out. Absent when the bytes are no such feed; a feed that declares a document type is
/// none either, so that nothing in it can expand.
std::optional<std::vector<AppcastItem>> read_appcast(const QByteArray& bytes);

/// The newest item if it is newer than `current`.
std::optional<AppcastItem> newer_version(const std::vector<AppcastItem>& items, const ProgramVersion& current);

} // namespace quillfern::app
