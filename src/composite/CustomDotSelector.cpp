#include <Zanthic/CustomDotSelector.h>

#include "composite/CustomDotSelector_p.h"
#include "windows/WindowGeometry_p.h"

#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>

namespace {

constexpr int Dots_Margin = 2; // at the left
constexpr int Dots_LeastGap = 2;
constexpr int Hint_MarginWidth = 4;
constexpr int Hint_MarginHeight = 2;
constexpr int Ring_Width = 2;
constexpr int kMaxMetric = 4096;
// Beyond it no pointer gets.
constexpr int kFarRight = 32767;

} // namespace

DotLayout::Result DotLayout::layOut(const Input &input, const QSize &size)
{
    Result result;
    const qint64 spaces = qint64(input.count) - 1;
    qint64 gap = 0;
    if (spaces > 0) {
        const qint64 taken = 2 * (input.selectRadius + Dots_Margin + spaces * input.normalRadius);
        gap = qMax<qint64>((size.width() - taken) / spaces, Dots_LeastGap);
    }
    const int middle = size.height() / 2;
    const int lineTop = middle - input.thickness / 2;
    qint64 x = Dots_Margin;
    for (int i = 0; i < input.count && x <= qMax(size.width(), kFarRight); ++i) {
        const int radius = i == input.current ? input.selectRadius : input.normalRadius;
        result.dots += QRect(int(x), middle - radius, 2 * radius, 2 * radius);
        x += 2 * radius;
        if (i < spaces)
            result.lines += QRect(int(x), lineTop, int(gap), input.thickness);
        x += gap;
    }
    return result;
}

QSize DotLayout::sizeHint(const Input &input)
{
    if (input.count < 1)
        return QSize(0, 0);
    const int greatest = qMax(2 * input.normalRadius, 2 * input.selectRadius);
    const qint64 width
        = 2 * input.selectRadius + (greatest + 4 * input.normalRadius) * (qint64(input.count) - 1) + Hint_MarginWidth;
    return QSize(int(qMin<qint64>(width, QWIDGETSIZE_MAX)), greatest + Hint_MarginHeight);
}

DotLayout::Input CustomDotSelectorPrivate::input() const
{
    DotLayout::Input result;
    result.count = m_nDotNumber;
    result.current = m_nCurrentDot;
    result.normalRadius = number("NormalDotRadius");
    result.selectRadius = number("SelectDotRadius");
    result.thickness = number("LineThickness");
    return result;
}

QColor CustomDotSelectorPrivate::color(const char *attribute) const
{
    const QString name = q->cAttributeValue(QLatin1String(attribute));
    QColor result;
    // QColor would log a warning about a name that it doesn't know.
    if (QColor::isValidColor(name))
        result.setNamedColor(name);
    return result;
}

int CustomDotSelectorPrivate::number(const char *attribute) const
{
    return qBound(0, q->cAttributeValue(QLatin1String(attribute)).toInt(), kMaxMetric);
}

CustomDotSelector::CustomDotSelector(QWidget *parent)
    : CustomWidget(parent), d(std::make_unique<CustomDotSelectorPrivate>(this))
{
    cSetClassName(QString::fromLatin1(metaObject()->className()));
}

CustomDotSelector::~CustomDotSelector() = default;

void CustomDotSelector::cSetDotNumber(int number)
{
    if (!d)
        return;
    d->m_nDotNumber = number;
    updateGeometry();
    update();
}

void CustomDotSelector::cSetCurrentDot(int dot)
{
    if (!d)
        return;
    d->m_nCurrentDot = dot;
    update();
}

int CustomDotSelector::cCurrentDot() const
{
    return d ? d->m_nCurrentDot : 0;
}

void CustomDotSelector::cSetLintColor(const QString &color)
{
    cSetAttributeValue(QStringLiteral("LintColor"), color);
}

void CustomDotSelector::cSetLineThickness(int thickness)
{
    cSetAttributeValue(QStringLiteral("LineThickness"), QString::number(thickness));
}

void CustomDotSelector::cSetDotColor(const QString &normal, const QString &select)
{
    cSetAttributeValue(QStringLiteral("NormalDotColor"), normal);
    cSetAttributeValue(QStringLiteral("SelectDotColor"), select);
}

void CustomDotSelector::cSetDotRadius(int normal, int select)
{
    cSetAttributeValue(QStringLiteral("NormalDotRadius"), QString::number(normal));
    cSetAttributeValue(QStringLiteral("SelectDotRadius"), QString::number(select));
}

QSize CustomDotSelector::sizeHint() const
{
    return d ? DotLayout::sizeHint(d->input()) : QSize(0, 0);
}

void CustomDotSelector::cNotifyUpdateValue(const QString &attribute, const QString &value, Custom::ItemStatus status)
{
    CustomWidget::cNotifyUpdateValue(attribute, value, status);
    updateGeometry();
    update();
}

void CustomDotSelector::paintEvent(QPaintEvent *event)
{
    CustomWidget::paintEvent(event);
    if (!d)
        return;
    d->m_lstDotRects.clear();
    if (d->m_nDotNumber < 1)
        return;
    const DotLayout::Result place = DotLayout::layOut(d->input(), size());
    d->m_lstDotRects = place.dots;

    QPainter painter(this);
    const QBrush fill(d->color("NormalDotColor"));
    const QBrush line(d->color("LintColor"));
    for (int i = 0; i < place.dots.size(); ++i) {
        QPainterPath path;
        path.addEllipse(place.dots.at(i));
        if (i == d->m_nCurrentDot)
            painter.strokePath(path, QPen(d->color("SelectDotColor"), Ring_Width));
        else
            painter.fillPath(path, fill);
        painter.fillRect(place.lines.value(i), line);
    }
}

void CustomDotSelector::mouseReleaseEvent(QMouseEvent *event)
{
    QWidget::mouseReleaseEvent(event);
    if (!d)
        return;
    const QPoint pos = WindowGeometry::rounded(event->localPos());
    for (int i = 0; i < d->m_lstDotRects.size(); ++i) {
        if (!d->m_lstDotRects.at(i).contains(pos))
            continue;
        if (i != d->m_nCurrentDot) {
            d->m_nCurrentDot = i;
            update();
        }
        return;
    }
}
