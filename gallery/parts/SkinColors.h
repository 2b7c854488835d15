#pragma once

#include <QtCore/QLatin1String>

/// The skin colours that the gallery uses by name. Each skin of the theme defines them.
namespace SkinColor {
const QLatin1String Text("DB_COLOR_Custom_Font");
const QLatin1String QuietText("DB_COLOR_Custom_Font_Secondary");
const QLatin1String DisabledText("DB_COLOR_Custom_Font_Disabled");
const QLatin1String Accent("DB_COLOR_Custom_Accent");
const QLatin1String Surface("DB_COLOR_Custom_Surface");
const QLatin1String Transparent("DB_COLOR_Custom_Transparent");
const QLatin1String Line("DB_COLOR_Custom_Frame_Border");
const QLatin1String Field("DB_COLOR_Custom_Field");
const QLatin1String FieldDisabled("DB_COLOR_Custom_Field_Disabled");
const QLatin1String FieldBorder("DB_COLOR_Custom_Field_Border");
const QLatin1String FieldBorderFocus("DB_COLOR_Custom_Field_Border_Focus");
const QLatin1String FieldBorderDisabled("DB_COLOR_Custom_Field_Border_Disabled");
const QLatin1String Selection("DB_COLOR_Custom_Selection");
const QLatin1String SelectionText("DB_COLOR_Custom_Selection_Text");
} // namespace SkinColor
