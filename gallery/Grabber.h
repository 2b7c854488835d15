#pragma once

#include <QtCore/QStringList>

/// Which pages are rendered how, and where to.
struct GrabPlan
{
    QString folder; ///< made when it doesn't exist
    QStringList pages;
    QStringList skins;
    QStringList languages;
    QStringList documents; ///< taken up beside the theme's
};

struct GrabResult
{
    QStringList paths; ///< the pictures written, one for each page, skin and language
    QString error; ///< why it stopped; empty when all were written
};

/// Renders the window with each page in each skin and language, without showing it on a screen.
GrabResult grabAll(const GrabPlan &plan);
