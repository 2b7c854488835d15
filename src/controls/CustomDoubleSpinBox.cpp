#include <Zanthic/CustomDoubleSpinBox.h>

#include "controls/ParameterSignals_p.h"

#include <Zanthic/ChangeSkinEvent.h>

#include <QtGui/QWheelEvent>

#include <limits>

namespace {

// What a conversion would leave undefined ends at the last number; no number at all is 0.
qint64 toInteger(double value)
{
    constexpr double kEnd = 9223372036854775808.0; // the first above the range
    if (value >= kEnd)
        return std::numeric_limits<qint64>::max();
    if (value < -kEnd)
        return std::numeric_limits<qint64>::min();
    return value == value ? qint64(value) : 0;
}

} // namespace

CustomDoubleSpinBox::CustomDoubleSpinBox(QWidget *parent, Custom::CommonStyleSelector selector)
    : QDoubleSpinBox(parent), CustomQssHelper(this)
{
    cSetStyleSelector(selector);
    setStyleSheet(Custom::styleSheet(Custom::SheetDoubleSpinBox));
    setDecimals(0);
    setFocusPolicy(Qt::StrongFocus); // the wheel that scrolls a page would leave the focus behind
}

CustomDoubleSpinBox::~CustomDoubleSpinBox() = default;

QLineEdit *CustomDoubleSpinBox::cInterLineEdit() const
{
    return lineEdit();
}

QString CustomDoubleSpinBox::textFromValue(double value) const
{
    return QStringLiteral("%1").arg(toInteger(value > 0 ? value + 0.5 : value - 0.5));
}

bool CustomDoubleSpinBox::event(QEvent *event)
{
    return !ParameterSignals::tellFocus(this, event) || QDoubleSpinBox::event(event);
}

void CustomDoubleSpinBox::paintEvent(QPaintEvent *event)
{
    QDoubleSpinBox::paintEvent(event);
}

void CustomDoubleSpinBox::mouseReleaseEvent(QMouseEvent *event)
{
    if (event && ParameterSignals::tellRelease(this))
        QDoubleSpinBox::mouseReleaseEvent(event);
}

void CustomDoubleSpinBox::wheelEvent(QWheelEvent *event)
{
    event->ignore();
}

void CustomDoubleSpinBox::keyPressEvent(QKeyEvent *event)
{
    cRespondHotKey(event);
    QDoubleSpinBox::keyPressEvent(event);
}

void CustomDoubleSpinBox::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        cLanguageChange();
    QDoubleSpinBox::changeEvent(event);
}

void CustomDoubleSpinBox::customEvent(QEvent *event)
{
    if (int(event->type()) == ChangeSkinEvent::EventType)
        setStyleSheet(Custom::styleSheet(Custom::SheetDoubleSpinBox));
}
