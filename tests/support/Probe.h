#pragma once

#include <QtGui/QColor>
#include <QtGui/QImage>
#include <QtWidgets/QWidget>

#include <functional>

/// Pictures of what is painted.
namespace Probe {

/// A transparent picture of \p size px at \p scale, painted by \p paint.
QImage painted(const QSize &size, const std::function<void(QPainter *)> &paint, qreal scale = 1.0);
/// The widget's own paint, without its children's, on a transparent ground.
QImage grab(QWidget *widget, qreal scale = 1.0);
/// "#aarrggbb" of a pixel, in device pixels.
QString colorAt(const QImage &image, int x, int y);
/// The smallest rectangle that holds every pixel for which \p matches is true.
QRect bounds(const QImage &image, const std::function<bool(const QColor &)> &matches);

/// Compares with the picture tests/data/pictures/NAME.png. On failure, actual, expected and difference are written
/// into the output folder and \p message says where. With ZANTHIC_UPDATE_PICTURES set the expected picture is
/// written instead.
bool matchesPicture(const QImage &image, const QString &name, QString *message);

} // namespace Probe
