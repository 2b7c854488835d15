#pragma once

#include <QtCore/QString>
#include <QtGui/QImage>
#include <QtWidgets/QWidget>

#include <functional>
#include <memory>

/// What the benchmarks measure, and what a user would otherwise take.
namespace Fixtures {

/// Takes up the light skin of the default theme, and one plain font for the controls and the whole application.
void useTheme();
/// A style sheet that gives plain Qt buttons, check boxes, combo boxes and menus the look of the default theme. \p dark
/// chooses the skin.
QString equivalentSheet(bool dark);
/// A style sheet that paints the whole indicator of a check box from the theme's ready images: the cheapest sheet
/// there is.
QString imageSheet();
/// A shown and painted window of \p count children made by \p make.
std::unique_ptr<QWidget> shownWindow(int count, const std::function<QWidget *(QWidget *)> &make);
/// Lets pending events and paints pass.
void settle();
/// Paints a widget as its window would, without its background.
void paintInto(QImage *image, QWidget *widget);
/// Resident memory of this process in KiB.
double residentKiB();

} // namespace Fixtures
