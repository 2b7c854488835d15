#include "render/BoxPainter_p.h"
#include "support/Probe.h"
#include "support/StyleTest.h"

#include <Zanthic/CustomFrame.h>

#include <QtCore/QRandomGenerator>
#include <QtGui/QPainter>

using namespace Custom;
using Parameter = CustomObjectData::BorderParameter;
using Paint = std::function<void(QPainter *)>;

namespace {

constexpr QRect kRect(0, 0, 20, 12);

class Box : public QWidget, public CustomObject
{
public:
    Box() : CustomObject(this, QString(), QStringLiteral("Default"))
    {
        cSetClassName(QStringLiteral("Box"));
        resize(kRect.size());
    }
};

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
int differs(const QImage &background, const Case &c, const Paint &prepare)
{
    QImage plain;
    for (int i = 0; i <= 3; ++i) {
        BoxPainter::setPicturesEnabled(i > 0);
        QImage image = background;
        QPainter painter(&image);
        if (prepare)
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

Q_DECLARE_METATYPE(Paint)
Q_DECLARE_METATYPE(QImage::Format)

class BoxTest : public StyleTest
{
    Q_OBJECT

private Q_SLOTS:
    void layersAndPlaces_data() { addRows(QStringLiteral("render/boxes.txt")); }
    void layersAndPlaces();
    void edgesOverrideAllEdge_data() { addRows(QStringLiteral("render/parameters.txt")); }
    void edgesOverrideAllEdge();
    void borderStrips_data() { addRows(QStringLiteral("render/strips.txt")); }
    void borderStrips();
    void colorRectanglesStayInsideTheRoundedOutline();
    void picturesEqualPainting_data();
    void picturesEqualPainting();
    void painterIsLeftAsItWas();
};

void BoxTest::layersAndPlaces()
{
    QFETCH(QStringList, fields);
    addStyle("Box", fields[0].replace(QLatin1String("@nine"), QStringLiteral(ZANTHIC_TEST_DATA "/render/nine.xpm")));
    Box box;
    const auto status = enumValue<ItemStatus>(fields[1]);
    const QVector<double> r = numbers(fields[2]);
    const QRect rect = r.isEmpty() ? kRect : QRect(int(r[0]), int(r[1]), int(r[2]), int(r[3]));
    QString returned;
    const QImage image = Probe::painted(kRect.size(), [&](QPainter *painter) {
        returned = QString::number(box.cDrawBackground(painter, rect, status, {}));
        returned += QLatin1Char(' ') + QString::number(box.cDrawBorder(painter, rect, status, {}));
    });
    QCOMPARE(returned, fields[3]);
    for (const QString &pixel : fields[4].split(QLatin1String("; "))) {
        const QVector<double> at = numbers(pixel);
        const QColor color(pixel.section(QLatin1Char(' '), 1));
        const QString found = Probe::colorAt(image, int(at[0]), int(at[1]));
        QVERIFY2(found == color.name(QColor::HexArgb), qPrintable(pixel + QLatin1String(" is ") + found));
    }
}

void BoxTest::edgesOverrideAllEdge()
{
    QFETCH(QStringList, fields);
    addStyle("Box", fields[0]);
    Box box;
    const auto status = enumValue<ItemStatus>(fields[1]);
    std::array<int, 4> widths;
    std::array<QSize, 4> radii;
    std::array<QBrush, 4> colors;
    box.cGetBorderParameter(widths.data(), radii.data(), colors.data(), kRect, status, {});
    for (int i = 0; i < 4; ++i) {
        const int radius = int(numbers(fields[3])[i]);
        QCOMPARE(widths[i], int(numbers(fields[2])[i]));
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
    const QVector<double> edge = numbers(fields[0]);
    const QVector<double> r = numbers(fields[1]);
    QCOMPARE(CustomObjectData::createBorderRect(BorderEdge(int(edge[0])), int(edge[1]), QRect(10, 20, 100, 50)),
        QRect(QPoint(int(r[0]), int(r[1])), QPoint(int(r[2]), int(r[3]))));
}

void BoxTest::colorRectanglesStayInsideTheRoundedOutline()
{
    const auto clear = QStringLiteral("#00000000"), red = QStringLiteral("#ffff0000"),
               green = QStringLiteral("#ff00ff00"), blue = QStringLiteral("#ff0000ff");
    CustomFrame frame;
    frame.resize(kRect.size());
    frame.cSetBorderRadius(6);
    frame.cSetBorderWidth(4);
    frame.cSetParameter(ParamBorderWidth, false); // so that only the rectangles are painted
    frame.cSetColorRect(2, QRect(0, 0, 10, 12), Qt::blue);
    frame.cSetColorRect(1, kRect, Qt::green);
    frame.cSetColorRect(3, QRect(15, 0, 6, 12), Qt::red); // sticks out by one
    const auto row = [&](int y) {
        const QImage image = Probe::grab(&frame);
        QStringList result;
        for (const int x : { 0, 4, 9, 10, 16 })
            result += Probe::colorAt(image, x, y);
        return result;
    };
    QCOMPARE(row(6), QStringList({ clear, clear, clear, clear, clear }));
    frame.cSetParameter(ParamColorRect, true);
    QCOMPARE(row(6), QStringList({ blue, blue, blue, green, green })); // from the outer edge of the border on
    QCOMPARE(row(0), QStringList({ clear, blue, blue, green, clear })); // pixel-stepped, so nothing in between
    // A later set of one key replaces rectangle and brush, and the order stays.
    frame.cSetColorRect(1, QRect(5, 0, 15, 12), Qt::red);
    QCOMPARE(row(6), QStringList({ blue, blue, blue, red, red }));
    frame.cSetBorderRadius(0);
    QCOMPARE(row(6), QStringList({ clear, clear, clear, clear, clear })); // square corners have no outline
}

void BoxTest::picturesEqualPainting_data()
{
    QTest::addColumn<Paint>("prepare");
    QTest::addColumn<QImage::Format>("format");
    QTest::addColumn<int>("scale");
    for (const int scale : { 1, 2, 3 }) {
        QTest::addRow("opaque, scale %d", scale) << Paint() << QImage::Format_RGB32 << scale;
        QTest::addRow("translucent, scale %d", scale) << Paint() << QImage::Format_ARGB32_Premultiplied << scale;
    }
    QTest::newRow("not premultiplied") << Paint() << QImage::Format_ARGB32 << 0;
    QTest::newRow("16 bits") << Paint() << QImage::Format_RGB16 << 0;
    QTest::newRow("64 bits") << Paint() << QImage::Format_RGBA64_Premultiplied << 0;
    QTest::newRow("grey") << Paint() << QImage::Format_Grayscale8 << 0;
    const auto row = [](const char *name, const Paint &prepare) {
        QTest::newRow(name) << prepare << QImage::Format_ARGB32_Premultiplied << 0;
    };
    row("clip", [](QPainter *p) { p->setClipRect(5, 5, 11, 9); });
    row("round clip", [](QPainter *p) { p->setClipRegion(QRegion(2, 2, 30, 20, QRegion::Ellipse)); });
    row("opacity", [](QPainter *p) { p->setOpacity(0.5); });
    row("composition mode", [](QPainter *p) { p->setCompositionMode(QPainter::CompositionMode_Source); });
    row("antialiasing on", [](QPainter *p) { p->setRenderHint(QPainter::Antialiasing); });
    row("smooth", [](QPainter *p) { p->setRenderHint(QPainter::SmoothPixmapTransform); });
    row("window", [](QPainter *p) { p->setWindow(0, 0, 32, 32); });
    row("rotation", [](QPainter *p) { p->rotate(30); });
    row("quarter turn", [](QPainter *p) { p->setTransform({ 0, 1, -1, 0, 40, 0 }); });
    row("mirrored", [](QPainter *p) { p->setTransform({ -1, 0, 0, 1, 40, 0 }); });
    row("shear", [](QPainter *p) { p->shear(0.3, 0); });
    row("scale", [](QPainter *p) { p->scale(2, 2); });
    row("fractional scale", [](QPainter *p) { p->scale(1.5, 1.5); });
    row("uneven scale", [](QPainter *p) { p->scale(2, 1); });
    row("offset", [](QPainter *p) { p->translate(-3, 7); });
    row("fractional offset", [](QPainter *p) { p->translate(0.5, 0.25); });
    row("tiny fractional offset", [](QPainter *p) { p->translate(1.0 / 1024, 0); });
}

void BoxTest::picturesEqualPainting()
{
    QFETCH(Paint, prepare);
    QFETCH(QImage::Format, format);
    QFETCH(int, scale); // 0 for a painter that seldom gets pictures
    QImage background = ground(QSize(64, 64) * qMax(1, scale), format);
    background.setDevicePixelRatio(qMax(1, scale));
    for (quint32 seed = 0; seed < (scale > 0 ? 800 : 40); ++seed) {
        const int paintNumber = differs(background, randomCase(seed), prepare);
        QVERIFY2(paintNumber == 0, qPrintable(QStringLiteral("seed %1, paint %2").arg(seed).arg(paintNumber)));
    }
}

void BoxTest::painterIsLeftAsItWas()
{
    addStyle("Box",
        QStringLiteral("ObjectParameter=311 BackgroundColor=#ff0000 BorderWidth:AllEdge=2 BorderRadius:AllCorner=5 "
                       "BackgroundImage=/none.png BorderImage=/none.png"));
    Box box;
    box.cSetColorRect(0, kRect, Qt::blue);
    for (const bool on : { false, true }) {
        Probe::painted(kRect.size(), [&](QPainter *painter) {
            painter->setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform, on);
            const QPainter::RenderHints hints = painter->renderHints();
            painter->setPen(QPen(Qt::yellow, 3));
            painter->setClipRect(1, 1, 5, 5);
            for (int i = 0; i < 3; ++i) {
                box.cDrawBackground(painter, kRect, Normal, {});
                box.cDrawBorder(painter, kRect, Normal, {});
                box.cDrawColorRect(painter, kRect);
            }
            QCOMPARE(painter->renderHints(), hints);
            QCOMPARE(painter->pen(), QPen(Qt::yellow, 3));
            QCOMPARE(painter->clipBoundingRect(), QRectF(1, 1, 5, 5));
        });
    }
}

ZANTHIC_TEST_MAIN(BoxTest)
#include "tst_box.moc"
