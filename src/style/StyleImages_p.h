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
    /// An icon that shows what \p path delivers at the moment it is painted, so it follows the skin.
    static QIcon icon(const QString &path);

    static void clear();
};

/// One image of the theme by its path, with what the last paint looked up.
class ZANTHIC_TEST_EXPORT StyleImage
{
public:
    StyleImage() = default;
    explicit StyleImage(const QString &path) : m_strPath(path) { }

    const QString &path() const { return m_strPath; }
    bool isEmpty() const { return m_strPath.isEmpty(); } ///< there is no path
    QSize size() const; ///< px; (0, 0) where the path can't be loaded
    /// The picture that suits a device, see StyleImages::pixmapForRatio().
    QPixmap pixmapForRatio(qreal ratio) const;
    /// Draws the whole picture into \p target, with the picture that suits the painter's device.
    void draw(QPainter *painter, const QRectF &target) const;

private:
    bool isKept() const; // whether what was looked up still holds

    QString m_strPath;
    mutable quint64 m_nGeneration = 0;
    mutable qreal m_nRatio = 0.0;
    mutable QSize m_oSize;
    mutable QPixmap m_oPixmap;
};
