#include "app/help/help_desk.h"

#include "app/help/help_window.h"
#include "app/help/update_check.h"
#include "app/help/update_feed.h"
#include "app/state/app_model.h"
#include "app/window/window_spot.h"
#include "desktop/url_opener.h"

#include <QApplication>
#include <QUrl>

#include <utility>

namespace quillfern::app {
namespace {

const QString support_address = QStringLiteral(QUILLFERN_SUPPORT_ADDRESS);
const QString web_address = QStringLiteral(QUILLFERN_WEB_ADDRESS);
const QString feed_address = QStringLiteral(QUILLFERN_UPDATE_FEED);

} // namespace

HelpDesk::HelpDesk(Application& application, AppModel& model)
    : application_(application), model_(model), opener_(std::make_unique<desktop::DesktopUrlOpener>()),
      feed_(std::make_unique<WebUpdateFeed>(QUrl(feed_address)))
{
}

HelpDesk::~HelpDesk()
{
    delete window_;
}

void HelpDesk::show()
{
    if (!window_) {
        window_ = new HelpWindow(application_, model_);
        place_over(*window_, QApplication::activeWindow());
    }
    if (window_->isMinimized())
        window_->showNormal();
    window_->show();
    window_->raise();
    window_->activateWindow();
}

void HelpDesk::show(HelpTopic topic)
{
    model_.set_help_topic(topic);
    show();
}

void HelpDesk::email_support(QWidget* asking)
{
    open_or_tell(QUrl(QStringLiteral("mailto:%1?subject=Quillfern").arg(support_address)),
        QStringLiteral("Couldn’t open a mail program"), QStringLiteral("Write to %1.").arg(support_address), asking);
}

void HelpDesk::check_for_updates(QWidget* asking)
{
    if (std::exchange(checking_, true))
        return;
    feed_->fetch([this, above = QPointer<QWidget>(asking)](const std::optional<QByteArray>& feed) {
        checking_ = false;
        tell_about_updates(judge_updates(feed, QCoreApplication::applicationVersion(), QUrl(web_address)), above);
    });
}

void HelpDesk::tell_about_updates(const UpdateAnswer& answer, QWidget* asking)
{
    switch (answer.kind) {
    case UpdateAnswer::Kind::failed:
        desktop::show_alert(answer.words, asking);
        break;
    case UpdateAnswer::Kind::upToDate:
        desktop::show_note(answer.words, QStringLiteral("check"), asking);
        break;
    case UpdateAnswer::Kind::newer:
        desktop::offer(answer.words,
            {QStringLiteral("info"), desktop::IconTile::Tone::accent, QStringLiteral("Download…"), false}, asking,
            [this, page = answer.download, above = QPointer<QWidget>(asking)] {
                open_or_tell(page, QStringLiteral("Couldn’t open a browser"),
                    QStringLiteral("The download is at %1.").arg(page.toDisplayString()), above);
            });
    }
}

void HelpDesk::open_or_tell(const QUrl& url, const QString& title, const QString& instead, QWidget* asking)
{
    if (!opener_->open(url))
        desktop::show_alert({title, instead, {}}, asking);
}

void HelpDesk::use(std::unique_ptr<desktop::UrlOpener> opener)
{
    opener_ = std::move(opener);
}

void HelpDesk::use(std::unique_ptr<UpdateFeed> feed)
{
    feed_ = std::move(feed);
    checking_ = false; // the old feed answers no more
}

} // namespace quillfern::app
