#pragma once

#include "app/document/open_document.h"
#include "app/window/notices.h"

#include <QObject>
#include <QStringList>

#include <functional>

class QWidget;

namespace quillfern::app {

class Application;
class DocumentMover;
class WindowModel;

/// Where the user and one document's file meet: what the File menu's save group does, what is asked before a document
/// closes, and what is said when saving fails or somebody else has written the file.
class DocumentDesk : public QObject {
    Q_OBJECT
public:
    DocumentDesk(OpenDocument& document, WindowModel& model, Application& application, QWidget& window);

    /// What a button of the strip over the page asks for.
    void perform(Notice::Action action);

    void save(); ///< asks where when the document lives nowhere yet, or where it must not be written
    void save_as();
    void duplicate();
    void rename();
    void move_to();
    void revert();
    bool can_revert() const;

    /// What others have written takes the place of this value; or this value goes to a file of its own beside theirs.
    void reload();
    void keep_both();

    /// Tries again to become the one that may write.
    void try_lock();

    /// Whether the window may close now. If that is for the user to say, they are asked, and close_decided() tells.
    bool may_close();

Q_SIGNALS:
    void close_decided(bool close);
    void access_changed();

private:
    using Then = std::function<void()>;

    void take_saved(const platform::SaveOutcome& outcome, OpenDocument::Asked asked);
    void take_failure(const SaveFailure& failure, OpenDocument::Asked asked);
    bool explain(const platform::SaveOutcome& outcome); ///< whether it had something to say
    void ask_about_change(platform::PackageChange change);
    void save_without_lost_files();
    void revert_to_saved();
    void start(std::function<void()> save);
    void save_to(const QString& path, platform::Existing existing);
    void save_to_chosen(const QString& path);
    void ask_where(const QString& proposed, const QString& folder);
    void ask_to_replace(const QString& path);
    void ask_whether_to_keep();
    bool try_to_save_before_closing();
    void decide_close(bool close);
    QString name() const;

    OpenDocument& document_;
    WindowModel& model_;
    Application& application_;
    QWidget& window_;
    DocumentMover* mover_;
    std::function<void()> last_save_; ///< as it was asked for last
    QStringList explained_; ///< what was said of the last save that found something
    bool closing_ = false; ///< a save that is running decides whether the window closes
    bool closes_ = false; ///< what was decided last
};

} // namespace quillfern::app
