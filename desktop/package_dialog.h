#pragma once

#include "desktop/package_model.h"

#include <QFileDialog>

class QAbstractItemView;
class QLineEdit;

namespace quillfern::desktop {

/// A file dialog in which documents that are folders on disk ("packages") look like files and cannot be entered: what
/// is in them is not the user's to arrange. Other folders are entered as usual.
///
/// The desktop's own dialogs would lead the user into the package, so this is the toolkit's dialog throughout.
class PackageDialog : public QFileDialog {
    Q_OBJECT
protected:
    /// `suffix` is without the dot.
    PackageDialog(QString suffix, PackageModel::Listing listing, QWidget* parent);

    const QString& suffix() const { return suffix_; }

    /// Double click or Return on a package.
    virtual void activate_package(const QString& path) = 0;

    QLineEdit* name_field() const { return field_; }

    /// What the name field names; the folder that is shown when it is empty.
    QString named_path() const;

    void enter(const QString& folder);

    /// Whether files can be put into the folder; when not, an alert says why.
    bool can_hold_files(const QString& folder);

    void refuse(const QString& title, const QString& message);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void give_room_to_names();
    QString current_path(const QAbstractItemView* view) const;

    QString suffix_;
    QString last_folder_;
    QLineEdit* field_ = nullptr;
};

/// Asks which document to open: a double click or Return opens it.
class PackageOpenDialog : public PackageDialog {
    Q_OBJECT
public:
    /// `kind` names the documents in the dialog ("Quillfern organizations").
    PackageOpenDialog(const QString& suffix, const QString& kind, QWidget* parent);

    void accept() override;

Q_SIGNALS:
    void package_chosen(const QString& path);

protected:
    void activate_package(const QString& path) override;
};

/// Asks into which folder a document goes. A document is no folder: none is shown, and none that was typed is taken.
class FolderChooser : public PackageDialog {
    Q_OBJECT
public:
    /// `title` says what it is for, `verb` stands on its button ("Move").
    FolderChooser(const QString& suffix, const QString& title, const QString& verb, QWidget* parent);

    void accept() override;

Q_SIGNALS:
    void folder_chosen(const QString& path);

protected:
    void activate_package(const QString& path) override;
};

} // namespace quillfern::desktop
