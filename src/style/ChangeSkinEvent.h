#pragma once

#include <Zanthic/ZanthicGlobal.h>

#include <QtCore/QEvent>

/// Tells a widget that the skin has changed. Custom::changeSkin() sends it to every widget of the application; a
/// widget handles it in customEvent(), by its number.
class ZANTHIC_EXPORT ChangeSkinEvent : public QEvent
{
public:
    static constexpr int EventType = 5098; ///< the number of a skin change

    ChangeSkinEvent();
    ~ChangeSkinEvent() override;
};
