#pragma once

#include <QString>

namespace quillfern::app {

/// The package that a path names: an organization file inside a package stands for the package, so that a file manager
/// that knows no packages can open one too. The result is absolute and free of links, and is the package's identity.
QString package_path(const QString& path);

} // namespace quillfern::app
