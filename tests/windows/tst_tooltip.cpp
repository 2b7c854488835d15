#include "support/Literal.h"
#include "support/Probe.h"
#include "support/StyleTest.h"
#include "windows/CustomToolTip_p.h"
#include "windows/ToolTipLayout_p.h"

#include <Zanthic/Zanthic.h>

#include <limits>

namespace {

constexpr int kMax = std::numeric_limits<int>::max();
const QRect kRect(0, 0, 50, 50);

// The time left in s, -1 where the timer doesn't run.
int secondsOf(const QBasicTimer &timer)
{
    return timer.isActive() ? QAbstractEventDispatcher::instance()->remainingTime(timer.timerId()) / 1000 : -1;
}

// A shown window that a tip belongs to.
struct Owner : QWidget
{
    Owner()
    {
        setGeometry(100, 100, 200, 100);
        show();
        QApplication::processEvents(); // its activation would hide a tip
    }
    ~Owner() override { delete TipLabel::instance; }

    TipLabel *showTip(
        const QString &text, const QPoint &point = { 10, 10 }, const QRect &rect = kRect, int msec = 50000)
    {
        CustomToolTip::showText(mapToGlobal(point), text, this, rect, msec);
        return TipLabel::instance;
    }
    bool eventFilter(QObject *object, QEvent *event) override // answers the closing of a tip with another one
    {
        if (event->type() == QEvent::Close && object == TipLabel::instance && ++closed == 1)
            CustomToolTip::showText(QPoint(), "Another"_s, nullptr, true);
        return false;
    }

    int closed = 0;
};

} // namespace

class ToolTipTest : public StyleTest
{
    Q_OBJECT

private Q_SLOTS:
    void standsBelowThePosition_data() { addRowsOf("windows/places.txt"_s); }
    void standsBelowThePosition()
    {
        QFETCH(QStringList, fields);
        const auto n = numbersIn(fields.join(' '));
        const auto point = [&n](int i) { return QPoint(int(n[i]), int(n[i + 1])); };
        const QSize size(point(2).x(), point(2).y());
        QCOMPARE(ToolTipLayout::place(point(0), size, { 100, 50, 800, 600 }, int(n[4])), point(5));
    }

    void livesByItsLength()
    {
        for (const QPoint &row : { QPoint(100, 10000), QPoint(101, 10040), QPoint(350, 20000), QPoint(kMax, kMax) })
            QCOMPARE(ToolTipLayout::lifetime(0, row.x()), row.y());
        Owner owner;
        const QPointer<TipLabel> tip(owner.showTip(QString(350, 'x'), {}, kRect, -1));
        QVERIFY(qAbs(secondsOf(tip->expireTimer) - 20) <= 1);
        owner.showTip("A"_s, {}, kRect, 60);
        QTRY_VERIFY(tip.isNull());
    }

    void staysWhileNothingChanges()
    {
        Owner owner;
        const QPointer<TipLabel> tip(owner.showTip("A"_s));
        const QPoint place = tip->pos();
        owner.showTip("A"_s, { 49, 49 }, kRect, 900000);
        QVERIFY(tip->pos() == place && secondsOf(tip->expireTimer) < 60);
        owner.showTip("A"_s, { 50, 49 }, kRect, 900000); // outside
        QVERIFY(tip->pos() == place + QPoint(40, 39) && secondsOf(tip->expireTimer) > 600);
        owner.showTip("B"_s, {}, QRect());
        owner.showTip("B"_s, { 150, 60 }, QRect(), 900000); // never moved without a rectangle
        QTest::mouseMove(&owner, { 150, 80 });
        QVERIFY(tip->pos().x() < place.x() && secondsOf(tip->expireTimer) < 60 && !tip->hideTimer.isActive());
        CustomToolTip::showText({}, "B"_s); // without the widget
        QVERIFY(tip && !tip->widget);
        expectWarning("CustomToolTip::setTipRect: Cannot pass null widget if rect is set"_s);
        CustomToolTip::showText({}, "C"_s, nullptr, kRect, true);
        QVERIFY(tip.isNull() && TipLabel::instance->isVisible() && TipLabel::instance->rect.isNull());
    }

    void emptyTextHidesSoon()
    {
        Owner owner;
        QVERIFY(!owner.showTip(QString()));
        const QPointer<TipLabel> tip(owner.showTip("A"_s));
        CustomToolTip::showText({}, QString(), nullptr, true); // neither a new tip nor the end of the old one
        QVERIFY(!tip->hideTimer.isActive());
        owner.showTip(QString());
        QVERIFY(tip->isVisible() && secondsOf(tip->hideTimer) == 0);
        owner.showTip("B"_s);
        QVERIFY(!tip->hideTimer.isActive());
        owner.showTip(QString());
        QTRY_VERIFY(tip.isNull() && !TipLabel::instance);
    }

    void hidesOnEvents()
    {
        Owner owner;
        QObject other;
        const auto after = [&](QEvent::Type type, QPointF point = {}, QObject *to = nullptr) {
            const QPointer<TipLabel> tip(owner.showTip("A"_s, {}));
            tip->hideTimer.stop();
            QEvent plain(type);
            QMouseEvent move(type, point, owner.mapToGlobal(QPoint()), Qt::NoButton, Qt::NoButton, {});
            QApplication::sendEvent(to ? to : &other, to ? &move : &plain);
            return tip->isHidden() ? 2 : int(tip->hideTimer.isActive()); // 0 stays, 1 goes soon, 2 is gone
        };
        for (const auto type :
            { QEvent::MouseButtonPress, QEvent::MouseButtonRelease, QEvent::MouseButtonDblClick, QEvent::FocusIn,
                QEvent::FocusOut, QEvent::Close, QEvent::WindowActivate, QEvent::WindowDeactivate, QEvent::Wheel })
            QVERIFY2(after(type) == 2, qPrintable(QString::number(type)));
        QCOMPARE(after(QEvent::Leave), 1);
        QCOMPARE(after(QEvent::KeyPress), 0);
        QCOMPARE(after(QEvent::MouseMove, { 99, 20 }, &other), 0);
        QCOMPARE(after(QEvent::MouseMove, { 49.4, 20 }, &owner), 0);
        QCOMPARE(after(QEvent::MouseMove, { 49.6, 20 }, &owner), 1);
    }

    void survivesDeletions()
    {
        Owner owner;
        auto *child = new QWidget(&owner);
        CustomToolTip::showText({}, "A"_s, child, kRect);
        delete child;
        QVERIFY(!TipLabel::instance);
        CustomToolTip::showText({}, "B"_s, owner.showTip("A"_s), kRect, true); // on a tip
        QVERIFY(TipLabel::instance->isVisible());
        qApp->installEventFilter(&owner);
        QTest::mouseClick(&owner, Qt::LeftButton);
        QTRY_VERIFY(!TipLabel::instance);
    }

    void looksAsTheSkinSays()
    {
        addColors("<Color Id='Custom_ToolTip_Background' Value='#ff0000'/><Color Id='Custom_ToolTip_Border' "
                  "Value='#0000ff'/><Color Id='Custom_ToolTip_Font' Value='#00ff00'/>");
        Owner owner;
        const TipLabel *tip = owner.showTip("<b>I</b>\r\nI"_s);
        QCOMPARE(tip->size(), tip->sizeHint() + QSize(10, 13));
        const QImage image = Probe::grab(TipLabel::instance);
        QCOMPARE(Probe::colorAt(image, 4, tip->height() / 2), "#ffff0000"_s);
        QVERIFY(QColor(Probe::colorAt(image, tip->width() / 2, 0)).blue() > 100);
        const QRect text = Probe::bounds(image, [](const QColor &color) { return color.green() > 200; });
        QVERIFY(tip->wordWrap() && text.width() > 30); // with its marks
        QVERIFY(text.top() > 7 && text.bottom() > tip->height() / 2);
        const QPoint corner(tip->width() - 1, tip->height() - 1);
        QVERIFY(!tip->mask().contains(QPoint()) && !tip->mask().contains(corner));
        QVERIFY(tip->mask().contains(QPoint(3, 0)) && tip->mask().contains(corner - QPoint(0, 3)));
        const QVector<QRect> rects{ QRect(7, 7, 90, 22), QRect(7, 32, 90, 22) }; // (59 - 2 * 3 - 9) / 2
        QCOMPARE(ToolTipLayout::lineRects({ 90, 60 }, 2, 3), rects);
        QVERIFY(ToolTipLayout::lineHeight(5, 10, 3) == 0 && ToolTipLayout::lineHeight(60, 0, 3) == 0);
    }

    void bearsAnyTextAndNumber()
    {
        const QVector<QRect> rects{ QRect(7, 7, 90, 22), QRect(7, 32, 90, 22) }; // (59 - 2 * 3 - 9) / 2
        QCOMPARE(ToolTipLayout::lineRects({ 90, 60 }, 2, 3), rects);
        QVERIFY(ToolTipLayout::lineHeight(5, 10, 3) == 0 && ToolTipLayout::lineHeight(60, 0, 3) == 0);
        Owner owner;
        for (const int number : { 3, -7, kMax, -kMax - 1 }) {
            CustomToolTip::setLineDistance(number);
            CustomToolTip::setSharpCornerPosition(number);
            for (const QString &text : { QString(10000, 'x'), "\r\n"_s.repeated(5000), "%1\"'<b>&\n\r"_s }) {
                TipLabel *tip = owner.showTip(text);
                QVERIFY(tip->isVisible() && tip->width() <= 32767 && tip->height() <= 32767);
                QImage image(200, 60, QImage::Format_ARGB32);
                tip->render(&image);
            }
        }
        CustomToolTip::setLineDistance(3);
        CustomToolTip::setSharpCornerPosition(80);
    }
};

ZANTHIC_TEST_MAIN(ToolTipTest)
#include "tst_tooltip.moc"
