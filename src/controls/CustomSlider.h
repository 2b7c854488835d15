#pragma once

#include <Zanthic/Custom.h>

#include <QtWidgets/QSlider>

/// A slider in the look of the style sheet Custom::SheetSlider. It keeps the sheet that it was made with: a new skin
/// reaches it by setStyleSheet() only. For 64-bit values or a painted look see CustomDrawSlider.
class ZANTHIC_EXPORT CustomSlider : public QSlider
{
    Q_OBJECT

public:
    explicit CustomSlider(QWidget *parent = nullptr); ///< a vertical one
    explicit CustomSlider(Qt::Orientation orientation, QWidget *parent = nullptr);
    ~CustomSlider() override;

Q_SIGNALS:
    void SigForceIn(); ///< the focus comes
    void SigForceOut(); ///< the focus goes
    void SigSaveParam(); ///< the mouse was released, whether or not the value changed; keys don't bring it

protected:
    bool event(QEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
};
