#include <Zanthic/CustomSliderSpinBox.h>

#include "composite/CustomSliderSpinBox_p.h"
#include "windows/WindowGeometry_p.h"

#include <QtGui/QMouseEvent>
#include <QtWidgets/QHBoxLayout>

namespace {

constexpr int SpinBox_Width = 85; // beside a slider
constexpr int Row_Spacing = 15;
constexpr int Popup_SliderHeight = 30;
constexpr int Popup_Distance = 4; // below the spin box
constexpr int kFollowMs = 100;

CustomSliderSpinBoxPrivate *s_pCurPopupPrivate = nullptr; // the one whose popup is open

} // namespace

CustomSliderSpinBoxPrivate::CustomSliderSpinBoxPrivate(
    CustomSliderSpinBox *owner, Custom::CommonStyleSelector style, SliderPosition position)
    : m_eStyle(style), q(owner), m_ePosition(position)
{
    createParts();
    connectParts();
}

CustomSliderSpinBoxPrivate::~CustomSliderSpinBoxPrivate()
{
    if (s_pCurPopupPrivate == this)
        s_pCurPopupPrivate = nullptr;
}

void CustomSliderSpinBoxPrivate::createParts()
{
    m_pSpinBox = new CustomSpinBox64(q, m_eStyle);
    m_pSpinBox->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    auto *row = static_cast<QBoxLayout *>(Custom::createLayout(Qt::Horizontal));
    if (m_ePosition == CustomSliderSpinBox::SliderInline) {
        m_pSlider = new CustomProcessSlider(q);
        m_pSpinBox->setFixedWidth(SpinBox_Width);
        row->addWidget(m_pSlider);
        row->addSpacing(Row_Spacing);
    } else {
        createPopup();
    }
    row->addWidget(m_pSpinBox);
    q->setLayout(row);
    q->setFocusProxy(m_pSpinBox);
    m_pSlider->cSetStyleSelector(m_eStyle);
    m_pSlider->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    m_pSlider->cSetDotValue(0);
    m_pSlider->cSetShowToolTip(false);
}

void CustomSliderSpinBoxPrivate::createPopup()
{
    m_pPopup = new CustomMainWindow(q);
    m_pPopup->cSetTitleVisible(false);
    m_pPopup->cSetBorderWidth(0, Custom::AllEdge, Custom::Normal);
    m_pPopup->cSetBorderRadius(0, Custom::AllCorner, Custom::Normal);
    m_pPopup->cSetStyleSelector(QStringLiteral("Popup"));
    // The keys stay with the spin box, whose coming by them has opened the popup.
    m_pPopup->setWindowFlag(Qt::WindowDoesNotAcceptFocus);
    m_pSlider = new CustomProcessSlider(m_pPopup);
    m_pSlider->setFixedHeight(Popup_SliderHeight);
    m_pPopup->cSetCentralWidget(m_pSlider);
    m_pPopup->hide();
    m_pPopup->installEventFilter(this);
}

void CustomSliderSpinBoxPrivate::connectParts()
{
    using Private = CustomSliderSpinBoxPrivate;
    connect(m_pSlider, &CustomProcessSlider::valueChanged, this, &Private::onSliderValueChanged);
    connect(m_pSlider, &CustomProcessSlider::sliderRelease, this, &Private::onSliderReleaseChanged);
    connect(m_pSpinBox, &CustomSpinBox64::SigSaveParam, this, &Private::onSpinBoxValueChanged);
    connect(m_pSpinBox, &CustomSpinBox64::editingFinished, this, &Private::onSpinBoxValueChanged);
    connect(m_pSpinBox, &CustomSpinBox64::SigForceIn, this, &Private::PopupSlider);
    connect(&m_oPosTimer, &QTimer::timeout, this, &Private::onSpinPosTimer);
}

// Runs what the parts would echo; false when that has ended the control.
bool CustomSliderSpinBoxPrivate::blocked(const std::function<void()> &set)
{
    const QPointer<QObject> guard(this);
    const bool wasBlocked = m_bBlock;
    m_bBlock = true;
    set();
    if (guard)
        m_bBlock = wasBlocked;
    return guard;
}

void CustomSliderSpinBoxPrivate::setRange(qint64 min, qint64 max)
{
    if (max < min)
        return;
    m_nMin = min;
    m_nMax = max;
    const auto set = [this, min, max] {
        if (m_pSlider)
            m_pSlider->cSetRange(min, max);
        if (m_pSpinBox)
            m_pSpinBox->setRange(min, max);
    };
    if (!blocked(set) || !m_pSlider)
        return;
    m_pSlider->cSetShowDot(min < 0);
    m_pSlider->cSetDotValue(min < 0 ? 0 : min);
}

void CustomSliderSpinBoxPrivate::setValue(qint64 value)
{
    m_nValue = value;
    blocked([this, value] {
        if (m_pSlider)
            m_pSlider->cSetValue(value);
        if (m_pSpinBox)
            m_pSpinBox->setValue(value);
    });
}

void CustomSliderSpinBoxPrivate::setInc(qint64 inc)
{
    m_nInc = inc;
    blocked([this, inc] {
        if (m_pSpinBox)
            m_pSpinBox->setSingleStep(inc);
        if (m_pSlider)
            m_pSlider->cSetSignleStep(inc);
    });
}

void CustomSliderSpinBoxPrivate::onSliderValueChanged(qint64 value)
{
    if (m_bBlock)
        return;
    m_nValue = value;
    const auto set = [this, value] {
        if (m_pSpinBox)
            m_pSpinBox->setValue(value);
    };
    if (blocked(set))
        Q_EMIT q->sigValueChanged();
}

void CustomSliderSpinBoxPrivate::onSliderReleaseChanged()
{
    if (!m_pSlider)
        return;
    const QPointer<QObject> guard(this);
    onSliderValueChanged(m_pSlider->cValue());
    if (guard)
        Q_EMIT q->sigReleaseValueChanged();
}

void CustomSliderSpinBoxPrivate::onSpinBoxValueChanged()
{
    if (m_bBlock || !m_pSpinBox || m_pSpinBox->value() == m_nValue)
        return;
    m_nValue = m_pSpinBox->value();
    const auto set = [this] {
        if (m_pSlider)
            m_pSlider->cSetValue(m_nValue);
    };
    const QPointer<QObject> guard(this);
    if (blocked(set))
        Q_EMIT q->sigValueChanged();
    if (guard)
        Q_EMIT q->sigReleaseValueChanged();
}

QPoint CustomSliderSpinBoxPrivate::anchor() const
{
    return m_pSpinBox->mapToGlobal(QPoint(0, m_pSpinBox->height() - 1));
}

void CustomSliderSpinBoxPrivate::ResetSliderPopupSize()
{
    if (!m_pPopup || !m_pSpinBox || !m_pSlider)
        return;
    m_pPopup->setFixedSize(m_pSpinBox->width(), m_pSlider->height());
    m_pPopup->move(anchor() + QPoint(0, Popup_Distance));
}

void CustomSliderSpinBoxPrivate::onSpinPosTimer()
{
    if (!m_pSpinBox || m_pSpinBox->visibleRegion().isEmpty()) { // gone, or scrolled out of sight
        HideSlider();
        return;
    }
    if (anchor() == m_oLastPos)
        return;
    m_oLastPos = anchor();
    ResetSliderPopupSize();
}

void CustomSliderSpinBoxPrivate::PopupSlider()
{
    if (!m_pPopup || !m_pSpinBox || m_pPopup->isVisible())
        return;
    const QPointer<QObject> guard(this);
    ResetSliderPopupSize();
    if (s_pCurPopupPrivate && s_pCurPopupPrivate != this)
        s_pCurPopupPrivate->HideSlider();
    if (guard && m_pPopup)
        m_pPopup->show();
    if (!guard || !m_pSpinBox)
        return;
    s_pCurPopupPrivate = this;
    m_pWatched = q;
    while (m_pWatched && !m_pWatched->windowFlags().testFlag(Qt::Window))
        m_pWatched = m_pWatched->parentWidget();
    m_pSpinBox->installEventFilter(this);
    if (m_pWatched) {
        m_pWatched->installEventFilter(this);
        m_pWatchedHandle = m_pWatched->windowHandle();
    }
    if (m_pWatchedHandle)
        m_pWatchedHandle->installEventFilter(this);
    m_oPosTimer.start(kFollowMs);
}

void CustomSliderSpinBoxPrivate::HideSlider()
{
    for (QObject *object : { static_cast<QObject *>(m_pSpinBox), static_cast<QObject *>(m_pWatched),
             static_cast<QObject *>(m_pWatchedHandle) }) {
        if (object)
            object->removeEventFilter(this);
    }
    if (s_pCurPopupPrivate == this)
        s_pCurPopupPrivate = nullptr;
    const QPointer<QObject> guard(this);
    if (m_pPopup)
        m_pPopup->hide();
    if (guard && m_pSpinBox)
        m_pSpinBox->clearFocus();
    if (guard)
        m_oPosTimer.stop();
}

bool CustomSliderSpinBoxPrivate::isOutside(const QPoint &globalPos) const
{
    if (!m_pSpinBox || !m_pPopup)
        return true;
    const QPoint topLeft = m_pSpinBox->mapToGlobal(QPoint(0, 0));
    const QPoint bottomRight = m_pPopup->mapToGlobal(m_pPopup->rect().bottomRight());
    return !QRect(topLeft, bottomRight).contains(globalPos);
}

// Whether the spin box is done with: hidden, disabled, left by the keyboard.
bool CustomSliderSpinBoxPrivate::endsUse(const QEvent &event) const
{
    if (event.type() == QEvent::EnabledChange)
        return !m_pSpinBox->isEnabled();
    if (event.type() == QEvent::KeyPress)
        return static_cast<const QKeyEvent &>(event).key() == Qt::Key_Escape;
    if (event.type() != QEvent::FocusOut)
        return event.type() == QEvent::Hide;
    const Qt::FocusReason reason = static_cast<const QFocusEvent &>(event).reason();
    return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason;
}

bool CustomSliderSpinBoxPrivate::eventFilter(QObject *watched, QEvent *event)
{
    bool hides = false;
    if (event->type() == QEvent::MouseButtonPress && (watched == m_pWatched || watched == m_pWatchedHandle)) {
        const auto *press = static_cast<QMouseEvent *>(event);
        hides = isOutside(WindowGeometry::rounded(press->screenPos()));
    } else if (qobject_cast<CustomMainWindow *>(watched) && watched != m_pWatched) {
        // The user may close the popup itself, too.
        hides = event->type() == QEvent::Hide && s_pCurPopupPrivate == this;
    } else if (qobject_cast<CustomSpinBox64 *>(watched)) { // null while it is destroyed
        hides = endsUse(*event);
        if (event->type() == QEvent::Resize)
            ResetSliderPopupSize();
    }
    const QPointer<QObject> guard(this);
    if (hides)
        HideSlider();
    // With the control its window may be gone, too.
    return !guard || QObject::eventFilter(watched, event);
}

CustomSliderSpinBox::CustomSliderSpinBox(QWidget *parent, Custom::CommonStyleSelector selector, SliderPosition position)
    : CustomWidget(parent)
{
    cSetClassName(QString::fromLatin1(metaObject()->className()));
    d = std::make_unique<CustomSliderSpinBoxPrivate>(this, selector, position);
}

CustomSliderSpinBox::~CustomSliderSpinBox() = default;

void CustomSliderSpinBox::cSetRange(qint64 min, qint64 max)
{
    if (d)
        d->setRange(min, max);
}

void CustomSliderSpinBox::cSetValue(qint64 value)
{
    if (d)
        d->setValue(value);
}

qint64 CustomSliderSpinBox::cGetValue() const
{
    return d ? d->m_nValue : 0;
}

void CustomSliderSpinBox::cSetInc(qint64 inc)
{
    if (d)
        d->setInc(inc);
}

void CustomSliderSpinBox::cSetSpinBoxWidth(int width)
{
    if (d && d->m_pSpinBox)
        d->m_pSpinBox->setFixedWidth(qBound(0, width, QWIDGETSIZE_MAX));
}

CustomProcessSlider *CustomSliderSpinBox::getSlider() const
{
    return d ? d->m_pSlider.data() : nullptr;
}

CustomSpinBox64 *CustomSliderSpinBox::getSpinBox() const
{
    return d ? d->m_pSpinBox.data() : nullptr;
}
