#include "windows/MenuItemLayout_p.h"

#include <QtWidgets/QStyle>

namespace {

constexpr int CheckColumn_MinWidth = 12;
constexpr int Text_Spacing = 3; // between check column and text
constexpr int Text_TopMargin = 2;
constexpr int Text_BottomMargin = 3;
constexpr int Text_TrailingMargin = 15; // beside the shortcuts
constexpr int Mark_TrailingMargin = 6;
constexpr int Separator_LeadingMargin = 2;
constexpr int Separator_TrailingMargin = 4;

// Check mark and arrow: a square of half the item's height.
QRect markRect(const QRect &rect)
{
    const int half = rect.height() / 2;
    const int right = rect.x() + rect.width() - Mark_TrailingMargin;
    return QRect(right - half, rect.y() + half - rect.height() / 4, half, half);
}

QRect textRect(const QRect &rect, int columnWidth, int tabWidth)
{
    // The last column and row belong to the text.
    return QRect(QPoint(rect.x() + columnWidth + Text_Spacing, rect.y() + Text_TopMargin),
        QPoint(rect.x() + rect.width() - tabWidth - Text_TrailingMargin, rect.y() + rect.height() - Text_BottomMargin));
}

} // namespace

MenuItemLayout::Result MenuItemLayout::layOut(const Input &input)
{
    const QRect &rect = input.rect;
    const int columnWidth = qMax(input.maxIconWidth, CheckColumn_MinWidth);
    const int separatorY = rect.y() - 1 + rect.height() / 2;
    const QRect text = textRect(rect, columnWidth, input.tabWidth);
    const QRect shortcut(text.topRight(), QPoint(rect.right(), text.bottom()));
    const auto visual = [&input](const QRect &part) { return QStyle::visualRect(input.direction, input.rect, part); };

    Result result;
    result.backgroundRect = rect.adjusted(0, 0, -1, 0);
    result.underline = QLine(rect.left() + 1, rect.bottom(), rect.right() - 1, rect.bottom());
    result.separator = QLine(
        rect.x() + Separator_LeadingMargin, separatorY, rect.x() + rect.width() - Separator_TrailingMargin, separatorY);
    result.checkColumn = visual(QRect(rect.x(), rect.y(), columnWidth, rect.height()));
    result.markRect = visual(markRect(rect));
    result.textRect = visual(text);
    result.shortcutRect = visual(shortcut);
    return result;
}

QRect MenuItemLayout::centred(const QSize &size, const QRect &rect)
{
    return QRect(rect.center() - QPoint((size.width() - 1) / 2, (size.height() - 1) / 2), size);
}
