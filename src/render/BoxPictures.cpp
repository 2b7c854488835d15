#include "render/BoxPictures_p.h"

#include "render/BorderGeometry_p.h"
#include "render/BoxPainter_p.h"
#include "render/PainterTools_p.h"

#include <QtCore/QCache>
#include <QtCore/QSet>
#include <QtGui/QImage>
#include <QtGui/QPaintEngine>
#include <QtGui/QPainter>
#include <QtGui/QRgba64>

namespace {

using BoxPictures::Arcs;
using BoxPictures::Parameter;

constexpr int kPicturesKiB = 8 * 1024;
constexpr int kMaxPixels = 64 * 1024; // a larger box is filled at once nearly as fast
constexpr int kMaxScale = 4;
constexpr int kTinyArc = 2; // device pixels
constexpr int kMaxSeen = 256;
constexpr int kKeptArcs = 512;
constexpr int kKeptEllipses = 64;
// px; the coverage of a smaller one depends on its place, a larger one is worth no picture.
constexpr int kMinEllipse = 4;
constexpr int kMaxEllipse = 64;

// All that the outline of a box depends on.
struct OutlineKey
{
    QRect rect;
    std::array<int, 4> borders;
    std::array<QSize, 4> radii;
};

bool operator==(const OutlineKey &a, const OutlineKey &b)
{
    return a.rect == b.rect && a.borders == b.borders && a.radii == b.radii;
}

uint qHash(const OutlineKey &key, uint seed = 0)
{
    uint hash = qHashBits(&key.rect, sizeof key.rect, seed);
    hash = qHashBits(key.borders.data(), sizeof key.borders, hash);
    return qHashBits(key.radii.data(), sizeof key.radii, hash);
}

// All that the pixels of a fill depend on; the outline lies at (0, 0).
struct FillKey
{
    OutlineKey outline;
    quint64 color; // 16 bits a channel
    int scale; // device pixels a px
};

bool operator==(const FillKey &a, const FillKey &b)
{
    return a.outline == b.outline && a.color == b.color && a.scale == b.scale;
}

uint qHash(const FillKey &key, uint seed = 0)
{
    return qHash(key.outline, seed) ^ ::qHash(key.color, seed) ^ uint(key.scale);
}

bool isWhole(qreal value)
{
    return value == qreal(qRound(value));
}

// The scale of the device for a painter that draws a picture with the very pixels of painting: the raster engine,
// 32 bits a pixel, no clip but the window's own, no opacity, nothing but whole scales and offsets. 0 for others.
int pixelExactScale(const QPainter *painter)
{
    const QPaintEngine *engine = painter->paintEngine();
    if (!engine || engine->type() != QPaintEngine::Raster || painter->hasClipping() || painter->opacity() != 1.0
        || painter->compositionMode() != QPainter::CompositionMode_SourceOver)
        return 0;
    const QPaintDevice *device = engine->paintDevice();
    if (!device || device->devType() != QInternal::Image)
        return 0;
    const QImage::Format format = static_cast<const QImage *>(device)->format();
    if (format != QImage::Format_ARGB32_Premultiplied && format != QImage::Format_RGB32)
        return 0;
    const QTransform &transform = painter->deviceTransform();
    const bool fits = transform.type() <= QTransform::TxScale && transform.m11() == transform.m22()
        && isWhole(transform.m11()) && isWhole(transform.dx()) && isWhole(transform.dy());
    return fits && transform.m11() >= 1.0 && transform.m11() <= kMaxScale ? int(transform.m11()) : 0;
}

// Whether every corner of the fill is a proper arc. Where a corner is smaller than half of the border beside it, the
// outline crosses itself and leaves the box; the coverage of an arc of a pixel or two depends on its place.
bool hasProperCorners(const QRect &rect, const Parameter &parameter, int scale)
{
    QSize tl, tr, bl, br;
    Custom::cNormalizeRadii(rect, parameter.radii.data(), &tl, &tr, &bl, &br);
    const auto &borders = parameter.borders;
    const auto isProper = [scale](int radius, int border) {
        const qint64 side = (2 * qint64(radius) - border) * scale;
        return border >= 0 && (side == 0 || side > kTinyArc);
    };
    const auto fits = [&isProper](const QSize &radius, int vertical, int horizontal) {
        return isProper(radius.width(), vertical) && isProper(radius.height(), horizontal);
    };
    return fits(tl, borders[Custom::Left], borders[Custom::Top])
        && fits(tr, borders[Custom::Right], borders[Custom::Top])
        && fits(bl, borders[Custom::Left], borders[Custom::Bottom])
        && fits(br, borders[Custom::Right], borders[Custom::Bottom]);
}

QImage paintFill(const FillKey &key, const Parameter &parameter, const QColor &color)
{
    QImage image(key.outline.rect.size() * key.scale, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.scale(key.scale, key.scale);
    painter.setRenderHint(QPainter::Antialiasing);
    const QPainterPath path = BoxPainter::clipPath(key.outline.rect, parameter);
    if (path.isEmpty())
        painter.fillRect(key.outline.rect, color);
    else
        painter.fillPath(path, color);
    return image;
}

// The picture of a fill; null for one that comes for the first time. A fill that never comes again, such as a frame
// of an animation, gets no picture.
QImage findFill(const FillKey &key, const Parameter &parameter, const QColor &color)
{
    static QCache<FillKey, QImage> s_Pictures(kPicturesKiB);
    static QSet<FillKey> s_SeenOnce;
    if (const QImage *known = s_Pictures.object(key))
        return *known;
    if (!s_SeenOnce.remove(key)) {
        if (s_SeenOnce.size() >= kMaxSeen)
            s_SeenOnce.clear();
        s_SeenOnce.insert(key);
        return QImage();
    }
    const QImage image = paintFill(key, parameter, color);
    s_Pictures.insert(key, new QImage(image), 1 + int(image.sizeInBytes() / 1024));
    return image;
}

struct EllipseKey
{
    QSize size;
    quint64 color;
    int scale;
    bool fill;
};

bool operator==(const EllipseKey &a, const EllipseKey &b)
{
    return a.size == b.size && a.color == b.color && a.scale == b.scale && a.fill == b.fill;
}

uint qHash(const EllipseKey &key, uint seed = 0)
{
    return qHashBits(&key.size, sizeof key.size, seed) ^ ::qHash(key.color, seed) ^ uint(key.scale * 2 + key.fill);
}

void paintEllipse(QPainter *painter, const QRect &rect, const QColor &color, bool fill)
{
    QPainterPath path;
    path.addEllipse(rect);
    if (!fill) {
        // One fill of the outline: a pen of 1 px blends where its segments meet.
        QPainterPathStroker stroker;
        stroker.setWidth(1.0);
        path = stroker.createStroke(path);
    }
    const HintGuard guard(painter, QPainter::Antialiasing);
    painter->fillPath(path, color);
}

// With a margin of 1 px for the pen.
QImage ellipsePicture(const EllipseKey &key, const QColor &color)
{
    static QCache<EllipseKey, QImage> s_Pictures(kKeptEllipses);
    if (const QImage *known = s_Pictures.object(key))
        return *known;
    QImage image((key.size + QSize(2, 2)) * key.scale, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.scale(key.scale, key.scale);
    paintEllipse(&painter, QRect(QPoint(1, 1), key.size), color, key.fill);
    painter.end();
    s_Pictures.insert(key, new QImage(image));
    return image;
}

void drawPicture(QPainter *painter, const QPoint &topLeft, const QImage &picture, int scale)
{
    if (scale == 1) {
        painter->drawImage(topLeft, picture);
        return;
    }
    const QTransform world = painter->worldTransform();
    painter->scale(1.0 / scale, 1.0 / scale);
    painter->drawImage(topLeft * scale, picture);
    painter->setWorldTransform(world);
}

QPainterPath arcPath(const BorderLayout::Arc &arc)
{
    // As QPainter::drawArc() makes it.
    const QRectF rect = arc.rect.normalized();
    QPainterPath path;
    path.arcMoveTo(rect, arc.start / 16.0);
    path.arcTo(rect, arc.start / 16.0, arc.span / 16.0);
    return path;
}

std::shared_ptr<Arcs> makeArcs(const OutlineKey &key)
{
    auto result = std::make_shared<Arcs>();
    QSize tl, tr, bl, br;
    Custom::cNormalizeRadii(key.rect, key.radii.data(), &tl, &tr, &bl, &br);
    const QSize normalized[] = { tl, tr, bl, br };
    for (const Custom::BorderEdge edge : { Custom::Left, Custom::Right, Custom::Top, Custom::Bottom }) {
        const BorderLayout::EdgePlace place = BorderLayout::edgePlace(edge, key.rect, key.borders.data(), normalized);
        const QSizeF r1(place.r1);
        const QSizeF r2(place.r2);
        const auto arcs = BorderLayout::cornerArcs(place.band, r1, r2, edge);
        if (!r1.isEmpty())
            (*result)[edge][0] = arcPath(arcs[0]);
        if (!r2.isEmpty())
            (*result)[edge][1] = arcPath(arcs[1]);
    }
    return result;
}

} // namespace

bool BoxPictures::drawFill(QPainter *painter, const QRect &rect, const Parameter &parameter, const QColor &color)
{
    const int scale = pixelExactScale(painter);
    const QSize size = rect.size() * scale;
    if (size.isEmpty() || qint64(size.width()) * size.height() > kMaxPixels
        || !hasProperCorners(rect, parameter, scale))
        return false;
    const FillKey key{ { QRect(QPoint(0, 0), rect.size()), parameter.borders, parameter.radii },
        quint64(color.rgba64()), scale };
    const QImage picture = findFill(key, parameter, color);
    if (picture.isNull())
        return false;
    drawPicture(painter, rect.topLeft(), picture, scale);
    return true;
}

BoxPictures::Ellipse::Ellipse(const QPainter *painter, const QSize &size, const QColor &color, Kind kind)
    : m_oSize(size), m_oColor(color), m_eKind(kind)
{
    const bool fits
        = qMin(size.width(), size.height()) >= kMinEllipse && qMax(size.width(), size.height()) <= kMaxEllipse;
    m_nScale = fits && BoxPainter::arePicturesEnabled() ? pixelExactScale(painter) : 0;
    if (m_nScale > 0)
        m_oPicture = ellipsePicture({ size, quint64(color.rgba64()), m_nScale, kind == Filled }, color);
}

void BoxPictures::Ellipse::draw(QPainter *painter, const QPoint &topLeft) const
{
    if (m_nScale > 0)
        drawPicture(painter, topLeft - QPoint(1, 1), m_oPicture, m_nScale);
    else
        paintEllipse(painter, QRect(topLeft, m_oSize), m_oColor, m_eKind == Filled);
}

std::shared_ptr<const Arcs> BoxPictures::arcs(const QRect &rect, const Parameter &parameter)
{
    static QCache<OutlineKey, std::shared_ptr<Arcs>> s_Arcs(kKeptArcs);
    const OutlineKey key{ rect, parameter.borders, parameter.radii };
    if (const std::shared_ptr<Arcs> *known = s_Arcs.object(key))
        return *known;
    const std::shared_ptr<Arcs> result = makeArcs(key);
    s_Arcs.insert(key, new std::shared_ptr<Arcs>(result));
    return result;
}
