#include "render/SliderLayout_p.h"

#include <cmath>

namespace {

constexpr int Groove_Inset = 2;
constexpr int Groove_HandleSlack = 2; // a groove is at least that much higher than its line
constexpr int Tip_MarginHeight = 10; // above and below the text, with the pointer
constexpr int Tip_PaddingWidth = 12;
constexpr int Tip_PaddingHeight = 8;
constexpr int Tip_PointerHeight = 3;
constexpr int Tip_PointerHalfWidth = 4;
constexpr int Label_BesideInset = 10;
constexpr int Label_BesideSlack = 4;
constexpr int Label_BesideGap = 7;
constexpr int Label_BelowMargin = 6;
constexpr int Label_BelowGap = 5;

constexpr double kFarLeft = -(1 << 24);
// More of them on the same spot would look the same.
constexpr int kMaxStackedDots = 256;

using SliderLayout::Input;
using SliderLayout::Result;
using SliderLayout::Tip;

struct Rows
{
    int grooveHeight = 0;
    int tipHeight = 0;
    int textHeight = 0;

    int total() const { return grooveHeight + tipHeight + textHeight; }
};

struct Track
{
    int left = 0;
    int width = 0;
    int middle = 0; // y

    int right() const { return left + width; }
};

QRect fromEdges(int left, int top, int right, int bottom)
{
    return QRect(QPoint(left, top), QPoint(right, bottom));
}

Rows rowsOf(const Input &input)
{
    Rows rows;
    rows.grooveHeight = qMax(input.thickness + Groove_HandleSlack, input.handle.height());
    if (input.tips)
        rows.tipHeight = input.tipSampleHeight + Tip_MarginHeight;
    if (input.labels == SliderLayout::LabelsBelow)
        rows.textHeight = input.labelSample.height() + Label_BelowMargin;
    return rows;
}

int position(const Track &track, double pos)
{
    const double x = track.left + track.width * pos + 0.5;
    return std::isfinite(x) && x < track.right() ? int(qMax(x, kFarLeft)) : track.right();
}

// A picture centred on x, kept off the left edge of the control first, and then within the track.
QRect handleRect(const Track &track, int x, const QSize &size, int y)
{
    return QRect(QPoint(qMin(qMax(x - size.width() / 2, 0), track.right() - size.width()), y), size);
}

QRect section(const Track &track, int thickness, int from, int to)
{
    const int top = track.middle - thickness / 2;
    return from < to ? fromEdges(from, top, to - 1, top + thickness - 1) : QRect();
}

SliderLayout::Dots dotsOf(const Input &input, const Track &track)
{
    SliderLayout::Dots dots;
    if (input.type != Custom::WidgetDotSlider || input.dotCount < 2)
        return dots;
    const int radius = input.thickness / 2 + 1;
    const int top = qMax(track.middle - radius, 0);
    dots.first = QRect(track.left, top, 2 * radius, 2 * radius);
    dots.firstFill = QRect(track.left + 1, top + 1, input.thickness, input.thickness);
    dots.spacing = (track.width - 2 * radius) / (input.dotCount - 1);
    dots.count = dots.spacing == 0 ? qMin(input.dotCount, kMaxStackedDots) : input.dotCount;
    return dots;
}

QVector<SliderLayout::Label> labelsBeside(const Input &input, const QRect &area, int grooveTop, int grooveBottom)
{
    const int height = input.rect.height();
    const QSize size(input.labelSample.width() + Label_BesideSlack, height);
    const int top = (grooveTop + grooveBottom) / 2 - height / 2;
    return { { QRect(QPoint(input.rect.left(), top), size), int(Qt::AlignRight | Qt::AlignVCenter) },
        { QRect(QPoint(area.right() + Label_BesideGap, top), size), int(Qt::AlignLeft | Qt::AlignVCenter) } };
}

SliderLayout::Label labelBelow(int index, int last, const Track &track, int top, int bottom)
{
    if (index == 0)
        return { fromEdges(track.left, top, track.right() - 1, bottom), int(Qt::AlignLeft | Qt::AlignTop) };
    if (index == last)
        return { fromEdges(track.right() / 2, top, (track.right() & ~1) - 1, bottom),
            int(Qt::AlignRight | Qt::AlignTop) };
    // Centred as seen from the control's edge, not from the track's; kept so.
    const int left = int(qint64(index) * track.width / last) - track.width / 2;
    return { fromEdges(left, top, left + track.width - 1, bottom), int(Qt::AlignHCenter | Qt::AlignTop) };
}

int tipLeft(const QRect &handle, int width, const Track &track)
{
    return qMax((handle.left() + handle.right()) / 2 - width / 2, track.left);
}

// Two tips side by side in the order of their values, the right one pushed back into the track.
void keepApart(int *left, int leftWidth, int *right, int rightWidth, int limit)
{
    *right = qMax(*right, *left + leftWidth);
    if (*right + rightWidth <= limit)
        return;
    *right = limit - rightWidth;
    *left = qMin(*left, *right - leftWidth);
}

void placeTips(const Input &input, const Track &track, Result *result)
{
    const int width = input.tipText.width() + Tip_PaddingWidth;
    const int secondWidth = input.secondTipText.width() + Tip_PaddingWidth;
    const int limit = track.right();
    int first = tipLeft(result->handle, width, track);
    int second = tipLeft(result->secondHandle, secondWidth, track);
    if (input.type != Custom::WidgetTwoHandleSlider)
        first = qMin(first, limit - width);
    else if (input.isSecondBelowFirst)
        keepApart(&second, secondWidth, &first, width, limit);
    else
        keepApart(&first, width, &second, secondWidth, limit);

    const int height = input.tipText.height() + Tip_PaddingHeight;
    const auto middle = [](const QRect &rect) { return (rect.left() + rect.right()) / 2; };
    result->tip = { QRect(first, result->tipTop, width, height), middle(result->handle) };
    result->secondTip = { QRect(second, result->tipTop, secondWidth, height), middle(result->secondHandle) };
}

void placeGroove(const Input &input, const Track &track, Result *result)
{
    const int x = position(track, input.handlePos);
    const int y = qMax(track.middle - input.handle.height() / 2, 0);
    result->handle = handleRect(track, x, input.handle, y);
    int from = track.left;
    int to = x;
    if (input.type == Custom::WidgetTwoHandleSlider || input.type == Custom::WidgetProcessSlider) {
        const int second = position(track, input.secondHandlePos);
        from = qMin(x, second);
        to = qMax(x, second);
        if (input.type == Custom::WidgetTwoHandleSlider)
            result->secondHandle = handleRect(track, second, input.secondHandle, y);
        else
            result->marker = QRect(
                second - input.thickness / 2, track.middle - input.thickness / 2, input.thickness, input.thickness);
    }
    result->valueSection = section(track, input.thickness, from, to);
    result->leftSection = section(track, input.thickness, track.left, from);
    result->rightSection = section(track, input.thickness, to, track.right());
}

} // namespace

QVector<QPoint> SliderLayout::Tip::outline() const
{
    const int left = rect.left();
    const int right = rect.right() + 1;
    const int base = rect.bottom() - Tip_PointerHeight;
    const int middle = (rect.left() + rect.right()) / 2;
    return { { left, rect.top() }, { left, base }, { middle - Tip_PointerHalfWidth, base },
        { pointer, rect.bottom() + 1 }, { middle + Tip_PointerHalfWidth, base }, { right, base }, { right, rect.top() },
        { left, rect.top() } };
}

int SliderLayout::labelInset(const Input &input)
{
    return input.labels == LabelsBeside ? input.labelSample.width() + Label_BesideInset : 0;
}

int SliderLayout::height(const Input &input)
{
    return rowsOf(input).total();
}

SliderLayout::Result SliderLayout::layOut(const Input &input)
{
    Result result;
    const int inset = labelInset(input);
    const QRect area = input.rect.adjusted(inset, 0, -inset, 0);
    const Rows rows = rowsOf(input);
    const int top = input.rect.top();
    result.tipTop = top + qMax(top, (input.rect.height() - rows.total()) / 2);
    const int grooveTop = result.tipTop + rows.tipHeight;
    const int grooveBottom = grooveTop + rows.grooveHeight - 1;

    Track track;
    track.left = area.left() + Groove_Inset;
    track.width = area.right() - area.left() - 3;
    track.middle = grooveTop + rows.grooveHeight / 2;
    result.grooveLeft = track.left;
    result.grooveRight = track.right();
    placeGroove(input, track, &result);
    result.dots = dotsOf(input, track);
    if (input.tips)
        placeTips(input, track, &result);

    if (input.labels == LabelsBeside)
        result.labels = labelsBeside(input, area, grooveTop, grooveBottom);
    const int textTop = grooveBottom + Label_BelowGap;
    for (int i = 0; input.labels == LabelsBelow && i < input.labelCount; ++i)
        result.labels += labelBelow(i, input.labelCount - 1, track, textTop, textTop + input.rect.height() - 1);
    return result;
}
