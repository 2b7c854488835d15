#include "render/PushButtonLayout_p.h"

namespace {

constexpr int Icon_Margin = 2; // between the content's left or top end and the icon
constexpr int Icon_Spacing = 4; // between icon and text
constexpr int Text_SideMargin = 2; // at both sides of a text below or above the icon
constexpr int kBesideIcon = Qt::AlignLeft | Qt::AlignVCenter;
constexpr int kBelowIcon = Qt::AlignTop | Qt::AlignHCenter;

using PushButtonLayout::Input;

// Icon and text together.
QSize labelSize(const Input &input)
{
    QSize label = input.iconSize;
    if (!input.hasText)
        return label;
    if (input.flags & (Qt::AlignLeft | Qt::AlignRight))
        label.rwidth() += input.textSize.width() + Icon_Spacing;
    else
        label.rheight() += input.textSize.height() + Icon_Spacing;
    return label;
}

// The side of the text at which the icon stands; left unless the flags name another one.
Qt::AlignmentFlag iconSide(int flags)
{
    for (const Qt::AlignmentFlag side : { Qt::AlignLeft, Qt::AlignRight, Qt::AlignTop, Qt::AlignBottom }) {
        if (flags & side)
            return side;
    }
    return Qt::AlignLeft;
}

// A text below or above the icon is centred across the whole button.
void spanButton(const QRect &rect, PushButtonLayout::Result *result)
{
    result->textRect.setLeft(Text_SideMargin);
    result->textRect.setRight(rect.right() - rect.left() - Text_SideMargin);
    result->flags = kBelowIcon;
}

} // namespace

int PushButtonLayout::textFlags(const QString &iconAlignment, bool hasIcon, bool underlineShortcut)
{
    int flags = int(iconAlignment.toUInt()) | Qt::TextShowMnemonic | Qt::AlignVCenter | Qt::AlignHCenter;
    if (iconAlignment.isEmpty())
        flags |= hasIcon ? Qt::AlignLeft : Qt::AlignHCenter;
    if (!underlineShortcut)
        flags |= Qt::TextHideMnemonic;
    return flags;
}

PushButtonLayout::Result PushButtonLayout::withIcon(const Input &input)
{
    const QSize label = labelSize(input);
    const QSize icon = input.iconSize;
    const int left = input.rect.left() + (input.rect.width() - label.width()) / 2;
    const int top = input.rect.top() + (input.rect.height() - label.height()) / 2;
    const int middle = top + (label.height() - icon.height()) / 2;

    Result result;
    QRect &text = result.textRect;
    text = QRect(QPoint(left, top), QPoint(input.rect.right(), top + label.height() - 1));
    result.flags = kBesideIcon;
    switch (iconSide(input.flags)) {
    case Qt::AlignRight:
        result.iconRect = QRect(QPoint(left + label.width() - icon.width(), middle), icon);
        text.setRight(result.iconRect.left() - Icon_Spacing);
        break;
    case Qt::AlignTop:
        result.iconRect = QRect(QPoint(left + (label.width() - icon.width()) / 2, top + Icon_Margin), icon);
        text.setTop(result.iconRect.top() + icon.height());
        text.setBottom(text.top() + label.height() - 1);
        spanButton(input.rect, &result);
        break;
    case Qt::AlignBottom:
        result.iconRect
            = QRect(QPoint(left + (label.width() - icon.width()) / 2, top + label.height() - icon.height()), icon);
        text.setBottom(result.iconRect.top() - Icon_Spacing);
        spanButton(input.rect, &result);
        break;
    default:
        result.iconRect = QRect(QPoint(left + Icon_Margin, middle), icon);
        text.setLeft(result.iconRect.left() + icon.width() + Icon_Spacing);
        text.setRight(text.left() + label.width() - 1);
        break;
    }
    return result;
}
