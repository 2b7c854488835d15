#pragma once

#include <Zanthic/CustomDrawSlider.h>

/// A draw slider with a handle and a fixed marker, such as zero or the point that a download has reached. The part
/// between the two is painted as the value. It is styled as "CustomDrawSlider".
class ZANTHIC_EXPORT CustomProcessSlider : public CustomDrawSlider
{
    Q_OBJECT

public:
    explicit CustomProcessSlider(QWidget *parent = nullptr);
    ~CustomProcessSlider() override;

    /// The marker first, then the handle; 100 and 0 until set. Emits nothing, like all setters here.
    void cInitValue(qint64 dot, qint64 handle);
    void cSetHandleValue(qint64 value); ///< the same as cSetValue()
    qint64 cHandleValue() const;
    void cSetDotValue(qint64 value);
    qint64 cDotValue() const;
    /// Whether the marker is painted, from the next paint on; shown at first.
    void cSetShowDot(bool show);

protected:
    void initStyleOption() override;
};
