#include "composite/CustomDrawSlider_p.h"
#include "desktop/DesktopTest.h"

#include <Zanthic/CustomTwoHandleSlider.h>

class SliderDragsTest : public DesktopTest
{
    Q_OBJECT

private Q_SLOTS:
    void handlesFollowThePointer();
};

void SliderDragsTest::handlesFollowThePointer()
{
    Shell window;
    auto *slider = new CustomTwoHandleSlider;
    slider->cSetSignleStep(5);
    window.cSetCentralWidget(slider);
    QStringList told;
    connect(slider, &CustomTwoHandleSlider::valueChanged, this, [&](qlonglong value) {
        told += QString::number(value);
        slider->cSetRange(0, value < 90 ? 100 : 200); // in the middle of a drag
    });
    connect(slider, &CustomTwoHandleSlider::sliderRelease, this, [&] { told += QStringLiteral("release"); });
    QVERIFY(window.settles());
    const auto &option = CustomDrawSliderPrivate::get(slider)->option;
    QTRY_VERIFY(!option.handleRect.isEmpty());
    const QRect place = placeOf(window);
    const int y = option.handleRect.bottom() - 8;
    const auto at = [&](double pos) {
        const int x = option.grooveLeft + qRound((option.grooveRight - option.grooveLeft) * pos);
        return slider->mapToGlobal(QPoint(x, y));
    };
    const auto left = slider->mapToGlobal(option.handleRect.center());
    press(left);
    move(at(0.5));
    QTRY_COMPARE(option.value, qint64(50));
    QTRY_COMPARE(slider->mapFromGlobal(at(0.5)).x(), option.handleRect.center().x() + 1);
    release();
    QTRY_COMPARE(told.join(' '), QStringLiteral("50 release"));
    QCOMPARE(window.presses, 0); // a window that moves by its body stays

    // By its bubble, then to the far side of the window's edge, where the range grows.
    told.clear();
    press(slider->mapToGlobal(option.secondHandleRect.topLeft() + QPoint(8, 2)));
    move(at(0.7));
    QTRY_COMPARE(option.secondValue, qint64(70));
    move(QPoint(window.geometry().right() + 60, 20));
    QTRY_COMPARE(option.secondValue, qint64(100));
    release();
    QTRY_COMPARE(told.join(' '), QStringLiteral("70 100 release 200"));
    QCOMPARE(option.value, qint64(50));
    click(at(0.1)); // a click on the track is the window's
    QTRY_COMPARE(window.presses, 1);
    QCOMPARE(placeOf(window), place);
}

ZANTHIC_TEST_MAIN(SliderDragsTest)
#include "tst_slider_drags.moc"
