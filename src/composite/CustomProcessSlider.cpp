#include <Zanthic/CustomProcessSlider.h>

#include "composite/CustomDrawSlider_p.h"

CustomProcessSlider::CustomProcessSlider(QWidget *parent) : CustomDrawSlider(parent)
{
    d->option.sliderType = Custom::WidgetProcessSlider;
    d->option.showToolTip = true;
    d->option.showDot = true;
}

CustomProcessSlider::~CustomProcessSlider() = default;

void CustomProcessSlider::cInitValue(qint64 dot, qint64 handle)
{
    if (!d)
        return;
    d->option.secondValue = dot;
    d->option.value = handle;
    update();
}

void CustomProcessSlider::cSetHandleValue(qint64 value)
{
    cSetValue(value);
}

qint64 CustomProcessSlider::cHandleValue() const
{
    return cValue();
}

void CustomProcessSlider::cSetDotValue(qint64 value)
{
    if (!d)
        return;
    d->option.secondValue = value;
    update();
}

qint64 CustomProcessSlider::cDotValue() const
{
    return d ? d->option.secondValue : 0;
}

void CustomProcessSlider::cSetShowDot(bool show)
{
    if (d)
        d->option.showDot = show;
}

void CustomProcessSlider::initStyleOption()
{
    CustomDrawSlider::initStyleOption();
    if (d && !d->option.secondHandlePressed)
        d->option.secondHandlePos = d->value2HandlePos(d->option.secondValue);
}
