#include <Zanthic/CustomObject.h>

#include "render/CheckBoxLayout_p.h"
#include "render/ControlQueries_p.h"
#include "style/CustomObject_p.h"
#include "style/StyleImages_p.h"

#include <QtGui/QPainter>
#include <QtWidgets/QStyleOption>
#include <QtWidgets/QWidget>

namespace {

Qt::CheckState checkState(QStyle::State state)
{
    if (state & QStyle::State_On)
        return Qt::Checked;
    return state & QStyle::State_Off ? Qt::Unchecked : Qt::PartiallyChecked;
}

// Draws the theme's image, or the style's indicator where there is none, and tells where it stands.
QRect drawIndicator(Custom::CustomWidgetType type, QPainter *painter, const QStyleOptionButton &option,
    const QWidget *widget, const QString &image)
{
    QStyleOptionButton indicator(option);
    const Qt::Alignment alignment = CheckBoxLayout::indicatorAlignment(!option.text.isEmpty());
    if (!image.isEmpty()) {
        indicator.rect
            = QStyle::alignedRect(option.direction, alignment, StyleImages::pixmap(image).size(), option.rect);
        StyleImages::draw(painter, indicator.rect, image);
        return indicator.rect;
    }
    const bool isCheckBox = type == Custom::WidgetCheckBox;
    const QStyle *style = widget->style();
    const QRect own = style->subElementRect(
        isCheckBox ? QStyle::SE_CheckBoxIndicator : QStyle::SE_RadioButtonIndicator, &option, widget);
    indicator.rect = QStyle::alignedRect(option.direction, alignment, own.size(), option.rect);
    style->proxy()->drawPrimitive(
        isCheckBox ? QStyle::PE_IndicatorCheckBox : QStyle::PE_IndicatorRadioButton, &indicator, painter, widget);
    return indicator.rect;
}

} // namespace

void CustomObject::cDrawCheckBox(
    Custom::CustomWidgetType type, QPainter *painter, const QRect &rect, QStyleOption *option, QWidget *widget)
{
    if (!d || !option || option->version < 1 || option->type != QStyleOption::SO_Button || !widget)
        return;
    auto &button = *static_cast<QStyleOptionButton *>(option);
    const Custom::ItemStatus status = cGetItemStatus(option->state);
    const QString suffix = ControlQueries::indicatorSuffix(widget, checkState(option->state));
    option->rect = rect;
    // A font of the status takes effect on the control itself. Unchanged, it would only cost events.
    const QFont font = cFont(status, {});
    if (font != widget->font() || font.resolve() != widget->font().resolve())
        widget->setFont(font);

    const QStringList subs = suffix.isEmpty() ? QStringList() : QStringList(suffix);
    const QString image = d->resolved(status, subs)->backgroundImage;
    const QRect indicator = drawIndicator(type, painter, button, widget, image);
    if (button.text.isEmpty())
        return;
    const QStyle *style = widget->style();
    int flags
        = int(QStyle::visualAlignment(option->direction, Qt::AlignLeft | Qt::AlignVCenter)) | Qt::TextShowMnemonic;
    if (!style->styleHint(QStyle::SH_UnderlineShortcut, option, widget))
        flags |= Qt::TextHideMnemonic;
    option->palette.setBrush(QPalette::All, QPalette::WindowText, QBrush(d->resolved(status, {})->fontColor));
    style->proxy()->drawItemText(painter, CheckBoxLayout::textRect(option->direction, option->rect, indicator), flags,
        option->palette, option->state & QStyle::State_Enabled, button.text, QPalette::WindowText);
}
