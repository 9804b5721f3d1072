#pragma once

#include <QFileDialog>

namespace quillfern::desktop {

/// Asks where to save a plain file. The name gets its ending when the user leaves it out. Whether to replace a file
/// that is there already is asked by whoever saves: only the attempt can tell for sure.
class SavePanel : public QFileDialog {
    Q_OBJECT
public:
    /// `kind` names the files ("Spreadsheets"); `suffix` is without the dot; `name` is what is proposed, in the folder
    /// where the last file of this program was saved.
    SavePanel(const QString& kind, const QString& suffix, const QString& name, QWidget* parent);

Q_SIGNALS:
    void path_chosen(const QString& path);
};

} // namespace quillfern::desktop
