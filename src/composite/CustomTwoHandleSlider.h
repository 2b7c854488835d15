#pragma once

#include <Zanthic/CustomDrawSlider.h>

/// A draw slider with two handles for a range of values, both shown in speech bubbles. Nothing keeps the first value
/// below the second: cLittleValue() and cLargeValue() sort them. valueChanged() tells of both handles, with the value
/// that has moved. It is styled as "CustomDrawSlider".
class ZANTHIC_EXPORT CustomTwoHandleSlider : public CustomDrawSlider
{
    Q_OBJECT

public:
    explicit CustomTwoHandleSlider(QWidget *parent = nullptr);
    ~CustomTwoHandleSlider() override;

    /// Values of the first and the second handle, 0 and 100 at first. Emits nothing, like all setters here.
    void cInitValue(qint64 first, qint64 second);
    /// Move the handle that was touched last by one step, within the range. They emit nothing.
    void cIncreaseCurrentHandle();
    void cDecreaseCurrentHandle();
    /// Set the value of the handle that has the greater or the lesser value at the moment. Between equal values it is
    /// the first handle's.
    void cSetLargeValue(qint64 value);
    void cSetLittleValue(qint64 value);
    qint64 cLargeValue() const;
    qint64 cLittleValue() const;

protected:
    void initStyleOption() override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
};
