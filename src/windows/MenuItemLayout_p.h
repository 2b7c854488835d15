#pragma once

// Not part of the API. It may change from version to version without notice.

#include <Zanthic/ZanthicGlobal.h>

#include <QtCore/QLine>
#include <QtCore/QRect>

/// Where the parts of a menu item stand: a pure function of numbers.
namespace MenuItemLayout {

struct Input
{
    QRect rect; ///< of the item
    Qt::LayoutDirection direction = Qt::LeftToRight;
    int maxIconWidth = 0; ///< px that the menu keeps for icons
    int tabWidth = 0; ///< px that the menu keeps for shortcuts
};

struct Result
{
    QRect backgroundRect;
    QLine underline; ///< of the selected item
    QLine separator; ///< of an item that is one
    QRect checkColumn; ///< the icon's place, at the leading side
    QRect markRect; ///< of check mark or arrow, at the trailing side
    QRect textRect;
    QRect shortcutRect;
};

ZANTHIC_TEST_EXPORT Result layOut(const Input &input);
/// A picture of \p size px in the middle of \p rect.
QRect centred(const QSize &size, const QRect &rect);

} // namespace MenuItemLayout
