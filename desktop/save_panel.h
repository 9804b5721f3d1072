#pragma once

#include "desktop/last_folder.h"
#include "desktop/package_dialog.h"

namespace quillfern::desktop {

/// Asks where to save a plain file. The name gets its ending when the user leaves it out. Whether to replace a file
/// that is there already is asked by whoever saves: only the attempt can tell for sure. It cannot go into a document.
class SavePanel : public PackageDialog {
    Q_OBJECT
public:
    /// `kind` names the files ("Spreadsheets"); `suffix` is without the dot; `name` is what is proposed, in the folder
    /// where the last file of this program was saved.
    SavePanel(const QString& kind, const QString& suffix, const QString& name, QWidget* parent);

    void accept() override;

Q_SIGNALS:
    void path_chosen(const QString& path);

protected:
    struct Saved {
        QString kind;
        QString suffix;
        QString name;
        FolderOf folder;
        PackageModel::Listing listing;
    };

    SavePanel(const Saved& saved, QWidget* parent);

    void activate_package(const QString& path) override;

private:
    Saved saved_;
};

/// The same for a document that is a folder on disk. A click on another document takes its name.
class PackageSavePanel : public SavePanel {
    Q_OBJECT
public:
    /// It begins in `folder`, or where the last document was when that is empty.
    PackageSavePanel(const QString& kind, const QString& name, const QString& folder, QWidget* parent);

protected:
    void activate_package(const QString& path) override;
};

} // namespace quillfern::desktop
