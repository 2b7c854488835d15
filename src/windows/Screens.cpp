#include "windows/Screens_p.h"

#include <QtGui/QScreen>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDesktopWidget>

QRect Screens::primaryAvailableGeometry()
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    return screen ? screen->availableGeometry() : QRect();
}

QRect Screens::availableGeometry(const QWidget *window)
{
    return QApplication::desktop()->availableGeometry(window);
}
