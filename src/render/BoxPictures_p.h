#pragma once

// Not part of the API. It may change from version to version without notice.

#include "style/CustomObject_p.h"

#include <QtGui/QImage>
#include <QtGui/QPainterPath>

/// What a rounded box of one size needs at each paint, made once.
///
/// The fill of a box is kept as a picture: it is one antialiased fill with one colour, so drawing the picture of it
/// blends every pixel as the fill itself does. A border is several strokes that overlap at the corners; since blending
/// rounds after each of them, no picture gives the same pixels on every ground, and only its outlines are kept.
namespace BoxPictures {

using Parameter = CustomObjectData::BorderParameter;

/// Fills a rounded box. False, and nothing drawn, where the painter may not give the same pixels by a picture as by
/// painting, or where the box isn't worth one; fill it then.
bool drawFill(QPainter *painter, const QRect &rect, const Parameter &parameter, const QColor &color);

/// The arcs of a border: two for each edge, by Custom::BorderEdge; empty where there is none.
using Arcs = std::array<std::array<QPainterPath, 2>, 4>;
std::shared_ptr<const Arcs> arcs(const QRect &rect, const Parameter &parameter);

/// An ellipse of one size, stroked with a pen of 1 px or filled, antialiased, for a painter as it is set up now. Small
/// ones are drawn from a picture that is kept by size and colour.
class ZANTHIC_TEST_EXPORT Ellipse
{
public:
    enum Kind { Stroked, Filled };

    Ellipse(const QPainter *painter, const QSize &size, const QColor &color, Kind kind);
    void draw(QPainter *painter, const QPoint &topLeft) const;

private:
    QSize m_oSize;
    QColor m_oColor;
    Kind m_eKind;
    int m_nScale = 0; // 0 without a picture
    QImage m_oPicture;
};

} // namespace BoxPictures
