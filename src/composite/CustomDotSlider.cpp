#include <Zanthic/CustomDotSlider.h>

#include "composite/CustomDrawSlider_p.h"

#include <QtCore/QEvent>

namespace {

QStringList levelTexts()
{
    return { CustomDrawSlider::tr("Low"), CustomDrawSlider::tr("Middle"), CustomDrawSlider::tr("High") };
}

} // namespace

CustomDotSlider::CustomDotSlider(QWidget *parent) : CustomDrawSlider(parent)
{
    d->option.sliderType = Custom::WidgetDotSlider;
    d->option.showTextTip = true;
    d->option.textPosition = TextBelow;
    d->option.textTips = levelTexts();
}

CustomDotSlider::~CustomDotSlider() = default;

void CustomDotSlider::cSetDotCount(int count)
{
    if (!d)
        return;
    d->option.dotCount = count;
    update();
}

void CustomDotSlider::changeEvent(QEvent *event)
{
    if (d && event->type() == QEvent::LanguageChange) {
        d->option.textTips = levelTexts();
        update();
    }
    CustomDrawSlider::changeEvent(event);
}
