#include <Zanthic/CustomMenu.h>

#include "render/PainterTools_p.h"
#include "windows/CMenuStyle_p.h"
#include "windows/MenuItemPainter_p.h"

#include <Zanthic/CInterWidgetMenu.h>

#include <QtGui/QPaintEvent>
#include <QtWidgets/QStyleOptionMenuItem>

namespace {

const QLatin1String s_strItem("item");

// The theme's font for items. Painting with a theme that has none keeps the size of the menu's own.
QFont itemFont(const CustomMenu &menu)
{
    const QStringList item(s_strItem);
    QString family = menu.cFontFamily(Custom::Normal, item);
    if (family.isEmpty())
        family = Custom::globalFontFamily();
    const int size = menu.cFontSize(Custom::Normal, item);
    QFont font(family);
    if (size > 0)
        font.setPixelSize(size);
    else if (menu.font().pixelSize() > 0)
        font.setPixelSize(menu.font().pixelSize());
    else
        font.setPointSizeF(menu.font().pointSizeF());
    return font;
}

// Only a font that differs: the menu is laid out anew with each, before anything is painted.
void takeItemFont(CustomMenu *menu)
{
    const QFont items = itemFont(*menu);
    if (items.resolve(menu->font()) != menu->font())
        menu->setFont(items);
}

} // namespace

CustomMenu::CustomMenu(QWidget *parent) : CustomMenu(QString(), parent) { }

CustomMenu::CustomMenu(const QString &title, QWidget *parent)
    : QMenu(title, parent), CustomObject(this, QString(), QStringLiteral("Default"))
{
    auto *menuStyle = new CMenuStyle;
    menuStyle->setParent(this);
    setStyle(menuStyle);
    cSetClassName(QString::fromLatin1(metaObject()->className()));
}

CustomMenu::~CustomMenu() = default;

CInterWidgetMenu *CustomMenu::cAddCustomWidgetMenu(QWidget *widget)
{
    auto *menu = new CInterWidgetMenu(widget, this);
    addMenu(menu);
    return menu;
}

void CustomMenu::cSetItemFontColor(const QColor &color, Custom::ItemStatus status)
{
    cSetAttributeValue(QLatin1String("FontColor") + s_strItem, color.name(), status, {});
}

void CustomMenu::cSetItemBackgroundColor(const QColor &color, Custom::ItemStatus status)
{
    cSetAttributeValue(QLatin1String("BackgroundColor") + s_strItem, color.name(), status, {});
}

void CustomMenu::cSetItemBackgroundImage(const QString &path, Custom::ItemStatus status)
{
    cSetAttributeValue(QLatin1String("BackgroundImage") + s_strItem, path, status, {});
}

void CustomMenu::drawActionItem(QStyleOptionMenuItem *option, QPainter *painter)
{
    if (d && option && isUsable(painter))
        MenuItemPainter::drawItem(painter, *option, *this);
}

QSize CustomMenu::sizeHint() const
{
    // What is measured before the first paint is measured in the font of the paints.
    if (styleSheet().isEmpty())
        takeItemFont(const_cast<CustomMenu *>(this));
    return QMenu::sizeHint();
}

void CustomMenu::paintEvent(QPaintEvent *event)
{
    if (!styleSheet().isEmpty()) {
        QMenu::paintEvent(event);
        return;
    }
    takeItemFont(this);

    QPainter painter(this);
    cDrawBackground(&painter, rect(), Custom::Normal, {});
    cDrawBorder(&painter, rect(), Custom::Normal, {});
    const QList<QAction *> all = actions();
    for (QAction *action : all) {
        const QRect geometry = actionGeometry(action);
        if (!event->rect().intersects(geometry))
            continue;
        painter.setClipRegion(geometry, Qt::ReplaceClip);
        QStyleOptionMenuItem option;
        initStyleOption(&option, action);
        option.rect = geometry;
        drawActionItem(&option, &painter);
    }
}

void CustomMenu::resizeEvent(QResizeEvent *event)
{
    cResizeEvent();
    QWidget::resizeEvent(event);
}

void CustomMenu::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        cLanguageChange();
    QMenu::changeEvent(event);
}

void CustomMenu::customEvent(QEvent *event)
{
    cCustomEvent(event);
}
