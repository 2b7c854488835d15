#include "desktop/DesktopTest.h"

namespace {

const QRect kStart(200, 150, 400, 300);
constexpr int kRounds = 20;

} // namespace

class WindowPlacesTest : public DesktopTest
{
    Q_OBJECT

private Q_SLOTS:
    void dragMovesByThePointersWay()
    {
        Shell window;
        QVERIFY(window.settles());
        for (const QPoint &way : { QPoint(63, 41), QPoint(-150, 7), QPoint(1, -60) }) {
            drag(middle(window.cTitleBar()), way);
            QTRY_COMPARE(placeOf(window), kStart.translated(way));
            drag(middle(window.cTitleBar()), -way);
            QTRY_COMPARE(placeOf(window), kStart);
        }
        window.cTitleBar()->cSetEnableMove(false);
        drag(middle(window.cTitleBar()), QPoint(30, 30));
        drag(window.at(200, 200), QPoint(30, 30)); // not the bar
        QTRY_COMPARE(placeOf(window), kStart);
    }

    void maximisingEndsWhereItBegan()
    {
        Shell window;
        QVERIFY(window.settles());
        const QRect whole = QGuiApplication::primaryScreen()->availableGeometry();
        click(middle(button(&window, "MaxBtn")));
        QTRY_COMPARE(placeOf(window), whole);
        drag(middle(window.cTitleBar()), QPoint(50, 50)); // a maximised window stays
        QTRY_COMPARE(placeOf(window), whole);
        window.cShowNormal();
        for (int round = 0; round < kRounds; ++round) {
            doubleClick(middle(window.cTitleBar()));
            QTRY_COMPARE(placeOf(window), whole);
            doubleClick(middle(window.cTitleBar()));
            QTRY_COMPARE(placeOf(window), kStart);
            window.cShowMaximized();
            window.cShowNormal();
            QTRY_COMPARE(placeOf(window), kStart);
        }
        window.cShowMaximized();
        QTRY_COMPARE(placeOf(window), whole);
        click(middle(button(&window, "MaxBtn")));
        QTRY_COMPARE(placeOf(window), kStart);
    }

    void minimisingAndHidingKeepThePlace()
    {
        Shell window;
        QVERIFY(window.settles());
        click(middle(button(&window, "MinBtn")));
        QTRY_VERIFY(window.isMinimized() && !window.isActiveWindow());
        tool("windowactivate %1"_s.arg(window.winId()));
        QTRY_VERIFY(!window.isMinimized() && window.isActiveWindow());
        QTRY_COMPARE(placeOf(window), kStart);
        for (int round = 0; round < 5; ++round) {
            window.hide();
            window.show(); // the keys may be with nobody for a while
            QTRY_COMPARE(placeOf(window), kStart);
        }
    }

    void stretch_data() { addRowsOf("desktop/stretches.txt"_s); }
    void stretch()
    {
        QFETCH(QStringList, fields);
        const auto point = [&](int field) { return rectIn(fields.at(field) + QLatin1String(" 0 0")).topLeft(); };
        const QPoint edge = kStart.topLeft() + point(0);
        Shell window;
        window.cSetStrechEdges(Shell::StrechEdges(255));
        window.cSetMinStrechSize(QSize(250, 200));
        QVERIFY(window.settles());
        move(edge);
        QTRY_COMPARE(cursorShape(), enumerator<Qt::CursorShape>(fields.at(1)));
        for (int round = 0; round < 3; ++round) {
            drag(edge, point(2));
            QTRY_COMPARE(placeOf(window), rectIn(fields.at(3)));
            drag(edge + point(2), -point(2));
            QTRY_COMPARE(placeOf(window), kStart);
        }
        move(window.at(200, 150));
        QTRY_COMPARE(cursorShape(), Qt::ArrowCursor);
        drag(edge, point(4)); // the pointer ends outside
        QTRY_COMPARE(placeOf(window), rectIn(fields.at(5)));
        QTRY_COMPARE(cursorShape(), Qt::ArrowCursor);
        QVERIFY(window.cTitleBar()->cEnableMove());
    }

    void stretchOfAWindowThatGoes()
    {
        Shell other(QRect(700, 150, 300, 300));
        for (const bool isDeleted : { false, true }) {
            QVERIFY(other.settles());
            auto window = std::make_unique<Shell>();
            window->cSetStrechEdges(Shell::StrechRight);
            QVERIFY(window->settles());
            press(window->at(397, 150));
            move(window->at(450, 150));
            QTRY_COMPARE(window->width(), 453);
            QCOMPARE(cursorShape(), Qt::SizeHorCursor);
            isDeleted ? window.reset() : window->hide();
            QCOMPARE(cursorShape(), Qt::ArrowCursor);
            release();
            const QRect place = other.geometry().translated(20, 20);
            drag(middle(other.cTitleBar()), QPoint(20, 20));
            QTRY_COMPARE(placeOf(other), place);
            QCOMPARE(cursorShape(), Qt::ArrowCursor);
        }
    }

    void cornersLetClicksThrough()
    {
        Shell behind(QRect(100, 100, 700, 500));
        Shell window;
        QVERIFY(behind.settles() && window.settles());
        for (const QPoint &corner :
            { kStart.topLeft(), kStart.topRight(), kStart.bottomLeft(), kStart.bottomRight() }) {
            window.activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&window));
            behind.presses = 0;
            click(corner);
            QTRY_COMPARE(behind.presses, 1);
        }
        QCOMPARE(window.presses, 0);
    }

    void staysOnTop()
    {
        Shell other(QRect(300, 250, 400, 300));
        Shell window;
        auto *edit = new QLineEdit; // over the other window
        window.cSetCentralWidget(edit);
        QVERIFY(window.settles() && other.settles());
        window.cTitleBar()->cSetStayOnTop(true);
        QTRY_COMPARE(placeOf(window), kStart);
        click(other.at(350, 250)); // lifts the other window, but not above this one
        QTRY_COMPARE(other.presses, 1);
        click(middle(edit));
        QTRY_VERIFY(edit->hasFocus() && window.isActiveWindow());
        keys("h i");
        QTRY_COMPARE(edit->text(), "hi"_s);
        window.cTitleBar()->cSetStayOnTop(false);
        QTRY_COMPARE(placeOf(window), kStart);
        QVERIFY(QTest::qWaitForWindowActive(&window));
        click(other.at(350, 250));
        QTRY_COMPARE(other.presses, 2);
        click(middle(edit));
        QTRY_COMPARE(other.presses, 3);
    }

    void bottomWindowMakesRoom()
    {
        Shell top;
        Shell bottom(QRect(300, 250, 400, 300));
        QVERIFY(top.settles() && bottom.settles());
        const QPoint shared(550, 400);
        click(shared);
        QTRY_COMPARE(bottom.presses, 1);
        top.cSetWindowLever(Shell::LeverTop);
        bottom.cSetWindowLever(Shell::LeverBottom);
        bottom.hide();
        QVERIFY(bottom.settles());
        QTRY_VERIFY((click(shared), top.presses > 0));
        click(bottom.at(350, 250)); // lifts the bottom window
        QTRY_VERIFY((click(shared), top.presses > 1));
    }
};

ZANTHIC_TEST_MAIN(WindowPlacesTest)
#include "tst_window_places.moc"
