#include <Zanthic/CustomDrawSlider.h>

#include "composite/CustomDrawSlider_p.h"
#include "composite/SliderArithmetic_p.h"
#include "render/SliderPainter_p.h"
#include "windows/WindowGeometry_p.h"

#include <Zanthic/ChangeSkinEvent.h>

#include <QtCore/QPointer>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>

namespace {

using namespace SliderArithmetic;

constexpr int kTrackPositions = 1000;
constexpr qint64 kLargeRange = 50000; // above it the track has stages
constexpr int Hint_TrackWidth = 120;
constexpr int Hint_LeastTrackWidth = 48;

} // namespace

CustomDrawSliderPrivate *CustomDrawSliderPrivate::get(const CustomDrawSlider *slider)
{
    return slider ? slider->d.get() : nullptr;
}

double CustomDrawSliderPrivate::value2HandlePos(qint64 value) const
{
    // Differences of 64-bit numbers are exact in it, or nearly so.
    using Wide = long double;
    const int count = stages.size();
    const Wide minimum = option.minimum;
    const Wide range = option.maximum - minimum;
    if (range < 1)
        return 1.0;
    if (count < 1)
        return double((option.value - minimum) / range);
    // The stages are looked up by the value itself, not by its distance from the minimum; kept so.
    int stage = 0;
    while (stage < count - 1 && value >= stages.at(stage + 1))
        ++stage;
    const Wide lower = stages.at(stage);
    const Wide upper = stage < count - 1 ? Wide(stages.at(stage + 1)) : range;
    if (upper - lower < 1)
        return 1.0;
    const Wide share = Wide(1) / count;
    return qBound(0.0, double(stage * share + (value - lower - minimum) * share / (upper - lower)), 1.0);
}

qint64 CustomDrawSliderPrivate::handlePos2Value(double position) const
{
    const double minimum = double(option.minimum);
    const double range = double(difference(option.maximum, option.minimum));
    const int count = stages.size();
    const double scaled = std::trunc(position * kTrackPositions);
    if (!(scaled >= 0 && scaled <= kTrackPositions) || count == 0)
        return adptiveValue(sum(option.minimum, SliderArithmetic::rounded(position * range)));
    const int place = int(scaled);
    // More stages than places would leave none for a stage.
    const double width = count > kTrackPositions ? double(kTrackPositions) / count : kTrackPositions / count;
    const int stage = qMin(int(place / width), count - 1);
    const double lower = double(stages.at(stage));
    const double upper = stage < count - 1 ? double(stages.at(stage + 1)) : range;
    const double fraction = (place - stage * width) / width;
    return adptiveValue(SliderArithmetic::rounded(lower + minimum + fraction * (upper - lower)));
}

qint64 CustomDrawSliderPrivate::adptiveValue(qint64 value) const
{
    const qint64 step = option.singleStep;
    if (step > 0 && value > option.minimum) {
        const quint64 rest = (quint64(value) - quint64(option.minimum)) % quint64(step);
        value = rest <= quint64(step / 2) ? value - qint64(rest) : sum(value, step - qint64(rest));
    }
    return qMax(option.minimum, qMin(value, option.maximum));
}

bool CustomDrawSliderPrivate::moveHandle(int x, double *pos, qint64 *value) const
{
    const int left = option.grooveLeft;
    const int right = option.grooveRight;
    if (x <= left)
        *pos = 0.0;
    else if (x >= right)
        *pos = 1.0;
    else if (left < right)
        *pos = double(x - left) / (right - left);
    const qint64 moved = handlePos2Value(*pos);
    if (moved == *value)
        return false;
    *value = moved;
    return true;
}

bool CustomDrawSliderPrivate::onChangedSlider(int x)
{
    return moveHandle(x, &option.handlePos, &option.value);
}

bool CustomDrawSliderPrivate::onSecondChangedSlider(int x)
{
    return moveHandle(x, &option.secondHandlePos, &option.secondValue);
}

void CustomDrawSliderPrivate::endDrag()
{
    option.handlePressed = false;
    option.secondHandlePressed = false;
}

CustomDrawSlider::CustomDrawSlider(QWidget *parent)
    : CustomWidget(parent), d(std::make_unique<CustomDrawSliderPrivate>())
{
    cSetClassName(QString::fromLatin1(metaObject()->className()));
}

CustomDrawSlider::CustomDrawSlider(Qt::Orientation orientation, QWidget *parent) : CustomDrawSlider(parent)
{
    Q_UNUSED(orientation)
}

CustomDrawSlider::~CustomDrawSlider() = default;

void CustomDrawSlider::cSetRange(qint64 minimum, qint64 maximum)
{
    if (!d)
        return;
    d->option.minimum = minimum;
    d->option.maximum = maximum;
    if (difference(maximum, minimum) > kLargeRange)
        cSetEnableMultiStage(true, {});
    update();
}

void CustomDrawSlider::cSetEnableMultiStage(bool enable, QList<qint64> stages)
{
    if (!d)
        return;
    if (!enable)
        d->stages = { 0 };
    else
        d->stages = stages.isEmpty() ? QList<qint64>{ 0, 5000, 50000 } : stages;
    update();
}

void CustomDrawSlider::cSetValue(qint64 value)
{
    if (!d)
        return;
    d->option.value = value;
    update();
}

qint64 CustomDrawSlider::cValue() const
{
    return d ? d->option.value : 0;
}

void CustomDrawSlider::cSetSignleStep(qint64 step)
{
    if (d)
        d->option.singleStep = step;
}

void CustomDrawSlider::cSetShowToolTip(bool show)
{
    if (!d)
        return;
    d->option.showToolTip = show;
    updateGeometry();
    update();
}

void CustomDrawSlider::cSetReverse(bool reverse)
{
    if (!d)
        return;
    d->option.reverse = reverse;
    update();
}

void CustomDrawSlider::cSetShowTextTip(bool show, const QStringList &texts, ShowTextPosition position)
{
    if (!d)
        return;
    d->option.showTextTip = show;
    d->option.textTips = texts;
    d->option.textPosition = position;
    updateGeometry();
    update();
}

QSize CustomDrawSlider::sizeHint() const
{
    const QSize least = minimumSizeHint();
    return least + QSize(Hint_TrackWidth - Hint_LeastTrackWidth, 0);
}

QSize CustomDrawSlider::minimumSizeHint() const
{
    if (!d)
        return CustomWidget::minimumSizeHint();
    const SliderLayout::Input input
        = SliderPainter::measured(d->option.sliderType, *this, d->option, QRect(), isEnabled());
    const int labels = input.labels == SliderLayout::LabelsBelow ? SliderPainter::labelsWidth(*this, d->option) : 0;
    return QSize(qMax(Hint_LeastTrackWidth + 2 * SliderLayout::labelInset(input), labels), SliderLayout::height(input));
}

void CustomDrawSlider::initStyleOption()
{
    if (d && !d->option.handlePressed)
        d->option.handlePos = d->value2HandlePos(d->option.value);
}

bool CustomDrawSlider::event(QEvent *event)
{
    const bool isDisabled = event->type() == QEvent::EnabledChange && !isEnabled();
    if (d && (isDisabled || event->type() == QEvent::Hide || event->type() == QEvent::WindowBlocked)) {
        d->endDrag();
        update();
    }
    return CustomWidget::event(event);
}

void CustomDrawSlider::paintEvent(QPaintEvent *event)
{
    CustomWidget::paintEvent(event);
    if (!d)
        return;
    initStyleOption();
    QPainter painter(this);
    cDrawWidget(d->option.sliderType, &painter, QRect(0, 0, width(), height()), &d->option);
}

void CustomDrawSlider::mousePressEvent(QMouseEvent *event)
{
    QWidget::mousePressEvent(event);
    // With a click on the track the slider also takes what belongs to it: no window must move or stretch by the press.
    if (d && d->clickToMove)
        event->accept();
    if (!d || !d->option.handleRect.contains(WindowGeometry::rounded(event->localPos())))
        return;
    d->option.handlePressed = true;
    if (d->option.activeHandle >= 0)
        d->option.activeHandle = 0;
    update();
    event->accept();
}

void CustomDrawSlider::mouseMoveEvent(QMouseEvent *event)
{
    QWidget::mouseMoveEvent(event);
    if (!d || !d->option.handlePressed)
        return;
    event->accept();
    const bool changed = d->onChangedSlider(WindowGeometry::rounded(event->localPos()).x());
    update();
    if (changed)
        Q_EMIT valueChanged(d->option.value);
}

void CustomDrawSlider::mouseReleaseEvent(QMouseEvent *event)
{
    QWidget::mouseReleaseEvent(event);
    if (!d || (!d->option.handlePressed && !d->clickToMove))
        return;
    event->accept();
    d->option.handlePressed = false;
    const bool changed = d->onChangedSlider(WindowGeometry::rounded(event->localPos()).x());
    update();
    const QPointer<CustomDrawSlider> self(this);
    Q_EMIT sliderRelease();
    if (self && changed)
        Q_EMIT valueChanged(d->option.value);
}

void CustomDrawSlider::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        cLanguageChange();
        updateGeometry();
        update();
    }
    CustomWidget::changeEvent(event);
}

void CustomDrawSlider::customEvent(QEvent *event)
{
    CustomWidget::customEvent(event);
    if (int(event->type()) == ChangeSkinEvent::EventType)
        updateGeometry();
}
