#include "render/CheckBoxLayout_p.h"

#include <QtWidgets/QStyle>

namespace {

constexpr int Text_Spacing = 10; // between indicator and text

} // namespace

Qt::Alignment CheckBoxLayout::indicatorAlignment(bool hasText)
{
    return (hasText ? Qt::AlignLeft : Qt::AlignHCenter) | Qt::AlignVCenter;
}

QRect CheckBoxLayout::textRect(Qt::LayoutDirection direction, const QRect &rect, const QRect &indicator)
{
    QRect text = QStyle::visualRect(direction, rect, indicator);
    const int indicatorWidth = text.width();
    const int left = text.left() + indicatorWidth + Text_Spacing;
    text.setLeft(left);
    text.setRight(left + (rect.right() - rect.left() - indicatorWidth) - Text_Spacing);
    text.setTop(rect.top());
    text.setBottom(rect.bottom());
    return QStyle::visualRect(direction, rect, text);
}
