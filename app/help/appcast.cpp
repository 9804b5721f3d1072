#include "app/help/appcast.h"

#include <QXmlStreamReader>

#include <algorithm>
#include <utility>

namespace quillfern::app {
namespace {

const QString sparkle = QStringLiteral("http://www.andymatuschak.org/xml-namespaces/sparkle");
constexpr int longest_text = 2000; ///< of an address or a version

/// What an item says before it is judged.
struct RawItem {
    QString version;
    QString shortVersion;
    QString system;
    QString channel;
    QString page;
    QString enclosure;
};

QString short_text(QString text)
{
    return text.size() <= longest_text ? text.trimmed() : QString();
}

void read_enclosure(const QXmlStreamAttributes& attributes, RawItem& item)
{
    const auto take = [](QString& into, QStringView value) {
        if (!value.isEmpty())
            into = short_text(value.toString());
    };
    take(item.enclosure, attributes.value(QLatin1String("url")));
    take(item.version, attributes.value(sparkle, QLatin1String("version")));
    take(item.shortVersion, attributes.value(sparkle, QLatin1String("shortVersionString")));
    take(item.system, attributes.value(sparkle, QLatin1String("os")));
}

QString text_of_element(QXmlStreamReader& xml)
{
    return short_text(xml.readElementText(QXmlStreamReader::SkipChildElements));
}

RawItem read_item(QXmlStreamReader& xml)
{
    RawItem item;
    while (xml.readNextStartElement()) {
        const bool plain = xml.namespaceUri().isEmpty(); // RSS itself has no namespace
        const bool ours = xml.namespaceUri() == sparkle;
        if (plain && xml.name() == QLatin1String("enclosure")) {
            read_enclosure(xml.attributes(), item);
            xml.skipCurrentElement();
        } else if (plain && xml.name() == QLatin1String("link")) {
            item.page = text_of_element(xml);
        } else if (ours && xml.name() == QLatin1String("version")) {
            item.version = text_of_element(xml);
        } else if (ours && xml.name() == QLatin1String("shortVersionString")) {
            item.shortVersion = text_of_element(xml);
        } else if (ours && xml.name() == QLatin1String("channel")) {
            item.channel = text_of_element(xml);
        } else {
            xml.skipCurrentElement();
        }
    }
    return item;
}

/// A feed must not be able to open anything but a web page.
QUrl web_address(const QString& text)
{
    const QUrl url(text, QUrl::StrictMode);
    const bool usable = url.isValid() && url.scheme() == QLatin1String("https") && !url.host().isEmpty();
    return usable ? url : QUrl();
}

std::optional<AppcastItem> judged(const RawItem& raw)
{
    const bool for_this_system = raw.system.isEmpty() || raw.system == QLatin1String("linux");
    const auto version =
        ProgramVersion::parse((raw.shortVersion.isEmpty() ? raw.version : raw.shortVersion).toStdString());
    if (!for_this_system || !raw.channel.isEmpty() || !version)
        return std::nullopt;
    const QUrl page = web_address(raw.page);
    return AppcastItem{*version, page.isEmpty() ? web_address(raw.enclosure) : page};
}

void read_channel(QXmlStreamReader& xml, std::vector<AppcastItem>& items)
{
    while (xml.readNextStartElement()) {
        if (xml.name() != QLatin1String("item"))
            xml.skipCurrentElement();
        else if (auto item = judged(read_item(xml)))
            items.push_back(*std::move(item));
    }
}

/// Goes to the root element; a document type on the way is an error.
bool enter_root(QXmlStreamReader& xml)
{
    while (!xml.atEnd()) {
        const QXmlStreamReader::TokenType token = xml.readNext();
        if (token == QXmlStreamReader::DTD)
            return false;
        if (token == QXmlStreamReader::StartElement)
            return xml.name() == QLatin1String("rss");
    }
    return false;
}

} // namespace

std::optional<std::vector<AppcastItem>> read_appcast(const QByteArray& bytes)
{
    QXmlStreamReader xml(bytes);
    if (!enter_root(xml))
        return std::nullopt;
    std::vector<AppcastItem> items;
    bool has_channel = false;
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("channel")) {
            has_channel = true;
            read_channel(xml, items);
        } else {
            xml.skipCurrentElement();
        }
    }
    while (!xml.atEnd())
        xml.readNext(); // what follows the root must be well-formed, too
    if (xml.hasError() || !has_channel)
        return std::nullopt;
    return items;
}

std::optional<AppcastItem> newer_version(const std::vector<AppcastItem>& items, const ProgramVersion& current)
{
    const auto newest = std::max_element(
        items.begin(), items.end(), [](const AppcastItem& a, const AppcastItem& b) { return a.version < b.version; });
    if (newest == items.end() || newest->version <= current)
        return std::nullopt;
    return *newest;
}

} // namespace quillfern::app
