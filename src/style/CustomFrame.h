#pragma once

#include <Zanthic/CustomObject.h>

#include <QtWidgets/QFrame>

/// A themed box like CustomWidget that paints its colour rectangles as well.
class ZANTHIC_EXPORT CustomFrame : public QFrame, public CustomObject
{
    Q_OBJECT

public:
    explicit CustomFrame(QWidget *parent = nullptr);
    ~CustomFrame() override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void customEvent(QEvent *event) override;
};
