#pragma once

#include <Zanthic/CustomWidget.h>

#include <memory>

class CustomProcessSlider;
class CustomSliderSpinBoxPrivate;
class CustomSpinBox64;

/// A spin box and a slider for one 64-bit value. The slider stands beside the spin box, or comes up below it when the
/// spin box takes the focus. Such a popup goes with a press elsewhere in the window, with Escape or Tab in the spin
/// box, and when the spin box is hidden, disabled or scrolled out of sight; one is open at a time.
///
/// The slider reaches values of 32 bits only, like every draw slider; the spin box reaches all. A popup opens with each
/// focus, also with the first one of a window that is shown.
///
/// Call cSetRange() first: until then spin box and slider have their own ranges. With a range that begins below 0 the
/// slider marks zero.
class ZANTHIC_EXPORT CustomSliderSpinBox : public CustomWidget
{
    Q_OBJECT

public:
    enum SliderPosition : int {
        SliderInline = 0, ///< beside the spin box
        SliderPopup = 1 ///< below it while it is used; any other value does the same
    };
    Q_ENUM(SliderPosition)

    /// \p selector is the look of both parts.
    explicit CustomSliderSpinBox(QWidget *parent = nullptr, Custom::CommonStyleSelector selector = Custom::Default,
        SliderPosition position = SliderInline);
    ~CustomSliderSpinBox() override;

    /// Ignored when \p max is below \p min. The value stays as it is.
    void cSetRange(qint64 min, qint64 max);
    /// Sets the value as it is, and brings the spin box as near to it as its range goes. Emits nothing.
    void cSetValue(qint64 value);
    qint64 cGetValue() const;
    void cSetInc(qint64 inc); ///< the step, 1 at start
    /// Fixes the width of the spin box, in px. At start it is 85 beside a slider, which takes the rest of the row, and
    /// the whole row with a popup.
    void cSetSpinBoxWidth(int width);

    CustomProcessSlider *getSlider() const; ///< owned by the control
    CustomSpinBox64 *getSpinBox() const; ///< owned by the control

Q_SIGNALS:
    /// The user has set a value: with each step of a drag, at the end of it, or in the spin box.
    void sigValueChanged();
    /// The slider was let go, or a value was set in the spin box.
    void sigReleaseValueChanged();

private:
    std::unique_ptr<CustomSliderSpinBoxPrivate> d;
};
