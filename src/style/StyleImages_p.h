#pragma once

// Not part of the API. It may change from version to version without notice.

#include <Zanthic/ZanthicGlobal.h>

#include <QtCore/QRectF>
#include <QtGui/QIcon>
#include <QtGui/QPixmap>

QT_BEGIN_NAMESPACE
class QPainter;
QT_END_NAMESPACE

/// The images of the theme, loaded once by path until a document or a skin comes in. A file on disk that changes
/// is loaded anew, as by QPixmap. A path that can't be loaded gives a null pixmap.
class ZANTHIC_TEST_EXPORT StyleImages
{
public:
    /// The picture of \p path itself: its size is the size in px that layouts reckon with.
    static QPixmap pixmap(const QString &path);
    /// The picture for a device of \p ratio device pixels a px: "name@2x.png" beside "name.png", or of a higher
    /// number, where there is one; else the picture of \p path itself.
    static QPixmap pixmapForRatio(const QString &path, qreal ratio);
    /// Draws the whole picture into \p target, with the picture that suits the painter's device.
    static void draw(QPainter *painter, const QRectF &target, const QString &path);
    /// An icon that shows what \p path delivers at the moment it is painted, so it follows the skin.
    static QIcon icon(const QString &path);

    static void clear();
    static quint64 generation(); ///< counts up with each clear()
};
