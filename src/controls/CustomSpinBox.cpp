#include <Zanthic/CustomSpinBox.h>

#include "controls/ParameterSignals_p.h"

#include <Zanthic/ChangeSkinEvent.h>

#include <QtGui/QWheelEvent>

CustomSpinBox::CustomSpinBox(QWidget *parent, Custom::CommonStyleSelector selector)
    : QSpinBox(parent), CustomQssHelper(this)
{
    cSetStyleSelector(selector);
    setStyleSheet(Custom::styleSheet(Custom::SheetSpinBox));
    setFocusPolicy(Qt::StrongFocus); // the wheel that scrolls a page would leave the focus behind
}

CustomSpinBox::~CustomSpinBox() = default;

QLineEdit *CustomSpinBox::cInterLineEdit() const
{
    return lineEdit();
}

bool CustomSpinBox::event(QEvent *event)
{
    return !ParameterSignals::tellFocus(this, event) || QSpinBox::event(event);
}

void CustomSpinBox::paintEvent(QPaintEvent *event)
{
    QSpinBox::paintEvent(event);
}

void CustomSpinBox::mouseReleaseEvent(QMouseEvent *event)
{
    if (event && ParameterSignals::tellRelease(this))
        QSpinBox::mouseReleaseEvent(event);
}

void CustomSpinBox::wheelEvent(QWheelEvent *event)
{
    event->ignore();
}

void CustomSpinBox::keyPressEvent(QKeyEvent *event)
{
    cRespondHotKey(event);
    QSpinBox::keyPressEvent(event);
}

void CustomSpinBox::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        cLanguageChange();
    QSpinBox::changeEvent(event);
}

void CustomSpinBox::customEvent(QEvent *event)
{
    // Also a sheet of the same text, which may have other pictures now.
    if (int(event->type()) == ChangeSkinEvent::EventType)
        setStyleSheet(Custom::styleSheet(Custom::SheetSpinBox));
}
