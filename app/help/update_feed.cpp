#include "app/help/update_feed.h"

#include <QCoreApplication>
#include <QHostAddress>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QTimer>

#include <utility>

namespace quillfern::app {
namespace {

constexpr qint64 most_bytes = 1'000'000;
constexpr int most_redirects = 5;

QNetworkRequest request_for(const QUrl& address)
{
    QNetworkRequest request(address);
    request.setRawHeader("User-Agent", "Quillfern/" + QCoreApplication::applicationVersion().toLatin1());
    request.setRawHeader("Accept", "application/rss+xml, application/xml, text/xml");
    // Unpacked by nobody, so that a small answer cannot become a large one.
    request.setRawHeader("Accept-Encoding", "identity");
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::UserVerifiedRedirectPolicy);
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
    request.setMaximumRedirectsAllowed(most_redirects);
    return request;
}

bool is_loopback(const QUrl& url)
{
    return QHostAddress(url.host()).isLoopback();
}

bool is_whole(const QNetworkReply& reply)
{
    const int status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    return reply.error() == QNetworkReply::NoError && status == 200;
}

} // namespace

WebUpdateFeed::WebUpdateFeed(QUrl address) : WebUpdateFeed(std::move(address), Limits()) { }

WebUpdateFeed::WebUpdateFeed(QUrl address, Limits limits) : address_(std::move(address)), limits_(limits) { }

WebUpdateFeed::~WebUpdateFeed() = default;

bool WebUpdateFeed::may_ask(const QUrl& url) const
{
    return url.scheme() == QLatin1String("https")
        || (limits_.plain_loopback && url.scheme() == QLatin1String("http") && is_loopback(url));
}

void WebUpdateFeed::fetch(Done done)
{
    if (!may_ask(address_))
        return done(std::nullopt);
    if (!network_)
        network_ = std::make_unique<QNetworkAccessManager>();
    QNetworkReply* reply = network_->get(request_for(address_));
    QTimer::singleShot(limits_.patience, reply, &QNetworkReply::abort);
    QObject::connect(reply, &QNetworkReply::redirected, reply, [this, reply](const QUrl& target) {
        if (may_ask(target))
            Q_EMIT reply->redirectAllowed();
        else
            reply->abort();
    });
    const auto bytes = std::make_shared<QByteArray>();
    QObject::connect(reply, &QNetworkReply::readyRead, reply, [reply, bytes] {
        bytes->append(reply->readAll());
        if (bytes->size() > most_bytes)
            reply->abort();
    });
    QObject::connect(reply, &QNetworkReply::finished, reply, [reply, bytes, done = std::move(done)] {
        reply->deleteLater();
        done(is_whole(*reply) ? std::optional(*bytes) : std::nullopt);
    });
}

} // namespace quillfern::app
