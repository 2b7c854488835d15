// The typed attributes: conversions around cAttributeValue() and cSetAttributeValue().

#include <Zanthic/CustomObject.h>

#include "style/CustomObject_p.h"

#include <QtWidgets/QWidget>

namespace {

const QLatin1String s_strBorderWidth("BorderWidth:");
const QLatin1String s_strBorderRadius("BorderRadius:");
const QLatin1String s_strBorderColor("BorderColor:");

// The edges that a value for all edges is written to as well, in the order of writing.
constexpr Custom::BorderEdge kSingleEdges[] = { Custom::Left, Custom::Right, Custom::Top, Custom::Bottom };
constexpr Custom::BorderCorner kSingleCorners[]
    = { Custom::LeftTop, Custom::RightTop, Custom::LeftBottom, Custom::RightBottom };

} // namespace

QFont CustomObject::cFont(Custom::ItemStatus status, const QStringList &subs) const
{
    Q_UNUSED(status)
    Q_UNUSED(subs)
    if (!d || !d->widget)
        return QFont();
    d->initData();
    return d->widget->font();
}

int CustomObject::cFontSize(Custom::ItemStatus status, const QStringList &subs, bool *ok) const
{
    const int size = cAttributeValue(QStringLiteral("FontSize"), status, subs, ok).toInt();
    return size <= 0 && d && d->widget ? d->widget->font().pixelSize() : size;
}

QColor CustomObject::cFontColor(Custom::ItemStatus status, const QStringList &subs, bool *ok) const
{
    return Custom::string2Color(cAttributeValue(QStringLiteral("FontColor"), status, subs, ok));
}

QString CustomObject::cFontFamily(Custom::ItemStatus status, const QStringList &subs, bool *ok) const
{
    const QString family = cAttributeValue(QStringLiteral("FontFamily"), status, subs, ok);
    return family.isEmpty() && d && d->widget ? d->widget->font().family() : family;
}

QBrush CustomObject::cBackgroundColor(
    Custom::ItemStatus status, const QRect &rect, const QStringList &subs, bool *ok) const
{
    const QString value = cAttributeValue(QStringLiteral("BackgroundColor"), status, subs, ok);
    return Custom::string2Brush(value, rect.isEmpty() && d && d->widget ? d->widget->rect() : rect);
}

QString CustomObject::cBackgroundImage(Custom::ItemStatus status, const QStringList &subs, bool *ok) const
{
    return cAttributeValue(QStringLiteral("BackgroundImage"), status, subs, ok);
}

QString CustomObject::cBorderImage(Custom::ItemStatus status, const QStringList &subs, bool *ok) const
{
    return cAttributeValue(QStringLiteral("BorderImage"), status, subs, ok);
}

int CustomObject::cBorderWidth(
    Custom::BorderEdge edge, Custom::ItemStatus status, const QStringList &subs, bool *ok) const
{
    return cAttributeValue(s_strBorderWidth + Custom::borderEdge2String(edge), status, subs, ok).toInt();
}

int CustomObject::cBorderRadius(
    Custom::BorderCorner corner, Custom::ItemStatus status, const QStringList &subs, bool *ok) const
{
    return cAttributeValue(s_strBorderRadius + Custom::borderCorner2String(corner), status, subs, ok).toInt();
}

QBrush CustomObject::cBorderColor(
    Custom::BorderEdge edge, Custom::ItemStatus status, const QStringList &subs, const QRect &rect, bool *ok) const
{
    const QString attr = s_strBorderColor + Custom::borderEdge2String(edge);
    return Custom::string2Brush(cAttributeValue(attr, status, subs, ok), rect);
}

void CustomObject::cSetFontSize(int size, Custom::ItemStatus status, const QStringList &subs)
{
    cSetAttributeValue(QStringLiteral("FontSize"), QString::number(size), status, subs);
    if (!d || !d->widget || size <= 0)
        return;
    QFont font = d->widget->font();
    font.setPixelSize(size);
    d->widget->setFont(font);
}

void CustomObject::cSetFontColor(const QString &color, Custom::ItemStatus status, const QStringList &subs)
{
    cSetAttributeValue(QStringLiteral("FontColor"), color, status, subs);
}

void CustomObject::cSetFontFamily(const QString &family, Custom::ItemStatus status, const QStringList &subs)
{
    cSetAttributeValue(QStringLiteral("FontFamily"), family, status, subs);
    if (!d || !d->widget)
        return;
    QFont font = d->widget->font();
    font.setFamily(family);
    d->widget->setFont(font);
}

void CustomObject::cSetFont(const QFont &font, Custom::ItemStatus status, const QStringList &subs)
{
    if (!d || !d->widget)
        return;
    cSetFontFamily(font.family(), status, subs);
    cSetAttributeValue(QStringLiteral("FontSize"), QString::number(font.pixelSize()), status, subs);
    d->widget->setFont(font);
}

void CustomObject::cSetBackgroundImage(const QString &path, Custom::ItemStatus status, const QStringList &subs)
{
    cSetAttributeValue(QStringLiteral("BackgroundImage"), path, status, subs);
    cSetParameter(Custom::ParamBackgroundImage, true);
}

void CustomObject::cSetBackgroundColor(const QString &color, Custom::ItemStatus status, const QStringList &subs)
{
    cSetAttributeValue(QStringLiteral("BackgroundColor"), color, status, subs);
    cSetParameter(Custom::ParamBackgroundColor, true);
}

void CustomObject::cSetBorderWidth(
    int width, Custom::BorderEdge edge, Custom::ItemStatus status, const QStringList &subs)
{
    const QString value = QString::number(width);
    cSetAttributeValue(s_strBorderWidth + Custom::borderEdge2String(edge), value, status, subs);
    if (edge == Custom::AllEdge) {
        for (const Custom::BorderEdge single : kSingleEdges)
            cSetAttributeValue(s_strBorderWidth + Custom::borderEdge2String(single), value, status, subs);
    }
    cSetParameter(Custom::ParamBorderWidth, true);
}

void CustomObject::cSetBorderRadius(
    int radius, Custom::BorderCorner corner, Custom::ItemStatus status, const QStringList &subs)
{
    const QString value = QString::number(radius);
    cSetAttributeValue(s_strBorderRadius + Custom::borderCorner2String(corner), value, status, subs);
    if (corner == Custom::AllCorner) {
        for (const Custom::BorderCorner single : kSingleCorners)
            cSetAttributeValue(s_strBorderRadius + Custom::borderCorner2String(single), value, status, subs);
    }
    cSetParameter(Custom::ParamBorderRadius, true);
}

void CustomObject::cSetBorderColor(
    const QString &color, Custom::BorderEdge edge, Custom::ItemStatus status, const QStringList &subs)
{
    cSetAttributeValue(s_strBorderColor + Custom::borderEdge2String(edge), color, status, subs);
    if (edge == Custom::AllEdge) {
        for (const Custom::BorderEdge single : kSingleEdges)
            cSetAttributeValue(s_strBorderColor + Custom::borderEdge2String(single), color, status, subs);
    }
    cSetParameter(Custom::ParamBorderColor, true);
}

void CustomObject::cSetBorderImage(const QString &path, Custom::ItemStatus status, const QStringList &subs)
{
    cSetAttributeValue(QStringLiteral("BorderImage"), path, status, subs);
    cSetParameter(Custom::ParamBorderImage, true);
}
