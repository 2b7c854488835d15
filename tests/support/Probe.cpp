#include "support/Probe.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtGui/QPainter>

namespace {

// Rasterisers of other machines may round a covered pixel another way; more than this is a difference to see.
constexpr int kChannelTolerance = 3;

QImage difference(const QImage &a, const QImage &b, int *worst)
{
    QImage result(a.size(), QImage::Format_RGB32);
    *worst = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y);
            const QRgb q = b.pixel(x, y);
            const int distance = qMax(qMax(qAbs(qRed(p) - qRed(q)), qAbs(qGreen(p) - qGreen(q))),
                qMax(qAbs(qBlue(p) - qBlue(q)), qAbs(qAlpha(p) - qAlpha(q))));
            *worst = qMax(*worst, distance);
            result.setPixel(x, y, distance > kChannelTolerance ? qRgb(255, 0, 0) : qRgb(distance, distance, distance));
        }
    }
    return result;
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
    if (qEnvironmentVariableIsSet("ZANTHIC_UPDATE_PICTURES")) {
        QDir().mkpath(QFileInfo(expectedPath).path());
        return image.save(expectedPath);
    }
    const QString output = QStringLiteral(ZANTHIC_TEST_OUTPUT "/") + name;
    const QImage expected = QImage(expectedPath).convertToFormat(QImage::Format_ARGB32_Premultiplied);
    int worst = 256;
    QImage diff;
    if (expected.size() == image.size())
        diff = difference(image, expected, &worst);
    if (worst <= kChannelTolerance)
        return true;
    QDir().mkpath(QFileInfo(output).path());
    image.save(output + QStringLiteral("-actual.png"));
    expected.save(output + QStringLiteral("-expected.png"));
    diff.save(output + QStringLiteral("-difference.png"));
    *message = QStringLiteral("%1: worst channel differs by %2; see %3-actual.png").arg(name).arg(worst).arg(output);
    return false;
}
