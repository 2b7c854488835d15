#pragma once

// Not part of the API. It may change from version to version without notice.

#include <Zanthic/Custom.h>

#include <QtCore/QLineF>
#include <QtCore/QPointF>
#include <QtCore/QRectF>
#include <QtCore/QSizeF>

#include <array>
#include <vector>

/// Where the parts of a border lie: pure functions of numbers.
namespace BorderLayout {

/// The rectangle that an edge, or a part of its thickness, occupies.
struct Band
{
    double x1;
    double y1;
    double x2;
    double y2;

    double thickness(Custom::BorderEdge edge) const
    {
        return edge == Custom::Top || edge == Custom::Bottom ? y2 - y1 : x2 - x1;
    }
};

/// The place of one edge in a box.
struct EdgePlace
{
    Band band;
    QSize r1; ///< radius at the start (left or top)
    QSize r2; ///< radius at the end (right or bottom)
    Custom::BorderEdge startNeighbour;
    Custom::BorderEdge endNeighbour;
    int startRadius; ///< the radius at the start, along the edge
    int endRadius;
};

struct Arc
{
    QRectF rect;
    int start; ///< sixteenths of a degree
    int span; ///< sixteenths of a degree
};

/// One edge to be drawn, with its mitres.
struct EdgeJob
{
    EdgePlace place;
    Custom::BorderEdge edge;
    int dw1;
    int dw2;
};

/// The edges of a box that are drawn, from back to front.
std::vector<EdgeJob> edgeJobs(
    const QRect &rect, const Custom::BorderStyle *styles, const int *borders, const QBrush *colors, const QSize *radii);
/// \p radii are normalised, by Custom::BorderCorner.
EdgePlace edgePlace(Custom::BorderEdge edge, const QRect &rect, const int *borders, const QSize *radii);
/// The corners of an edge that is mitred by \p dw1 and \p dw2, in drawing order.
ZANTHIC_TEST_EXPORT std::array<QPointF, 4> mitredEdge(
    const Band &band, double dw1, double dw2, Custom::BorderEdge edge);
/// The line that a pen draws an edge with.
ZANTHIC_TEST_EXPORT QLineF centreLine(const Band &band, Custom::BorderEdge edge);
ZANTHIC_TEST_EXPORT std::array<Band, 2> doubleBands(const Band &band, double dw1, double dw2, Custom::BorderEdge edge);
ZANTHIC_TEST_EXPORT std::array<Band, 2> grooveBands(const Band &band, double dw1, double dw2, Custom::BorderEdge edge);
ZANTHIC_TEST_EXPORT std::array<Band, 2> doubleCornerBands(const Band &band, Custom::BorderEdge edge);
ZANTHIC_TEST_EXPORT std::array<Band, 2> grooveCornerBands(const Band &band, Custom::BorderEdge edge);
/// The half corners at an edge's start and end.
ZANTHIC_TEST_EXPORT std::array<Arc, 2> cornerArcs(
    const Band &band, const QSizeF &r1, const QSizeF &r2, Custom::BorderEdge edge);

} // namespace BorderLayout
