#pragma once

// Not part of the API. It may change from version to version without notice.

#include <Zanthic/Custom.h>

#include <QtWidgets/QStyleOption>

/// All that the painter reads of a draw slider, and the geometry that it leaves for the mouse.
class CustomDrawSliderOption : public QStyleOption
{
public:
    CustomDrawSliderOption() : QStyleOption(1, SO_Default) { }

    Custom::CustomWidgetType sliderType = Custom::WidgetDrawSlider;
    bool reverse = false; ///< swaps the colours of the groove
    bool showTextTip = false; ///< labels are shown
    bool showToolTip = false; ///< values are shown in speech bubbles
    bool handlePressed = false; ///< the first handle is being dragged
    bool showDot = true; ///< the marker of a process slider is shown
    int textPosition = 0; ///< a CustomDrawSlider::ShowTextPosition
    int activeHandle = -1; ///< 0 or 1 where one of two is the current one
    qint64 minimum = 0;
    qint64 maximum = 100;
    qint64 value = 0;
    qint64 singleStep = 1;
    double handlePos = 0.0; ///< place of the first handle on the track, 0 to 1
    int grooveLeft = 0; ///< ends of the track in px, from the last paint
    int grooveRight = 0;
    QRect handleRect; ///< where a press takes the first handle, from the last paint
    QStringList textTips; ///< the labels
    int dotCount = 5;
    bool secondHandlePressed = false;
    qint64 secondValue = 100;
    double secondHandlePos = 1.0;
    QRect secondHandleRect;
};
