#pragma once

// Not part of the API. It may change from version to version without notice.

#include <Zanthic/ZanthicGlobal.h>

#include <QtCore/QRect>

/// Where arrow and text of a closed combo box stand: pure functions of numbers.
namespace ComboBoxLayout {

constexpr int Text_Inset = 7; ///< from the left of the box to its text

/// The place of an arrow image of \p size: the bottom right of the box.
ZANTHIC_TEST_EXPORT QRect arrowRect(const QRect &rect, const QSize &size);
/// What the text may cover of a widget of \p height: a field as wide as the style's \p editField, which moves to the
/// left.
ZANTHIC_TEST_EXPORT QRect textClip(const QRect &rect, const QRect &editField, int height);
/// The place of the text itself.
ZANTHIC_TEST_EXPORT QRect textRect(const QRect &textClip);

} // namespace ComboBoxLayout
