#include "render/BorderGeometry_p.h"
#include "support/Recorder.h"
#include "support/StyleTest.h"

#include <QtGui/QPainter>

#include <limits>

using namespace Custom;
using BorderLayout::Band;

namespace {

using Sizes = std::array<QSize, 4>;
using Widths = std::array<int, 4>;

constexpr int kMax = std::numeric_limits<int>::max();
const QRect kBox(10, 20, 100, 50); // x 10 to 110, y 20 to 70
const QSize kNone(-1, -1);
// 100 * 150 / 100 in value: #640000 lightens to #960000.
const QColor kDark(100, 0, 0);
const auto kPlain = QStringLiteral(" #640000");
const auto kLight = QStringLiteral(" #960000");

QString text(const Band &band)
{
    return QStringLiteral("%1,%2,%3,%4").arg(band.x1).arg(band.y1).arg(band.x2).arg(band.y2);
}

QStringList drawnEdge(const Band &b, double dw1, double dw2, BorderEdge edge, BorderStyle style)
{
    return Recorder::shapes(
        [&](QPainter *painter) { cDrawEdge(painter, b.x1, b.y1, b.x2, b.y2, dw1, dw2, edge, style, kDark); });
}

// Red, green, blue and white for left, right, top and bottom, of 2, 4, 6 and 8 px.
struct Border
{
    std::array<BorderStyle, 4> styles{ { BorderSolid, BorderSolid, BorderSolid, BorderSolid } };
    Widths widths{ { 2, 4, 6, 8 } };
    std::array<QBrush, 4> colors{ { QColor(Qt::red), QColor(Qt::green), QColor(Qt::blue), QColor(Qt::white) } };
    Sizes radii{ { kNone, kNone, kNone, kNone } };

    QStringList drawn() const
    {
        return Recorder::shapes([this](QPainter *painter) {
            cDrawBorder(painter, kBox, styles.data(), widths.data(), colors.data(), radii.data());
        });
    }
};

} // namespace

Q_DECLARE_METATYPE(Sizes)
Q_DECLARE_METATYPE(Widths)
Q_DECLARE_METATYPE(Band)
Q_DECLARE_METATYPE(BorderStyle)
Q_DECLARE_METATYPE(BorderEdge)
Q_DECLARE_METATYPE(Border)

class BorderGeometryTest : public StyleTest
{
    Q_OBJECT

private Q_SLOTS:
    void radiiThatDoNotFitAreDropped_data();
    void radiiThatDoNotFitAreDropped();
    void clipRunsThroughTheMiddleOfTheBorder_data();
    void clipRunsThroughTheMiddleOfTheBorder();
    void edgeIsDrawnByStyle_data();
    void edgeIsDrawnByStyle();
    void penFollowsTheStyle_data();
    void penFollowsTheStyle();
    void edgesMeet_data();
    void edgesMeet();
    void arcsOfOneEdge_data();
    void arcsOfOneEdge();
    void cornerBands();
    void cornersAreStrokedByStyle();
    void lightenedCorners();
    void painterIsLeftAsItWas();
};

void BorderGeometryTest::radiiThatDoNotFitAreDropped_data()
{
    QTest::addColumn<Sizes>("radii");
    QTest::addColumn<Sizes>("normal");
    const QSize o(0, 0);
    const QSize c(5, 5);
    QTest::newRow("unset") << Sizes{ { kNone, kNone, kNone, kNone } } << Sizes{ { o, o, o, o } };
    QTest::newRow("each number by itself")
        << Sizes{ { { -3, 7 }, { 7, -3 }, c, c } } << Sizes{ { { 0, 7 }, { 7, 0 }, c, c } };
    QTest::newRow("exact fit") << Sizes{ { { 60, 25 }, { 40, 10 }, { 1, 25 }, { 99, 40 } } }
                               << Sizes{ { { 60, 25 }, { 40, 10 }, { 1, 25 }, { 99, 40 } } };
    QTest::newRow("top widths") << Sizes{ { { 60, 5 }, { 41, 5 }, c, c } } << Sizes{ { o, o, c, c } };
    QTest::newRow("bottom widths") << Sizes{ { c, c, { 60, 5 }, { 41, 5 } } } << Sizes{ { c, c, o, o } };
    QTest::newRow("left heights") << Sizes{ { { 5, 26 }, c, { 5, 25 }, c } } << Sizes{ { o, c, o, c } };
    QTest::newRow("right heights") << Sizes{ { c, { 5, 26 }, c, { 5, 25 } } } << Sizes{ { c, o, c, o } };
    QTest::newRow("widths before heights")
        << Sizes{ { { 60, 30 }, { 60, 30 }, { 10, 30 }, { 10, 30 } } } << Sizes{ { o, o, { 10, 30 }, { 10, 30 } } };
    QTest::newRow("bottom widths before heights")
        << Sizes{ { { 10, 30 }, { 10, 30 }, { 60, 30 }, { 60, 30 } } } << Sizes{ { { 10, 30 }, { 10, 30 }, o, o } };
    QTest::newRow("huge") << Sizes{ { { kMax, kMax }, { kMax, kMax }, { kMax, kMax }, { kMax, kMax } } }
                          << Sizes{ { o, o, o, o } };
}

void BorderGeometryTest::radiiThatDoNotFitAreDropped()
{
    QFETCH(Sizes, radii);
    QFETCH(Sizes, normal);
    Sizes out;
    cNormalizeRadii(kBox, radii.data(), &out[LeftTop], &out[RightTop], &out[LeftBottom], &out[RightBottom]);
    for (std::size_t i = 0; i < 4; ++i)
        QCOMPARE(out[i], normal[i]);
}

void BorderGeometryTest::clipRunsThroughTheMiddleOfTheBorder_data()
{
    QTest::addColumn<Widths>("borders");
    QTest::addColumn<Sizes>("radii");
    QTest::addColumn<QString>("path");
    const QSize ten(10, 10);
    QTest::newRow("square") << Widths{ { 1, 1, 1, 1 } } << Sizes{ { kNone, kNone, kNone, kNone } } << QString();
    QTest::newRow("dropped") << Widths{ { 1, 1, 1, 1 } } << Sizes{ { { 60, 60 }, { 60, 60 }, { 60, 60 }, { 60, 60 } } }
                             << QString();
    QTest::newRow("even widths") << Widths{ { 2, 4, 6, 8 } } << Sizes{ { ten, ten, ten, ten } }
                                 << "M20,23 L100,23 C108,30 L108,60 C100,66 L20,66 C11,60 L11,30 C20,23";
    // The lower left and upper left arcs halve the widths in integers, so lines of half a pixel lead up to them.
    QTest::newRow("odd widths") << Widths{ { 3, 5, 7, 9 } }
                                << Sizes{ { { 10, 12 }, { 14, 16 }, { 18, 20 }, { 16, 14 } } }
                                << "M20,23.5 L96,23.5 C107.5,36 L107.5,56 C94,65.5 L28,65.5 L28,65 C11.5,49.5 "
                                   "L11.5,32 L11.5,31.5 C20,23 L20,23.5";
    QTest::newRow("no widths") << Widths{ { 0, 0, 0, 0 } } << Sizes{ { ten, kNone, kNone, kNone } }
                               << "M20,20 L110,20 L110,70 L10,70 L10,30 C20,20";
}

void BorderGeometryTest::clipRunsThroughTheMiddleOfTheBorder()
{
    QFETCH(Widths, borders);
    QFETCH(Sizes, radii);
    QFETCH(QString, path);
    QCOMPARE(Recorder::pathText(cBorderClip(kBox, borders.data(), radii.data())), path);
}

void BorderGeometryTest::edgeIsDrawnByStyle_data()
{
    QTest::addColumn<Band>("band");
    QTest::addColumn<QPointF>("overhangs");
    QTest::addColumn<BorderEdge>("edge");
    QTest::addColumn<BorderStyle>("style");
    QTest::addColumn<QStringList>("shapes");
    const auto row
        = [](const char *name, const Band &band, const QPointF &overhangs, BorderEdge edge, BorderStyle style,
              const QStringList &shapes) { QTest::newRow(name) << band << overhangs << edge << style << shapes; };
    const Band top6{ 10, 20, 70, 26 };
    const Band left6{ 10, 20, 16, 80 };
    const QPointF mitres(4, 5);
    row("solid top", top6, mitres, Top, BorderSolid, { "poly 10,20 14,26 65,26 70,20" + kPlain });
    row("solid bottom", top6, mitres, Bottom, BorderSolid, { "poly 14,20 10,26 70,26 65,20" + kPlain });
    row("solid left", left6, mitres, Left, BorderSolid, { "poly 10,20 10,80 16,75 16,24" + kPlain });
    row("solid right", left6, mitres, Right, BorderSolid, { "poly 10,24 10,75 16,80 16,20" + kPlain });
    row("solid, one mitre", top6, { 0, 5 }, Top, BorderSolid, { "poly 10,20 10,26 65,26 70,20" + kPlain });
    row("solid, no mitre", left6, { 0, 0 }, Left, BorderSolid, { "rect 10,20 6x60" + kPlain });
    row("solid, width 1", { 10, 20, 70, 21 }, mitres, Top, BorderSolid, { "rect 10,20 60x1" + kPlain });
    row("inset top", top6, { 0, 0 }, Top, BorderInset, { "rect 10,20 60x6" + kPlain });
    row("inset left", left6, { 0, 0 }, Left, BorderInset, { "rect 10,20 6x60" + kPlain });
    row("inset bottom", top6, { 0, 0 }, Bottom, BorderInset, { "rect 10,20 60x6" + kLight });
    row("inset right", left6, { 0, 0 }, Right, BorderInset, { "rect 10,20 6x60" + kLight });
    row("outset top", top6, mitres, Top, BorderOutset, { "poly 10,20 14,26 65,26 70,20" + kLight });
    row("outset left", left6, { 0, 0 }, Left, BorderOutset, { "rect 10,20 6x60" + kLight });
    row("outset bottom", top6, { 0, 0 }, Bottom, BorderOutset, { "rect 10,20 60x6" + kPlain });
    row("outset right", left6, { 0, 0 }, Right, BorderOutset, { "rect 10,20 6x60" + kPlain });
    // A third of 6 is 2; of the overhangs 4 and 8, 1 and 3.
    const QPointF thirds(4, 8);
    row("double top", top6, thirds, Top, BorderDouble,
        { "poly 10,20 11,22 67,22 70,20" + kPlain, "poly 13,24 14,26 60,26 63,24" + kPlain });
    row("double bottom", top6, thirds, Bottom, BorderDouble,
        { "poly 14,20 13,22 65,22 62,20" + kPlain, "poly 11,24 10,26 70,26 67,24" + kPlain });
    row("double left", left6, thirds, Left, BorderDouble,
        { "poly 10,20 10,80 12,77 12,21" + kPlain, "poly 14,23 14,75 16,72 16,24" + kPlain });
    row("double right", left6, thirds, Right, BorderDouble,
        { "poly 14,21 14,77 16,80 16,20" + kPlain, "poly 10,24 10,72 12,75 12,23" + kPlain });
    row("double, width 3", { 0, 0, 9, 3 }, { 0, 0 }, Top, BorderDouble,
        { "rect 0,0 9x1" + kPlain, "rect 0,2 9x1" + kPlain });
    row("double, width 2", { 0, 0, 9, 2 }, { 0, 0 }, Top, BorderDouble, { "rect 0,0 9x2" + kPlain });
    row("double, half away from zero", { 0, 0, 40, 7.5 }, { 4.5, 0 }, Bottom, BorderDouble,
        { "poly 4.5,0 2.5,3 40,3 40,0" + kPlain, "poly 2,4.5 0,7.5 40,7.5 40,4.5" + kPlain });
    // Halves: 3 of 5, rounded; 1 of 3 and 3 of 7, cut.
    const Band top5{ 10, 20, 70, 25 };
    const Band left5{ 10, 20, 15, 80 };
    const QPointF halves(3, 7);
    row("groove top", top5, halves, Top, BorderGroove,
        { "poly 10,20 11,23 67,23 70,20" + kPlain, "poly 11,23 12,25 64,25 67,23" + kLight });
    row("groove bottom", top5, halves, Bottom, BorderGroove,
        { "poly 11,23 10,25 70,25 67,23" + kLight, "poly 12,20 11,23 67,23 64,20" + kPlain });
    row("groove left", left5, halves, Left, BorderGroove,
        { "poly 10,20 10,80 13,77 13,21" + kPlain, "poly 13,21 13,77 15,74 15,22" + kLight });
    row("groove right", left5, halves, Right, BorderGroove,
        { "poly 13,21 13,77 15,80 15,20" + kLight, "poly 10,22 10,74 13,77 13,21" + kPlain });
    row("ridge top", top5, halves, Top, BorderRidge,
        { "poly 10,20 11,23 67,23 70,20" + kLight, "poly 11,23 12,25 64,25 67,23" + kPlain });
    row("ridge right", left5, halves, Right, BorderRidge,
        { "poly 13,21 13,77 15,80 15,20" + kPlain, "poly 10,22 10,74 13,77 13,21" + kLight });
    row("none", top6, mitres, Top, BorderNone, {});
    row("beyond the styles", top6, mitres, Top, BorderStyle(42), {});
}

void BorderGeometryTest::edgeIsDrawnByStyle()
{
    QFETCH(Band, band);
    QFETCH(QPointF, overhangs);
    QFETCH(BorderEdge, edge);
    QFETCH(BorderStyle, style);
    QFETCH(QStringList, shapes);
    QCOMPARE(drawnEdge(band, overhangs.x(), overhangs.y(), edge, style), shapes);
}

void BorderGeometryTest::penFollowsTheStyle_data()
{
    QTest::addColumn<Band>("band");
    QTest::addColumn<BorderEdge>("edge");
    QTest::addColumn<BorderStyle>("style");
    QTest::addColumn<QString>("line");
    // At width 1 the line ends one unit short of both ends of the band; wider lines stand half a width inside.
    QTest::newRow("dotted 1") << Band{ 10, 20, 70, 21 } << Top << BorderDotted << "10,20 69,20 w1 dot";
    QTest::newRow("dashed 1 is dotted") << Band{ 10, 20, 11, 80 } << Left << BorderDashed << "10,20 10,79 w1 dot";
    QTest::newRow("dashed 2") << Band{ 10, 20, 70, 22 } << Bottom << BorderDashed << "11,21 69,21 w2 dash";
    QTest::newRow("dashed 3") << Band{ 10, 20, 70, 23 } << Top << BorderDashed << "11.5,21.5 68.5,21.5 w3 dash";
    QTest::newRow("dotted 4") << Band{ 10, 20, 14, 80 } << Right << BorderDotted << "12,22 12,78 w4 dot";
    QTest::newRow("dot-dash") << Band{ 10, 20, 14, 80 } << Left << BorderDotDash << "12,22 12,78 w4 dashdot";
    QTest::newRow("dot-dot-dash") << Band{ 10, 20, 70, 24 } << Top << BorderDotDotDash << "12,22 68,22 w4 dashdotdot";
}

void BorderGeometryTest::penFollowsTheStyle()
{
    QFETCH(Band, band);
    QFETCH(BorderEdge, edge);
    QFETCH(BorderStyle, style);
    QFETCH(QString, line);
    const QString expected = QLatin1String("line ") + line.replace(QLatin1String(" w"), QLatin1String(" pen #640000 w"))
        + QLatin1String(" flat bevel");
    QCOMPARE(drawnEdge(band, 4, 5, edge, style), QStringList(expected));
}

void BorderGeometryTest::edgesMeet_data()
{
    QTest::addColumn<Border>("border");
    QTest::addColumn<QStringList>("shapes");
    const auto bottom = QStringLiteral("poly 12,62 10,70 110,70 106,62 #ffffff");
    const auto right = QStringLiteral("poly 106,26 106,62 110,70 110,20 #00ff00");
    const auto left = QStringLiteral("poly 10,20 10,70 12,62 12,26 #ff0000");
    const auto top = QStringLiteral("poly 10,20 12,26 106,26 110,20 #0000ff");
    const auto bottomSquareAtLeft = QStringLiteral("poly 10,62 10,70 110,70 106,62 #ffffff");
    const auto topSquareAtLeft = QStringLiteral("poly 10,20 10,26 106,26 110,20 #0000ff");
    Border border;
    QTest::newRow("four colours, later edges on top") << border << QStringList{ bottom, right, left, top };

    border.colors = { { kDark, kDark, kDark, kDark } };
    QTest::newRow("one colour overlaps") << border
                                         << QStringList{ "rect 10,62 100x8" + kPlain, "rect 106,20 4x50" + kPlain,
                                                "rect 10,20 2x50" + kPlain, "rect 10,20 100x6" + kPlain };

    border = Border();
    border.colors[Left] = QBrush(Qt::transparent);
    QString blackLeft = left;
    blackLeft.replace(QLatin1String("#ff0000"), QLatin1String("#000000")); // named without its alpha of 0
    QTest::newRow("transparent neighbour")
        << border << QStringList{ bottomSquareAtLeft, right, blackLeft, topSquareAtLeft };

    border.colors[Left] = QBrush();
    QString noLeft = left;
    noLeft.remove(QLatin1String(" #ff0000"));
    QTest::newRow("neighbour without a colour") << border << QStringList{ bottom, right, noLeft, top };

    border = Border();
    border.styles[Left] = BorderNone;
    QTest::newRow("neighbour of style none") << border << QStringList{ bottomSquareAtLeft, right, topSquareAtLeft };

    border = Border();
    border.widths[Left] = 0;
    QTest::newRow("neighbour of width 0") << border << QStringList{ bottomSquareAtLeft, right, topSquareAtLeft };

    // No overhang at the top, whose radius along the edge is 5; the left edge's is 0. The arc is empty.
    border = Border();
    border.radii[LeftTop] = QSize(5, 0);
    QTest::newRow("flat corner") << border
                                 << QStringList{ bottom, right, left, "poly 15,20 15,26 106,26 110,20 #0000ff" };

    border = Border();
    border.widths = { { 0, 0, 6, 0 } };
    border.radii = { { { 10, 12 }, { 14, 16 }, kNone, kNone } };
    QTest::newRow("one edge with corners")
        << border
        << QStringList{ "rect 20,20 76x6 #0000ff", "path M15.0503,25.636 C20,23 pen #0000ff w6 solid square bevel",
               "path M103.778,26.8076 C96,23 pen #0000ff w6 solid square bevel" };
}

void BorderGeometryTest::edgesMeet()
{
    QFETCH(Border, border);
    QFETCH(QStringList, shapes);
    QCOMPARE(border.drawn(), shapes);
}

void BorderGeometryTest::arcsOfOneEdge_data()
{
    QTest::addColumn<Band>("band");
    QTest::addColumn<BorderEdge>("edge");
    QTest::addColumn<QRectF>("first");
    QTest::addColumn<QPoint>("firstAngles");
    QTest::addColumn<QRectF>("second");
    QTest::addColumn<QPoint>("secondAngles");
    // Width 4; radii (10, 12) at the start and (14, 16) at the end; degrees.
    QTest::newRow("top") << Band{ 10, 20, 70, 24 } << Top << QRectF(2, 22, 16, 20) << QPoint(135, -45)
                         << QRectF(58, 22, 24, 28) << QPoint(45, 45);
    QTest::newRow("bottom") << Band{ 10, 66, 70, 70 } << Bottom << QRectF(2, 48, 16, 20) << QPoint(-90, -45)
                            << QRectF(58, 40, 24, 28) << QPoint(-90, 45);
    QTest::newRow("left") << Band{ 10, 20, 14, 80 } << Left << QRectF(12, 10, 16, 20) << QPoint(135, 45)
                          << QRectF(12, 66, 24, 28) << QPoint(180, 45);
    QTest::newRow("right") << Band{ 66, 20, 70, 80 } << Right << QRectF(52, 10, 16, 20) << QPoint(45, -45)
                           << QRectF(44, 66, 24, 28) << QPoint(315, 45);
}

void BorderGeometryTest::arcsOfOneEdge()
{
    QFETCH(Band, band);
    QFETCH(BorderEdge, edge);
    QFETCH(QRectF, first);
    QFETCH(QPoint, firstAngles);
    QFETCH(QRectF, second);
    QFETCH(QPoint, secondAngles);
    const QStringList expected = Recorder::shapes([&](QPainter *painter) {
        painter->setPen(QPen(kDark, 4, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
        painter->drawArc(first, firstAngles.x() * 16, firstAngles.y() * 16);
        painter->drawArc(second, secondAngles.x() * 16, secondAngles.y() * 16);
    });
    QCOMPARE(Recorder::shapes([&](QPainter *painter) {
        cDrawRoundedCorners(
            painter, band.x1, band.y1, band.x2, band.y2, { 10, 12 }, { 14, 16 }, edge, BorderSolid, kDark);
    }),
        expected);
    // An empty radius leaves its arc out.
    QCOMPARE(Recorder::shapes([&](QPainter *painter) {
        cDrawRoundedCorners(
            painter, band.x1, band.y1, band.x2, band.y2, { 5, 0 }, { 14, 16 }, edge, BorderSolid, kDark);
    }),
        expected.mid(1));
}

void BorderGeometryTest::cornerBands()
{
    using namespace BorderLayout;
    const auto both = [](const std::array<Band, 2> &bands) -> QString {
        return text(bands[0]) + QLatin1Char(' ') + text(bands[1]);
    };
    // Thirds are real numbers here; at the sides the bands start one below.
    QCOMPARE(both(doubleCornerBands({ 10, 20, 70, 26 }, Top)), QStringLiteral("10,20,70,22 10,24,70,26"));
    QCOMPARE(both(doubleCornerBands({ 10, 20, 70, 24.5 }, Bottom)), QStringLiteral("10,20,70,21.5 10,23,70,24.5"));
    QCOMPARE(both(doubleCornerBands({ 10, 20, 16, 80 }, Left)), QStringLiteral("10,21,12,80 14,21,16,80"));
    QCOMPARE(both(doubleCornerBands({ 10, 20, 16, 80 }, Right)), QStringLiteral("10,21,12,80 14,21,16,80"));
    QCOMPARE(both(grooveCornerBands({ 10, 20, 15, 80 }, Left)), QStringLiteral("10,20,13,80 13,20,15,80"));
    QCOMPARE(both(grooveCornerBands({ 10, 20, 15, 80 }, Right)), QStringLiteral("13,20,15,80 10,20,12,80"));
    QCOMPARE(both(grooveCornerBands({ 10, 20, 70, 25 }, Top)), QStringLiteral("10,20,70,23 10,23,70,25"));
    QCOMPARE(both(grooveCornerBands({ 10, 20, 70, 25 }, Bottom)), QStringLiteral("10,23,70,25 10,20,70,22"));
}

void BorderGeometryTest::cornersAreStrokedByStyle()
{
    const auto drawn = [](const Band &b, BorderEdge edge, BorderStyle style) {
        return Recorder::shapes([&](QPainter *painter) {
            cDrawRoundedCorners(painter, b.x1, b.y1, b.x2, b.y2, { 10, 12 }, { 14, 16 }, edge, style, kDark);
        });
    };
    const Band left{ 10, 20, 16, 80 };
    QCOMPARE(drawn(left, Left, BorderDouble),
        drawn({ 10, 21, 12, 80 }, Left, BorderSolid) + drawn({ 14, 21, 16, 80 }, Left, BorderSolid));
    QCOMPARE(drawn(left, Left, BorderGroove),
        drawn({ 10, 20, 13, 80 }, Left, BorderInset) + drawn({ 13, 20, 16, 80 }, Left, BorderOutset));
    QCOMPARE(drawn(left, Right, BorderRidge),
        drawn({ 13, 20, 16, 80 }, Right, BorderOutset) + drawn({ 10, 20, 13, 80 }, Right, BorderInset));
    const QStringList dashed = drawn({ 10, 20, 11, 80 }, Left, BorderDashed);
    QCOMPARE(dashed.size(), 2);
    QVERIFY2(dashed.first().endsWith(QLatin1String("w1 dot square bevel")), qPrintable(dashed.first()));
    QCOMPARE(drawn(left, Left, BorderNone), QStringList());
    QCOMPARE(drawn(left, Left, BorderStyle(42)), QStringList());
}

void BorderGeometryTest::lightenedCorners()
{
    for (const BorderStyle style : { BorderInset, BorderOutset }) {
        for (const BorderEdge edge : { Left, Right, Top, Bottom }) {
            const QStringList shapes = Recorder::shapes([&](QPainter *painter) {
                cDrawRoundedCorners(painter, 10, 20, 14, 24, { 10, 12 }, { 14, 16 }, edge, style, kDark);
            });
            const bool isUpperLeft = edge == Left || edge == Top;
            QCOMPARE(shapes.size(), 2);
            for (const QString &shape : shapes)
                QCOMPARE(shape.contains(kLight), isUpperLeft == (style == BorderOutset));
        }
    }
}

void BorderGeometryTest::painterIsLeftAsItWas()
{
    Recorder::shapes([](QPainter *painter) {
        const QPen pen(Qt::yellow, 3);
        painter->setPen(pen);
        painter->setBrush(Qt::cyan);
        Border border;
        border.styles = { { BorderDotted, BorderGroove, BorderDouble, BorderInset } };
        border.radii = { { { 9, 9 }, { 9, 9 }, { 9, 9 }, { 9, 9 } } };
        cDrawBorder(
            painter, kBox, border.styles.data(), border.widths.data(), border.colors.data(), border.radii.data());
        QCOMPARE(painter->pen(), pen);
        QCOMPARE(painter->brush(), QBrush(Qt::cyan));
    });
}

ZANTHIC_TEST_MAIN(BorderGeometryTest)
#include "tst_border_geometry.moc"
