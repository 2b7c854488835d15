#include "LiveControl.h"

#include <Zanthic/CustomCheckBox.h>
#include <Zanthic/CustomFrame.h>
#include <Zanthic/CustomPushButton.h>
#include <Zanthic/CustomRadioButton.h>

namespace {

constexpr QSize Frame_Size(160, 64);

template <class Control>
LiveControl make(Control *control)
{
    LiveControl live;
    live.widget = control;
    live.object = control;
    return live;
}

} // namespace

LiveControl LiveControl::create(const QString &className, const QString &text, QWidget *parent)
{
    const auto is
        = [&className](const char *name) { return className.compare(QLatin1String(name), Qt::CaseInsensitive) == 0; };
    LiveControl live;
    if (is("CustomCheckBox"))
        live = make(new CustomCheckBox(text, parent));
    else if (is("CustomRadioButton"))
        live = make(new CustomRadioButton(text, parent));
    else if (className.endsWith(QLatin1String("Button"), Qt::CaseInsensitive))
        live = make(new CustomPushButton(text, parent));
    else
        live = make(new CustomFrame(parent));
    if (qobject_cast<CustomFrame *>(live.widget))
        live.widget->setMinimumSize(Frame_Size);
    live.object->cSetClassName(className);
    return live;
}
