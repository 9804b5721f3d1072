#pragma once

#include "desktop/sheet.h"
#include "platform/versions_store.h"

#include <vector>

class QListWidget;
class QPushButton;

namespace quillfern::grants {
struct OrgPackage;
}

namespace quillfern::app {

class OpenDocument;

/// Lists the states of a document that can be gone back to: the saved file, and the versions that earlier saves have
/// kept. What is chosen is handed out; nothing on the disk changes.
class RevertSheet : public desktop::Sheet {
    Q_OBJECT
public:
    RevertSheet(const OpenDocument& document, platform::VersionsStore& store, QWidget* parent);

Q_SIGNALS:
    void saved_chosen();
    void version_chosen(const quillfern::grants::OrgPackage& version);

private:
    void list_states(const OpenDocument& document);
    void lay_out();
    void revert();

    platform::VersionsStore& store_;
    std::vector<platform::Version> versions_; ///< in the list's order, after the saved file if that is listed
    bool lists_saved_;
    QListWidget* list_;
    QPushButton* revert_;
};

/// When a state was saved, for people of today: "Today, 3:41 PM".
QString moment_words(Instant moment, Instant now);

} // namespace quillfern::app
