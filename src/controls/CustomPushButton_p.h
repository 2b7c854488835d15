#pragma once

// Not part of the API. It may change from version to version without notice.

#include <Zanthic/ZanthicGlobal.h>

#include <QtCore/QBasicTimer>
#include <QtCore/QList>

class CustomPushButton;

class ZANTHIC_TEST_EXPORT CustomPushButtonPrivate
{
public:
    static CustomPushButtonPrivate *get(const CustomPushButton *button);
    /// The numbers of the buttons that take part in click control.
    static QList<int> &controlList();
    static int g_nIndex; ///< the last number handed out, only ever rising

    bool isGuardedBusy() const { return controlIndex >= 0 && clickBusy; }

    bool clickBusy = false; ///< a guarded click is running
    bool ignoreMouse = false; ///< mouse events go on to the parent
    int controlIndex = -1; ///< this button's number, or -1
    QBasicTimer clickTimer; ///< ends the busy period
};
