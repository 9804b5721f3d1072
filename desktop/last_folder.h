#pragma once

#include <QString>

namespace quillfern::desktop {

/// Each kind of file has a folder of its own in which its dialogs begin.
enum class FolderOf { documents, exports };

/// Where the last file of the kind was, or the user's documents, or what there is of the two.
QString last_folder(FolderOf kind);

/// To be called with a file that the user has chosen.
void remember_folder(FolderOf kind, const QString& file);

} // namespace quillfern::desktop
