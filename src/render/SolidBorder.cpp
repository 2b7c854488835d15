#include "render/BoxPainter_p.h"

#include <QtGui/QPainter>

QPainterPath BoxPainter::clipPath(const QRect &rect, const CustomObjectData::BorderParameter &parameter)
{
    return Custom::cBorderClip(rect, parameter.borders.data(), parameter.radii.data());
}

void BoxPainter::drawSolidBorder(
    QPainter *painter, const QRect &rect, const CustomObjectData::BorderParameter &parameter)
{
    const Custom::BorderStyle styles[]
        = { Custom::BorderSolid, Custom::BorderSolid, Custom::BorderSolid, Custom::BorderSolid };
    Custom::cDrawBorder(
        painter, rect, styles, parameter.borders.data(), parameter.colors.data(), parameter.radii.data());
}
