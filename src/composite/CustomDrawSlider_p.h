#pragma once

// Not part of the API. It may change from version to version without notice.

#include "render/SliderOption_p.h"

#include <Zanthic/CustomDrawSlider.h>

class ZANTHIC_TEST_EXPORT CustomDrawSliderPrivate
{
public:
    static CustomDrawSliderPrivate *get(const CustomDrawSlider *slider);

    /// The place of a value on the track, from 0 to 1.
    double value2HandlePos(qint64 value) const;
    /// The value on the grid for a place on the track, of which there are 1,001.
    qint64 handlePos2Value(double position) const;
    /// The nearest value on the grid of the step, within the range.
    qint64 adptiveValue(qint64 value) const;
    /// Moves the first or the second handle to an x of the control. True when its value has changed.
    bool onChangedSlider(int x);
    bool onSecondChangedSlider(int x);
    /// Lets go of both handles, where no release will come.
    void endDrag();

    bool clickToMove = true; ///< a release anywhere moves the handle
    QList<qint64> stages{ 0 }; ///< where each stretch of the track begins, as a distance from the minimum
    CustomDrawSliderOption option;

private:
    bool moveHandle(int x, double *pos, qint64 *value) const;
};
