#pragma once

// Not part of the API. It may change from version to version without notice.

#include <QtCore/QPoint>
#include <QtCore/QSize>
#include <QtGui/QBrush>

#include <array>
#include <functional>
#include <vector>

QT_BEGIN_NAMESPACE
class QPainter;
QT_END_NAMESPACE

/// Pictures of boxes with solid colours, painted once and drawn again pixel for pixel.
///
/// A box is made of several antialiased steps that overlap at its corners, and blending rounds after each step, so
/// one picture of the finished box would not give the same pixels on every ground. A box is kept as a few layers
/// instead: the first holds the first step that touches a pixel, the next one the second, and so on, what is covered
/// by an opaque step left out. Drawing the layers in turn does to each pixel exactly what the steps did.
namespace BoxPictures {

/// All that the pixels of a box depend on, besides the scale of the device.
struct Key
{
    Key(const QSize &boxSize, const std::array<int, 4> &boxBorders, const std::array<QSize, 4> &boxRadii,
        const std::array<QBrush, 4> &brushes, bool isFill);

    QSize size; ///< px
    std::array<int, 4> borders;
    std::array<QSize, 4> radii;
    std::array<quint64, 4> colors{}; ///< 16 bits a channel
    int scale = 1; ///< device pixels a px
    bool fill; ///< the fill of a box, or its border
    bool solid = true; ///< every brush is a solid one; others are never kept
};

bool operator==(const Key &a, const Key &b);
uint qHash(const Key &key, uint seed = 0);

using Step = std::function<void(QPainter *)>; ///< one antialiased fill or stroke
using Steps = std::function<std::vector<Step>(const QRect &)>; ///< the steps of a box at a place

/// Draws the box at \p topLeft. False, and nothing drawn, where the painter may not give the same pixels by pictures
/// as by painting, or where the box isn't worth one; paint it then.
bool draw(QPainter *painter, const QPoint &topLeft, Key key, const Steps &steps);

} // namespace BoxPictures
