#include "render/BorderGeometry_p.h"
#include "render/PainterTools_p.h"

#include <QtGui/QPainter>
#include <QtGui/QPen>

#include <cmath>

namespace {

using namespace Custom;
using BorderLayout::Arc;
using BorderLayout::Band;

constexpr int kLightenPercent = 150;

// Whether edge e1 needs no mitre where it meets e2.
bool cPaintsOver(const BorderStyle *styles, const QBrush *colors, BorderEdge e1, BorderEdge e2)
{
    if (styles[e2] == BorderNone || colors[e2] == QBrush(Qt::transparent))
        return true;
    return styles[e1] == BorderSolid && styles[e2] == BorderSolid && colors[e1] == colors[e2];
}

QPen cPenFromStyle(const QBrush &brush, double width, BorderStyle style)
{
    Qt::PenStyle penStyle = Qt::NoPen;
    switch (style) {
    case BorderDotted:
        penStyle = Qt::DotLine;
        break;
    case BorderDashed:
        penStyle = width == 1.0 ? Qt::DotLine : Qt::DashLine;
        break;
    case BorderDotDash:
        penStyle = Qt::DashDotLine;
        break;
    case BorderDotDotDash:
        penStyle = Qt::DashDotDotLine;
        break;
    case BorderSolid:
    case BorderInset:
    case BorderOutset:
        penStyle = Qt::SolidLine;
        break;
    default:
        break;
    }
    return QPen(brush, width, penStyle, Qt::FlatCap, Qt::BevelJoin);
}

// The light from the left top makes one pair of edges of an inset or outset border lighter.
QBrush litBrush(const QBrush &brush, BorderEdge edge, BorderStyle style)
{
    const bool leftTop = edge == Left || edge == Top;
    const bool rightBottom = edge == Right || edge == Bottom;
    if ((style == BorderOutset && leftTop) || (style == BorderInset && rightBottom))
        return QBrush(brush.color().lighter(kLightenPercent), Qt::SolidPattern);
    return brush;
}

void drawSolidEdge(QPainter *painter, const Band &band, double dw1, double dw2, BorderEdge edge, const QBrush &brush)
{
    painter->setPen(Qt::NoPen);
    painter->setBrush(brush);
    if (band.thickness(edge) == 1.0 || (dw1 == 0.0 && dw2 == 0.0)) {
        painter->drawRect(QRectF(band.x1, band.y1, band.x2 - band.x1, band.y2 - band.y1));
        return;
    }
    const std::array<QPointF, 4> points = BorderLayout::mitredEdge(band, dw1, dw2, edge);
    painter->drawConvexPolygon(points.data(), int(points.size()));
}

void drawPenEdge(QPainter *painter, const Band &band, BorderEdge edge, BorderStyle style, const QBrush &brush)
{
    const double width = band.thickness(edge);
    painter->setPen(cPenFromStyle(brush, width, style));
    painter->drawLine(BorderLayout::centreLine(band, edge));
}

// Draws both bands of a border that is made of two.
void drawBands(QPainter *painter, const std::array<Band, 2> &bands, double dw1, double dw2, BorderEdge edge,
    BorderStyle first, BorderStyle second, const QBrush &brush)
{
    const BorderStyle styles[] = { first, second };
    for (int i = 0; i < 2; ++i)
        cDrawEdge(painter, bands[i].x1, bands[i].y1, bands[i].x2, bands[i].y2, dw1, dw2, edge, styles[i], brush);
}

void drawCornerBands(QPainter *painter, const std::array<Band, 2> &bands, const QSizeF &r1, const QSizeF &r2,
    BorderEdge edge, BorderStyle first, BorderStyle second, const QBrush &brush)
{
    const BorderStyle styles[] = { first, second };
    for (int i = 0; i < 2; ++i)
        cDrawRoundedCorners(
            painter, bands[i].x1, bands[i].y1, bands[i].x2, bands[i].y2, r1, r2, edge, styles[i], brush);
}

void drawArcs(QPainter *painter, const Band &band, const QSizeF &r1, const QSizeF &r2, BorderEdge edge,
    BorderStyle style, const QBrush &brush)
{
    painter->save();
    painter->setBrush(Qt::NoBrush);
    QPen pen = cPenFromStyle(brush, band.thickness(edge), style);
    pen.setCapStyle(Qt::SquareCap);
    painter->setPen(pen);
    const std::array<Arc, 2> arcs = BorderLayout::cornerArcs(band, r1, r2, edge);
    if (!r1.isEmpty())
        painter->drawArc(arcs[0].rect, arcs[0].start, arcs[0].span);
    if (!r2.isEmpty())
        painter->drawArc(arcs[1].rect, arcs[1].start, arcs[1].span);
    painter->restore();
}

} // namespace

std::vector<BorderLayout::EdgeJob> BorderLayout::edgeJobs(
    const QRect &rect, const BorderStyle *styles, const int *borders, const QBrush *colors, const QSize *radii)
{
    QSize tl, tr, bl, br;
    cNormalizeRadii(rect, radii, &tl, &tr, &bl, &br);
    const QSize normalized[] = { tl, tr, bl, br };
    std::vector<EdgeJob> jobs;
    for (const BorderEdge edge : { Bottom, Right, Left, Top }) {
        if (styles[edge] == BorderNone || borders[edge] <= 0)
            continue;
        const EdgePlace place = edgePlace(edge, rect, borders, normalized);
        const auto overhang = [&](int radius, BorderEdge neighbour) {
            return radius != 0 || cPaintsOver(styles, colors, edge, neighbour) ? 0 : borders[neighbour];
        };
        jobs.push_back({ place, edge, overhang(place.startRadius, place.startNeighbour),
            overhang(place.endRadius, place.endNeighbour) });
    }
    return jobs;
}

void Custom::cDrawBorder(QPainter *painter, const QRect &rect, const BorderStyle *styles, const int *borders,
    const QBrush *colors, const QSize *radii)
{
    if (!isUsable(painter) || !styles || !borders || !colors || !radii)
        return;
    for (const BorderLayout::EdgeJob &job : BorderLayout::edgeJobs(rect, styles, borders, colors, radii)) {
        const Band &band = job.place.band;
        cDrawEdge(painter, band.x1, band.y1, band.x2, band.y2, job.dw1, job.dw2, job.edge, styles[job.edge],
            colors[job.edge]);
        if (job.place.startRadius != 0 || job.place.endRadius != 0)
            cDrawRoundedCorners(painter, band.x1, band.y1, band.x2, band.y2, QSizeF(job.place.r1), QSizeF(job.place.r2),
                job.edge, styles[job.edge], colors[job.edge]);
    }
}

void Custom::cDrawEdge(QPainter *painter, double x1, double y1, double x2, double y2, double dw1, double dw2,
    BorderEdge edge, BorderStyle style, QBrush brush)
{
    if (!isUsable(painter))
        return;
    const Band band{ x1, y1, x2, y2 };
    painter->save();
    if (style == BorderDouble && band.thickness(edge) <= 2.0)
        style = BorderSolid;
    switch (style) {
    case BorderInset:
    case BorderOutset:
    case BorderSolid:
        drawSolidEdge(painter, band, dw1, dw2, edge, litBrush(brush, edge, style));
        break;
    case BorderDotted:
    case BorderDashed:
    case BorderDotDash:
    case BorderDotDotDash:
        drawPenEdge(painter, band, edge, style, brush);
        break;
    case BorderDouble:
        drawBands(painter, BorderLayout::doubleBands(band, dw1, dw2, edge), std::round(dw1 / 3.0),
            std::round(dw2 / 3.0), edge, BorderSolid, BorderSolid, brush);
        break;
    case BorderGroove:
    case BorderRidge: {
        const bool groove = style == BorderGroove;
        drawBands(painter, BorderLayout::grooveBands(band, dw1, dw2, edge), std::floor(dw1 / 2.0),
            std::floor(dw2 / 2.0), edge, groove ? BorderInset : BorderOutset, groove ? BorderOutset : BorderInset,
            brush);
        break;
    }
    default:
        break;
    }
    painter->restore();
}

void Custom::cDrawRoundedCorners(QPainter *painter, double x1, double y1, double x2, double y2, const QSizeF &r1,
    const QSizeF &r2, BorderEdge edge, BorderStyle style, QBrush brush)
{
    if (!isUsable(painter))
        return;
    const Band band{ x1, y1, x2, y2 };
    if (style == BorderDouble) {
        drawCornerBands(
            painter, BorderLayout::doubleCornerBands(band, edge), r1, r2, edge, BorderSolid, BorderSolid, brush);
        return;
    }
    if (style == BorderGroove || style == BorderRidge) {
        const bool groove = style == BorderGroove;
        drawCornerBands(painter, BorderLayout::grooveCornerBands(band, edge), r1, r2, edge,
            groove ? BorderInset : BorderOutset, groove ? BorderOutset : BorderInset, brush);
    }
    drawArcs(painter, band, r1, r2, edge, style, litBrush(brush, edge, style));
}
