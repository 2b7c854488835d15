#pragma once

#include <Zanthic/CustomDrawSlider.h>

/// A draw slider with dots on its track and the labels "Low", "Middle" and "High" below it, for a few levels. It
/// snaps by its step like every draw slider, the dots are decoration. It is styled as "CustomDrawSlider".
class ZANTHIC_EXPORT CustomDotSlider : public CustomDrawSlider
{
    Q_OBJECT

public:
    explicit CustomDotSlider(QWidget *parent = nullptr);
    ~CustomDotSlider() override;

    /// The number of dots, 5 at first; below 2 there are none.
    void cSetDotCount(int count);

protected:
    /// A change of language brings the three labels back, whatever cSetShowTextTip() has set.
    void changeEvent(QEvent *event) override;
};
