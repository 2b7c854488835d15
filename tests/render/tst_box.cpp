#include "render/BoxPainter_p.h"
#include "support/Probe.h"
#include "support/StyleTest.h"

#include <Zanthic/CustomFrame.h>

#include <QtCore/QRandomGenerator>
#include <QtGui/QPainter>

using namespace Custom;
using Parameter = CustomObjectData::BorderParameter;

namespace {

const auto kClear = QStringLiteral("#00000000");
const auto kRed = QStringLiteral("#ffff0000");
const auto kGreen = QStringLiteral("#ff00ff00");
const auto kBlue = QStringLiteral("#ff0000ff");

class Box : public QWidget, public CustomObject
{
public:
    Box() : CustomObject(this, QString(), QStringLiteral("Default"))
    {
        cSetClassName(QStringLiteral("Box"));
        resize(20, 12);
    }
};

// What a box with these values of the document paints into 20 x 12 px, and what the two painters return.
struct Painted
{
    QImage image;
    bool background = false;
    bool border = false;

    QString at(int x, int y) const { return Probe::colorAt(image, x, y); }
};

Painted paint(CustomObject *box, ItemStatus status = Normal, const QRect &rect = QRect(0, 0, 20, 12))
{
    Painted result;
    result.image = Probe::painted(QSize(20, 12), [&](QPainter *painter) {
        result.background = box->cDrawBackground(painter, rect, status, {});
        result.border = box->cDrawBorder(painter, rect, status, {});
    });
    return result;
}

QImage ground(const QSize &size, QImage::Format format, quint32 seed)
{
    QRandomGenerator random(seed);
    QImage image(size, QImage::Format_ARGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y, random.generate());
    }
    return image.convertToFormat(format);
}

struct Case
{
    QRect rect;
    Parameter parameter;
    QBrush fill;
};

QColor randomColor(QRandomGenerator *random)
{
    QColor color = QColor::fromRgb(random->generate());
    const int alphas[] = { 255, 255, 128, 1, 254, 0, random->bounded(256) };
    color.setAlpha(alphas[random->bounded(7)]);
    return color;
}

Case randomCase(quint32 seed)
{
    QRandomGenerator random(seed);
    const int extent = seed % 4 == 0 ? 7 : 48; // every fourth box is so small that its corners overlap
    Case result;
    result.rect
        = QRect(random.bounded(-4, 9), random.bounded(-4, 9), random.bounded(1, extent), random.bounded(1, extent));
    const bool sameWidth = random.bounded(2);
    const bool sameRadius = random.bounded(2);
    const bool sameColor = random.bounded(2);
    const int width = random.bounded(6);
    const int radius = random.bounded(14);
    const QColor color = randomColor(&random);
    for (std::size_t i = 0; i < 4; ++i) {
        result.parameter.borders[i] = sameWidth ? width : random.bounded(6);
        const int own = sameRadius ? radius : random.bounded(-1, 14);
        result.parameter.radii[i] = QSize(own, own); // attributes know circular corners only
        result.parameter.colors[i] = sameColor ? color : randomColor(&random);
    }
    result.fill = randomColor(&random);
    return result;
}

using Paint = std::function<void(QPainter *)>;

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

QByteArray alignmentXml(const QByteArray &alignment)
{
    return alignment.isNull() ? QByteArray()
                              : "<Alignment>" + alignment + "</Alignment><Alignment:Hover>33</Alignment:Hover>";
}

} // namespace

Q_DECLARE_METATYPE(Paint)
Q_DECLARE_METATYPE(QImage::Format)
Q_DECLARE_METATYPE(BorderEdge)

class BoxTest : public StyleTest
{
    Q_OBJECT

private Q_SLOTS:
    void layers_data();
    void layers();
    void fillStaysInsideTheMiddleOfTheBorder();
    void gradientIsScaledToTheRectangle();
    void edgesOverrideAllEdge();
    void gradientBorderFollowsItsStrip();
    void borderStrips_data();
    void borderStrips();
    void backgroundImageIsAligned_data();
    void backgroundImageIsAligned();
    void borderImageReplacesTheBorder();
    void colorRectanglesStayInsideTheRoundedOutline();
    void themedBorderIsTheSolidOne();
    void picturesEqualPainting_data();
    void picturesEqualPainting();
    void otherPaintersAgree_data();
    void otherPaintersAgree();
    void painterIsLeftAsItWas();

private:
    QString picture(const QSize &size, const QColor &color)
    {
        const QString path = scratchFile("", QStringLiteral(".png"));
        QImage image(size, QImage::Format_ARGB32);
        image.fill(color);
        return image.save(path) ? path : QString();
    }
    void document(const QByteArray &attributes) { addDocument(classXml("Box", "Default", attributes)); }
};

void BoxTest::layers_data()
{
    QTest::addColumn<int>("flags");
    QTest::addColumn<QByteArray>("more");
    QTest::addColumn<bool>("background");
    QTest::addColumn<bool>("border");
    QTest::addColumn<QString>("corner");
    QTest::addColumn<QString>("edge"); // the middle of the left edge
    QTest::addColumn<QString>("centre");
    // Red is the colour, green the base image, blue the image of 4 x 4, white the border of 2 px.
    const auto white = QStringLiteral("#ffffffff");
    const QByteArray radius5 = "<BorderRadius:AllCorner>5</BorderRadius:AllCorner>";
    const QByteArray radius11 = "<BorderRadius:AllCorner>11</BorderRadius:AllCorner>";
    const QByteArray negative = "<BorderRadius:AllCorner>-5</BorderRadius:AllCorner>";
    QTest::newRow("no flag") << 0 << radius5 << false << false << kClear << kClear << kClear;
    QTest::newRow("colour") << 2 << radius5 << true << false << kRed << kRed << kRed;
    QTest::newRow("colour, width, no radius") << (2 + 4) << radius5 << true << true << kRed << kRed << kRed;
    QTest::newRow("colour, radius") << (2 + 8) << radius5 << true << false << kClear << kRed << kRed;
    QTest::newRow("colour, radius that does not fit") << (2 + 8) << radius11 << true << false << kRed << kRed << kRed;
    QTest::newRow("colour, negative radius") << (2 + 8) << negative << true << false << kRed << kRed << kRed;
    QTest::newRow("colour, border") << (2 + 4 + 16) << radius5 << true << true << white << white << kRed;
    QTest::newRow("colour, rounded border") << (2 + 4 + 8 + 16) << radius5 << true << true << kClear << white << kRed;
    QTest::newRow("border colour without width") << (2 + 16) << radius5 << true << false << kRed << kRed << kRed;
    QTest::newRow("base image") << 64 << radius5 << false << false << kGreen << kGreen << kGreen;
    QTest::newRow("colour hides the base image") << (2 + 64) << radius5 << true << false << kRed << kRed << kRed;
    QTest::newRow("image") << 1 << radius5 << true << false << kClear << kClear << kBlue;
    QTest::newRow("image over colour") << (1 + 2) << radius5 << true << false << kRed << kRed << kBlue;
    QTest::newRow("image over base image") << (1 + 64) << radius5 << true << false << kGreen << kGreen << kBlue;
    QTest::newRow("unknown image") << 1 << QByteArray("<BackgroundImage>/none.png</BackgroundImage>") << true << false
                                   << kClear << kClear << kClear;
    QTest::newRow("unknown base image") << 64 << QByteArray("<BaseBackgroundImage>/none.png</BaseBackgroundImage>")
                                        << false << false << kClear << kClear << kClear;
    QTest::newRow("colour that is no colour")
        << 2 << QByteArray("<BackgroundColor>#Empty#</BackgroundColor>") << true << false << kClear << kClear << kClear;
}

void BoxTest::layers()
{
    QFETCH(int, flags);
    QFETCH(QByteArray, more);
    QFETCH(bool, background);
    QFETCH(bool, border);
    document("<ObjectParameter>" + QByteArray::number(flags)
        + "</ObjectParameter><BackgroundColor>#ff0000</BackgroundColor>"
          "<BorderWidth:AllEdge>2</BorderWidth:AllEdge><BorderColor:AllEdge>#ffffff</"
          "BorderColor:AllEdge><BaseBackgroundImage>"
        + picture({ 3, 3 }, Qt::green).toUtf8() + "</BaseBackgroundImage><BackgroundImage>"
        + picture({ 4, 4 }, Qt::blue).toUtf8() + "</BackgroundImage>" + more);
    Box box;
    const Painted painted = paint(&box);
    QCOMPARE(painted.background, background);
    QCOMPARE(painted.border, border);
    QTEST(painted.at(0, 0), "corner");
    QTEST(painted.at(0, 6), "edge");
    QTEST(painted.at(10, 6), "centre");
}

void BoxTest::fillStaysInsideTheMiddleOfTheBorder()
{
    document("<ObjectParameter>14</ObjectParameter><BackgroundColor>#ff0000</BackgroundColor>"
             "<BorderWidth:AllEdge>4</BorderWidth:AllEdge><BorderRadius:AllCorner>5</BorderRadius:AllCorner>");
    Box box;
    // The border has no colour, so the fill shows from 2 px inside on.
    const Painted painted = paint(&box);
    QCOMPARE(painted.at(1, 6), kClear);
    QCOMPARE(painted.at(2, 6), kRed);
    QCOMPARE(painted.at(17, 6), kRed);
    QCOMPARE(painted.at(18, 6), kClear);
    QCOMPARE(painted.at(10, 1), kClear);
    QCOMPARE(painted.at(10, 2), kRed);
}

void BoxTest::gradientIsScaledToTheRectangle()
{
    document(
        "<ObjectParameter>2</ObjectParameter><BackgroundColor>"
        "qlineargradient(x1:0;y1:0;x2:1;y2:0**stop:0 #ff0000;stop:0.499 #ff0000;stop:0.501 #0000ff;stop:1 #0000ff;)"
        "</BackgroundColor>");
    Box box;
    QCOMPARE(box.cBackgroundColor(Normal, QRect(5, 0, 10, 4)).gradient()->type(), QGradient::LinearGradient);
    const auto end = [&box](const QRect &rect) {
        return static_cast<const QLinearGradient *>(box.cBackgroundColor(Normal, rect).gradient())->finalStop();
    };
    QCOMPARE(end(QRect(5, 0, 10, 4)), QPointF(10, 0));
    QCOMPARE(end(QRect()), QPointF(20, 0));
    QCOMPARE(paint(&box).at(9, 5), kRed);
    QCOMPARE(paint(&box).at(10, 5), kBlue);
    // The width counts, not the place: the whole of the right half lies behind the end.
    QCOMPARE(paint(&box, Normal, QRect(10, 0, 10, 12)).at(10, 5), kBlue);
    QCOMPARE(paint(&box, Normal, QRect(0, 0, 10, 12)).at(4, 5), kRed);
    QCOMPARE(paint(&box, Normal, QRect(0, 0, 10, 12)).at(5, 5), kBlue);
}

void BoxTest::edgesOverrideAllEdge()
{
    document("<ObjectParameter>28</ObjectParameter><BorderWidth:AllEdge>3</BorderWidth:AllEdge>"
             "<BorderWidth:Top>7</BorderWidth:Top><BorderWidth:Right:Hover>0</BorderWidth:Right:Hover>"
             "<BorderRadius:AllCorner>4</BorderRadius:AllCorner><BorderRadius:RightBottom>9</BorderRadius:RightBottom>"
             "<BorderColor:AllEdge>#ff0000</BorderColor:AllEdge><BorderColor:Left>#0000ff</BorderColor:Left>");
    Box box;
    const QRect rect(0, 0, 40, 40);
    std::array<int, 4> widths;
    std::array<QSize, 4> radii;
    std::array<QBrush, 4> colors;
    box.cGetBorderParameter(widths.data(), radii.data(), colors.data(), rect, Hover, {});
    QCOMPARE(widths, (std::array<int, 4>{ { 3, 0, 7, 3 } }));
    QCOMPARE(radii, (std::array<QSize, 4>{ { { 4, 4 }, { 4, 4 }, { 4, 4 }, { 9, 9 } } }));
    QCOMPARE(colors[Left], QBrush(Qt::blue));
    QCOMPARE(colors[Bottom], QBrush(Qt::red));

    // Each output may be left out.
    box.cGetBorderParameter(nullptr, nullptr, nullptr, rect, Normal, {});
    std::array<int, 4> normal{};
    box.cGetBorderParameter(normal.data(), nullptr, nullptr, rect, Normal, {});
    QCOMPARE(normal, (std::array<int, 4>{ { 3, 3, 7, 3 } }));

    // A group without its flag keeps its start values.
    for (const ObjectParameter flag : { ParamBorderWidth, ParamBorderRadius, ParamBorderColor })
        box.cSetParameter(flag, false);
    box.cGetBorderParameter(widths.data(), radii.data(), colors.data(), rect, Normal, {});
    QCOMPARE(widths, (std::array<int, 4>{}));
    QCOMPARE(radii[RightBottom], QSize(-1, -1));
    QCOMPARE(colors[Left], QBrush());
    CustomObjectData::get(&box)->borderParameter(nullptr, nullptr, rect, Normal, {});
}

void BoxTest::gradientBorderFollowsItsStrip()
{
    const QByteArray gradient = "qlineargradient(x1:0;y1:0;x2:1;y2:1**stop:0 #ff0000;stop:1 #0000ff;)";
    const QByteArray common = "<BorderWidth:AllEdge>3</BorderWidth:AllEdge><BorderColor:AllEdge>" + gradient
        + "</BorderColor:AllEdge><BorderColor:Left>" + gradient + "</BorderColor:Left><BorderColor:Bottom>" + gradient
        + "</BorderColor:Bottom>";
    document("<ObjectParameter>20</ObjectParameter>" + common);
    Box box;
    const auto end = [&box](BorderEdge edge) {
        std::array<QBrush, 4> colors;
        box.cGetBorderParameter(nullptr, nullptr, colors.data(), QRect(0, 0, 20, 12), Normal, {});
        return static_cast<const QLinearGradient *>(colors[edge].gradient())->finalStop();
    };
    QCOMPARE(end(Left), QPointF(3, 12));
    QCOMPARE(end(Bottom), QPointF(20, 3));
    QCOMPARE(end(Top), QPointF(1, 1)); // AllEdge is read without a rectangle
    // Without the width flag the strips are empty, and the gradient isn't scaled.
    box.cSetParameter(ParamBorderWidth, false);
    QCOMPARE(end(Left), QPointF(1, 1));
}

void BoxTest::borderStrips_data()
{
    QTest::addColumn<BorderEdge>("edge");
    QTest::addColumn<int>("width");
    QTest::addColumn<QRect>("strip");
    const auto box
        = [](int left, int top, int right, int bottom) { return QRect(QPoint(left, top), QPoint(right, bottom)); };
    // Of a box from (10, 20) to (109, 69).
    QTest::newRow("left") << Left << 3 << box(10, 20, 12, 69);
    QTest::newRow("right ends one short") << Right << 3 << box(106, 20, 108, 69);
    QTest::newRow("top") << Top << 3 << box(10, 20, 109, 22);
    QTest::newRow("bottom ends one short") << Bottom << 3 << box(10, 66, 109, 68);
    QTest::newRow("width 0") << Left << 0 << box(10, 20, 9, 69);
    QTest::newRow("all") << AllEdge << 3 << QRect();
    QTest::newRow("unknown") << BorderEdge(9) << 3 << QRect();
    QTest::newRow("wide") << Left << 100000 << box(10, 20, 100009, 69);
    QTest::newRow("negative") << Top << -3 << box(10, 20, 109, 16);
}

void BoxTest::borderStrips()
{
    QFETCH(BorderEdge, edge);
    QFETCH(int, width);
    QTEST(CustomObjectData::createBorderRect(edge, width, QRect(10, 20, 100, 50)), "strip");
}

void BoxTest::backgroundImageIsAligned_data()
{
    QTest::addColumn<QByteArray>("alignment");
    QTest::addColumn<QPoint>("topLeft");
    // 4 x 2 px in 20 x 12.
    QTest::newRow("centred without one") << QByteArray() << QPoint(8, 5);
    QTest::newRow("left, top") << QByteArray("33") << QPoint(0, 0);
    QTest::newRow("right, bottom") << QByteArray("66") << QPoint(16, 10);
    QTest::newRow("centre") << QByteArray("132") << QPoint(8, 5);
    QTest::newRow("left alone") << QByteArray("1") << QPoint(0, 0);
    QTest::newRow("other bits are dropped") << QByteArray::number(0x1000 + 0x08 + 0x10 + 0x02 + 0x80) << QPoint(16, 5);
    QTest::newRow("no number") << QByteArray("right") << QPoint(0, 0);
}

void BoxTest::backgroundImageIsAligned()
{
    QFETCH(QByteArray, alignment);
    QFETCH(QPoint, topLeft);
    document("<ObjectParameter>9</ObjectParameter><BorderRadius:AllCorner>6</BorderRadius:AllCorner><BackgroundImage>"
        + picture({ 4, 2 }, Qt::blue).toUtf8() + "</BackgroundImage>" + alignmentXml(alignment));
    Box box;
    // The Alignment of Normal counts in every status, and a rounded outline doesn't cut the image.
    const QImage image = paint(&box, Hover).image;
    QCOMPARE(Probe::bounds(image, [](const QColor &color) { return color == Qt::blue; }), QRect(topLeft, QSize(4, 2)));
    QCOMPARE(Probe::bounds(image, [](const QColor &color) { return color.alpha() > 0; }), QRect(topLeft, QSize(4, 2)));
}

void BoxTest::borderImageReplacesTheBorder()
{
    // Red corners of 2 px, green sides, a blue middle.
    QImage nine(6, 6, QImage::Format_ARGB32);
    nine.fill(Qt::green);
    {
        QPainter painter(&nine);
        for (const QPoint &corner : { QPoint(0, 0), QPoint(4, 0), QPoint(0, 4), QPoint(4, 4) })
            painter.fillRect(QRect(corner, QSize(2, 2)), Qt::red);
        painter.fillRect(2, 2, 2, 2, Qt::blue);
    }
    const QString path = scratchFile("", QStringLiteral(".png"));
    QVERIFY(nine.save(path));
    document("<ObjectParameter>52</ObjectParameter><BorderWidth:AllEdge>2</BorderWidth:AllEdge>"
             "<BorderColor:AllEdge>#ffffff</BorderColor:AllEdge><BorderRadius:AllCorner>5</BorderRadius:AllCorner>"
             "<BorderImage>"
        + path.toUtf8() + "</BorderImage><BorderImage:Hover>/none.png</BorderImage:Hover>");
    Box box;
    Painted painted = paint(&box);
    QVERIFY(painted.border);
    for (const QPoint &corner : { QPoint(0, 0), QPoint(19, 0), QPoint(0, 11), QPoint(19, 11) })
        QCOMPARE(painted.at(corner.x(), corner.y()), kRed);
    for (const QPoint &side : { QPoint(10, 0), QPoint(10, 11), QPoint(0, 6), QPoint(19, 6) })
        QCOMPARE(painted.at(side.x(), side.y()), kGreen);
    QCOMPARE(painted.at(10, 6), kBlue);
    // An image that can't be loaded leaves nothing, and no drawn border in its place.
    painted = paint(&box, Hover);
    QVERIFY(painted.border);
    QCOMPARE(painted.at(10, 0), kClear);
    // A rounded box cuts the image.
    box.cSetParameter(ParamBorderRadius, true);
    QCOMPARE(paint(&box).at(0, 0), kClear);
    // Without widths the image has no margins and is stretched whole: the corner reaches 20 * 2 / 6 px.
    box.cSetParameter(ParamBorderRadius, false);
    box.cSetParameter(ParamBorderWidth, false);
    painted = paint(&box);
    QVERIFY(painted.border);
    QCOMPARE(painted.at(4, 1), kRed);
}

void BoxTest::colorRectanglesStayInsideTheRoundedOutline()
{
    const QRect rect(0, 0, 20, 12);
    CustomFrame frame;
    frame.cSetBorderRadius(6);
    frame.cSetBorderWidth(4);
    frame.cSetColorRect(2, QRect(0, 0, 10, 12), Qt::blue);
    frame.cSetColorRect(1, QRect(0, 0, 20, 12), Qt::green);
    frame.cSetColorRect(3, QRect(15, 0, 6, 12), Qt::red); // sticks out by one
    const auto at = [&](int x, int y) {
        return Probe::colorAt(
            Probe::painted(rect.size(), [&](QPainter *painter) { frame.cDrawColorRect(painter, rect); }), x, y);
    };
    QCOMPARE(at(10, 6), kClear);
    frame.cSetParameter(ParamColorRect, true);
    QCOMPARE(at(0, 0), kClear);
    QCOMPARE(at(0, 6), kBlue); // the outer edge, not the middle of the border
    QCOMPARE(at(9, 6), kBlue);
    QCOMPARE(at(10, 6), kGreen);
    QCOMPARE(at(16, 6), kGreen);
    // The outline is pixel-stepped.
    const QImage image = Probe::painted(rect.size(), [&](QPainter *painter) { frame.cDrawColorRect(painter, rect); });
    for (int x = 0; x < 20; ++x)
        QVERIFY(qAlpha(image.pixel(x, 0)) == 0 || qAlpha(image.pixel(x, 0)) == 255);
    // A later set of one key replaces rectangle and brush, and the order stays.
    frame.cSetColorRect(1, QRect(5, 0, 15, 12), Qt::red);
    QCOMPARE(at(9, 6), kBlue);
    QCOMPARE(at(10, 6), kRed);
    // CustomFrame paints them; square corners have no outline.
    frame.resize(rect.size());
    QCOMPARE(Probe::colorAt(Probe::grab(&frame), 10, 6), kRed);
    frame.cSetBorderRadius(0);
    QCOMPARE(at(10, 6), kClear);
}

void BoxTest::themedBorderIsTheSolidOne()
{
    const std::array<BorderStyle, 4> styles{ { BorderSolid, BorderSolid, BorderSolid, BorderSolid } };
    for (quint32 seed = 0; seed < 60; ++seed) {
        const Case c = randomCase(seed);
        const QImage themed = Probe::painted(
            { 60, 60 }, [&](QPainter *painter) { BoxPainter::drawSolidBorder(painter, c.rect, c.parameter); });
        const QImage direct = Probe::painted({ 60, 60 }, [&](QPainter *painter) {
            painter->setRenderHint(QPainter::Antialiasing);
            Custom::cDrawBorder(painter, c.rect, styles.data(), c.parameter.borders.data(), c.parameter.colors.data(),
                c.parameter.radii.data());
        });
        QVERIFY2(themed == direct, qPrintable(QStringLiteral("seed %1").arg(seed)));
    }
}

void BoxTest::picturesEqualPainting_data()
{
    QTest::addColumn<QImage::Format>("format");
    QTest::addColumn<int>("scale");
    for (const int scale : { 1, 2, 3 }) {
        QTest::addRow("opaque ground, scale %d", scale) << QImage::Format_RGB32 << scale;
        QTest::addRow("translucent ground, scale %d", scale) << QImage::Format_ARGB32_Premultiplied << scale;
    }
}

void BoxTest::picturesEqualPainting()
{
    QFETCH(QImage::Format, format);
    QFETCH(int, scale);
    QImage background = ground(QSize(64, 64) * scale, format, 7);
    background.setDevicePixelRatio(scale);
    for (quint32 seed = 0; seed < 800; ++seed) {
        const int paintNumber = differs(background, randomCase(seed), {});
        QVERIFY2(paintNumber == 0, qPrintable(QStringLiteral("seed %1, paint %2").arg(seed).arg(paintNumber)));
    }
}

void BoxTest::otherPaintersAgree_data()
{
    QTest::addColumn<Paint>("prepare");
    QTest::addColumn<QImage::Format>("format");
    const auto row
        = [](const char *name, const Paint &prepare, QImage::Format format = QImage::Format_ARGB32_Premultiplied) {
              QTest::newRow(name) << prepare << format;
          };
    row("clip", [](QPainter *p) { p->setClipRect(5, 5, 11, 9); });
    row("clip path", [](QPainter *p) {
        QPainterPath path;
        path.addEllipse(2, 2, 30, 20);
        p->setClipPath(path);
    });
    row("clip switched off", [](QPainter *p) {
        p->setClipRect(5, 5, 11, 9);
        p->setClipping(false);
    });
    row("opacity", [](QPainter *p) { p->setOpacity(0.5); });
    row("rotation", [](QPainter *p) { p->rotate(30); });
    row("quarter turn", [](QPainter *p) {
        p->translate(40, 0);
        p->rotate(90);
    });
    row("mirrored", [](QPainter *p) {
        p->translate(40, 0);
        p->scale(-1, 1);
    });
    row("shear", [](QPainter *p) { p->shear(0.3, 0); });
    row("fractional scale", [](QPainter *p) { p->scale(1.5, 1.5); });
    row("scale", [](QPainter *p) { p->scale(2, 2); });
    row("uneven scale", [](QPainter *p) { p->scale(2, 1); });
    row("fractional offset", [](QPainter *p) { p->translate(0.5, 0.25); });
    row("tiny fractional offset", [](QPainter *p) { p->translate(1.0 / 1024, 0); });
    row("offset", [](QPainter *p) { p->translate(-3, 7); });
    row("window", [](QPainter *p) { p->setWindow(0, 0, 32, 32); });
    row("composition mode", [](QPainter *p) { p->setCompositionMode(QPainter::CompositionMode_Source); });
    row("antialiasing on", [](QPainter *p) { p->setRenderHint(QPainter::Antialiasing); });
    row("smooth pictures", [](QPainter *p) {
        p->setRenderHint(QPainter::SmoothPixmapTransform);
        p->scale(2, 2);
    });
    row("not premultiplied", {}, QImage::Format_ARGB32);
    row("16 bits", {}, QImage::Format_RGB16);
    row("64 bits", {}, QImage::Format_RGBA64_Premultiplied);
    row("grey", {}, QImage::Format_Grayscale8);
}

void BoxTest::otherPaintersAgree()
{
    QFETCH(Paint, prepare);
    QFETCH(QImage::Format, format);
    const QImage background = ground(QSize(64, 64), format, 11);
    for (quint32 seed = 1000; seed < 1040; ++seed) {
        const int paintNumber = differs(background, randomCase(seed), prepare);
        QVERIFY2(paintNumber == 0, qPrintable(QStringLiteral("seed %1, paint %2").arg(seed).arg(paintNumber)));
    }
}

void BoxTest::painterIsLeftAsItWas()
{
    document("<ObjectParameter>311</ObjectParameter><BackgroundColor>#ff0000</BackgroundColor>"
             "<BorderWidth:AllEdge>2</BorderWidth:AllEdge><BorderRadius:AllCorner>5</BorderRadius:AllCorner>"
             "<BackgroundImage>/none.png</BackgroundImage><BorderImage>/none.png</BorderImage>");
    Box box;
    box.cSetColorRect(0, QRect(0, 0, 20, 12), Qt::blue);
    for (const bool on : { false, true }) {
        Probe::painted({ 20, 12 }, [&](QPainter *painter) {
            painter->setRenderHint(QPainter::Antialiasing, on);
            painter->setRenderHint(QPainter::SmoothPixmapTransform, on);
            painter->setPen(QPen(Qt::yellow, 3));
            painter->setClipRect(1, 1, 5, 5);
            for (int i = 0; i < 3; ++i) {
                box.cDrawBackground(painter, { 0, 0, 20, 12 }, Normal, {});
                box.cDrawBorder(painter, { 0, 0, 20, 12 }, Normal, {});
                box.cDrawColorRect(painter, { 0, 0, 20, 12 });
            }
            QCOMPARE(painter->testRenderHint(QPainter::Antialiasing), on);
            QCOMPARE(painter->testRenderHint(QPainter::SmoothPixmapTransform), on);
            QCOMPARE(painter->pen(), QPen(Qt::yellow, 3));
            QCOMPARE(painter->clipBoundingRect(), QRectF(1, 1, 5, 5));
        });
    }
}

ZANTHIC_TEST_MAIN(BoxTest)
#include "tst_box.moc"
