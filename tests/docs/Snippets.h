#pragma once

// What the C++ examples of the documents take for granted.

#include <Zanthic/Zanthic.h>
#include <Zanthic/ZanthicTheme.h>

#include <QtCore/QDebug>
#include <QtCore/QResource>
#include <QtCore/QTranslator>
#include <QtGui/QLinearGradient>
#include <QtWidgets/QApplication>
#include <QtWidgets/QSlider>
