#include <Zanthic/CustomSlider.h>

#include "controls/ParameterSignals_p.h"

CustomSlider::CustomSlider(QWidget *parent) : CustomSlider(Qt::Vertical, parent) { }

CustomSlider::CustomSlider(Qt::Orientation orientation, QWidget *parent) : QSlider(orientation, parent)
{
    setStyleSheet(Custom::styleSheet(Custom::SheetSlider));
}

CustomSlider::~CustomSlider() = default;

bool CustomSlider::event(QEvent *event)
{
    return !ParameterSignals::tellFocus(this, event) || QSlider::event(event);
}

void CustomSlider::mouseReleaseEvent(QMouseEvent *event)
{
    if (ParameterSignals::tellRelease(this) && event)
        QSlider::mouseReleaseEvent(event);
}
