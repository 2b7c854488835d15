#pragma once

// Not part of the API. It may change from version to version without notice.

#include <QtCore/QEvent>
#include <QtCore/QPointer>

/// The three signals by which a value control tells an application that stores parameters: SigForceIn() and
/// SigForceOut() with the focus, SigSaveParam() with a release of the mouse. Each comes before Qt handles the event.
/// A handler of SigSaveParam() may delete the control; after those of the focus Qt itself goes on with it.
namespace ParameterSignals {

/// Tells of a focus event; false when the control is gone.
template <typename Control>
bool tellFocus(Control *control, const QEvent *event)
{
    const QPointer<Control> guard(control);
    if (event->type() == QEvent::FocusIn)
        Q_EMIT control->SigForceIn();
    else if (event->type() == QEvent::FocusOut)
        Q_EMIT control->SigForceOut();
    return guard;
}

/// Tells of a release; false when the control is gone.
template <typename Control>
bool tellRelease(Control *control)
{
    const QPointer<Control> guard(control);
    Q_EMIT control->SigSaveParam();
    return guard;
}

} // namespace ParameterSignals
