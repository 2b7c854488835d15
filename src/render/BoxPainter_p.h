#pragma once

// Not part of the API. It may change from version to version without notice.

#include "style/CustomObject_p.h"

#include <QtGui/QPainterPath>

namespace BoxPainter {

/// Custom::cBorderClip() of a resolved box.
QPainterPath clipPath(const QRect &rect, const CustomObjectData::BorderParameter &parameter);
/// Fills a resolved box: within the middle of its border where that is rounded, else the whole rectangle.
ZANTHIC_TEST_EXPORT void fillBox(
    QPainter *painter, const QRect &rect, const CustomObjectData::BorderParameter &parameter, const QBrush &brush);
/// CustomObject::cDrawBackground() of a resolved box; with \p fill as if that were its background colour.
bool drawBackground(const CustomObjectData &data, const ResolvedStyle &style, QPainter *painter, const QRect &rect,
    const ParsedBrush *fill = nullptr);
/// Custom::cDrawBorder() of a resolved box with solid edges, antialiased.
ZANTHIC_TEST_EXPORT void drawSolidBorder(
    QPainter *painter, const QRect &rect, const CustomObjectData::BorderParameter &parameter);

/// Whether rounded boxes are painted from pictures of an earlier paint; on. For tests, which hold both ways
/// against each other.
ZANTHIC_TEST_EXPORT void setPicturesEnabled(bool on);
bool arePicturesEnabled();

} // namespace BoxPainter
