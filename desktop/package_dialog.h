#pragma once

#include <QFileDialog>

class QAbstractItemView;

namespace quillfern::desktop {

/// The open dialog for documents that are folders on disk ("packages"): a package is shown as one file, cannot be
/// entered, and a double click or Return opens it. Other folders are entered as usual.
///
/// The desktop's own dialogs would lead the user into the package, so this is the toolkit's dialog throughout.
class PackageOpenDialog : public QFileDialog {
    Q_OBJECT
public:
    /// `suffix` without the dot; `kind` names the documents in the dialog ("Quillfern organizations").
    PackageOpenDialog(QString suffix, const QString& kind, QWidget* parent);

    void accept() override;

Q_SIGNALS:
    void package_chosen(const QString& path);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool is_package(const QString& path) const;
    QString current_path(const QAbstractItemView* view) const;
    void choose(const QString& path);

    QString suffix_;
    QString last_folder_;
};

} // namespace quillfern::desktop
