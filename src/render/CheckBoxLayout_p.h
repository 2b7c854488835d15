#pragma once

// Not part of the API. It may change from version to version without notice.

#include <Zanthic/ZanthicGlobal.h>

#include <QtCore/QRect>

/// Where indicator and text of a check box or radio button stand: pure functions of numbers.
namespace CheckBoxLayout {

/// At the leading edge beside a text, else in the middle.
Qt::Alignment indicatorAlignment(bool hasText);
/// The place of the text beside the indicator.
ZANTHIC_TEST_EXPORT QRect textRect(Qt::LayoutDirection direction, const QRect &rect, const QRect &indicator);

} // namespace CheckBoxLayout
