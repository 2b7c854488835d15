#include "windows/WindowGeometry_p.h"

#include "render/RoundedMask_p.h"

#include <Zanthic/Custom.h>

#include <QtGui/QPainterPath>
#include <QtWidgets/QWidget>

#include <algorithm>
#include <cmath>

namespace {

using Window = CustomMainWindow;

// Counted from the outermost pixel of the edge.
constexpr int Band_RightBottom = 9;
constexpr int Band_LeftTop = 10;

constexpr int Corner_Margin = 4;
constexpr qreal kFarAway = 1 << 24;

constexpr int kLeftEdges = Window::StrechLeft | Window::StrechTopLeft | Window::StrechBottomLeft;
constexpr int kRightEdges = Window::StrechRight | Window::StrechTopRight | Window::StrechBottomRight;
constexpr int kTopEdges = Window::StrechTop | Window::StrechTopLeft | Window::StrechTopRight;
constexpr int kBottomEdges = Window::StrechBottom | Window::StrechBottomLeft | Window::StrechBottomRight;

/// One of the two horizontal bands: its edge, and the corners at its ends, which come before it.
struct Band
{
    Window::StrechEdge edge;
    Window::StrechEdge left;
    Qt::CursorShape leftCursor;
    Window::StrechEdge right;
    Qt::CursorShape rightCursor;
};

constexpr Band kBottom{ Window::StrechBottom, Window::StrechBottomLeft, Qt::SizeBDiagCursor, Window::StrechBottomRight,
    Qt::SizeFDiagCursor };
constexpr Band kTop{ Window::StrechTop, Window::StrechTopLeft, Qt::SizeFDiagCursor, Window::StrechTopRight,
    Qt::SizeBDiagCursor };

WindowGeometry::Zone zoneInBand(const Band &band, bool atRight, bool atLeft, WindowGeometry::Edges edges)
{
    if (atRight && edges.testFlag(band.right))
        return { band.right, band.rightCursor };
    if (!atRight && atLeft && edges.testFlag(band.left))
        return { band.left, band.leftCursor };
    if (edges.testFlag(band.edge))
        return { band.edge, Qt::SizeVerCursor };
    return {};
}

int clamped(int value, int low, int high)
{
    return qMax(low, qMin(value, high));
}

/// A size in which the corners stand apart, and the edges between them are straight.
QSize cornersSize(const WindowGeometry::Widths &borders, const WindowGeometry::Radii &radii)
{
    const int border = *std::max_element(borders.cbegin(), borders.cend());
    int corner = 0;
    for (const QSize &radius : radii)
        corner = qMax(corner, qMax(radius.width(), radius.height()));
    const int side = 2 * (qBound(0, corner, QWIDGETSIZE_MAX) + qBound(0, border, QWIDGETSIZE_MAX) + Corner_Margin);
    return QSize(side, side);
}

QRegion stretchedRegion(const QRegion &region, const QSize &from, const QSize &to)
{
    const int middleX = from.width() / 2;
    const int middleY = from.height() / 2;
    const int addedX = to.width() - from.width();
    const int addedY = to.height() - from.height();
    QVector<QRect> rects;
    rects.reserve(region.rectCount());
    for (QRect rect : region) {
        rect.adjust(rect.left() > middleX ? addedX : 0, rect.top() > middleY ? addedY : 0,
            rect.right() >= middleX ? addedX : 0, rect.bottom() >= middleY ? addedY : 0);
        rects.append(rect);
    }
    QRegion result;
    result.setRects(rects.constData(), rects.size());
    return result;
}

} // namespace

QPoint WindowGeometry::rounded(const QPointF &position)
{
    const auto whole = [](qreal value) { return int(std::lround(qBound(-kFarAway, value, kFarAway))); };
    return QPoint(whole(position.x()), whole(position.y()));
}

WindowGeometry::Zone WindowGeometry::zoneAt(const QPoint &position, const QRect &frame, Edges edges)
{
    if (!frame.contains(position))
        return {};
    const bool atRight = position.x() >= frame.right() - Band_RightBottom;
    const bool atLeft = !atRight && position.x() <= frame.left() + Band_LeftTop;
    if (position.y() >= frame.bottom() - Band_RightBottom)
        return zoneInBand(kBottom, atRight, atLeft, edges);
    if (position.y() <= frame.top() + Band_LeftTop)
        return zoneInBand(kTop, atRight, atLeft, edges);
    if (atRight && edges.testFlag(Window::StrechRight))
        return { Window::StrechRight, Qt::SizeHorCursor };
    if (atLeft && edges.testFlag(Window::StrechLeft))
        return { Window::StrechLeft, Qt::SizeHorCursor };
    return {};
}

QRect WindowGeometry::stretched(const QRect &start, int edge, const QPoint &delta, const QSize &wanted)
{
    const QSize minimum = wanted.boundedTo(QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
    QRect result = start;
    if (edge & kLeftEdges)
        result.setLeft(qMin(start.left() + delta.x(), start.right() - minimum.width()));
    else if (edge & kRightEdges)
        result.setRight(start.left() + qMax(start.width() + delta.x(), minimum.width()) - 1);
    if (edge & kTopEdges)
        result.setTop(qMin(start.top() + delta.y(), start.bottom() - minimum.height()));
    else if (edge & kBottomEdges)
        result.setBottom(start.top() + qMax(start.height() + delta.y(), minimum.height()) - 1);
    return result;
}

QPoint WindowGeometry::strechDelta(const QPoint &start, const QPoint &position, const QRect &area)
{
    return QPoint(clamped(position.x(), area.left(), area.right()) - start.x(),
        clamped(position.y(), area.top(), area.bottom()) - start.y());
}

QMargins WindowGeometry::shadowMargins(const QPointF &offset, float blurRadius)
{
    const double radius = double(blurRadius * 0.5f);
    return QMargins(
        int(radius - offset.x()), int(radius - offset.y()), int(radius + offset.x()), int(radius + offset.y()));
}

QMargins WindowGeometry::borderMargins(const Widths &borders, bool rounded)
{
    const int extra = rounded ? 1 : 0;
    const auto width = [&borders](Custom::BorderEdge edge) { return qMin(borders[edge], QWIDGETSIZE_MAX); };
    return QMargins(
        extra + width(Custom::Left), width(Custom::Top), extra + width(Custom::Right), extra + width(Custom::Bottom));
}

QRect WindowGeometry::residual(const QRect &titleBar, int frameWidth)
{
    QRect result = titleBar;
    result.setLeft(0);
    result.setRight(frameWidth - 1);
    return result;
}

QRegion WindowGeometry::paintedMask(const QSize &size, const Widths &borders, const Radii &radii)
{
    return RoundedMask::painted(size, Custom::cBorderClip(QRect(QPoint(0, 0), size), borders.data(), radii.data()));
}

QRegion WindowGeometry::mask(const QSize &size, const Widths &borders, const Radii &radii)
{
    if (!RoundedMask::isPossible(size))
        return QRegion();
    // Only the corners are curved: the shape of a small window is stretched in the middle.
    const QSize least = cornersSize(borders, radii);
    if (size.width() <= least.width() || size.height() <= least.height())
        return paintedMask(size, borders, radii);
    struct Known
    {
        Widths borders;
        Radii radii;
        QRegion region;
    };
    static Known s_Known;
    if (s_Known.region.isEmpty() || s_Known.borders != borders || s_Known.radii != radii)
        s_Known = { borders, radii, paintedMask(least, borders, radii) };
    return stretchedRegion(s_Known.region, least, size);
}
