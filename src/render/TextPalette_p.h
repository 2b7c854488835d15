#pragma once

// Not part of the API. It may change from version to version without notice.

#include <QtGui/QPalette>

namespace TextPalette {

/// \p palette with a solid brush of \p color for \p role in all colour groups. The last few results are kept, since
/// a palette of one's own is a copy of all its brushes.
QPalette withColor(const QPalette &palette, QPalette::ColorRole role, const QColor &color);

} // namespace TextPalette
