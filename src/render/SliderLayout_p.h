#pragma once

// Not part of the API. It may change from version to version without notice.

#include <Zanthic/Custom.h>

#include <QtCore/QRect>
#include <QtCore/QVector>

/// Where the parts of a draw slider stand: a pure function of numbers, in px. Paint, hit test and size use the same.
namespace SliderLayout {

enum Labels { NoLabels, LabelsBeside, LabelsBelow };

struct Input
{
    Custom::CustomWidgetType type = Custom::WidgetDrawSlider;
    QRect rect; ///< of the whole control
    int thickness = 0; ///< height of the groove
    QSize handle;
    QSize secondHandle; ///< of a two-handle slider
    double handlePos = 0.0; ///< on the track, 0 to 1
    double secondHandlePos = 0.0;
    Labels labels = NoLabels;
    int labelCount = 0;
    QSize labelSample; ///< bounding size of the first label
    bool tips = false;
    int tipSampleHeight = 0; ///< bounding height of "100"
    QSize tipText; ///< bounding size of the first value
    QSize secondTipText;
    bool isSecondBelowFirst = false; ///< by value
    int dotCount = 0; ///< of a dot slider
};

/// One of the bubbles that show a value.
struct Tip
{
    QRect rect;
    int pointer = 0; ///< x of the tip of its pointer

    QRect textRect() const { return rect.adjusted(0, 0, 0, -4); }
    ZANTHIC_TEST_EXPORT QVector<QPoint> outline() const; ///< eight points, the last is the first
};

struct Label
{
    QRect rect;
    int flags = 0; ///< alignment in it
};

struct Dots
{
    int count = 0;
    int spacing = 0;
    QRect first;
    QRect firstFill;

    QRect outline(int index) const { return first.translated(index * spacing, 0); }
    QRect fill(int index) const { return firstFill.translated(index * spacing, 0); }
};

struct Result
{
    int grooveLeft = 0;
    int grooveRight = 0;
    QRect valueSection; ///< null rectangles where there is nothing to paint
    QRect leftSection;
    QRect rightSection;
    QRect handle;
    QRect secondHandle; ///< of a two-handle slider
    QRect marker; ///< of a process slider
    Dots dots;
    QVector<Label> labels;
    Tip tip;
    Tip secondTip; ///< of a two-handle slider
    int tipTop = 0; ///< where the area of a handle that takes presses begins, with tips
};

ZANTHIC_TEST_EXPORT Result layOut(const Input &input);
/// The least height that shows all parts.
ZANTHIC_TEST_EXPORT int height(const Input &input);
/// Room that is kept for a label at each side of the groove.
int labelInset(const Input &input);

} // namespace SliderLayout
