#pragma once

// Not part of the API. It may change from version to version without notice.

#include <QtCore/QString>

QT_BEGIN_NAMESPACE
class QAbstractButton;
class QStyleOption;
class QWidget;
QT_END_NAMESPACE

class CustomDrawSliderOption;

/// What painters and size rules have to ask of a concrete control. The only place where this folder looks at
/// controls.
namespace ControlQueries {

enum class Kind { Other, RadioButton, CheckBox, PushButton };

Kind kindOf(const QWidget *widget);
/// The sub-selector of a check box's or radio button's indicator; empty for other widgets.
QString indicatorSuffix(const QWidget *widget, Qt::CheckState state);
/// The same for the state that the control is in.
QString currentIndicatorSuffix(const QWidget *widget);
bool hasMenu(const QWidget *widget); ///< whether a push button opens a menu
/// \p option where it is the slider's own, else null.
CustomDrawSliderOption *sliderOption(const QWidget *widget, QStyleOption *option);

} // namespace ControlQueries
