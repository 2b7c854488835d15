#pragma once

#include <QtCore/QStringList>
#include <QtCore/qglobal.h>

#if defined(ZANTHIC_THEME_BUILD)
#define ZANTHIC_THEME_EXPORT Q_DECL_EXPORT
#else
#define ZANTHIC_THEME_EXPORT Q_DECL_IMPORT
#endif

/// The default theme: a style document, style sheets and images for every control, in several skins.
///
/// The library carries the theme as Qt resources below ":/Zanthic/". Nothing is there before the first applySkin().
/// An application that registers resources itself takes the files zanthic-common.rcc, zanthic-light.rcc and
/// zanthic-dark.rcc instead and doesn't need this library.
///
/// Everything here runs on the GUI thread.
namespace ZanthicTheme {

/// The names of the skins: "light", "dark".
ZANTHIC_THEME_EXPORT QStringList skins();

/// The skin that was applied last; empty before the first applySkin().
ZANTHIC_THEME_EXPORT QString currentSkin();

/// Makes the paths below ":/Zanthic/" deliver the skin \p name and calls Custom::changeSkin(), so that all live
/// controls show it at their next paint; the font family stays that of the current language. May be called at any time,
/// also before there is an application object or a widget. The skin in use is loaded anew. An unknown name gives false,
/// and nothing changes; names are compared with regard to case.
ZANTHIC_THEME_EXPORT bool applySkin(const QString &name);

} // namespace ZanthicTheme
