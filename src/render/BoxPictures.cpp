#include "render/BoxPictures_p.h"

#include <QtCore/QCache>
#include <QtCore/QSet>
#include <QtGui/QImage>
#include <QtGui/QPaintEngine>
#include <QtGui/QPainter>
#include <QtGui/QRgba64>

#include <memory>

namespace {

using BoxPictures::Key;
using BoxPictures::Step;

constexpr int kCacheKiB = 8 * 1024;
constexpr int kMaxPixels = 64 * 1024; // a larger box is painted at once nearly as fast
constexpr int kMaxScale = 4;
constexpr int kMaxSeen = 256;

// One layer, or the part of it that isn't empty.
struct Layer
{
    QPoint offset; // device pixels
    QImage image;
};

struct Picture
{
    std::vector<Layer> layers;
};

QCache<Key, Picture> &cache()
{
    static QCache<Key, Picture> s_Pictures(kCacheKiB);
    return s_Pictures;
}

// Boxes that were painted once. One that never comes again, such as a frame of an animation, gets no picture.
QSet<Key> &seenOnce()
{
    static QSet<Key> s_Seen;
    return s_Seen;
}

bool isWhole(qreal value)
{
    return value == qreal(qRound(value));
}

// The scale of the device for a painter that draws a picture with the very pixels of painting: the raster engine,
// 32 bits a pixel, no clip but the window's own, no opacity, nothing but whole scales and offsets. 0 for others.
int pixelExactScale(const QPainter *painter)
{
    const QPaintEngine *engine = painter->paintEngine();
    if (!engine || engine->type() != QPaintEngine::Raster || painter->hasClipping() || painter->opacity() != 1.0
        || painter->compositionMode() != QPainter::CompositionMode_SourceOver)
        return 0;
    const QPaintDevice *device = engine->paintDevice();
    if (!device || device->devType() != QInternal::Image)
        return 0;
    const QImage::Format format = static_cast<const QImage *>(device)->format();
    if (format != QImage::Format_ARGB32_Premultiplied && format != QImage::Format_RGB32)
        return 0;
    const QTransform &transform = painter->deviceTransform();
    const bool fits = transform.type() <= QTransform::TxScale && transform.m11() == transform.m22()
        && isWhole(transform.m11()) && isWhole(transform.dx()) && isWhole(transform.dy());
    return fits && transform.m11() >= 1.0 && transform.m11() <= kMaxScale ? int(transform.m11()) : 0;
}

QImage emptyImage(const QSize &size)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

QImage paintStep(const Step &step, const Key &key)
{
    QImage image = emptyImage(key.size * key.scale);
    QPainter painter(&image);
    painter.scale(key.scale, key.scale);
    painter.setRenderHint(QPainter::Antialiasing);
    step(&painter);
    return image;
}

// Files the pixels of one step behind those that touched them before. depth holds the number of layers a pixel has.
void addStep(const QImage &step, std::vector<QImage> *layers, std::vector<int> *depth)
{
    for (int y = 0; y < step.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(step.constScanLine(y));
        for (int x = 0; x < step.width(); ++x) {
            if (line[x] == 0)
                continue;
            int &used = (*depth)[std::size_t(y) * std::size_t(step.width()) + std::size_t(x)];
            if (qAlpha(line[x]) == 255) {
                for (int i = 1; i < used; ++i)
                    (*layers)[std::size_t(i)].setPixel(x, y, 0);
                used = 0;
            }
            if (std::size_t(used) == layers->size())
                layers->push_back(emptyImage(step.size()));
            QImage &layer = (*layers)[std::size_t(used++)];
            reinterpret_cast<QRgb *>(layer.scanLine(y))[x] = line[x];
        }
    }
}

// The rows of a layer between two, cut to what isn't empty.
void addPart(const QImage &image, int firstRow, int endRow, Picture *picture)
{
    QRect used;
    for (int y = firstRow; y < endRow; ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            if (line[x] != 0)
                used |= QRect(x, y, 1, 1);
        }
    }
    if (!used.isEmpty())
        picture->layers.push_back({ used.topLeft(), image.copy(used) });
}

std::unique_ptr<Picture> makePicture(const Key &key, const std::vector<Step> &steps)
{
    std::vector<QImage> layers;
    const QSize size = key.size * key.scale;
    std::vector<int> depth(std::size_t(size.width()) * std::size_t(size.height()), 0);
    for (const Step &step : steps)
        addStep(paintStep(step, key), &layers, &depth);
    auto picture = std::make_unique<Picture>();
    for (std::size_t i = 0; i < layers.size(); ++i) {
        // Behind the first layer only corners are left: those at the top and those at the bottom.
        const int middle = i == 0 ? size.height() : size.height() / 2;
        addPart(layers[i], 0, middle, picture.get());
        addPart(layers[i], middle, size.height(), picture.get());
    }
    return picture;
}

const Picture *findPicture(const Key &key, const BoxPictures::Steps &steps)
{
    if (const Picture *known = cache().object(key))
        return known;
    QSet<Key> &seen = seenOnce();
    if (!seen.contains(key)) {
        if (seen.size() >= kMaxSeen)
            seen.clear();
        seen.insert(key);
        return nullptr;
    }
    seen.remove(key);
    std::unique_ptr<Picture> picture = makePicture(key, steps(QRect(QPoint(0, 0), key.size)));
    int bytes = 0;
    for (const Layer &layer : picture->layers)
        bytes += int(layer.image.sizeInBytes());
    cache().insert(key, picture.release(), 1 + bytes / 1024);
    return cache().object(key);
}

} // namespace

bool BoxPictures::operator==(const Key &a, const Key &b)
{
    return a.size == b.size && a.borders == b.borders && a.radii == b.radii && a.colors == b.colors
        && a.scale == b.scale && a.fill == b.fill;
}

uint BoxPictures::qHash(const Key &key, uint seed)
{
    uint hash = ::qHash((quint64(uint(key.size.width())) << 32) | uint(key.size.height()), seed);
    hash = qHashBits(key.borders.data(), sizeof key.borders, hash);
    hash = qHashBits(key.radii.data(), sizeof key.radii, hash);
    hash = qHashBits(key.colors.data(), sizeof key.colors, hash);
    return hash ^ uint(key.scale * 2 + int(key.fill));
}

BoxPictures::Key::Key(const QSize &boxSize, const std::array<int, 4> &boxBorders, const std::array<QSize, 4> &boxRadii,
    const std::array<QBrush, 4> &brushes, bool isFill)
    : size(boxSize), borders(boxBorders), radii(boxRadii), fill(isFill)
{
    for (std::size_t i = 0; i < 4; ++i) {
        solid = solid && brushes[i].style() == Qt::SolidPattern;
        colors[i] = quint64(brushes[i].color().rgba64());
    }
}

bool BoxPictures::draw(QPainter *painter, const QPoint &topLeft, Key key, const Steps &steps)
{
    key.scale = key.solid ? pixelExactScale(painter) : 0;
    const QSize size = key.size * key.scale;
    if (size.isEmpty() || qint64(size.width()) * size.height() > kMaxPixels)
        return false;
    const Picture *picture = findPicture(key, steps);
    if (!picture)
        return false;
    const QTransform world = painter->worldTransform();
    if (key.scale > 1)
        painter->scale(1.0 / key.scale, 1.0 / key.scale);
    for (const Layer &layer : picture->layers)
        painter->drawImage(topLeft * key.scale + layer.offset, layer.image);
    if (key.scale > 1)
        painter->setWorldTransform(world);
    return true;
}
