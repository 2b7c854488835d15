#include "support/Literal.h"
#include "support/StyleTest.h"
#include "windows/WindowGeometry_p.h"

using namespace WindowGeometry;

class WindowGeometryTest : public StyleTest
{
    Q_OBJECT

private Q_SLOTS:
    void zones_data() { addRowsOf("windows/zones.txt"_s); }
    void zones()
    {
        QFETCH(QStringList, fields);
        const QVector<double> n = numbersIn(fields[0]);
        const Zone zone = zoneAt(QPoint(int(n[1]), int(n[2])), QRect(100, 200, 400, 300), Edges(int(n[0])));
        QCOMPARE(zone.edge, fields[1].section(' ', 0, 0).toInt());
        const QMetaEnum shapes = QMetaEnum::fromType<Qt::CursorShape>();
        QCOMPARE(QString::fromLatin1(shapes.valueToKey(zone.cursor)), fields[1].section(' ', 1));
    }

    void stretches_data() { addRowsOf("windows/stretches.txt"_s); }
    void stretches()
    {
        QFETCH(QStringList, fields);
        const QVector<double> n = numbersIn(fields[0]);
        const QVector<double> least = numbersIn(fields[1]);
        const QRect start(100, 200, 400, 300);
        QCOMPARE(stretched(start, int(n[0]), QPoint(int(n[1]), int(n[2])), QSize(int(least[0]), int(least[1]))),
            rectIn(fields[2]));
    }

    void numbers()
    {
        const QRect area(0, 30, 800, 570); // of the desktop, where the pointer stays
        QCOMPARE(strechDelta(QPoint(400, 300), QPoint(900, 5000), area), QPoint(399, 299));
        QCOMPARE(strechDelta(QPoint(400, 300), QPoint(-7, 0), area), QPoint(-400, -270));
        QCOMPARE(shadowMargins(QPointF(0, 0), 9.f), QMargins(4, 4, 4, 4));
        QCOMPARE(shadowMargins(QPointF(3, -2), 15.f), QMargins(4, 9, 10, 5)); // 7.5 -+ 3, 7.5 -+ -2, cut
        QCOMPARE(borderMargins({ 1, 2, 3, 4 }, false), QMargins(1, 3, 2, 4));
        QCOMPARE(borderMargins({ 1, 2, 3, 4 }, true), QMargins(2, 3, 3, 5)); // none at the top
        QCOMPARE(rounded(QPointF(-10.5, 10.5)), QPoint(-11, 11));
        QCOMPARE(borderMargins({ INT_MAX, 0, 0, 0 }, true).left(), QWIDGETSIZE_MAX + 1);
        QCOMPARE(residual(QRect(2, 1, 96, 32), 100), QRect(0, 1, 100, 32));
    }

    void maskIsTheBorderMiddle()
    {
        const Radii even{ QSize(8, 8), QSize(8, 8), QSize(8, 8), QSize(8, 8) };
        const QRegion region = mask(QSize(60, 40), { 1, 1, 1, 1 }, even);
        QVERIFY(!region.contains(QPoint(0, 0)) && !region.contains(QPoint(59, 39)));
        QVERIFY(region.contains(QPoint(30, 20)) && region.contains(QPoint(3, 3)));
        QCOMPARE(region.boundingRect(), QRect(0, 0, 60, 40)); // the whole window
        QVERIFY(mask(QSize(40000, 3), {}, {}).isEmpty());
        // The quick way and the plain one, by turns with another window in between.
        const Widths widths{ 1, 4, 2, 0 };
        const Radii radii{ QSize(8, 8), QSize(3, 12), QSize(0, 0), QSize(17, 17) };
        for (const QSize &size : { QSize(30, 30), QSize(52, 300), QSize(640, 401), QSize(801, 53) }) {
            QCOMPARE(mask(size, widths, radii), paintedMask(size, widths, radii));
            QCOMPARE(mask(size, { 1, 1, 1, 1 }, even), paintedMask(size, { 1, 1, 1, 1 }, even));
        }
    }
};

ZANTHIC_TEST_MAIN(WindowGeometryTest)
#include "tst_window_geometry.moc"
