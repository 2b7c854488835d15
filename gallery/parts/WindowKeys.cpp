#include "WindowKeys.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QKeyEvent>

WindowKeys::WindowKeys(QObject *owner) : QObject(owner)
{
    QCoreApplication::instance()->installEventFilter(this);
}

WindowKeys::~WindowKeys() = default;

bool WindowKeys::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        const auto *press = static_cast<QKeyEvent *>(event);
        const QList<int> windowKeys = { Qt::Key_T, Qt::Key_L, Qt::Key_E };
        if (press->modifiers() == Qt::ControlModifier && windowKeys.contains(press->key())) {
            event->ignore();
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}
