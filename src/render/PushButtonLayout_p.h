#pragma once

// Not part of the API. It may change from version to version without notice.

#include <Zanthic/ZanthicGlobal.h>

#include <QtCore/QRect>
#include <QtCore/QString>

/// Where icon and text of a push button stand: pure functions of numbers.
namespace PushButtonLayout {

struct Input
{
    QRect rect; ///< of the button, shrunk by 1 at each side
    int flags = 0; ///< see textFlags()
    QSize iconSize; ///< of the icon's picture, in px
    QSize textSize; ///< bounding size of the text; not looked at without a text
    bool hasText = false;
};

struct Result
{
    QRect iconRect;
    QRect textRect;
    int flags = 0; ///< alignment of the text in its rectangle
};

/// The alignment and text flags of a button's content. \p iconAlignment is decimal text of Qt::Alignment bits.
ZANTHIC_TEST_EXPORT int textFlags(const QString &iconAlignment, bool hasIcon, bool underlineShortcut);
/// Icon and text for a button with an icon.
ZANTHIC_TEST_EXPORT Result withIcon(const Input &input);

} // namespace PushButtonLayout
