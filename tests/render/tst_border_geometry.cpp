#include "render/BorderGeometry_p.h"
#include "support/Recorder.h"
#include "support/StyleTest.h"

#include <QtGui/QPainter>

using namespace Custom;

namespace {

const QRect kBox(10, 20, 100, 50); // x 10 to 110, y 20 to 70
const QColor kDark(100, 0, 0);

std::array<QSize, 4> sizes(const QString &text)
{
    const QVector<double> n = StyleTest::numbersIn(text);
    return { { { int(n[0]), int(n[1]) }, { int(n[2]), int(n[3]) }, { int(n[4]), int(n[5]) },
        { int(n[6]), int(n[7]) } } };
}

std::array<int, 4> widths(const QString &text)
{
    const QVector<double> n = StyleTest::numbersIn(text);
    return { { int(n[0]), int(n[1]), int(n[2]), int(n[3]) } };
}

// "x,y WxH START SPAN wWIDTH COLOUR STYLE", with angles in degrees.
void drawArc(QPainter *painter, const QString &arc)
{
    const QVector<double> n = StyleTest::numbersIn(arc.section(QLatin1Char('#'), 0, 0));
    const auto style = StyleTest::enumerator<Qt::PenStyle>(arc.section(QLatin1Char(' '), -1));
    const QColor color(arc.section(QLatin1Char(' '), -2, -2));
    painter->setPen(QPen(color, n[6], style, Qt::SquareCap, Qt::BevelJoin));
    painter->drawArc(QRectF(n[0], n[1], n[2], n[3]), int(n[4] * 16), int(n[5] * 16));
}

} // namespace

class BorderGeometryTest : public StyleTest
{
    Q_OBJECT

private Q_SLOTS:
    void radiiThatDoNotFitAreDropped_data() { addRowsOf(QStringLiteral("render/radii.txt")); }
    void radiiThatDoNotFitAreDropped();
    void clipRunsThroughTheMiddleOfTheBorder_data() { addRowsOf(QStringLiteral("render/clips.txt")); }
    void clipRunsThroughTheMiddleOfTheBorder();
    void edgeIsDrawnByStyle_data() { addRowsOf(QStringLiteral("render/edges.txt")); }
    void edgeIsDrawnByStyle();
    void cornersAreStrokedByStyle_data() { addRowsOf(QStringLiteral("render/corners.txt")); }
    void cornersAreStrokedByStyle();
    void edgesMeet_data() { addRowsOf(QStringLiteral("render/borders.txt")); }
    void edgesMeet();
};

void BorderGeometryTest::radiiThatDoNotFitAreDropped()
{
    QFETCH(QStringList, fields);
    const auto radii = sizes(fields[0]);
    std::array<QSize, 4> out;
    cNormalizeRadii(kBox, radii.data(), &out[LeftTop], &out[RightTop], &out[LeftBottom], &out[RightBottom]);
    QCOMPARE(out, sizes(fields[1]));
}

void BorderGeometryTest::clipRunsThroughTheMiddleOfTheBorder()
{
    QFETCH(QStringList, fields);
    const auto path = cBorderClip(kBox, widths(fields[0]).data(), sizes(fields[1]).data());
    QCOMPARE(Recorder::pathText(path), fields[2]);
}

void BorderGeometryTest::edgeIsDrawnByStyle()
{
    QFETCH(QStringList, fields);
    const QVector<double> b = numbersIn(fields[0]);
    const QVector<double> dw = numbersIn(fields[1]);
    const QStringList shapes = Recorder::shapes([&](QPainter *painter) {
        cDrawEdge(painter, b[0], b[1], b[2], b[3], dw[0], dw[1], enumerator<BorderEdge>(fields[2]),
            enumerator<BorderStyle>(fields[3]), kDark);
        QVERIFY(painter->pen() == QPen() && painter->brush() == QBrush()); // left as they were
    });
    QCOMPARE(shapes, fields[4].split(QLatin1String("; "), Qt::SkipEmptyParts));
}

void BorderGeometryTest::cornersAreStrokedByStyle()
{
    QFETCH(QStringList, fields);
    const QVector<double> b = numbersIn(fields[0]);
    const QVector<double> r = numbersIn(fields[1]);
    const QStringList shapes = Recorder::shapes([&](QPainter *painter) {
        cDrawRoundedCorners(painter, b[0], b[1], b[2], b[3], { r[0], r[1] }, { r[2], r[3] },
            enumerator<BorderEdge>(fields[2]), enumerator<BorderStyle>(fields[3]), kDark);
        QVERIFY(painter->pen() == QPen() && painter->brush() == QBrush());
    });
    const QStringList expected = Recorder::shapes([&](QPainter *painter) {
        for (const QString &arc : fields[4].split(QLatin1String("; "), Qt::SkipEmptyParts))
            drawArc(painter, arc);
    });
    QCOMPARE(shapes, expected);
}

void BorderGeometryTest::edgesMeet()
{
    QFETCH(QStringList, fields);
    const BorderStyle styles[] = { enumerator<BorderStyle>(fields[0]), BorderSolid, BorderSolid, BorderSolid };
    QBrush colors[4];
    for (int i = 0; i < 4; ++i) {
        const QString name = fields[2].section(QLatin1Char(' '), i, i);
        colors[i] = name == QLatin1String("-") ? QBrush() : QBrush(QColor(name));
    }
    const QStringList shapes = Recorder::shapes([&](QPainter *painter) {
        cDrawBorder(painter, kBox, styles, widths(fields[1]).data(), colors, sizes(fields[3]).data());
    });
    QCOMPARE(shapes, fields[4].split(QLatin1String("; "), Qt::SkipEmptyParts));
}

ZANTHIC_TEST_MAIN(BorderGeometryTest)
#include "tst_border_geometry.moc"
