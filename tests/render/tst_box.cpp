#include "render/BoxPainter_p.h"
#include "support/Probe.h"
#include "support/StyleTest.h"

#include <Zanthic/CustomFrame.h>

#include <QtCore/QRandomGenerator>
#include <QtGui/QPainter>

using namespace Custom;
using Parameter = CustomObjectData::BorderParameter;

namespace {

constexpr QRect kRect(0, 0, 20, 12);

QString brushText(const QBrush &brush)
{
    if (brush.style() != Qt::LinearGradientPattern)
        return brush.style() == Qt::NoBrush ? QStringLiteral("none") : brush.color().name();
    const QPointF end = static_cast<const QLinearGradient *>(brush.gradient())->finalStop();
    return QStringLiteral("%1,%2").arg(end.x()).arg(end.y());
}

QImage ground(const QSize &size, QImage::Format format)
{
    QRandomGenerator random(7);
    QImage image(size, QImage::Format_ARGB32);
    random.fillRange(reinterpret_cast<quint32 *>(image.bits()), size.width() * size.height());
    return image.convertToFormat(format);
}

QColor randomColor(QRandomGenerator *random)
{
    QColor color = QColor::fromRgb(random->generate());
    const int alphas[] = { 255, 255, 128, 1, 254, 0, random->bounded(256) };
    color.setAlpha(alphas[random->bounded(7)]);
    return color;
}

struct Case
{
    QRect rect;
    Parameter parameter;
    QBrush fill;
};

Case randomCase(quint32 seed)
{
    QRandomGenerator random(seed);
    const int extent = seed % 4 == 0 ? 7 : 48; // every fourth box is so small that its corners overlap
    Case result;
    result.rect
        = QRect(random.bounded(-4, 9), random.bounded(-4, 9), random.bounded(1, extent), random.bounded(1, extent));
    result.fill = randomColor(&random);
    const quint32 same = random.generate();
    for (std::size_t i = 0; i < 4; ++i) {
        const int radius = random.bounded(-1, 14); // attributes know circular corners only
        result.parameter.borders[i] = same & 1 && i > 0 ? result.parameter.borders[0] : random.bounded(6);
        result.parameter.radii[i] = same & 2 && i > 0 ? result.parameter.radii[0] : QSize(radius, radius);
        result.parameter.colors[i] = same & 4 && i > 0 ? result.parameter.colors[0] : randomColor(&random);
    }
    return result;
}

// Painted without pictures, then three times with them: the first time nothing is kept yet, at the second the
// picture is made. Gives the number of the paint that differs, or 0.
int differs(const QImage &background, const Case &c, const std::function<void(QPainter *)> &prepare)
{
    QImage plain;
    for (int i = 0; i <= 3; ++i) {
        BoxPainter::setPicturesEnabled(i > 0);
        QImage image = background;
        QPainter painter(&image);
        prepare(&painter);
        BoxPainter::fillBox(&painter, c.rect, c.parameter, c.fill);
        BoxPainter::drawSolidBorder(&painter, c.rect, c.parameter);
        painter.end();
        if (i == 0)
            plain = image;
        else if (image != plain)
            return i;
    }
    return 0;
}

} // namespace

class BoxTest : public StyleTest
{
    Q_OBJECT

private Q_SLOTS:
    void layersAndPlaces_data() { addRowsOf(QStringLiteral("render/boxes.txt")); }
    void layersAndPlaces();
    void edgesOverrideAllEdge_data() { addRowsOf(QStringLiteral("render/parameters.txt")); }
    void edgesOverrideAllEdge();
    void borderStrips_data() { addRowsOf(QStringLiteral("render/strips.txt")); }
    void borderStrips();
    void colorRectanglesStayInsideTheRoundedOutline();
    void picturesEqualPainting_data() { addRowsOf(QStringLiteral("render/painters.txt")); }
    void picturesEqualPainting();
};

void BoxTest::layersAndPlaces()
{
    QFETCH(QStringList, fields);
    addStyle(
        "CustomFrame", fields[0].replace(QLatin1String("@nine"), QStringLiteral(ZANTHIC_TEST_DATA "/render/nine.xpm")));
    CustomFrame box;
    const auto status = enumerator<ItemStatus>(fields[1]);
    const QRect place = fields[2].isEmpty() ? kRect : rectIn(fields[2]);
    const QPen pen(Qt::yellow, 3);
    QString returned;
    QImage image;
    for (const bool on : { true, false }) {
        image = Probe::painted(kRect.size(), [&](QPainter *painter) {
            painter->setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform, on);
            painter->setPen(pen);
            const QPainter::RenderHints hints = painter->renderHints();
            returned = QString::number(box.cDrawBackground(painter, place, status, {})) + QLatin1Char(' ');
            returned += QString::number(box.cDrawBorder(painter, place, status, {}));
            QVERIFY(painter->renderHints() == hints && painter->pen() == pen && !painter->hasClipping());
        });
    }
    QCOMPARE(returned, fields[3]);
    for (const QString &pixel : fields[4].split(QLatin1String("; "))) {
        const QVector<double> at = numbersIn(pixel);
        const QColor color(pixel.section(QLatin1Char(' '), 1));
        const QString found = Probe::colorAt(image, int(at[0]), int(at[1]));
        QVERIFY2(found == color.name(QColor::HexArgb), qPrintable(pixel + QLatin1String(" is ") + found));
    }
}

void BoxTest::edgesOverrideAllEdge()
{
    QFETCH(QStringList, fields);
    addStyle("CustomFrame", fields[0]);
    CustomFrame box;
    const auto status = enumerator<ItemStatus>(fields[1]);
    std::array<int, 4> widths;
    std::array<QSize, 4> radii;
    std::array<QBrush, 4> colors;
    box.cGetBorderParameter(widths.data(), radii.data(), colors.data(), kRect, status, {});
    for (int i = 0; i < 4; ++i) {
        const int radius = int(numbersIn(fields[3])[i]);
        QCOMPARE(widths[i], int(numbersIn(fields[2])[i]));
        QCOMPARE(radii[i], QSize(radius, radius));
        QCOMPARE(brushText(colors[i]), fields[4].section(QLatin1Char(' '), i, i));
    }
    // Each output may be left out.
    box.cGetBorderParameter(nullptr, nullptr, nullptr, kRect, status, {});
    CustomObjectData::get(&box)->borderParameter(nullptr, nullptr, kRect, status, {});
}

void BoxTest::borderStrips()
{
    QFETCH(QStringList, fields);
    const QVector<double> edge = numbersIn(fields[0]);
    const QRect box(10, 20, 100, 50);
    QCOMPARE(CustomObjectData::createBorderRect(BorderEdge(int(edge[0])), int(edge[1]), box), rectIn(fields[1]));
}

void BoxTest::colorRectanglesStayInsideTheRoundedOutline()
{
    CustomFrame frame;
    frame.resize(kRect.size());
    frame.cSetBorderRadius(6);
    frame.cSetBorderWidth(4);
    frame.cSetParameter(ParamBorderWidth, false); // so that only the rectangles are painted
    frame.cSetColorRect(2, QRect(0, 0, 10, 12), Qt::blue);
    frame.cSetColorRect(1, kRect, Qt::green);
    frame.cSetColorRect(3, QRect(15, 0, 6, 12), Qt::red); // sticks out by one
    // The first letters of the colours at some places of a row; "-" for none.
    const auto row = [&](int y) {
        const QMap<QRgb, QString> letters{ { 0, QStringLiteral("-") }, { 0xffff0000, QStringLiteral("r") },
            { 0xff00ff00, QStringLiteral("g") }, { 0xff0000ff, QStringLiteral("b") } };
        const QImage image = Probe::grab(&frame);
        QString result;
        for (const int x : { 0, 4, 9, 10, 16 })
            result += letters.value(image.pixel(x, y), QStringLiteral("?"));
        return result;
    };
    QCOMPARE(row(6), QStringLiteral("-----"));
    frame.cSetParameter(ParamColorRect, true);
    QCOMPARE(row(6), QStringLiteral("bbbgg")); // from the outer edge of the border on
    QCOMPARE(row(0), QStringLiteral("-bbg-")); // pixel-stepped, so nothing in between
    // A later set of one key replaces rectangle and brush, and the order stays.
    frame.cSetColorRect(1, QRect(5, 0, 15, 12), Qt::red);
    QCOMPARE(row(6), QStringLiteral("bbbrr"));
    frame.cSetBorderRadius(0);
    QCOMPARE(row(6), QStringLiteral("-----")); // square corners have no outline
}

void BoxTest::picturesEqualPainting()
{
    QFETCH(QStringList, fields);
    const int scale = fields[1].toInt();
    QImage background = ground(QSize(64, 64) * scale, enumerator<QImage::Format>(fields[0]));
    background.setDevicePixelRatio(scale);
    const QVector<double> m = numbersIn(fields[2]);
    const auto prepare = [&](QPainter *painter) {
        painter->setTransform({ m[0], m[1], m[2], m[3], m[4], m[5] });
        if (!fields[3].isEmpty())
            painter->setClipRect(rectIn(fields[3]));
        painter->setOpacity(fields[4].toDouble());
        painter->setCompositionMode(QPainter::CompositionMode(fields[5].toInt()));
        painter->setRenderHints(QPainter::RenderHints(fields[6].toInt()));
    };
    for (quint32 seed = 0; seed < fields[7].toUInt(); ++seed) {
        const int paintNumber = differs(background, randomCase(seed), prepare);
        QVERIFY2(paintNumber == 0, qPrintable(QStringLiteral("seed %1, paint %2").arg(seed).arg(paintNumber)));
    }
}

ZANTHIC_TEST_MAIN(BoxTest)
#include "tst_box.moc"
