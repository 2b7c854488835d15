#include "windows/CMenuStyle_p.h"

#include <QtWidgets/QStyleOptionMenuItem>

namespace {

constexpr int Menu_HMargin = 3;
constexpr int Menu_VMargin = 6;
constexpr int Item_ExtraWidth = 65;
constexpr int Item_Height = 30;
constexpr int Separator_ExtraHeight = 12;

} // namespace

int CMenuStyle::styleHint(
    StyleHint hint, const QStyleOption *option, const QWidget *widget, QStyleHintReturn *returnData) const
{
    switch (hint) {
    case SH_Menu_AllowActiveAndDisabled:
    case SH_Menu_MouseTracking:
        return 1;
    default:
        return QCommonStyle::styleHint(hint, option, widget, returnData);
    }
}

QSize CMenuStyle::sizeFromContents(
    ContentsType type, const QStyleOption *option, const QSize &size, const QWidget *widget) const
{
    if (type != CT_MenuItem)
        return QCommonStyle::sizeFromContents(type, option, size, widget);
    const auto *item = qstyleoption_cast<const QStyleOptionMenuItem *>(option);
    const bool separator = item && item->menuItemType == QStyleOptionMenuItem::Separator;
    return QSize(size.width() + Item_ExtraWidth, separator ? size.height() + Separator_ExtraHeight : Item_Height);
}

int CMenuStyle::pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const
{
    switch (metric) {
    case PM_MenuHMargin:
        return Menu_HMargin;
    case PM_MenuVMargin:
        return Menu_VMargin;
    default:
        return QCommonStyle::pixelMetric(metric, option, widget);
    }
}
