#include "windows/MenuItemPainter_p.h"

#include "style/CustomObject_p.h"
#include "windows/MenuItemLayout_p.h"

#include <Zanthic/CustomMenu.h>

#include <QtGui/QPainter>
#include <QtWidgets/QStyleOptionMenuItem>
#include <QtWidgets/qdrawutil.h>

namespace {

// One item, as the functions below see it.
struct Item
{
    const QStyleOptionMenuItem &option;
    const CustomMenu &menu;
    const QStyle &style;
    const MenuItemLayout::Result layout;
    const bool enabled;
    const bool selected;
    const bool checked;
    const Custom::ItemStatus boxStatus; // a disabled item that is selected looks hovered ...
    const Custom::ItemStatus textStatus; // ... but its text is that of a disabled one
};

const QStringList &itemSubs()
{
    static const QStringList s_Subs(QStringLiteral("item"));
    return s_Subs;
}

std::shared_ptr<const ResolvedStyle> resolved(const Item &item, Custom::ItemStatus status)
{
    return CustomObjectData::get(&item.menu)->resolved(status, itemSubs());
}

QColor colorOf(const CustomMenu &menu, const QString &attribute)
{
    return Custom::string2Color(menu.cAttributeValue(attribute, Custom::Normal, {}));
}

Custom::ItemStatus statusOf(bool first, Custom::ItemStatus firstStatus, bool second, Custom::ItemStatus secondStatus)
{
    if (first)
        return firstStatus;
    return second ? secondStatus : Custom::Normal;
}

Item describe(const QStyleOptionMenuItem &option, const CustomMenu &menu)
{
    const bool enabled = option.state & QStyle::State_Enabled;
    const bool selected = option.state & QStyle::State_Selected;
    const bool checked = option.checkType != QStyleOptionMenuItem::NotCheckable && option.checked;
    return { option, menu, *menu.style()->proxy(),
        MenuItemLayout::layOut({ option.rect, option.direction, option.maxIconWidth, option.tabWidth }), enabled,
        selected, checked, statusOf(selected, Custom::Hover, !enabled, Custom::Disabled),
        statusOf(!enabled, Custom::Disabled, selected, Custom::Hover) };
}

QBrush backgroundBrush(const Item &item)
{
    bool found = false;
    const QBrush brush = item.menu.cBackgroundColor(item.boxStatus, item.layout.backgroundRect, itemSubs(), &found);
    if (found)
        return brush;
    return item.option.palette.brush(item.selected ? QPalette::Highlight : QPalette::Button);
}

void drawBackground(QPainter *painter, const Item &item)
{
    const StyleImage &image = resolved(item, item.boxStatus)->backgroundImage;
    if (item.boxStatus == Custom::Hover && image.isEmpty())
        painter->fillRect(item.layout.backgroundRect, backgroundBrush(item));
    else
        image.draw(painter, item.layout.backgroundRect);
    if (item.boxStatus != Custom::Hover)
        return;
    painter->setPen(colorOf(item.menu, QStringLiteral("HoverLineColor")));
    painter->drawLine(item.layout.underline);
}

// Shades of what is behind the icon. Those of Qt's palette belong to no skin.
QPalette panelPalette(const Item &item)
{
    const QRect &rect = item.layout.backgroundRect;
    for (const QBrush &brush : { item.menu.cBackgroundColor(item.boxStatus, rect, itemSubs()),
             item.menu.cBackgroundColor(Custom::Normal, rect, {}) }) {
        if (brush.style() == Qt::SolidPattern && brush.color().alpha() == 255)
            return QPalette(brush.color());
    }
    return item.option.palette;
}

void drawCheckedPanel(QPainter *painter, const Item &item)
{
    const QPalette palette = panelPalette(item);
    const QBrush brush = item.selected ? backgroundBrush(item) : QBrush(palette.light().color(), Qt::Dense4Pattern);
    qDrawShadePanel(painter, item.layout.checkColumn, palette, true, 1, &brush);
}

void drawIcon(QPainter *painter, const Item &item)
{
    if (item.checked)
        drawCheckedPanel(painter, item);
    QIcon::Mode mode = QIcon::Disabled;
    if (item.enabled)
        mode = item.selected ? QIcon::Active : QIcon::Normal;
    const int extent = item.style.pixelMetric(QStyle::PM_SmallIconSize, &item.option, &item.menu);
    const QPixmap pixmap = item.option.icon.pixmap(
        item.menu.window()->windowHandle(), QSize(extent, extent), mode, item.checked ? QIcon::On : QIcon::Off);
    if (item.selected && item.enabled && !item.checked)
        qDrawShadePanel(painter, item.layout.checkColumn, panelPalette(item), false, 1);
    const QSize size = (QSizeF(pixmap.size()) / pixmap.devicePixelRatio()).toSize();
    painter->setPen(item.option.palette.text().color());
    painter->drawPixmap(MenuItemLayout::centred(size, item.layout.checkColumn).topLeft(), pixmap);
}

// The theme's image in the middle of the mark's place, at its own size; false where the theme has none.
bool drawMarkImage(QPainter *painter, const Item &item, const QString &attribute, Custom::ItemStatus status)
{
    const StyleImage image(item.menu.cAttributeValue(attribute, status, {}));
    if (image.isEmpty())
        return false;
    image.draw(
        painter, QStyle::alignedRect(item.option.direction, Qt::AlignCenter, image.size(), item.layout.markRect));
    return true;
}

void drawCheckMark(QPainter *painter, const Item &item)
{
    if (drawMarkImage(painter, item, QStringLiteral("CheckImage"), item.boxStatus))
        return;
    QStyleOptionMenuItem mark(item.option);
    mark.rect = item.layout.markRect;
    mark.state = item.enabled ? QStyle::State_Enabled : QStyle::State_None;
    if (item.selected)
        mark.state |= QStyle::State_On;
    item.style.drawPrimitive(QStyle::PE_IndicatorMenuCheckMark, &mark, painter, &item.menu);
}

void drawOneText(QPainter *painter, const Item &item, const QRect &rect, int flags, const QString &text)
{
    const bool etched = !item.enabled && !item.selected
        && item.style.styleHint(QStyle::SH_EtchDisabledText, &item.option, &item.menu);
    if (etched) {
        const QPen pen = painter->pen();
        painter->setPen(item.option.palette.light().color());
        painter->drawText(rect.translated(1, 1), flags, text);
        painter->setPen(pen);
    }
    painter->drawText(rect, flags, text);
}

void drawText(QPainter *painter, const Item &item)
{
    int flags = Qt::AlignLeft | Qt::AlignVCenter | Qt::TextDontClip | Qt::TextSingleLine | Qt::TextShowMnemonic;
    if (!item.style.styleHint(QStyle::SH_UnderlineShortcut, &item.option, &item.menu))
        flags |= Qt::TextHideMnemonic;
    QFont font = item.menu.font();
    if (item.option.menuItemType == QStyleOptionMenuItem::DefaultItem)
        font.setWeight(QFont::Bold);
    painter->setFont(font);
    painter->setPen(resolved(item, item.textStatus)->fontColor);

    const int tab = item.option.text.indexOf(QLatin1Char('\t'));
    if (tab >= 0)
        drawOneText(painter, item, item.layout.shortcutRect, flags, item.option.text.mid(tab + 1));
    drawOneText(painter, item, item.layout.textRect, flags, item.option.text.left(tab));
}

void drawArrow(QPainter *painter, const Item &item)
{
    if (drawMarkImage(painter, item, QStringLiteral("ArrowImage"), item.textStatus))
        return;
    QStyleOptionMenuItem arrow(item.option);
    arrow.rect = item.layout.markRect;
    if (item.selected)
        arrow.palette.setBrush(QPalette::ButtonText, item.option.palette.highlightedText().color());
    item.style.drawPrimitive(
        item.option.direction == Qt::RightToLeft ? QStyle::PE_IndicatorArrowLeft : QStyle::PE_IndicatorArrowRight,
        &arrow, painter, &item.menu);
}

} // namespace

void MenuItemPainter::drawItem(QPainter *painter, const QStyleOptionMenuItem &option, const CustomMenu &menu)
{
    const Item item = describe(option, menu);
    painter->save();
    drawBackground(painter, item);
    if (option.menuItemType == QStyleOptionMenuItem::Separator) {
        painter->setPen(colorOf(menu, QStringLiteral("SeparatorColor")));
        painter->drawLine(item.layout.separator);
    } else {
        if (!option.icon.isNull())
            drawIcon(painter, item);
        else if (item.checked)
            drawCheckMark(painter, item);
        if (!option.text.isEmpty())
            drawText(painter, item);
        if (option.menuItemType == QStyleOptionMenuItem::SubMenu)
            drawArrow(painter, item);
    }
    painter->restore();
}
