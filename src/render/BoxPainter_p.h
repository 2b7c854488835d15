#pragma once

// Not part of the API. It may change from version to version without notice.

#include "style/CustomObject_p.h"

#include <QtGui/QPainterPath>

namespace BoxPainter {

/// Custom::cBorderClip() of a resolved box.
QPainterPath clipPath(const QRect &rect, const CustomObjectData::BorderParameter &parameter);
/// Custom::cDrawBorder() of a resolved box with solid edges. Antialiasing is on.
void drawSolidBorder(QPainter *painter, const QRect &rect, const CustomObjectData::BorderParameter &parameter);

} // namespace BoxPainter
