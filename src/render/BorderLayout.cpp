#include "render/BorderGeometry_p.h"

#include <cmath>

namespace {

using namespace Custom;
using BorderLayout::Band;

constexpr int kSixteenths = 16;

bool isNull(const QSize &size)
{
    return size.width() == 0 && size.height() == 0;
}

// A pair of radii that doesn't fit into its side is dropped, not scaled down.
void dropPair(bool tooLarge, QSize *first, QSize *second)
{
    if (!tooLarge)
        return;
    *first = QSize(0, 0);
    *second = QSize(0, 0);
}

// In 64 bits, since radii come from documents and may be any number.
bool exceeds(int first, int second, int limit)
{
    return qint64(first) + second > limit;
}

} // namespace

void Custom::cNormalizeRadii(
    const QRect &rect, const QSize *radii, QSize *leftTop, QSize *rightTop, QSize *leftBottom, QSize *rightBottom)
{
    if (!radii || !leftTop || !rightTop || !leftBottom || !rightBottom)
        return;
    const QSize zero(0, 0);
    *leftTop = radii[LeftTop].expandedTo(zero);
    *rightTop = radii[RightTop].expandedTo(zero);
    *leftBottom = radii[LeftBottom].expandedTo(zero);
    *rightBottom = radii[RightBottom].expandedTo(zero);
    dropPair(exceeds(leftTop->width(), rightTop->width(), rect.width()), leftTop, rightTop);
    dropPair(exceeds(leftBottom->width(), rightBottom->width(), rect.width()), leftBottom, rightBottom);
    dropPair(exceeds(leftTop->height(), leftBottom->height(), rect.height()), leftTop, leftBottom);
    dropPair(exceeds(rightTop->height(), rightBottom->height(), rect.height()), rightTop, rightBottom);
}

QPainterPath Custom::cBorderClip(QRect rect, const int *borders, const QSize *radii)
{
    QPainterPath path;
    if (!borders || !radii)
        return path;
    QSize tl, tr, bl, br;
    cNormalizeRadii(rect, radii, &tl, &tr, &bl, &br);
    if (isNull(tl) && isNull(tr) && isNull(bl) && isNull(br))
        return path;
    const QRectF box(rect);
    const double x = box.x(), y = box.y(), right = box.right(), bottom = box.bottom();
    const double l = borders[Left], r = borders[Right], t = borders[Top], b = borders[Bottom];
    // Two of the arcs take the half of a width as a whole number.
    const int halfTop = borders[Top] / 2;
    const int halfBottom = borders[Bottom] / 2;

    double curY = y + t / 2.0;
    path.moveTo(x + tl.width(), curY);
    path.lineTo(right - tr.width(), curY);
    double curX = right - r / 2.0;
    path.arcTo(curX - 2.0 * tr.width() + r, curY, 2.0 * tr.width() - r, 2.0 * tr.height() - t, 90, -90);

    path.lineTo(curX, bottom - br.height());
    curY = bottom - b / 2.0;
    path.arcTo(
        curX - 2.0 * br.width() + r, curY - 2.0 * br.height() + b, 2.0 * br.width() - r, 2.0 * br.height() - b, 0, -90);

    path.lineTo(x + bl.width(), curY);
    curX = x + l / 2.0;
    path.arcTo(curX, bottom - 2.0 * bl.height() + halfBottom, 2.0 * bl.width() - l, 2.0 * bl.height() - b, 270, -90);

    path.lineTo(curX, y + tl.height());
    path.arcTo(curX, y + halfTop, 2.0 * tl.width() - l, 2.0 * tl.height() - t, 180, -90);
    path.closeSubpath();
    return path;
}

BorderLayout::EdgePlace BorderLayout::edgePlace(
    BorderEdge edge, const QRect &rect, const int *borders, const QSize *radii)
{
    const QRectF box(rect);
    const double x = box.x(), y = box.y(), right = box.right(), bottom = box.bottom();
    const QSize tl = radii[LeftTop], tr = radii[RightTop], bl = radii[LeftBottom], br = radii[RightBottom];
    switch (edge) {
    case Bottom:
        return { { x + bl.width(), bottom - borders[Bottom], right - br.width(), bottom }, bl, br, Left, Right,
            bl.width(), br.width() };
    case Right:
        return { { right - borders[Right], y + tr.height(), right, bottom - br.height() }, tr, br, Top, Bottom,
            tr.height(), br.height() };
    case Left:
        return { { x, y + tl.height(), x + borders[Left], bottom - bl.height() }, tl, bl, Top, Bottom, tl.height(),
            bl.height() };
    default:
        return { { x + tl.width(), y, right - tr.width(), y + borders[Top] }, tl, tr, Left, Right, tl.width(),
            tr.width() };
    }
}

std::array<QPointF, 4> BorderLayout::mitredEdge(const Band &band, double dw1, double dw2, BorderEdge edge)
{
    const auto [x1, y1, x2, y2] = band;
    switch (edge) {
    case Top:
        return { QPointF(x1, y1), QPointF(x1 + dw1, y2), QPointF(x2 - dw2, y2), QPointF(x2, y1) };
    case Bottom:
        return { QPointF(x1 + dw1, y1), QPointF(x1, y2), QPointF(x2, y2), QPointF(x2 - dw2, y1) };
    case Left:
        return { QPointF(x1, y1), QPointF(x1, y2), QPointF(x2, y2 - dw2), QPointF(x2, y1 + dw1) };
    default:
        return { QPointF(x1, y1 + dw1), QPointF(x1, y2 - dw2), QPointF(x2, y2), QPointF(x2, y1) };
    }
}

QLineF BorderLayout::centreLine(const Band &band, BorderEdge edge)
{
    const auto [x1, y1, x2, y2] = band;
    const double width = band.thickness(edge);
    if (width == 1.0)
        return QLineF(x1, y1, x2 - 1, y2 - 1);
    if (edge == Top || edge == Bottom)
        return QLineF(x1 + width / 2.0, (y1 + y2) / 2.0, x2 - width / 2.0, (y1 + y2) / 2.0);
    return QLineF((x1 + x2) / 2.0, y1 + width / 2.0, (x1 + x2) / 2.0, y2 - width / 2.0);
}

std::array<Band, 2> BorderLayout::doubleBands(const Band &band, double dw1, double dw2, BorderEdge edge)
{
    const auto [x1, y1, x2, y2] = band;
    const double third = std::round(band.thickness(edge) / 3.0);
    const double dw1by3 = std::round(dw1 / 3.0);
    const double dw2by3 = std::round(dw2 / 3.0);
    switch (edge) {
    case Left:
        return { Band{ x1, y1, x1 + third, y2 }, Band{ x2 - third, y1 + dw1 - dw1by3, x2, y2 - dw2 + dw2by3 } };
    case Right:
        return { Band{ x2 - third, y1, x2, y2 }, Band{ x1, y1 + dw1 - dw1by3, x1 + third, y2 - dw2 + dw2by3 } };
    case Top:
        // The second band's end takes the start's third, unlike the other edges; themes are drawn for it.
        return { Band{ x1, y1, x2, y1 + third }, Band{ x1 + dw1 - dw1by3, y2 - third, x2 - dw2 + dw1by3, y2 } };
    default:
        return { Band{ x1 + dw1 - dw1by3, y1, x2 - dw2 + dw2by3, y1 + third }, Band{ x1, y2 - third, x2, y2 } };
    }
}

std::array<Band, 2> BorderLayout::grooveBands(const Band &band, double dw1, double dw2, BorderEdge edge)
{
    const auto [x1, y1, x2, y2] = band;
    const double half = std::round(band.thickness(edge) / 2.0);
    const double dw1by2 = std::floor(dw1 / 2.0);
    const double dw2by2 = std::floor(dw2 / 2.0);
    switch (edge) {
    case Left:
        return { Band{ x1, y1, x1 + half, y2 }, Band{ x1 + half, y1 + dw1by2, x2, y2 - dw2by2 } };
    case Right:
        return { Band{ x1 + half, y1, x2, y2 }, Band{ x1, y1 + dw1by2, x1 + half, y2 - dw2by2 } };
    case Top:
        return { Band{ x1, y1, x2, y1 + half }, Band{ x1 + dw1by2, y1 + half, x2 - dw2by2, y2 } };
    default:
        return { Band{ x1, y1 + half, x2, y2 }, Band{ x1 + dw1by2, y1, x2 - dw2by2, y1 + half } };
    }
}

std::array<Band, 2> BorderLayout::doubleCornerBands(const Band &band, BorderEdge edge)
{
    const auto [x1, y1, x2, y2] = band;
    const double third = band.thickness(edge) / 3.0;
    if (edge == Top || edge == Bottom)
        return { Band{ x1, y1, x2, y1 + third }, Band{ x1, y2 - third, x2, y2 } };
    return { Band{ x1, y1 + 1, x1 + third, y2 }, Band{ x2 - third, y1 + 1, x2, y2 } };
}

std::array<Band, 2> BorderLayout::grooveCornerBands(const Band &band, BorderEdge edge)
{
    const auto [x1, y1, x2, y2] = band;
    const double half = std::round(band.thickness(edge) / 2.0);
    switch (edge) {
    case Left:
        return { Band{ x1, y1, x1 + half, y2 }, Band{ x1 + half, y1, x2, y2 } };
    case Right:
        return { Band{ x1 + half, y1, x2, y2 }, Band{ x1, y1, x2 - half, y2 } };
    case Top:
        return { Band{ x1, y1, x2, y1 + half }, Band{ x1, y1 + half, x2, y2 } };
    default:
        return { Band{ x1, y1 + half, x2, y2 }, Band{ x1, y1, x2, y2 - half } };
    }
}

std::array<BorderLayout::Arc, 2> BorderLayout::cornerArcs(
    const Band &band, const QSizeF &r1, const QSizeF &r2, BorderEdge edge)
{
    const auto [x1, y1, x2, y2] = band;
    const double pw = band.thickness(edge);
    const double h = pw / 2.0;
    const auto arc = [pw](double left, double top, const QSizeF &r, int start, int span) {
        return Arc{ QRectF(left, top, 2.0 * r.width() - pw, 2.0 * r.height() - pw), start * kSixteenths,
            span * kSixteenths };
    };
    switch (edge) {
    case Top:
        return { arc(x1 - r1.width() + h, y1 + h, r1, 135, -45), arc(x2 - r2.width() + h, y1 + h, r2, 45, 45) };
    case Bottom:
        return { arc(x1 - r1.width() + h, y2 - 2.0 * r1.height() + h, r1, -90, -45),
            arc(x2 - r2.width() + h, y2 - 2.0 * r2.height() + h, r2, -90, 45) };
    case Left:
        return { arc(x1 + h, y1 - r1.height() + h, r1, 135, 45), arc(x1 + h, y2 - r2.height() + h, r2, 180, 45) };
    default:
        return { arc(x2 - 2.0 * r1.width() + h, y1 - r1.height() + h, r1, 45, -45),
            arc(x2 - 2.0 * r2.width() + h, y2 - r2.height() + h, r2, 315, 45) };
    }
}
