#include "app/help/update_feed.h"
#include "desktop/alert.h"
#include "desktop/url_opener.h"
#include "window_fixture.h"

#include <QLabel>
#include <QProcess>
#include <QPushButton>
#include <QSslCertificate>
#include <QSslConfiguration>
#include <QSslKey>
#include <QSslServer>
#include <QTcpSocket>

namespace quillfern::app {
namespace {

class NotedUrls : public desktop::UrlOpener {
public:
    explicit NotedUrls(QList<QUrl>& urls) : urls_(urls) { }
    bool open(const QUrl& url) override
    {
        urls_.append(url);
        return true;
    }

private:
    QList<QUrl>& urls_;
};

QByteArray answer(const QByteArray& body, const QByteArray& status = "200 OK")
{
    return "HTTP/1.1 " + status + "\r\nContent-Length: " + QByteArray::number(body.size())
        + "\r\nConnection: close\r\n\r\n" + body;
}

QByteArray feed_with(const QByteArray& version)
{
    return "<rss version=\"2.0\" xmlns:sparkle=\"http://www.andymatuschak.org/xml-namespaces/sparkle\"><channel><item>"
           "<enclosure url=\"https://quillfern.example/q.deb\" sparkle:version=\""
        + version + "\"/></item></channel></rss>";
}

/// A window whose check for updates goes to a server on this computer.
class UpdateCheckTest : public WindowTest {
protected:
    static constexpr const char* newest = "You’re up to date";
    static constexpr const char* failed = "Couldn’t check for updates";

    UpdateCheckTest()
    {
        QCoreApplication::setApplicationVersion(QStringLiteral("1.4"));
        program_.help_desk().use(std::make_unique<NotedUrls>(opened_));
    }

    /// Each connection gets the next of the answers once it has asked; without any it waits.
    void serve(QTcpServer& server, QList<QByteArray> answers)
    {
        answers_ = std::move(answers);
        QObject::connect(&server, &QTcpServer::pendingConnectionAvailable, &server, [this, &server] {
            QTcpSocket* socket = server.nextPendingConnection();
            const auto reply = [this, socket] {
                requests_.append(socket->readAll());
                if (!answers_.isEmpty())
                    socket->write(answers_.takeFirst());
            };
            QObject::connect(socket, &QTcpSocket::readyRead, socket, reply);
            if (socket->bytesAvailable() > 0)
                reply();
        });
        ASSERT_TRUE(server.listen(QHostAddress::LocalHost));
    }

    static QUrl address_of(const QTcpServer& server, const QString& scheme)
    {
        return QUrl(QStringLiteral("%1://127.0.0.1:%2/appcast.xml").arg(scheme).arg(server.serverPort()));
    }

    void ask(const QUrl& address, WebUpdateFeed::Limits limits = {.patience = 20'000, .plain_loopback = true})
    {
        program_.help_desk().use(std::make_unique<WebUpdateFeed>(address, limits));
        program_.help_desk().check_for_updates(window_);
    }

    static QList<desktop::Alert*> alerts()
    {
        QList<desktop::Alert*> shown;
        for (QWidget* widget : QApplication::topLevelWidgets())
            if (auto* alert = qobject_cast<desktop::Alert*>(widget); alert && alert->isVisible())
                shown.append(alert);
        return shown;
    }

    static QString text_of(const desktop::Alert& alert, const char* label)
    {
        return alert.findChild<QLabel*>(QLatin1String(label))->text();
    }

    /// The title and the message of the answer, which is then put away with the button of that text.
    static QStringList words(const QString& button = QStringLiteral("OK"))
    {
        if (!QTest::qWaitFor([] { return !alerts().isEmpty(); }, 20'000))
            return {};
        desktop::Alert* alert = alerts().front();
        const QStringList said = {text_of(*alert, "alertTitle"), text_of(*alert, "alertMessage")};
        for (QPushButton* offered : alert->findChildren<QPushButton*>())
            if (offered->text() == button)
                offered->click();
        EXPECT_TRUE(alerts().isEmpty());
        return said;
    }

    QList<QUrl> opened_;
    QList<QByteArray> answers_;
    QList<QByteArray> requests_;
    QWidget* window_ = &open(write_package("Pantry.quillfern", file_with_days({})));
};

TEST_F(UpdateCheckTest, EveryAnswerOfTheServerHasItsWords)
{
    struct Case {
        const char* what;
        QList<QByteArray> answers;
        QStringList expected;
        int patience = 20'000;
    };
    const QStringList no = {failed, "Check your internet connection and try again."};
    const QStringList yes = {newest, "Quillfern 1.4 is the newest version."};
    const Case cases[] = {
        {"the same version", {answer(feed_with("1.4"))}, yes},
        {"an older version", {answer(feed_with("1.3.9"))}, yes},
        {"no such page", {answer(feed_with("1.4"), "404 Not Found")}, no},
        {"no content", {answer("", "204 No Content")}, no},
        {"another page", {answer("<html>Sign in</html>")}, no},
        {"a page elsewhere on this computer",
            {answer("", "302 Found\r\nLocation: /other.xml"), answer(feed_with("1.4"))}, yes},
        {"a page elsewhere, not encrypted",
            {answer("", "302 Found\r\nLocation: http://quillfern.example/appcast.xml"), answer(feed_with("1.4"))}, no},
        {"a file", {answer("", "302 Found\r\nLocation: file:///etc/hostname")}, no},
        {"redirects without end", QList<QByteArray>(20, answer("", "302 Found\r\nLocation: /again")), no},
        {"more than a feed has", {"HTTP/1.1 200 OK\r\n\r\n" + feed_with("1.5") + QByteArray(2'000'000, ' ')}, no},
        {"half an answer", {answer(feed_with("1.4")).chopped(8)}, no, 300},
        {"no answer", {}, no, 300},
    };
    for (const Case& c : cases) {
        QTcpServer server;
        serve(server, c.answers);
        ask(address_of(server, "http"), {.patience = c.patience, .plain_loopback = true});
        EXPECT_EQ(words(), c.expected) << c.what;
    }
    EXPECT_THAT(requests_.front().toStdString(), testing::HasSubstr("User-Agent: Quillfern/1.4\r\n"));
    ask(QUrl("http://127.0.0.1:1/appcast.xml"));
    EXPECT_EQ(words(), no) << "nobody listens";
    EXPECT_TRUE(opened_.isEmpty());
}

TEST_F(UpdateCheckTest, ANewerVersionIsOfferedAndOpensInTheBrowser)
{
    QTcpServer server;
    serve(server, {answer(feed_with("1.5")), answer(feed_with("1.5"))});
    const QStringList offer = {"Quillfern 1.5 is available",
        "You have version 1.4. The download opens in your browser; nothing is installed by itself."};
    ask(address_of(server, "http"));
    EXPECT_EQ(words("Cancel"), offer);
    EXPECT_TRUE(opened_.isEmpty());
    ask(address_of(server, "http"));
    EXPECT_EQ(words("Download…"), offer);
    EXPECT_EQ(opened_, QList<QUrl>({QUrl("https://quillfern.example/q.deb")}));
}

TEST_F(UpdateCheckTest, AskingAgainWhileWaitingAsksOnce)
{
    QTcpServer server;
    serve(server, {});
    ask(address_of(server, "http"));
    program_.help_desk().check_for_updates(window_);
    ASSERT_TRUE(QTest::qWaitFor([this] { return !requests_.isEmpty(); }));
    program_.help_desk().check_for_updates(window_);
    window_->close();
    server.findChild<QTcpSocket*>()->write(answer(feed_with("1.4")));
    EXPECT_EQ(words().value(0), newest) << "said although the window has gone";
    QTest::qWait(50);
    EXPECT_TRUE(alerts().isEmpty());
    EXPECT_EQ(requests_.size(), 1);
}

TEST_F(UpdateCheckTest, WhatIsNotEncryptedIsNotAskedAtAll)
{
    QTcpServer server;
    serve(server, {answer(feed_with("1.5"))});
    ask(address_of(server, "http"), {});
    EXPECT_EQ(words().value(0), failed);
    ask(QUrl("http://quillfern.example/appcast.xml"));
    EXPECT_EQ(words().value(0), failed);
    QTest::qWait(50);
    EXPECT_TRUE(requests_.isEmpty());
}

TEST_F(UpdateCheckTest, OnlyAServerWithATrustedCertificateIsBelieved)
{
    const QString key = folder_.filePath("key.pem");
    const QString certificate = folder_.filePath("certificate.pem");
    QProcess openssl;
    openssl.start("openssl",
        {"req", "-x509", "-newkey", "rsa:2048", "-nodes", "-days", "2", "-subj", "/CN=127.0.0.1", "-addext",
            "subjectAltName=IP:127.0.0.1", "-keyout", key, "-out", certificate});
    ASSERT_TRUE(openssl.waitForFinished() && openssl.exitCode() == 0) << openssl.readAllStandardError().constData();
    QFile key_file(key);
    ASSERT_TRUE(key_file.open(QIODevice::ReadOnly));
    QSslConfiguration own;
    own.setPrivateKey(QSslKey(&key_file, QSsl::Rsa));
    own.setLocalCertificateChain(QSslCertificate::fromPath(certificate));
    QSslServer server;
    server.setSslConfiguration(own);
    serve(server, {answer(feed_with("1.4"))});

    ask(address_of(server, "https"), {});
    EXPECT_EQ(words().value(0), failed);
    EXPECT_TRUE(requests_.isEmpty());

    const QSslConfiguration before = QSslConfiguration::defaultConfiguration();
    QSslConfiguration trusting = before;
    trusting.addCaCertificates(certificate);
    QSslConfiguration::setDefaultConfiguration(trusting);
    ask(address_of(server, "https"), {});
    EXPECT_EQ(words().value(0), newest);
    QSslConfiguration::setDefaultConfiguration(before);
}

} // namespace
} // namespace quillfern::app
