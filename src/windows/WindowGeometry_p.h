#pragma once

// Not part of the API. It may change from version to version without notice.

#include <Zanthic/CustomMainWindow.h>

#include <QtCore/QMargins>
#include <QtCore/QPointF>
#include <QtCore/QRect>
#include <QtGui/QRegion>

#include <array>

/// The decisions of a frameless window that need no window.
namespace WindowGeometry {

using Edges = CustomMainWindow::StrechEdges;
using Widths = std::array<int, 4>; ///< px, by Custom::BorderEdge
using Radii = std::array<QSize, 4>; ///< px, by Custom::BorderCorner

/// Halves go away from zero.
ZANTHIC_TEST_EXPORT QPoint rounded(const QPointF &position);

/// What the mouse would do at a point.
struct Zone
{
    int edge = 0; ///< a CustomMainWindow::StrechEdge, 0 for none
    Qt::CursorShape cursor = Qt::ArrowCursor;
};

/// The zone of \p position in a frame, both in the same coordinates. The bands are 10 px wide at the right and the
/// bottom, 11 px at the left and the top; where they would overlap in a small frame, bottom and right win.
ZANTHIC_TEST_EXPORT Zone zoneAt(const QPoint &position, const QRect &frame, Edges edges);

/// The geometry that a stretch by \p edge over \p delta px leads to. At the left and the top the size may end one
/// pixel above \p minimum, at the right and the bottom exactly there.
ZANTHIC_TEST_EXPORT QRect stretched(const QRect &start, int edge, const QPoint &delta, const QSize &minimum);

/// How far the pointer has gone since \p start, without leaving \p area.
ZANTHIC_TEST_EXPORT QPoint strechDelta(const QPoint &start, const QPoint &position, const QRect &area);

/// The room that a shadow takes around the frame.
ZANTHIC_TEST_EXPORT QMargins shadowMargins(const QPointF &offset, float blurRadius);

/// The room that a border takes inside the frame. A rounded border takes one pixel
/// more at the left, the right and the bottom.
ZANTHIC_TEST_EXPORT QMargins borderMargins(const Widths &borders, bool rounded);

/// The colour rectangle that carries the title's colour under the border beside the title bar.
ZANTHIC_TEST_EXPORT QRect residual(const QRect &titleBar, int frameWidth);

/// The shape of a window with a border; empty where no window can be of that size.
ZANTHIC_TEST_EXPORT QRegion mask(const QSize &size, const Widths &borders, const Radii &radii);
/// The same, painted pixel by pixel.
ZANTHIC_TEST_EXPORT QRegion paintedMask(const QSize &size, const Widths &borders, const Radii &radii);

} // namespace WindowGeometry
