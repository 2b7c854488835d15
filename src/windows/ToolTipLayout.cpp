#include "windows/ToolTipLayout_p.h"

#include <QtCore/QStringList>

#include <limits>

namespace {

constexpr int kMinLifetimeMs = 10000;
constexpr int kLifetimePerCharacterMs = 40;
constexpr int kShortText = 100; // characters
constexpr int kGrowth = 10; // of the tip beyond its label's hint, both ways
constexpr int kGapBelow = 8; // between the position and a tip below it
constexpr int kGapAbove = 24; // between the first place and a tip that flips above it
constexpr int kRadius = 3;
constexpr int kTextLeft = 7;
constexpr int kTextTop = 7;
constexpr int kTextReserve = 9; // of the height, for the edges
constexpr int kMaxExtent = 32767; // of a window in the window system

int bounded(qint64 value, int extent)
{
    return int(qBound<qint64>(-extent, value, extent));
}

} // namespace

int ToolTipLayout::lifetime(int msec, int textLength)
{
    if (msec > 0)
        return msec;
    const qint64 extra = kLifetimePerCharacterMs * qMax<qint64>(0, qint64(textLength) - kShortText);
    return int(qMin<qint64>(kMinLifetimeMs + extra, std::numeric_limits<int>::max()));
}

QStringList ToolTipLayout::lines(const QString &text)
{
    return text.split(QLatin1String("\r\n"), Qt::KeepEmptyParts, Qt::CaseSensitive);
}

QSize ToolTipLayout::tipSize(const QSize &hint, int lineCount, int lineDistance)
{
    const qint64 distances = qint64(bounded(lineDistance, kMaxExtent)) * qMax(0, lineCount - 1);
    return { int(qBound<qint64>(0, qint64(hint.width()) + kGrowth, kMaxExtent)),
        int(qBound<qint64>(0, hint.height() + kGrowth + distances, kMaxExtent)) };
}

int ToolTipLayout::markerX(int width, int percent)
{
    return bounded(qint64(percent) * width / 100, kMaxExtent * 2);
}

QPoint ToolTipLayout::place(const QPoint &pos, const QSize &size, const QRect &screen, int percent)
{
    const qint64 right = qint64(screen.right()) + 1;
    const qint64 bottom = qint64(screen.bottom()) + 1;
    qint64 x = qint64(pos.x()) - markerX(size.width(), percent);
    qint64 y = qint64(pos.y()) + kGapBelow;
    if (y + size.height() > bottom)
        y = qMax<qint64>(y - size.height() - kGapAbove, screen.top());
    else if (y < screen.top())
        y = screen.top();
    // A tip that is higher than the screen loses its top rather than its bottom.
    if (y + size.height() > bottom)
        y = bottom - size.height();

    if (x + size.width() > right)
        x = right - size.width();
    x = qMax<qint64>(x, screen.left());
    return { int(x), int(y) };
}

QPainterPath ToolTipLayout::outline(const QSize &size, int percent)
{
    const int w = size.width();
    const int h = size.height();
    const int marker = markerX(w, percent);
    QPainterPath path;
    path.moveTo(w - kRadius, 0);
    // The marker's three points, which fall together as long as it has no size.
    for (int i = 0; i < 3; ++i)
        path.lineTo(marker, 0);
    path.lineTo(kRadius, 0);
    path.quadTo(0, 0, 0, kRadius);
    path.lineTo(0, h - kRadius);
    path.quadTo(0, h, kRadius, h);
    path.lineTo(w - kRadius, h);
    path.quadTo(w, h, w, h - kRadius);
    path.lineTo(w, kRadius);
    path.quadTo(w, 0, w - kRadius, 0);
    path.closeSubpath();
    return path;
}

QVector<QLine> ToolTipLayout::borderLines(const QSize &size, int percent)
{
    const int w = size.width();
    const int h = size.height();
    const int marker = markerX(w, percent);
    return { QLine(marker, 0, w - kRadius, 0), QLine(marker - 1, 0, marker, 1), QLine(marker + 1, 0, marker, 1),
        QLine(marker, 0, kRadius, 0), QLine(0, kRadius, 0, h - kRadius), QLine(kRadius, h, w - kRadius, h),
        QLine(w, kRadius, w, h - kRadius) };
}

int ToolTipLayout::lineHeight(int height, int lineCount, int lineDistance)
{
    if (lineCount <= 0)
        return 0;
    const qint64 distances = qint64(bounded(lineDistance, kMaxExtent)) * lineCount;
    return bounded(qMax<qint64>(0, (qint64(height) - 1 - distances - kTextReserve) / lineCount), kMaxExtent * 2);
}

QVector<QRect> ToolTipLayout::lineRects(const QSize &size, int lineCount, int lineDistance)
{
    const int height = lineHeight(size.height(), lineCount, lineDistance);
    const int step = height + bounded(lineDistance, kMaxExtent);
    QVector<QRect> rects;
    rects.reserve(qMax(0, lineCount));
    qint64 y = kTextTop;
    for (int i = 0; i < lineCount; ++i, y += step)
        rects.append(QRect(kTextLeft, bounded(y, std::numeric_limits<int>::max() / 2), size.width(), height));
    return rects;
}
