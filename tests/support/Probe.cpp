#include "support/Probe.h"

#include <QtCore/QDir>
#include <QtGui/QPainter>

namespace {

// Rasterisers of other machines may round a covered pixel another way; more than this is a difference to see.
constexpr int kChannelTolerance = 3;

// What differs, in every channel; \p worst gets the largest value.
QImage difference(const QImage &a, const QImage &b, int *worst)
{
    QImage result = a.convertToFormat(QImage::Format_RGBA8888);
    const QImage other = b.convertToFormat(QImage::Format_RGBA8888);
    *worst = 0;
    for (int i = 0; i < result.sizeInBytes(); ++i) {
        uchar &value = result.bits()[i];
        value = uchar(qAbs(value - other.constBits()[i]));
        *worst = qMax(*worst, int(value));
    }
    return result.convertToFormat(QImage::Format_RGBX8888);
}

} // namespace

QImage Probe::painted(const QSize &size, const std::function<void(QPainter *)> &paint, qreal scale)
{
    QImage image(size * scale, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    paint(&painter);
    painter.end();
    return image;
}

QImage Probe::grab(QWidget *widget, qreal scale)
{
    widget->ensurePolished();
    return painted(
        widget->size(), [widget](QPainter *painter) { widget->render(painter, QPoint(), QRegion(), {}); }, scale);
}

QString Probe::colorAt(const QImage &image, int x, int y)
{
    return QColor::fromRgba(image.pixel(x, y)).name(QColor::HexArgb);
}

QRect Probe::bounds(const QImage &image, const std::function<bool(const QColor &)> &matches)
{
    QRect result;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (matches(QColor::fromRgba(image.pixel(x, y))))
                result |= QRect(x, y, 1, 1);
        }
    }
    return result;
}

bool Probe::matchesPicture(const QImage &image, const QString &name, QString *message)
{
    const QString expectedPath = QStringLiteral(ZANTHIC_TEST_DATA "/pictures/%1.png").arg(name);
    if (qEnvironmentVariableIsSet("ZANTHIC_UPDATE_PICTURES"))
        return image.save(expectedPath);
    const QImage expected = QImage(expectedPath).convertToFormat(image.format());
    int worst = 256;
    const QImage diff = expected.size() == image.size() ? difference(image, expected, &worst) : QImage();
    if (worst <= kChannelTolerance)
        return true;
    const QString output = QStringLiteral(ZANTHIC_TEST_OUTPUT "/") + name;
    QDir().mkpath(QStringLiteral(ZANTHIC_TEST_OUTPUT));
    image.save(output + QStringLiteral("-actual.png"));
    expected.save(output + QStringLiteral("-expected.png"));
    diff.save(output + QStringLiteral("-difference.png"));
    *message = QStringLiteral("%1: worst channel differs by %2; see %3-actual.png").arg(name).arg(worst).arg(output);
    return false;
}
