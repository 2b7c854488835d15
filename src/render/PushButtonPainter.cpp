#include <Zanthic/CustomObject.h>

#include "render/PainterTools_p.h"
#include "render/PushButtonLayout_p.h"
#include "render/TextPalette_p.h"
#include "style/CustomObject_p.h"

#include <QtGui/QWindow>
#include <QtWidgets/QStyleOption>
#include <QtWidgets/QWidget>

namespace {

bool isPressedOrOn(const QStyleOption &option)
{
    return option.state & (QStyle::State_On | QStyle::State_Sunken);
}

QPoint pressedShift(const QStyleOption &option, const QWidget *widget)
{
    const QStyle *style = widget->style();
    return QPoint(style->pixelMetric(QStyle::PM_ButtonShiftHorizontal, &option, widget),
        style->pixelMetric(QStyle::PM_ButtonShiftVertical, &option, widget));
}

QPixmap iconPixmap(const QStyleOptionButton &option, const QWidget *widget)
{
    QIcon::Mode mode = QIcon::Normal;
    if (!(option.state & QStyle::State_Enabled))
        mode = QIcon::Disabled;
    else if (option.state & QStyle::State_HasFocus)
        mode = QIcon::Active;
    const QIcon::State state = option.state & QStyle::State_On ? QIcon::On : QIcon::Off;
    return option.icon.pixmap(widget->window()->windowHandle(), option.iconSize, mode, state);
}

QFont contentFont(const ResolvedStyle &style, const QWidget *widget)
{
    QFont font = style.font();
    if (style.fontFamily.isEmpty())
        font.setFamily(widget->font().family());
    // A host whose font is measured in points has no pixel size to offer.
    if (style.fontSize <= 0 && widget->font().pixelSize() > 0)
        font.setPixelSize(widget->font().pixelSize());
    // The host's own copy of an equal font has been looked up in the font database already.
    return font == widget->font() ? widget->font() : font;
}

// Draws the icon; the text's place and flags follow from it.
void drawIcon(QPainter *painter, const QStyleOptionButton &option, const QWidget *widget, const QFont &font,
    QRect *textRect, int *flags)
{
    const QPixmap pixmap = iconPixmap(option, widget);
    const qreal ratio = pixmap.devicePixelRatio();
    PushButtonLayout::Input input;
    input.rect = *textRect;
    input.flags = *flags;
    input.iconSize = QSize(int(pixmap.width() / ratio), int(pixmap.height() / ratio));
    input.hasText = !option.text.isEmpty();
    if (input.hasText)
        input.textSize = QFontMetrics(font).boundingRect(option.text).size();

    PushButtonLayout::Result place = PushButtonLayout::withIcon(input);
    if (isPressedOrOn(option))
        place.iconRect.translate(pressedShift(option, widget));
    painter->drawPixmap(QRectF(place.iconRect), pixmap, QRectF());
    *textRect = place.textRect;
    *flags = place.flags;
}

void drawText(QPainter *painter, const QStyleOptionButton &option, const QWidget *widget, QRect rect, int flags)
{
    if (option.text.isEmpty())
        return;
    if (isPressedOrOn(option))
        rect.translate(pressedShift(option, widget));
    widget->style()->proxy()->drawItemText(
        painter, rect, flags, option.palette, option.state & QStyle::State_Enabled, option.text, QPalette::ButtonText);
}

} // namespace

void CustomObject::cDrawPushButton(
    Custom::CustomWidgetType type, QPainter *painter, const QRect &rect, QStyleOption *option, QWidget *widget)
{
    Q_UNUSED(type)
    if (!d || !isUsable(painter) || !option || option->version < 1 || option->type != QStyleOption::SO_Button || !widget
        || !widget->style())
        return;
    auto &button = *static_cast<QStyleOptionButton *>(option);
    const Custom::ItemStatus status = cGetItemStatus(option->state);
    const bool background = cDrawBackground(painter, rect, status, {});
    const bool border = cDrawBorder(painter, rect, status, {});
    const QStyle *style = widget->style();
    if (!background && !border)
        style->proxy()->drawControl(QStyle::CE_PushButtonBevel, option, painter, widget);

    const std::shared_ptr<const ResolvedStyle> resolved = d->resolved(status, {});
    if (!resolved->icon.isNull())
        button.icon = resolved->icon;
    option->rect.adjust(1, 1, -1, -1);
    QRect textRect = option->rect;
    const bool underline = style->styleHint(QStyle::SH_UnderlineShortcut, option, widget);
    int flags = PushButtonLayout::textFlags(resolved->iconAlignment, !button.icon.isNull(), underline);

    const QFont font = contentFont(*resolved, widget);
    option->palette = TextPalette::withColor(option->palette, QPalette::ButtonText, resolved->fontColor);
    option->fontMetrics = QFontMetrics(font);
    painter->setFont(font);
    if (cDrawContent(painter, option))
        return;
    if (!button.icon.isNull())
        drawIcon(painter, button, widget, font, &textRect, &flags);
    drawText(painter, button, widget, textRect, flags);
}
