#include <Zanthic/CustomObject.h>

#include "render/ComboBoxLayout_p.h"
#include "render/PainterTools_p.h"
#include "style/CustomObject_p.h"

#include <QtWidgets/QStyleOption>
#include <QtWidgets/QWidget>

namespace {

const QStringList &arrowSelectors()
{
    static const QString s_strItemDownArrow = QStringLiteral("down-arrow");
    static const QStringList s_lstSelectors{ s_strItemDownArrow };
    return s_lstSelectors;
}

void drawText(QPainter *painter, const QRect &rect, const QStyleOptionComboBox &option, const QWidget *widget)
{
    const QStyle *style = widget->style();
    const QRect field
        = style->proxy()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, widget);
    const QRect clip = ComboBoxLayout::textClip(rect, field, widget->height());
    painter->setClipRect(clip, Qt::ReplaceClip);
    if (option.currentText.isEmpty() || option.editable)
        return;
    painter->setFont(widget->font());
    // Without a role the text has the painter's colour.
    style->proxy()->drawItemText(painter, ComboBoxLayout::textRect(clip), Qt::AlignLeft | Qt::AlignVCenter,
        option.palette, option.state & QStyle::State_Enabled, option.currentText, QPalette::NoRole);
}

} // namespace

void CustomObject::cDrawComboBox(
    Custom::CustomWidgetType type, QPainter *painter, const QRect &rect, QStyleOption *option, QWidget *widget)
{
    Q_UNUSED(type)
    if (!d || !isUsable(painter) || !option || option->version < 1 || option->type != QStyleOption::SO_ComboBox
        || !widget)
        return;
    const auto &comboBox = *static_cast<QStyleOptionComboBox *>(option);
    const Custom::ItemStatus status = cGetItemStatus(option->state);
    painter->setPen(d->resolved(status, {})->fontColor);

    const bool hasBackground = cDrawBackground(painter, rect, status, {});
    const bool hasBorder = cDrawBorder(painter, rect, status, {});
    if (hasBackground || hasBorder) {
        // The arrow is a box of its own, as large as its image.
        const QSize size = d->resolved(status, arrowSelectors())->backgroundImage.size();
        const QRect arrow = ComboBoxLayout::arrowRect(rect, size);
        cDrawBackground(painter, arrow, status, arrowSelectors());
        cDrawBorder(painter, arrow, status, arrowSelectors());
    } else {
        widget->style()->drawComplexControl(QStyle::CC_ComboBox, &comboBox, painter, widget);
    }
    drawText(painter, rect, comboBox, widget);
}
