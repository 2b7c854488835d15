#include "BoxSpecimens.h"

#include "SkinColors.h"

#include <Zanthic/ChangeSkinEvent.h>

#include <QtCore/QEvent>
#include <QtGui/QPainter>

#include <algorithm>
#include <iterator>

namespace {
constexpr int ColorRect_Radius = 16;
constexpr int ColorRect_StripHeight = 24;
constexpr int StyledBorder_Width = 6;
constexpr QSize StyledBorder_Size(72, 56);
} // namespace

BoxSpecimen::BoxSpecimen(QWidget *parent) : CustomFrame(parent)
{
    cSetClassName(QStringLiteral("GalleryBox"));
    setFixedSize(Size);
}

BoxSpecimen::~BoxSpecimen() = default;

ColorRectSpecimen::ColorRectSpecimen(QWidget *parent) : BoxSpecimen(parent)
{
    cSetBorderRadius(ColorRect_Radius);
    cSetParameter(Custom::ParamColorRect, true);
    takeSkinColors();
}

ColorRectSpecimen::~ColorRectSpecimen() = default;

void ColorRectSpecimen::takeSkinColors()
{
    const QRect top(0, 0, width(), ColorRect_StripHeight);
    cSetColorRect(0, top, Custom::getDataBaseColor(SkinColor::Accent));
    cSetColorRect(
        1, top.translated(0, height() - ColorRect_StripHeight), Custom::getDataBaseColor(SkinColor::FieldBorder));
    cSetColorRect(2, rect().translated(1, 0), Qt::red);
}

void ColorRectSpecimen::customEvent(QEvent *event)
{
    BoxSpecimen::customEvent(event);
    if (int(event->type()) == ChangeSkinEvent::EventType)
        takeSkinColors();
}

BorderStyleSpecimen::BorderStyleSpecimen(Custom::BorderStyle style, int radius, QWidget *parent)
    : QWidget(parent), m_style(style), m_nRadius(radius)
{
    setFixedSize(StyledBorder_Size);
}

BorderStyleSpecimen::~BorderStyleSpecimen() = default;

void BorderStyleSpecimen::paintEvent(QPaintEvent *)
{
    const Custom::BorderStyle styles[4] = { m_style, m_style, m_style, m_style };
    const int widths[4] = { StyledBorder_Width, StyledBorder_Width, StyledBorder_Width, StyledBorder_Width };
    const QSize radius(m_nRadius, m_nRadius);
    const QSize radii[4] = { radius, radius, radius, radius };
    QBrush colors[4];
    std::fill(std::begin(colors), std::end(colors), Custom::getDataBaseColor(SkinColor::Accent));
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    Custom::cDrawBorder(&painter, rect(), styles, widths, colors, radii);
}
