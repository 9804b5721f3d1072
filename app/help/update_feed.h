#pragma once

#include <QByteArray>
#include <QUrl>

#include <functional>
#include <memory>
#include <optional>

class QNetworkAccessManager;

namespace quillfern::app {

/// Fetches the list of the program's versions, when the user asks for it and never otherwise.
class UpdateFeed {
public:
    /// Called once, with the feed's bytes, or with nothing when they could not be had; never after the feed is gone.
    using Done = std::function<void(std::optional<QByteArray>)>;

    UpdateFeed() = default;
    UpdateFeed(const UpdateFeed&) = delete;
    UpdateFeed& operator=(const UpdateFeed&) = delete;
    virtual ~UpdateFeed() = default;

    virtual void fetch(Done done) = 0;
};

/// From the web, encrypted, in at most `patience` milliseconds and one megabyte. It sends the program's name and
/// version and nothing else, and keeps nothing that the server would have it keep.
class WebUpdateFeed : public UpdateFeed {
public:
    /// `plain_loopback`: a server on this computer may be asked without encryption, as tests do.
    struct Limits {
        int patience = 20'000;
        bool plain_loopback = false;
    };

    explicit WebUpdateFeed(QUrl address);
    WebUpdateFeed(QUrl address, Limits limits);
    ~WebUpdateFeed() override;

    void fetch(Done done) override;

private:
    bool may_ask(const QUrl& url) const;

    QUrl address_;
    Limits limits_;
    std::unique_ptr<QNetworkAccessManager> network_; ///< made with the first fetch
};

} // namespace quillfern::app
