#include "render/ComboBoxLayout_p.h"

#include <QtWidgets/QStyle>

QRect ComboBoxLayout::arrowRect(const QRect &rect, const QSize &size)
{
    return QStyle::alignedRect(Qt::LeftToRight, Qt::AlignRight | Qt::AlignBottom, size, rect);
}

QRect ComboBoxLayout::textClip(const QRect &rect, const QRect &editField, int height)
{
    const int right = editField.right() + rect.left() - editField.left();
    return QRect(QPoint(rect.left() + Text_Inset, 0), QPoint(right, height - 1));
}

QRect ComboBoxLayout::textRect(const QRect &textClip)
{
    return textClip.adjusted(1, 0, -1, 0);
}
