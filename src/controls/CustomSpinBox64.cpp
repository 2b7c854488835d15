#include <Zanthic/CustomSpinBox64.h>

#include "controls/CustomSpinBox64_p.h"
#include "controls/ParameterSignals_p.h"

#include <Zanthic/ChangeSkinEvent.h>

#include <QtGui/QWheelEvent>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleOption>

namespace {

constexpr int kCursorRoom = 2; // px that Qt's spin boxes leave for the cursor
constexpr int kHintCharacters = 18; // and the longest text that they make room for

// 64-bit sums that come out at the other end of the range, where signed ones would be undefined.
qint64 wrappedSum(qint64 a, qint64 b)
{
    return qint64(quint64(a) + quint64(b));
}

qint64 wrappedProduct(qint64 a, qint64 b)
{
    return qint64(quint64(a) * quint64(b));
}

qint64 wrappedNegative(qint64 a)
{
    return qint64(quint64(0) - quint64(a));
}

} // namespace

void CustomSpinBox64Private::setValue(qint64 val)
{
    const qint64 old = value;
    const qint64 now = qMin(maximum, qMax(minimum, val));
    value = now;
    const QString text = q->textFromValue(now);
    QLineEdit *edit = q->interLineEdit();
    if (edit && edit->text() != text) // the same text again would lose the selection
        edit->setText(text);
    if (now != old)
        Q_EMIT q->valueChanged(now);
}

void CustomSpinBox64Private::setRange(qint64 min, qint64 max)
{
    minimum = min;
    maximum = qMax(min, max);
    q->updateGeometry();
    setValue(value);
}

// Qt's own has no room for a number, since it doesn't know the range.
QSize CustomSpinBox64Private::sizeHint(int lineHeight) const
{
    q->ensurePolished();
    const QFontMetrics metrics = q->fontMetrics();
    int width = 0;
    for (const qint64 end : { minimum, maximum }) {
        const QString text = q->textFromValue(end).left(kHintCharacters) + QLatin1Char(' ');
        width = qMax(width, metrics.horizontalAdvance(text));
    }
    QStyleOptionSpinBox option;
    q->initStyleOption(&option);
    return q->style()->sizeFromContents(QStyle::CT_SpinBox, &option, { width + kCursorRoom, lineHeight }, q);
}

CustomSpinBox64::CustomSpinBox64(QWidget *parent, Custom::CommonStyleSelector selector)
    : QAbstractSpinBox(parent), CustomQssHelper(this), d(std::make_unique<CustomSpinBox64Private>(this))
{
    cSetStyleSelector(selector);
    setStyleSheet(Custom::styleSheet(Custom::SheetSpinBox));
    setFocusPolicy(Qt::StrongFocus); // the wheel that scrolls a page would leave the focus behind
    connect(this, &QAbstractSpinBox::editingFinished, this, &CustomSpinBox64::onEditingFinished);
    d->setValue(0);
}

CustomSpinBox64::~CustomSpinBox64() = default;

QLineEdit *CustomSpinBox64::interLineEdit() const
{
    return lineEdit();
}

qint64 CustomSpinBox64::value() const
{
    return d ? d->value : 0;
}

qint64 CustomSpinBox64::singleStep() const
{
    return d ? d->singleStep : 0;
}

void CustomSpinBox64::setSingleStep(qint64 step)
{
    if (d)
        d->singleStep = qMax(qint64(1), step);
}

qint64 CustomSpinBox64::minimum() const
{
    return d ? d->minimum : 0;
}

void CustomSpinBox64::setMinimum(qint64 minimum)
{
    if (d)
        d->setRange(minimum, d->maximum);
}

qint64 CustomSpinBox64::maximum() const
{
    return d ? d->maximum : 0;
}

void CustomSpinBox64::setMaximum(qint64 maximum)
{
    if (d)
        d->setRange(d->minimum, maximum);
}

void CustomSpinBox64::setRange(qint64 minimum, qint64 maximum)
{
    if (d)
        d->setRange(minimum, maximum);
}

void CustomSpinBox64::setValue(qlonglong val)
{
    if (d && val != d->value)
        d->setValue(val);
}

void CustomSpinBox64::onEditingFinished()
{
    QLineEdit *edit = lineEdit();
    if (!d || !edit)
        return;
    if (edit->text().isEmpty())
        edit->setText(QString::number(d->value, 10));
    else
        d->setValue(valueFromText(edit->text()));
}

void CustomSpinBox64::stepBy(int steps)
{
    if (d)
        setValue(wrappedSum(d->value, wrappedProduct(d->singleStep, steps)));
}

QAbstractSpinBox::StepEnabled CustomSpinBox64::stepEnabled() const
{
    StepEnabled enabled = StepNone;
    if (!d || isReadOnly())
        return enabled;
    if (wrappedSum(d->value, d->singleStep) <= d->maximum)
        enabled |= StepUpEnabled;
    if (wrappedSum(d->value, wrappedNegative(d->singleStep)) >= d->minimum)
        enabled |= StepDownEnabled;
    return enabled;
}

QString CustomSpinBox64::textFromValue(qint64 value) const
{
    return QString::number(value, 10);
}

qint64 CustomSpinBox64::valueFromText(const QString &text) const
{
    return text.toLongLong(nullptr, 10);
}

void CustomSpinBox64::fixup(QString &input) const
{
    if (!isGroupSeparatorShown())
        input.remove(locale().groupSeparator(), Qt::CaseSensitive);
}

QValidator::State CustomSpinBox64::validate(QString &input, int &pos) const
{
    Q_UNUSED(pos)
    if (input.trimmed().isEmpty())
        return QValidator::Intermediate;
    if (!d)
        return QValidator::Invalid;
    qint64 number = 0;
    bool ok = true;
    if (!input.startsWith(QLatin1Char('-')))
        number = input.toLongLong(&ok, 10);
    else if (d->minimum >= 0)
        return QValidator::Invalid;
    else if (input.size() >= 2)
        number = wrappedNegative(input.midRef(1).toLongLong(&ok, 10));
    if (!ok)
        return QValidator::Invalid;
    if (number > d->maximum || (number < 0 && number < d->minimum))
        return QValidator::Intermediate;
    return QValidator::Acceptable;
}

QSize CustomSpinBox64::sizeHint() const
{
    return d ? d->sizeHint(lineEdit()->sizeHint().height()) : QAbstractSpinBox::sizeHint();
}

QSize CustomSpinBox64::minimumSizeHint() const
{
    return d ? d->sizeHint(lineEdit()->minimumSizeHint().height()) : QAbstractSpinBox::minimumSizeHint();
}

bool CustomSpinBox64::event(QEvent *event)
{
    return !ParameterSignals::tellFocus(this, event) || QAbstractSpinBox::event(event);
}

void CustomSpinBox64::paintEvent(QPaintEvent *event)
{
    QAbstractSpinBox::paintEvent(event);
}

void CustomSpinBox64::mouseReleaseEvent(QMouseEvent *event)
{
    if (event && ParameterSignals::tellRelease(this))
        QAbstractSpinBox::mouseReleaseEvent(event);
}

void CustomSpinBox64::wheelEvent(QWheelEvent *event)
{
    event->ignore();
}

void CustomSpinBox64::keyPressEvent(QKeyEvent *event)
{
    cRespondHotKey(event);
    QAbstractSpinBox::keyPressEvent(event);
}

void CustomSpinBox64::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        cLanguageChange();
    QAbstractSpinBox::changeEvent(event);
}

void CustomSpinBox64::customEvent(QEvent *event)
{
    if (int(event->type()) == ChangeSkinEvent::EventType)
        setStyleSheet(Custom::styleSheet(Custom::SheetSpinBox));
}
