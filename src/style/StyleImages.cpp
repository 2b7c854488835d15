#include "style/StyleImages_p.h"

#include "style/PostRoutine_p.h"

#include <QtCore/QCache>
#include <QtCore/QDateTime>
#include <QtCore/QFileInfo>
#include <QtCore/QtMath>
#include <QtGui/QGuiApplication>
#include <QtGui/QIconEngine>
#include <QtGui/QImageReader>
#include <QtGui/QPainter>

namespace {

// What is kept, in KiB of decoded pictures. One picture never counts for more than a quarter, so that it is kept.
constexpr int kCacheKiB = 64 * 1024;
constexpr int kMaxRatio = 9;

struct LoadedImage
{
    QPixmap pixmap;
    qint64 size = 0; // of the file on disk; resources don't change behind their path without a new skin
    QDateTime modified;
};

QCache<QString, LoadedImage> &images()
{
    static QCache<QString, LoadedImage> s_Images(kCacheKiB);
    static PostRoutine s_Routine(StyleImages::clear);
    s_Routine.ensure();
    return s_Images;
}

quint64 g_nGeneration = 1;

bool isResource(const QString &path)
{
    return path.startsWith(QLatin1Char(':'));
}

QPixmap loadPixmap(const QString &path)
{
    // Not QPixmap(path): that looks into a cache which may still hold the picture of another skin.
    return QPixmap::fromImage(QImageReader(path).read());
}

int costOf(const QPixmap &pixmap)
{
    const qint64 bytes = qint64(pixmap.width()) * pixmap.height() * 4;
    return int(qBound<qint64>(1, bytes / 1024, kCacheKiB / 4));
}

bool isFresh(const LoadedImage &image, const QFileInfo &file)
{
    return image.size == file.size() && image.modified == file.lastModified();
}

QString pathForRatio(const QString &path, int ratio)
{
    const int dot = path.lastIndexOf(QLatin1Char('.'));
    QString result = path;
    return result.insert(dot < 0 ? path.size() : dot, QStringLiteral("@%1x").arg(ratio));
}

// Paints the icon of a path and makes it anew when the images have changed.
class StyleIconEngine : public QIconEngine
{
public:
    explicit StyleIconEngine(const QString &path) : m_strPath(path) { }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        icon().paint(painter, rect, Qt::AlignCenter, mode, state);
    }
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap result = icon().pixmap(size / scaleOfQIcon(), mode, state);
        result.setDevicePixelRatio(1.0);
        return result;
    }
    QSize actualSize(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        return icon().actualSize(size / scaleOfQIcon(), mode, state) * scaleOfQIcon();
    }
    QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) const override
    {
        return icon().availableSizes(mode, state);
    }
    QString key() const override { return QStringLiteral("ZanthicStyleIcon"); }
    QIconEngine *clone() const override { return new StyleIconEngine(m_strPath); }

private:
    // An engine is asked for device pixels; the inner icon scales to them by itself.
    static qreal scaleOfQIcon()
    {
        return QCoreApplication::testAttribute(Qt::AA_UseHighDpiPixmaps) ? qApp->devicePixelRatio() : 1.0;
    }

    const QIcon &icon() const
    {
        const qreal ratio = qApp->devicePixelRatio();
        if (m_nGeneration != g_nGeneration || m_nRatio != ratio) {
            m_oIcon = makeIcon(ratio);
            m_nGeneration = g_nGeneration;
            m_nRatio = ratio;
        }
        return m_oIcon;
    }

    // As QIcon does it for a path: the picture itself, and the one for the sharpest screen.
    QIcon makeIcon(qreal ratio) const
    {
        const QPixmap base = StyleImages::pixmap(m_strPath);
        const bool scalable = m_strPath.endsWith(QLatin1String(".svg"), Qt::CaseInsensitive)
            || m_strPath.endsWith(QLatin1String(".svgz"), Qt::CaseInsensitive);
        if (m_strPath.contains(QChar(QChar::Null)))
            return QIcon();
        if (base.isNull() || scalable)
            return QIcon(m_strPath);
        QIcon result(base);
        const QPixmap sharp = StyleImages::pixmapForRatio(m_strPath, ratio);
        if (sharp.cacheKey() != base.cacheKey())
            result.addPixmap(sharp);
        return result;
    }

    QString m_strPath;
    mutable QIcon m_oIcon;
    mutable quint64 m_nGeneration = 0;
    mutable qreal m_nRatio = 0.0;
};

} // namespace

QPixmap StyleImages::pixmap(const QString &path)
{
    if (path.isEmpty() || path.contains(QChar(QChar::Null)))
        return QPixmap();
    const bool resource = isResource(path);
    const LoadedImage *known = images().object(path);
    if (known && resource)
        return known->pixmap;
    const QFileInfo file(path);
    if (known && isFresh(*known, file))
        return known->pixmap;
    const QPixmap pixmap = loadPixmap(path);
    // A file that isn't there yet is looked for again; one that is there and broken isn't.
    if (!pixmap.isNull() || QFileInfo::exists(path))
        images().insert(path, new LoadedImage{ pixmap, file.size(), file.lastModified() }, costOf(pixmap));
    return pixmap;
}

QPixmap StyleImages::pixmapForRatio(const QString &path, qreal ratio)
{
    for (int n = qMin(qCeil(ratio), kMaxRatio); n > 1; --n) {
        const QString candidate = pathForRatio(path, n);
        if (images().contains(candidate) || QFileInfo::exists(candidate))
            return pixmap(candidate);
    }
    return pixmap(path);
}

QIcon StyleImages::icon(const QString &path)
{
    return path.isEmpty() ? QIcon() : QIcon(new StyleIconEngine(path));
}

void StyleImages::clear()
{
    images().clear();
    ++g_nGeneration;
}

bool StyleImage::isKept() const
{
    // The caches know of a new skin, but not of a file on disk that is written anew.
    return m_nGeneration == g_nGeneration && isResource(m_strPath);
}

QSize StyleImage::size() const
{
    if (!isKept())
        pixmapForRatio(1.0);
    return m_oSize;
}

QPixmap StyleImage::pixmapForRatio(qreal ratio) const
{
    if (isKept() && ratio == m_nRatio)
        return m_oPixmap;
    m_oSize = StyleImages::pixmap(m_strPath).size();
    m_oPixmap = StyleImages::pixmapForRatio(m_strPath, ratio);
    m_nRatio = ratio;
    // One that isn't there may come.
    m_nGeneration = m_oPixmap.isNull() ? 0 : g_nGeneration;
    return m_oPixmap;
}

void StyleImage::draw(QPainter *painter, const QRectF &target) const
{
    const QPaintDevice *device = painter->device();
    const qreal ratio = device ? device->devicePixelRatioF() : 1.0;
    const QPixmap picture = pixmapForRatio(ratio);
    if (picture.isNull())
        return;
    // Between two ratios the picture for the higher one is scaled down.
    const bool smooth = picture.devicePixelRatio() > 1.0 && !qFuzzyCompare(picture.devicePixelRatio(), ratio)
        && !painter->testRenderHint(QPainter::SmoothPixmapTransform);
    if (smooth)
        painter->setRenderHint(QPainter::SmoothPixmapTransform, true);
    painter->drawPixmap(target, picture, QRectF(QPointF(0, 0), QSizeF(picture.size())));
    if (smooth)
        painter->setRenderHint(QPainter::SmoothPixmapTransform, false);
}
