#pragma once

// Not part of the API. It may change from version to version without notice.

#include <Zanthic/ZanthicGlobal.h>

#include <QtCore/QLine>
#include <QtCore/QRect>
#include <QtCore/QString>
#include <QtCore/QVector>
#include <QtGui/QPainterPath>

/// Size, place, outline and lines of a tool tip: pure functions of numbers, in px. Absurd numbers are cut to what a
/// window can be.
namespace ToolTipLayout {

/// How long a tip lives, in ms: \p msec where that is above 0, else by the number of its characters.
ZANTHIC_TEST_EXPORT int lifetime(int msec, int textLength);
/// The lines that a text is painted in, at least one.
ZANTHIC_TEST_EXPORT QStringList lines(const QString &text);
/// The size of a tip whose label asks for \p hint.
ZANTHIC_TEST_EXPORT QSize tipSize(const QSize &hint, int lineCount, int lineDistance);
/// Where the marker stands on the top edge, \p percent of the width from the left.
ZANTHIC_TEST_EXPORT int markerX(int width, int percent);
/// The place of a tip that points at \p pos on \p screen, both in global coordinates.
ZANTHIC_TEST_EXPORT QPoint place(const QPoint &pos, const QSize &size, const QRect &screen, int percent);
/// The rounded box with its marker.
ZANTHIC_TEST_EXPORT QPainterPath outline(const QSize &size, int percent);
/// The lines that are painted over the outline.
ZANTHIC_TEST_EXPORT QVector<QLine> borderLines(const QSize &size, int percent);
/// The height of a line of text, at least 0; 0 without lines.
ZANTHIC_TEST_EXPORT int lineHeight(int height, int lineCount, int lineDistance);
/// Where the lines of text stand.
ZANTHIC_TEST_EXPORT QVector<QRect> lineRects(const QSize &size, int lineCount, int lineDistance);

} // namespace ToolTipLayout
