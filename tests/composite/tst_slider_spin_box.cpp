#include "composite/CustomDrawSlider_p.h"
#include "style/StyleHost.h"

#include <Zanthic/CustomMainWindow.h>
#include <Zanthic/CustomProcessSlider.h>
#include <Zanthic/CustomSliderSpinBox.h>
#include <Zanthic/CustomSpinBox64.h>

namespace {

constexpr QRect kPlace(20, 30, 300, 40); // of the first control in its window; the next one is 100 px below

// A shown window with controls, and what they tell.
struct Window : QWidget
{
    explicit Window(CustomSliderSpinBox::SliderPosition position, int count = 1)
    {
        for (int i = 0; i < count; ++i) {
            auto *box = new CustomSliderSpinBox(this, Custom::Default, position);
            box->setGeometry(kPlace.translated(0, 100 * i));
            connect(box, &CustomSliderSpinBox::sigValueChanged, this, [this, box] { tell("c", box); });
            connect(box, &CustomSliderSpinBox::sigReleaseValueChanged, this, [this, box] { tell("r", box); });
            boxes += box;
        }
        setGeometry(50, 60, 400, 300);
        setFocus(); // so that no spin box gets it with the window's
        show();
        activateWindow();
        QApplication::processEvents();
    }
    ~Window() override { hide(); }
    void tell(const char *what, CustomSliderSpinBox *box)
    {
        told += QLatin1String(what);
        if (deadly == QLatin1String(what))
            delete box;
    }
    CustomMainWindow *popup(int i = 0) const { return boxes[i]->findChild<CustomMainWindow *>(); }
    bool isOpen(int i = 0) const { return popup(i)->isVisible(); }

    QList<QPointer<CustomSliderSpinBox>> boxes;
    QString told;
    QString deadly; // what deletes the control that tells it
};

void act(CustomSliderSpinBox *box, const QString &action, const QString &value)
{
    CustomProcessSlider *slider = box->getSlider();
    const QPoint start(0, slider->height() / 2);
    const QPoint end(slider->width() - 1, slider->height() / 2);
    if (action == "set"_s)
        box->cSetValue(value.toLongLong());
    if (action == "range"_s)
        box->cSetRange(
            value.section(QLatin1Char(','), 0, 0).toLongLong(), value.section(QLatin1Char(','), 1).toLongLong());
    if (action == "type"_s) {
        box->getSpinBox()->interLineEdit()->clear();
        QTest::keyClicks(box->getSpinBox(), value);
        QTest::keyClick(box->getSpinBox(), Qt::Key_Return);
    }
    if (action == "drag"_s) {
        QTest::mousePress(slider, Qt::LeftButton, {}, CustomDrawSliderPrivate::get(slider)->option.handleRect.center());
        QMouseEvent move(QEvent::MouseMove, end, Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(slider, &move);
        QTest::mouseRelease(slider, Qt::LeftButton, {}, end);
    }
    if (value == "up"_s)
        QTest::mouseClick(box->getSpinBox(), Qt::LeftButton, {}, { box->getSpinBox()->width() - 8, 8 });
    else if (action == "click"_s)
        QTest::mouseClick(slider, Qt::LeftButton, {}, value == "start"_s ? start : end);
}

} // namespace

class SliderSpinBoxTest : public StyleTest
{
    Q_OBJECT

private Q_SLOTS:
    void partsFollowEachOther_data()
    {
        addRowsOf("composite/slider_spin_box.txt"_s, { "range", "value", "step", "done", "values", "told", "dot" });
    }
    void partsFollowEachOther()
    {
        addStyle("CustomDrawSlider", "HandleImage=@red16x16"_s);
        for (const auto position : { CustomSliderSpinBox::SliderInline, CustomSliderSpinBox::SliderPopup }) {
            Window window(position);
            CustomSliderSpinBox &box = *window.boxes[0];
            act(&box, "range"_s, cell("range"));
            box.cSetValue(cell("value").toLongLong());
            box.cSetInc(qint64(number("step")));
            if (position == CustomSliderSpinBox::SliderPopup)
                box.getSpinBox()->setFocus();
            box.getSlider()->grab(); // which places the handle
            act(&box, cell("done").section(QLatin1Char('='), 0, 0), cell("done").section(QLatin1Char('='), 1));
            QCOMPARE(QStringLiteral("%1,%2").arg(box.cGetValue()).arg(box.getSpinBox()->value()), cell("values"));
            QCOMPARE(box.getSlider()->cHandleValue(), box.cGetValue());
            QCOMPARE(window.told, cell("told"));
            const bool isDotShown = CustomDrawSliderPrivate::get(box.getSlider())->option.showDot;
            QCOMPARE(QStringLiteral("%1,%2").arg(int(isDotShown)).arg(box.getSlider()->cDotValue()), cell("dot"));
        }
    }

    void mayBeDeletedByTheirSignals()
    {
        for (const char *deadly : { "c", "r" }) {
            for (const char *action : { "click", "type" }) {
                Window window(CustomSliderSpinBox::SliderInline);
                window.deadly = QLatin1String(deadly);
                act(window.boxes[0], QLatin1String(action), "1"_s);
                QVERIFY(!window.boxes[0]);
            }
        }
    }

    void sliderStandsBesideTheSpinBox()
    {
        Window window(CustomSliderSpinBox::SliderInline);
        CustomSliderSpinBox &box = *window.boxes[0];
        QCOMPARE(box.getSlider()->geometry(), QRect(0, 0, 200, 40));
        QCOMPARE(box.getSpinBox()->geometry(), QRect(215, 0, 85, 40));
        for (const int width : { -1, INT_MAX, 100 })
            box.cSetSpinBoxWidth(width);
        QTRY_COMPARE(box.getSlider()->width(), 185);
        box.getSpinBox()->setFocus();
        QVERIFY(!window.popup());
    }

    void popupHangsBelowTheSpinBox()
    {
        Window window(CustomSliderSpinBox::SliderPopup, 2);
        QVERIFY(!window.isOpen());
        window.boxes[0]->getSpinBox()->setFocus();
        for (const QPoint &place : { window.pos(), QPoint(10, 10) }) {
            window.move(place);
            const QPoint below = window.mapToGlobal(QPoint(20, 73)); // 30 + 40 - 1 + 4
            QTRY_COMPARE(window.popup()->geometry(), QRect(below, QSize(300, 30)));
        }
        window.activateWindow(); // here it is the popup's, which comes up without it elsewhere
        window.boxes[1]->getSpinBox()->setFocus();
        QTRY_VERIFY(!window.isOpen() && window.isOpen(1));
    }

    void popupClosesWithAPressElsewhere()
    {
        Window window(CustomSliderSpinBox::SliderPopup);
        CustomSpinBox64 *spinBox = window.boxes[0]->getSpinBox();
        // The spin box begins at 20, 30, and the popup ends at 319, 102.
        for (const QPoint &outside : { QPoint(19, 40), QPoint(30, 29), QPoint(320, 40), QPoint(30, 103) }) {
            spinBox->setFocus();
            for (const QPoint &inside : { QPoint(20, 30), QPoint(319, 102) })
                QTest::mouseClick(&window, Qt::LeftButton, {}, inside);
            QVERIFY(window.isOpen() && spinBox->hasFocus());
            QTest::mouseClick(&window, Qt::LeftButton, {}, outside);
            QVERIFY(!window.isOpen() && !spinBox->hasFocus());
        }
        for (int i = 0; i < 3; ++i) { // what else closes it
            spinBox->setFocus();
            QVERIFY(window.isOpen());
            i == 0 ? spinBox->hide() : i == 1 ? window.popup()->reject() : window.hide();
            QVERIFY(!window.isOpen() && !spinBox->hasFocus());
            spinBox->show();
        }
    }

    void mayGoWhileThePopupIsOpen()
    {
        Window window(CustomSliderSpinBox::SliderPopup, 2);
        for (int i = 0; i < 2; ++i) {
            window.boxes[i]->getSpinBox()->setFocus();
            QVERIFY(window.isOpen(i));
            delete window.boxes[i];
        }
        QTest::mouseClick(&window, Qt::LeftButton);
    }

    void partsMayBeDeleted()
    {
        for (int i = 0; i < 3; ++i) {
            Window window(CustomSliderSpinBox::SliderPopup);
            CustomSliderSpinBox &box = *window.boxes[0];
            box.getSpinBox()->setFocus();
            delete QList<QWidget *>{ box.getSpinBox(), box.getSlider(), window.popup() }[i];
            box.cSetRange(-5, 5);
            box.cSetValue(5);
            box.cSetInc(5);
            box.cSetSpinBoxWidth(5);
            QTest::mouseClick(&window, Qt::LeftButton);
            QCOMPARE(box.cGetValue(), 5);
        }
    }
};

ZANTHIC_TEST_MAIN(SliderSpinBoxTest)
#include "tst_slider_spin_box.moc"
