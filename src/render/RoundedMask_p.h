#pragma once

// Not part of the API. It may change from version to version without notice.

#include <Zanthic/ZanthicGlobal.h>

#include <QtGui/QPainterPath>
#include <QtGui/QRegion>

#include <array>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

/// The window shape of a rounded control. Its corners are quadratic curves, unlike the elliptical arcs of a border,
/// on purpose: the two outlines are not to be unified.
namespace RoundedMask {

using Radii = std::array<int, 4>; ///< px, by Custom::BorderCorner

ZANTHIC_TEST_EXPORT QPainterPath outline(const QSize &size, const Radii &radii);
/// The pixels inside the outline. Regions are shared by size and radii.
ZANTHIC_TEST_EXPORT QRegion region(const QSize &size, const Radii &radii);
/// Whether a window can be that large at all. A bitmap of a larger size would only cost memory.
ZANTHIC_TEST_EXPORT bool isPossible(const QSize &size);
/// The pixels of a window of \p size that lie inside \p path.
ZANTHIC_TEST_EXPORT QRegion painted(const QSize &size, const QPainterPath &path);
/// Gives the widget the shape for its present size. A size beyond what a window can have leaves the shape alone.
void apply(QWidget *widget, const Radii &radii);

} // namespace RoundedMask
