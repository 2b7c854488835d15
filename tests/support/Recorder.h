#pragma once

#include <QtCore/QStringList>
#include <QtGui/QPainterPath>

#include <functional>

/// Writes down what is drawn instead of drawing it.
namespace Recorder {

/// One text a shape, in drawing order, such as "rect 0,0 9x1 #ff0000", "poly 0,0 1,1 8,1 9,0 #ff0000",
/// "line 0,0 9,0 #ff0000 w1 SolidLine FlatCap BevelJoin", "path M1,2 L3,4 C5,6 ...". Curves are named by their end
/// points.
QStringList shapes(const std::function<void(QPainter *)> &paint);
/// The elements of a path, curves by their end points.
QString pathText(const QPainterPath &path);

} // namespace Recorder
