#pragma once

// Not part of the API. It may change from version to version without notice.

#include "render/SliderLayout_p.h"

class CustomDrawSliderOption;
class CustomObject;

namespace SliderPainter {

/// What the layout of a slider needs to know, measured with its attributes. \p enabled chooses the handle's image.
SliderLayout::Input measured(Custom::CustomWidgetType type, const CustomObject &object,
    const CustomDrawSliderOption &option, const QRect &rect, bool enabled);
/// What all labels need beside each other.
int labelsWidth(const CustomObject &object, const CustomDrawSliderOption &option);

} // namespace SliderPainter
