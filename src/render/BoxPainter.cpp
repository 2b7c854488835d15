// The box of every themed control: background, border and colour rectangles.

#include <Zanthic/CustomObject.h>

#include "render/BoxPainter_p.h"
#include "render/PainterTools_p.h"
#include "style/CustomObject_p.h"

#include <QtGui/QPainter>
#include <QtWidgets/QStyle>
#include <QtWidgets/QWidget>
#include <qdrawutil.h>

namespace {

constexpr uint kAlignmentBits = 0x01 | 0x02 | 0x04 | 0x20 | 0x40 | 0x80;
constexpr uint kCentred = 0x84;
// Far outside of any window, and small enough to be added up.
constexpr qint64 kFarCoordinate = 1 << 29;

int toCoordinate(qint64 value)
{
    return int(qBound(-kFarCoordinate, value, kFarCoordinate));
}

// The widths and radii that the control's flags let through.
void readMetrics(const CustomObjectData &data, const ResolvedStyle &style, CustomObjectData::BorderParameter *parameter)
{
    if (data.hasParameter(Custom::ParamBorderWidth))
        parameter->borders = style.widths;
    if (data.hasParameter(Custom::ParamBorderRadius))
        parameter->radii = style.radii;
}

void readColors(const CustomObjectData &data, const ResolvedStyle &style, const QRect &rect,
    CustomObjectData::BorderParameter *parameter)
{
    if (!data.hasParameter(Custom::ParamBorderColor))
        return;
    if (style.hasCommonColor)
        parameter->colors.fill(style.commonColor.unscaled());
    for (int i = 0; i < 4; ++i) {
        if (style.hasEdgeColor[i])
            parameter->colors[i] = style.edgeColors[i].scaledTo(
                CustomObjectData::createBorderRect(Custom::BorderEdge(i), parameter->borders[i], rect));
    }
}

void fillBackground(const CustomObjectData &data, const ResolvedStyle &style, QPainter *painter, const QRect &rect,
    const ParsedBrush &brush)
{
    const QRect scale = rect.isEmpty() && data.widget ? data.widget->rect() : rect;
    CustomObjectData::BorderParameter parameter;
    readMetrics(data, style, &parameter);
    BoxPainter::fillBox(painter, rect, parameter, brush.scaledTo(scale));
}

Qt::Alignment imageAlignment(const QString &text)
{
    const uint bits = text.isEmpty() ? kCentred : uint(text.toInt()) & kAlignmentBits;
    return Qt::Alignment(int(bits));
}

void drawBorderImage(
    QPainter *painter, const QRect &rect, const StyleImage &image, const CustomObjectData::BorderParameter &parameter)
{
    const qreal deviceRatio = painter->device() ? painter->device()->devicePixelRatioF() : 1.0;
    QPixmap pixmap = image.pixmapForRatio(deviceRatio);
    const qreal ratio = pixmap.devicePixelRatio();
    pixmap.setDevicePixelRatio(1.0);
    // Margins beyond the image would be read from outside of it.
    const auto bounded = [&parameter](const QSize &size, qreal scale) {
        const auto margin = [&](Custom::BorderEdge edge, int extent) {
            return int(qBound(0.0, parameter.borders[edge] * scale, qreal(extent)));
        };
        return QMargins(margin(Custom::Left, size.width()), margin(Custom::Top, size.height()),
            margin(Custom::Right, size.width()), margin(Custom::Bottom, size.height()));
    };
    const QMargins margins = bounded(rect.size().expandedTo(QSize(0, 0)), 1.0);
    const QMargins source = bounded(pixmap.size(), ratio);

    const QPainterPath clip = BoxPainter::clipPath(rect, parameter);
    if (!clip.isEmpty()) {
        painter->save();
        painter->setClipPath(clip, Qt::IntersectClip);
    }
    {
        const HintGuard guard(painter, QPainter::SmoothPixmapTransform);
        qDrawBorderPixmap(painter, rect, margins, pixmap, pixmap.rect(), source, QTileRules());
    }
    if (!clip.isEmpty())
        painter->restore();
}

} // namespace

bool BoxPainter::drawBackground(const CustomObjectData &data, const ResolvedStyle &style, QPainter *painter,
    const QRect &rect, const ParsedBrush *fill)
{
    bool painted = false;
    if (fill || data.hasParameter(Custom::ParamBackgroundColor)) {
        fillBackground(data, style, painter, rect, fill ? *fill : style.background);
        painted = true;
    } else if (data.hasParameter(Custom::ParamBaseBackgroundImage)) {
        style.baseBackgroundImage.draw(painter, rect);
    }
    if (data.hasParameter(Custom::ParamBackgroundImage)) {
        const QRect target
            = QStyle::alignedRect(Qt::LeftToRight, imageAlignment(style.alignment), style.backgroundImage.size(), rect);
        style.backgroundImage.draw(painter, target);
        painted = true;
    }
    return painted;
}

bool CustomObject::cDrawBackground(
    QPainter *painter, const QRect &rect, Custom::ItemStatus status, const QStringList &selectors)
{
    if (!d || !isUsable(painter))
        return false;
    return BoxPainter::drawBackground(*d, *d->resolved(status, selectors), painter, rect);
}

bool CustomObject::cDrawBorder(
    QPainter *painter, const QRect &rect, Custom::ItemStatus status, const QStringList &selectors)
{
    if (!d || !isUsable(painter))
        return false;
    const std::shared_ptr<const ResolvedStyle> style = d->resolved(status, selectors);
    CustomObjectData::BorderParameter parameter;
    readMetrics(*d, *style, &parameter);
    if (d->hasParameter(Custom::ParamBorderImage)) {
        drawBorderImage(painter, rect, style->borderImage, parameter);
        return true;
    }
    if (!d->hasParameter(Custom::ParamBorderWidth))
        return false;
    readColors(*d, *style, rect, &parameter);
    BoxPainter::drawSolidBorder(painter, rect, parameter);
    return true;
}

void CustomObject::cDrawColorRect(QPainter *painter, const QRect &rect)
{
    if (!d || !isUsable(painter) || !cHasParameter(Custom::ParamColorRect))
        return;
    CustomObjectData::BorderParameter parameter;
    d->borderParameter(this, &parameter, rect, Custom::Normal, {});
    // The outer outline of the box, in whole pixels: a region covers a pixel or it doesn't.
    parameter.borders.fill(0);
    const QPolygon outline = BoxPainter::clipPath(rect, parameter).toFillPolygon(QTransform()).toPolygon();
    const QRegion region(outline, Qt::OddEvenFill);
    for (auto it = d->colorRects.cbegin(); it != d->colorRects.cend(); ++it) {
        if (!rect.contains(it->first))
            continue;
        QPainterPath path;
        path.addRegion(region.intersected(it->first));
        path.closeSubpath();
        painter->fillPath(path, it->second);
    }
}

void CustomObject::cSetColorRect(int key, const QRect &rect, const QBrush &brush)
{
    if (d)
        d->colorRects[key] = qMakePair(rect, brush);
}

void CustomObject::cGetBorderParameter(int *borders, QSize *radii, QBrush *colors, const QRect &rect,
    Custom::ItemStatus status, const QStringList &selectors)
{
    if (!d)
        return;
    CustomObjectData::BorderParameter parameter;
    d->borderParameter(this, &parameter, rect, status, selectors);
    if (borders)
        std::copy(parameter.borders.cbegin(), parameter.borders.cend(), borders);
    if (radii)
        std::copy(parameter.radii.cbegin(), parameter.radii.cend(), radii);
    if (colors)
        std::copy(parameter.colors.cbegin(), parameter.colors.cend(), colors);
}

void CustomObjectData::borderParameter(CustomObject *object, BorderParameter *parameter, const QRect &rect,
    Custom::ItemStatus status, const QStringList &selectors)
{
    CustomObjectData *data = get(object);
    if (!data || !parameter)
        return;
    const std::shared_ptr<const ResolvedStyle> style = data->resolved(status, selectors);
    readMetrics(*data, *style, parameter);
    // After the widths: a gradient is stretched over the strip of its edge.
    readColors(*data, *style, rect, parameter);
}

QRect CustomObjectData::createBorderRect(Custom::BorderEdge edge, int width, const QRect &rect)
{
    const qint64 w = width;
    // The strips at the right and at the bottom end one pixel short of the last column and row; kept so.
    switch (edge) {
    case Custom::Left:
        return QRect(rect.topLeft(), QPoint(toCoordinate(rect.left() + w - 1), rect.bottom()));
    case Custom::Right:
        return QRect(QPoint(toCoordinate(rect.right() - w), rect.top()), QPoint(rect.right() - 1, rect.bottom()));
    case Custom::Top:
        return QRect(rect.topLeft(), QPoint(rect.right(), toCoordinate(rect.top() + w - 1)));
    case Custom::Bottom:
        return QRect(QPoint(rect.left(), toCoordinate(rect.bottom() - w)), QPoint(rect.right(), rect.bottom() - 1));
    default:
        return QRect(QPoint(0, 0), QPoint(-1, -1));
    }
}
