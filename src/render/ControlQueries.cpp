#include "render/ControlQueries_p.h"

#include "composite/CustomDrawSlider_p.h"

#include <Zanthic/CustomCheckBox.h>
#include <Zanthic/CustomPushButton.h>
#include <Zanthic/CustomRadioButton.h>

ControlQueries::Kind ControlQueries::kindOf(const QWidget *widget)
{
    if (dynamic_cast<const CustomRadioButton *>(widget))
        return Kind::RadioButton;
    if (dynamic_cast<const CustomCheckBox *>(widget))
        return Kind::CheckBox;
    return dynamic_cast<const CustomPushButton *>(widget) ? Kind::PushButton : Kind::Other;
}

QString ControlQueries::indicatorSuffix(const QWidget *widget, Qt::CheckState state)
{
    if (const auto *box = dynamic_cast<const CustomCheckBox *>(widget))
        return box->cSuffixString(state);
    if (const auto *button = dynamic_cast<const CustomRadioButton *>(widget))
        return button->cSuffixString(state != Qt::Unchecked);
    return QString();
}

QString ControlQueries::currentIndicatorSuffix(const QWidget *widget)
{
    if (const auto *box = dynamic_cast<const CustomCheckBox *>(widget))
        return indicatorSuffix(box, box->checkState());
    const auto *button = dynamic_cast<const CustomRadioButton *>(widget);
    return indicatorSuffix(widget, button && button->isChecked() ? Qt::Checked : Qt::Unchecked);
}

bool ControlQueries::hasMenu(const QWidget *widget)
{
    const auto *button = dynamic_cast<const CustomPushButton *>(widget);
    return button && button->menu();
}

CustomDrawSliderOption *ControlQueries::sliderOption(const QWidget *widget, QStyleOption *option)
{
    const auto *slider = dynamic_cast<const CustomDrawSlider *>(widget);
    CustomDrawSliderPrivate *d = CustomDrawSliderPrivate::get(slider);
    return d && option == &d->option ? &d->option : nullptr;
}
