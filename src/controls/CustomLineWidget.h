#pragma once

#include <Zanthic/CustomObject.h>

#include <QtWidgets/QWidget>

/// A separator: a vertical or horizontal line, solid or dotted, that is as thick as the widget. It is painted with
/// the attribute "BackgroundColor".
class ZANTHIC_EXPORT CustomLineWidget : public QWidget, public CustomObject
{
    Q_OBJECT

public:
    /// The theme writes these as numbers in the attribute "LineType"; any other number is a horizontal line too.
    enum LineType : int { VerticalLine = 0, HorizontalLine = 1 };
    Q_ENUM(LineType)

    explicit CustomLineWidget(QWidget *parent = nullptr);
    ~CustomLineWidget() override;

    /// Dashes that are three times as long as the line is thick, with gaps of twice its thickness; the square ends of
    /// the dashes take half of the gaps. A line that is thicker than long has room for none and stays solid.
    void cSetIsDottedLine(bool dotted);
    void cSetLineType(LineType type);

protected:
    void paintEvent(QPaintEvent *event) override;
    void customEvent(QEvent *event) override;
};
