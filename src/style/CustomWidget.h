#pragma once

#include <Zanthic/CustomObject.h>

#include <QtWidgets/QWidget>

/// A plain themed box: background and border. A class derived from it calls cSetClassName() in its own constructor,
/// otherwise it is styled as "CustomWidget".
class ZANTHIC_EXPORT CustomWidget : public QWidget, public CustomObject
{
    Q_OBJECT

public:
    explicit CustomWidget(QWidget *parent = nullptr);
    ~CustomWidget() override;

    /// Hands a key press to this widget as if it had the focus.
    void cExecKeyPressEvent(QKeyEvent *event);

protected:
    void paintEvent(QPaintEvent *event) override;
    void customEvent(QEvent *event) override;
};
