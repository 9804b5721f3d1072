#pragma once

#include "app/help/help_topics.h"

#include <QPointer>
#include <QString>

#include <memory>

class QUrl;
class QWidget;

namespace quillfern::desktop {
class UrlOpener;
}

namespace quillfern::app {

class Application;
class AppModel;
class HelpWindow;
class UpdateFeed;
struct UpdateAnswer;

/// What the Help menu offers: the help window, a message to the support, a look for a newer version.
class HelpDesk {
public:
    HelpDesk(Application& application, AppModel& model);
    ~HelpDesk();

    /// Opens the help window on the topic that the AppModel names, or raises it.
    void show();
    void show(HelpTopic topic);

    void email_support(QWidget* asking);

    /// Asks the web once and says what it found above `asking`, or above no window when that has been closed meanwhile.
    /// While an answer is awaited, asking again does nothing.
    void check_for_updates(QWidget* asking);

    /// Takes another service in place of the real one.
    void use(std::unique_ptr<desktop::UrlOpener> opener);
    void use(std::unique_ptr<UpdateFeed> feed);

private:
    void tell_about_updates(const UpdateAnswer& answer, QWidget* asking);
    void open_or_tell(const QUrl& url, const QString& title, const QString& instead, QWidget* asking);

    Application& application_;
    AppModel& model_;
    std::unique_ptr<desktop::UrlOpener> opener_;
    std::unique_ptr<UpdateFeed> feed_;
    bool checking_ = false;
    QPointer<HelpWindow> window_;
};

} // namespace quillfern::app
