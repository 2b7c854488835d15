#pragma once

#include <Zanthic/ZanthicGlobal.h>

#include <QtCore/QEvent>

/// Tells the main dialog that a hot key was pressed, see Custom::registerHotKey(). Handle it in customEvent().
class ZANTHIC_EXPORT HotKeyEvent : public QEvent
{
public:
    static constexpr int EventType = 5097; ///< the number of a hot key

    HotKeyEvent(Qt::KeyboardModifiers modifiers, Qt::Key key);
    ~HotKeyEvent() override;

    Qt::KeyboardModifiers modifiers() const { return m_modifiers; } ///< the modifiers of the key press
    Qt::Key key() const { return m_key; } ///< the key
    int id() const { return m_nId; } ///< the hot key that matched; -1 until it is set
    void setId(int id) { m_nId = id; } ///< names the hot key that matched

private:
    Qt::KeyboardModifiers m_modifiers;
    Qt::Key m_key;
    int m_nId = -1;
};
