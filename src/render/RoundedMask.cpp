#include "render/RoundedMask_p.h"

#include <Zanthic/Custom.h>

#include <QtCore/QCache>
#include <QtGui/QBitmap>
#include <QtGui/QPainter>
#include <QtWidgets/QWidget>

namespace {

// Window systems end well before.
constexpr int kMaxExtent = 32767;
constexpr int kMaxPixels = 64 * 1024 * 1024;
constexpr int kCachedRegions = 256;

struct MaskKey
{
    QSize size;
    RoundedMask::Radii radii;
};

bool operator==(const MaskKey &a, const MaskKey &b)
{
    return a.size == b.size && a.radii == b.radii;
}

uint qHash(const MaskKey &key, uint seed = 0)
{
    const uint sizeHash = ::qHash(qMakePair(key.size.width(), key.size.height()), seed);
    return qHashRange(key.radii.cbegin(), key.radii.cend(), sizeHash);
}

} // namespace

QPainterPath RoundedMask::outline(const QSize &size, const Radii &radii)
{
    const qreal w = size.width();
    const qreal h = size.height();
    const qreal lt = radii[Custom::LeftTop];
    const qreal rt = radii[Custom::RightTop];
    const qreal lb = radii[Custom::LeftBottom];
    const qreal rb = radii[Custom::RightBottom];
    QPainterPath path;
    path.moveTo(lt, 0);
    path.lineTo(w - rt, 0);
    path.quadTo(w, 0, w, rt);
    path.lineTo(w, h - rb);
    path.quadTo(w, h, w - rb, h);
    path.lineTo(lb, h);
    path.quadTo(0, h, 0, h - lb);
    path.lineTo(0, lt);
    path.quadTo(0, 0, lt, 0);
    path.closeSubpath();
    return path;
}

QRegion RoundedMask::region(const QSize &size, const Radii &radii)
{
    static QCache<MaskKey, QRegion> s_Regions(kCachedRegions);
    const MaskKey key{ size, radii };
    if (const QRegion *known = s_Regions.object(key))
        return *known;
    const QRegion result = painted(size, outline(size, radii));
    s_Regions.insert(key, new QRegion(result));
    return result;
}

bool RoundedMask::isPossible(const QSize &size)
{
    return !size.isEmpty() && size.width() <= kMaxExtent && size.height() <= kMaxExtent
        && qint64(size.width()) * size.height() <= kMaxPixels;
}

QRegion RoundedMask::painted(const QSize &size, const QPainterPath &path)
{
    QBitmap bitmap(size);
    bitmap.fill(Qt::white);
    QPainter painter(&bitmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.fillPath(path, QBrush(Qt::black, Qt::SolidPattern));
    painter.end();
    return QRegion(bitmap);
}

void RoundedMask::apply(QWidget *widget, const Radii &radii)
{
    if (isPossible(widget->size()))
        widget->setMask(region(widget->size(), radii));
}
