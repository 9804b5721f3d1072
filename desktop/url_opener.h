#pragma once

class QUrl;

namespace quillfern::desktop {

/// Opens addresses in the user's own programs: web pages in the browser, messages in the mail program.
class UrlOpener {
public:
    UrlOpener() = default;
    UrlOpener(const UrlOpener&) = delete;
    UrlOpener& operator=(const UrlOpener&) = delete;
    virtual ~UrlOpener() = default;

    /// False when no program of this desktop takes such an address.
    virtual bool open(const QUrl& url) = 0;
};

class DesktopUrlOpener : public UrlOpener {
public:
    bool open(const QUrl& url) override;
};

} // namespace quillfern::desktop
