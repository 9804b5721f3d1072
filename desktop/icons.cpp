#include "desktop/icons.h"

#include <QFile>
#include <QHash>
#include <QIconEngine>
#include <QPainter>
#include <QSvgRenderer>

#include <algorithm>
#include <cmath>
#include <utility>

namespace quillfern::desktop {
namespace {

struct PictureKey {
    QString name;
    QRgb color;
    int size;
    int device_size;

    friend bool operator==(const PictureKey&, const PictureKey&) = default;
};

size_t qHash(const PictureKey& key, size_t seed = 0)
{
    return qHashMulti(seed, key.name, key.color, key.size, key.device_size);
}

/// Thin lines vanish in small pictures, so the smallest ones take a heavier stroke.
QByteArray colored_source(const QString& name, const QColor& color, int size)
{
    QFile file(QStringLiteral(":/icons/%1.svg").arg(name));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("there is no icon \"%s\"", qPrintable(name));
    QByteArray source = file.readAll();
    source.replace("currentColor", color.name().toLatin1());
    if (size <= 15)
        source.replace("stroke-width=\"1.75\"", "stroke-width=\"2\"");
    return source;
}

QPixmap render(const QString& name, const QColor& color, int size, double device_pixel_ratio)
{
    const int device_size = static_cast<int>(std::lround(size * device_pixel_ratio));
    QPixmap pixmap(device_size, device_size);
    pixmap.fill(Qt::transparent);
    QSvgRenderer renderer(colored_source(name, color, size));
    QPainter painter(&pixmap);
    renderer.render(&painter);
    painter.end();
    pixmap.setDevicePixelRatio(device_pixel_ratio);
    return pixmap;
}

class LineIcon : public QIconEngine {
public:
    LineIcon(QString name, Role role) : name_(std::move(name)), role_(role) { }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override
    {
        const int side = std::min(rect.width(), rect.height());
        const QPixmap picture =
            icon_pixmap(name_for(side), role_for(mode), side, painter->device()->devicePixelRatioF());
        painter->drawPixmap(rect.left() + (rect.width() - side) / 2, rect.top() + (rect.height() - side) / 2, picture);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        return scaledPixmap(size, mode, state, 1.0);
    }

    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State, qreal scale) override
    {
        const int side = std::min(size.width(), size.height());
        const int logical_side = static_cast<int>(std::lround(side / scale));
        return icon_pixmap(name_for(logical_side), role_for(mode), logical_side, scale);
    }

    QIconEngine* clone() const override { return new LineIcon(*this); }
    QString key() const override { return QStringLiteral("quillfern-line"); }

private:
    /// The mark has fewer, broader leaves where it is small.
    QString name_for(int side) const
    {
        return name_ == QLatin1String("quillfern-app") && side < 48 ? name_ + QLatin1String("-small") : name_;
    }

    Role role_for(QIcon::Mode mode) const { return mode == QIcon::Disabled ? Role::text3 : role_; }

    QString name_;
    Role role_;
};

} // namespace

QPixmap icon_pixmap(const QString& name, Role role, int size, double device_pixel_ratio)
{
    static QHash<PictureKey, QPixmap> pictures;
    const QColor& line = color(role);
    const PictureKey key{name, line.rgba(), size, static_cast<int>(std::lround(size * device_pixel_ratio))};
    const auto found = pictures.constFind(key);
    if (found != pictures.constEnd())
        return *found;
    return *pictures.insert(key, render(name, line, size, device_pixel_ratio));
}

QIcon line_icon(const QString& name, Role role)
{
    return QIcon(new LineIcon(name, role));
}

QIcon application_icon()
{
    return QIcon(new LineIcon(QStringLiteral("quillfern-app"), Role::accent));
}

} // namespace quillfern::desktop
