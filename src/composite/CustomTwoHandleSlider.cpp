#include <Zanthic/CustomTwoHandleSlider.h>

#include "composite/CustomDrawSlider_p.h"
#include "composite/SliderArithmetic_p.h"
#include "windows/WindowGeometry_p.h"

#include <QtCore/QPointer>
#include <QtGui/QMouseEvent>

namespace {

// By one step up or down, at most the maximum, and then at least the minimum.
void step(CustomDrawSliderOption *option, bool up)
{
    qint64 &value = option->activeHandle != 0 ? option->secondValue : option->value;
    const qint64 moved = up ? SliderArithmetic::sum(value, option->singleStep)
                            : SliderArithmetic::difference(value, option->singleStep);
    value = qMax(qMin(moved, option->maximum), option->minimum);
}

} // namespace

CustomTwoHandleSlider::CustomTwoHandleSlider(QWidget *parent) : CustomDrawSlider(parent)
{
    d->option.sliderType = Custom::WidgetTwoHandleSlider;
    d->option.showToolTip = true;
    d->option.activeHandle = 0;
    d->clickToMove = false;
}

CustomTwoHandleSlider::~CustomTwoHandleSlider() = default;

void CustomTwoHandleSlider::cInitValue(qint64 first, qint64 second)
{
    if (!d)
        return;
    d->option.value = first;
    d->option.secondValue = second;
    update();
}

void CustomTwoHandleSlider::cIncreaseCurrentHandle()
{
    if (!d)
        return;
    step(&d->option, true);
    update();
}

void CustomTwoHandleSlider::cDecreaseCurrentHandle()
{
    if (!d)
        return;
    step(&d->option, false);
    update();
}

void CustomTwoHandleSlider::cSetLargeValue(qint64 value)
{
    if (!d)
        return;
    (d->option.value < d->option.secondValue ? d->option.secondValue : d->option.value) = value;
    update();
}

void CustomTwoHandleSlider::cSetLittleValue(qint64 value)
{
    if (!d)
        return;
    (d->option.secondValue >= d->option.value ? d->option.value : d->option.secondValue) = value;
    update();
}

qint64 CustomTwoHandleSlider::cLargeValue() const
{
    return d ? qMax(d->option.value, d->option.secondValue) : 0;
}

qint64 CustomTwoHandleSlider::cLittleValue() const
{
    return d ? qMin(d->option.value, d->option.secondValue) : 0;
}

void CustomTwoHandleSlider::initStyleOption()
{
    CustomDrawSlider::initStyleOption();
    if (d && !d->option.secondHandlePressed)
        d->option.secondHandlePos = d->value2HandlePos(d->option.secondValue);
}

void CustomTwoHandleSlider::mousePressEvent(QMouseEvent *event)
{
    CustomDrawSlider::mousePressEvent(event);
    // Where the two overlap, the first one is taken.
    if (!d || d->option.handlePressed)
        return;
    const QPoint pos = WindowGeometry::rounded(event->localPos());
    if (!d->option.secondHandleRect.contains(pos))
        return;
    d->option.secondHandlePressed = true;
    d->option.activeHandle = 1;
    update();
    event->accept();
}

void CustomTwoHandleSlider::mouseMoveEvent(QMouseEvent *event)
{
    const QPointer<CustomTwoHandleSlider> self(this);
    CustomDrawSlider::mouseMoveEvent(event);
    if (!self || !d || !d->option.secondHandlePressed)
        return;
    event->accept();
    const bool changed = d->onSecondChangedSlider(WindowGeometry::rounded(event->localPos()).x());
    update();
    if (changed)
        Q_EMIT valueChanged(d->option.secondValue);
}

void CustomTwoHandleSlider::mouseReleaseEvent(QMouseEvent *event)
{
    const QPointer<CustomTwoHandleSlider> self(this);
    CustomDrawSlider::mouseReleaseEvent(event);
    if (!self || !d || !d->option.secondHandlePressed)
        return;
    event->accept();
    d->option.secondHandlePressed = false;
    const bool changed = d->onSecondChangedSlider(WindowGeometry::rounded(event->localPos()).x());
    update();
    Q_EMIT sliderRelease();
    if (self && changed)
        Q_EMIT valueChanged(d->option.secondValue);
}
