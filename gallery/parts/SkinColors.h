#pragma once

#include <QtCore/QLatin1String>

/// The skin colours that the gallery uses by name. Each skin of the theme defines them.
namespace SkinColor {
constexpr QLatin1String Text("DB_COLOR_Custom_Font");
constexpr QLatin1String QuietText("DB_COLOR_Custom_Font_Secondary");
constexpr QLatin1String DisabledText("DB_COLOR_Custom_Font_Disabled");
constexpr QLatin1String Accent("DB_COLOR_Custom_Accent");
constexpr QLatin1String Surface("DB_COLOR_Custom_Surface");
constexpr QLatin1String Transparent("DB_COLOR_Custom_Transparent");
constexpr QLatin1String Line("DB_COLOR_Custom_Frame_Border");
constexpr QLatin1String Field("DB_COLOR_Custom_Field");
constexpr QLatin1String FieldDisabled("DB_COLOR_Custom_Field_Disabled");
constexpr QLatin1String FieldBorder("DB_COLOR_Custom_Field_Border");
constexpr QLatin1String FieldBorderFocus("DB_COLOR_Custom_Field_Border_Focus");
constexpr QLatin1String FieldBorderDisabled("DB_COLOR_Custom_Field_Border_Disabled");
constexpr QLatin1String Selection("DB_COLOR_Custom_Selection");
constexpr QLatin1String SelectionText("DB_COLOR_Custom_Selection_Text");
} // namespace SkinColor
