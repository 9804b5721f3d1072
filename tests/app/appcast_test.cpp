#include "app/help/appcast.h"
#include "app/help/update_check.h"

#include <gmock/gmock.h>

namespace quillfern::app {
namespace {

QByteArray feed(const QByteArray& items)
{
    return "<?xml version=\"1.0\"?><rss version=\"2.0\" "
           "xmlns:sparkle=\"http://www.andymatuschak.org/xml-namespaces/sparkle\"><channel><title>Quillfern</title>"
        + items + "</channel></rss>";
}

QByteArray item(const QByteArray& enclosure, const QByteArray& elements = {})
{
    return "<item>" + elements + "<enclosure url=\"https://quillfern.example/q.deb\" " + enclosure + "/></item>";
}

TEST(ProgramVersion, IsOrderedAsPeopleReadIt)
{
    const std::vector<std::string> ascending = {"0.9", "1.0-beta1", "1.0-beta2", "1", "1.0.1", "1.2", "1.10", "2.0"};
    for (std::size_t i = 0; i + 1 < ascending.size(); ++i)
        EXPECT_LT(*ProgramVersion::parse(ascending[i]), *ProgramVersion::parse(ascending[i + 1])) << ascending[i];
    EXPECT_EQ(*ProgramVersion::parse("1.4"), *ProgramVersion::parse("1.4.0"));
    for (const char* text : {"", "v1", "1.", ".1", "1..2", "1-", "1 2", "1.2b", "-1", "1.1234567890", "1.2-ü"})
        EXPECT_FALSE(ProgramVersion::parse(text)) << text;
}

TEST(Appcast, TheNewestVersionForThisSystemIsFoundWhereverItsNumberStands)
{
    struct Case {
        const char* what;
        QByteArray items;
        std::string newest; ///< empty: nothing newer than 1.4
    };
    const Case cases[] = {
        {"on the enclosure", item("sparkle:version=\"1.5\""), "1.5"},
        {"in an element", item("", "<sparkle:version>1.5</sparkle:version>"), "1.5"},
        {"the words for people before the build number",
            item("sparkle:version=\"900\" sparkle:shortVersionString=\"1.4.1\""), "1.4.1"},
        {"not the first", item("sparkle:version=\"1.5\"") + item("sparkle:version=\"1.10\""), "1.10"},
        {"the same", item("sparkle:version=\"1.4.0\""), ""},
        {"older ones", item("sparkle:version=\"1.3\"") + item("sparkle:version=\"1.4-rc1\""), ""},
        {"for another system",
            item("sparkle:version=\"9\" sparkle:os=\"macos\"") + item("sparkle:version=\"1.5\" sparkle:os=\"linux\""),
            "1.5"},
        {"on a channel of its own", item("sparkle:version=\"9\"", "<sparkle:channel>beta</sparkle:channel>"), ""},
        {"of a patch inside an item",
            item("sparkle:version=\"1.5\"",
                "<sparkle:deltas><enclosure url=\"https://a.example/\" sparkle:version=\"9\"/></sparkle:deltas>"),
            "1.5"},
        {"unreadable, beside one that is not", item("sparkle:version=\"new!\"") + item("sparkle:version=\"1.5\""),
            "1.5"},
        {"none at all", "", ""},
    };
    for (const Case& c : cases) {
        const auto items = read_appcast(feed(c.items));
        ASSERT_TRUE(items) << c.what;
        const auto newest = newer_version(*items, *ProgramVersion::parse("1.4"));
        EXPECT_EQ(newest ? newest->version.text() : "", c.newest) << c.what;
    }
}

TEST(Appcast, OnlyEncryptedPagesAreOfferedForDownload)
{
    struct Case {
        QByteArray elements;
        QString link;
    };
    const Case cases[] = {
        {"", "https://quillfern.example/q.deb"},
        {"<link> https://quillfern.example/get </link>", "https://quillfern.example/get"},
        {"<link>http://quillfern.example/get</link>", "https://quillfern.example/q.deb"},
        {"<link>file:///usr/bin/true</link>", "https://quillfern.example/q.deb"},
        {"<link>https:///get</link>", "https://quillfern.example/q.deb"},
    };
    for (const Case& c : cases) {
        const auto items = read_appcast(feed(item("sparkle:version=\"2\"", c.elements)));
        ASSERT_TRUE(items && items->size() == 1) << c.elements.constData();
        EXPECT_EQ(items->front().link.toString(), c.link) << c.elements.constData();
    }
    const UpdateAnswer answer =
        judge_updates(feed("<item><enclosure url=\"ftp://a.example\" sparkle:version=\"2\"/></item>"), "1",
            QUrl("https://p.example"));
    EXPECT_EQ(answer.download, QUrl("https://p.example"));
}

TEST(Appcast, WhatIsNoFeedIsRefusedWhole)
{
    const QByteArray good = feed(item("sparkle:version=\"9\""));
    const QByteArray cases[] = {
        "",
        "not found",
        "<html><body>Sign in to the network</body></html>",
        "<rss></rss>",
        good.chopped(3),
        good + "<rss/>",
        "<!DOCTYPE rss [<!ENTITY a \"aaaa\"><!ENTITY b \"&a;&a;\">]>" + good.mid(good.indexOf("<rss")),
        QByteArray("\xff\xfe\x00\xd8", 4),
    };
    for (const QByteArray& bytes : cases) {
        EXPECT_FALSE(read_appcast(bytes)) << bytes.left(40).constData();
        EXPECT_EQ(judge_updates(bytes, "1.4", {}).kind, UpdateAnswer::Kind::failed);
    }
}

} // namespace
} // namespace quillfern::app
