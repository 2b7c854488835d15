#pragma once

// Not part of the API. It may change from version to version without notice.

#include <QtCore/QRect>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

/// The screens, by way of current calls only.
namespace Screens {

/// The area that panels leave free on the primary screen, whichever screen a window is on.
QRect primaryAvailableGeometry();
/// The same of the screen that most of \p window is on.
QRect availableGeometry(const QWidget *window);

} // namespace Screens
