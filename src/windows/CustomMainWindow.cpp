#include <Zanthic/CustomMainWindow.h>

#include "style/CustomPrivate_p.h"
#include "windows/CustomMainWindow_p.h"
#include "windows/WindowGeometry_p.h"

#include <Zanthic/ChangeSkinEvent.h>
#include <Zanthic/CustomFrame.h>
#include <Zanthic/CustomPushButton.h>
#include <Zanthic/CustomTitleBar.h>
#include <Zanthic/CustomWidget.h>

#include <QtCore/QEventLoop>
#include <QtGui/QGuiApplication>
#include <QtGui/QMouseEvent>
#include <QtWidgets/QScrollArea>

namespace {

constexpr Qt::WindowFlags kDialogFlags = Qt::Dialog | Qt::FramelessWindowHint;
constexpr Qt::WindowFlags kWindowFlags = Qt::Window | Qt::FramelessWindowHint;
constexpr int kCursorPollMs = 100;
constexpr int kLevelWatchMs = 100;
constexpr int kLevelWatchAfterToolTipMs = 200;

} // namespace

CustomMainWindow::CustomMainWindow(QWidget *parent)
    : QDialog(parent),
      CustomObject(this, QString(), QStringLiteral("Default")),
      d(std::make_unique<CustomMainWindowPrivate>(this))
{
    setWindowFlags(parent ? kDialogFlags : kWindowFlags);
    cSetClassName(QString::fromLatin1(metaObject()->className()));
    d->init();
}

CustomMainWindow::~CustomMainWindow()
{
    // QDialog hides the window only when this class is gone, which the content may still want to ask something.
    if (isVisible())
        hide();
    CustomPrivate::removeModalWidget(this);
}

CustomTitleBar *CustomMainWindow::cTitleBar() const
{
    return d ? d->m_pTitleBar : nullptr;
}

void CustomMainWindow::cSetTitleVisible(bool visible)
{
    d->m_pTitleBar->setVisible(visible);
}

void CustomMainWindow::cSetCentralWidget(QWidget *widget)
{
    d->resetCentralWidget(widget);
}

void CustomMainWindow::cSetEnableScrollBar(bool enable, const QSize &size)
{
    d->m_bEnableScrollBar = enable;
    d->m_bNeedUpdate = true;
    d->m_pScrollArea->setFixedSize(size.expandedTo(QSize(0, 0)));
}

void CustomMainWindow::cSetEnableButtonBar(bool enable)
{
    d->m_bEnableButtonBar = enable;
    d->m_bNeedUpdate = true;
    if (enable && !d->m_fButtons)
        d->setButtonsStatus(ButtonOk | ButtonCancel);
}

void CustomMainWindow::cSetButtons(Buttons buttons)
{
    d->m_bNeedUpdate = true;
    d->setButtonsStatus(buttons);
    d->m_bEnableButtonBar = true;
}

void CustomMainWindow::cAddCustomButtons(const QStringList &names)
{
    d->m_bNeedUpdate = true;
    d->m_bEnableButtonBar = true;
    d->resetCustomButtons(names);
    d->m_fButtons |= ButtonCustom;
}

void CustomMainWindow::cResetCustomButtonNames(const QStringList &names)
{
    d->resetButtonNames(names);
}

void CustomMainWindow::cSetButtonsAlign(Qt::AlignmentFlag alignment)
{
    d->m_eButtonsAlign = alignment;
}

void CustomMainWindow::cSetMainButton(int index)
{
    d->m_nMainButton = index;
    d->m_bNeedUpdate = true;
}

int CustomMainWindow::cButtonCount() const
{
    const auto has = [this](Button button) { return d->m_fButtons.testFlag(button); };
    return (has(ButtonOk) ? 1 : 0) + (has(ButtonCancel) ? 1 : 0)
        + (has(ButtonCustom) ? d->m_lstCustomButtons.size() : 0);
}

CustomPushButton *CustomMainWindow::cButton(int index) const
{
    if (d->m_fButtons.testFlag(ButtonCustom) && index >= 0 && index < d->m_lstCustomButtons.size())
        return d->m_lstCustomButtons.at(index);
    for (const auto &[flag, button] : d->standardButtons()) {
        if (d->m_fButtons.testFlag(flag) && index == button->cUserData().toInt())
            return button;
    }
    return nullptr;
}

void CustomMainWindow::cOnButtonClicked()
{
    auto *button = qobject_cast<CustomPushButton *>(sender());
    if (!button)
        return;
    const int index = button->cUserData().toInt();
    const QPointer<CustomMainWindow> self(this);
    Q_EMIT cSigButtonClick(index);
    if (!self)
        return;
    int count = cButtonCount();
    if (d->m_fButtons.testFlag(ButtonCancel) && index == --count)
        cOnCancelCliked();
    else if (d->m_fButtons.testFlag(ButtonOk) && index == count - 1)
        cOnOKClicked();
}

void CustomMainWindow::cShowMaximized()
{
    d->m_pTitleBar->cShowMaximized();
}

void CustomMainWindow::cShowNormal()
{
    d->m_pTitleBar->cShowNormal();
}

void CustomMainWindow::cSetStrechEdges(StrechEdges edges)
{
    d->m_fStrechEdges = edges;
    if (!edges)
        d->leaveStretch();
}

void CustomMainWindow::cSetMinStrechSize(const QSize &size)
{
    d->m_oMinStrechSize = size;
}

void CustomMainWindow::cAddStrechIgnoreWidget(QWidget *widget)
{
    if (widget)
        d->m_lstStrechIgnore.append(widget);
}

void CustomMainWindow::cInstallKeyPressEvent(CustomWidget *widget)
{
    if (widget)
        d->m_lstKeyPressWidgets.append(widget);
}

void CustomMainWindow::cEnableDefualtShadow() { }

void CustomMainWindow::cSetShadowEnable(bool enable, QWidget *target)
{
    Q_UNUSED(target)
    CustomQssHelper::cSetShadowEnable(enable, d->m_pFrame);
}

void CustomMainWindow::cSetWindowLever(WindowLever lever)
{
    if (lever == LeverTop)
        CustomMainWindowPrivate::g_TopLeverWindow.insert(this);
    else if (lever == LeverBottom)
        CustomMainWindowPrivate::g_BottomLeverWindow.insert(this);
}

void CustomMainWindow::cSetIsFullScreen(bool on, QWidget *window)
{
    CustomMainWindowPrivate::g_bIsFullScreen = on;
    CustomMainWindowPrivate::g_pFullScreenWin = window;
    if (auto *mainWindow = qobject_cast<CustomMainWindow *>(window))
        mainWindow->d->setIsFullScreen(on);
    if (!on)
        return;
    // Hiding one window may close or delete others.
    QList<QPointer<CustomMainWindow>> bottom;
    for (CustomMainWindow *each : qAsConst(CustomMainWindowPrivate::g_AllWindow)) {
        if (each != window && CustomMainWindowPrivate::g_BottomLeverWindow.contains(each))
            bottom.append(each);
    }
    for (const QPointer<CustomMainWindow> &each : qAsConst(bottom)) {
        if (each)
            each->setVisible(false);
    }
}

void CustomMainWindow::cPopup()
{
    if (d->m_pPopupLoop)
        return;
    createWinId();
    cSetPopup(true);
    QEventLoop loop;
    d->m_pPopupLoop = &loop;
    const QPointer<CustomMainWindow> self(this);
    show();
    // A window that was hidden while it was being shown has told the loop to end before it ran.
    if (self && isVisible())
        loop.exec();
    if (!self)
        return;
    d->m_pPopupLoop = nullptr;
    cSetPopup(false);
}

void CustomMainWindow::cSetPopup(bool popup)
{
    const Qt::WindowFlags remove = popup ? Qt::Dialog : Qt::Popup;
    const Qt::WindowFlags add = popup ? Qt::Popup : Qt::Dialog;
    setWindowFlags(windowFlags() & ~remove);
    setWindowFlags(windowFlags() | add);
}

int CustomMainWindow::exec()
{
    if (!d->m_pTitleBar->isHidden())
        setWindowFlags((windowFlags() & ~Qt::Dialog) | Qt::Window);
    const QPointer<CustomMainWindow> self(this);
    QDialog::exec();
    return self ? d->m_nResult : -1;
}

void CustomMainWindow::accept()
{
    d->m_nResult = 1;
    QDialog::accept();
}

void CustomMainWindow::reject()
{
    d->m_nResult = 0;
    QDialog::reject();
}

void CustomMainWindow::cOnOKClicked()
{
    accept();
}

void CustomMainWindow::cOnCancelCliked()
{
    reject();
}

void CustomMainWindow::setVisible(bool visible)
{
    const bool wasVisible = isVisible();
    if (visible && d->m_bNeedUpdate) {
        d->m_bNeedUpdate = false;
        d->updateData();
    }
    const QPointer<CustomMainWindow> self(this);
    QDialog::setVisible(visible);
    if (!self)
        return;
    // Somebody may have hidden the window while it was being shown.
    if (!isVisible()) {
        d->m_oLowerTimer.stop();
        return;
    }
    if (windowModality() != Qt::NonModal)
        CustomPrivate::addModalWidget(this);
    if (wasVisible)
        return;
    // There and back, so that the window system computes the placement again.
    const QPoint position = pos();
    move(position + QPoint(1, 1));
    move(position);
    if (CustomMainWindowPrivate::g_BottomLeverWindow.contains(this))
        d->m_oLowerTimer.start(kLevelWatchMs, this);
}

void CustomMainWindow::cNotifyUpdateValue(const QString &attribute, const QString &value, Custom::ItemStatus status)
{
    Q_UNUSED(attribute)
    Q_UNUSED(value)
    Q_UNUSED(status)
    if (d)
        d->m_bNeedUpdate = true;
}

bool CustomMainWindow::event(QEvent *event)
{
    // A modal window has come up; a release would go nowhere.
    if (event->type() == QEvent::WindowBlocked)
        d->endStretch();
    return QWidget::event(event);
}

bool CustomMainWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize) {
        d->paintResidual();
        return true;
    }
    if (event->type() == QEvent::ToolTip && watched == d->m_pFrame
        && CustomMainWindowPrivate::g_BottomLeverWindow.contains(this))
        d->m_oLowerTimer.start(kLevelWatchAfterToolTipMs, this);
    return QDialog::eventFilter(watched, event);
}

void CustomMainWindow::timerEvent(QTimerEvent *event)
{
    if (event->timerId() == d->m_oLowerTimer.timerId()) {
        event->accept();
        d->watchLevel();
    } else if (event->timerId() == d->m_oCursorTimer.timerId()) {
        d->judgeCursorPos(QCursor::pos());
    } else {
        QDialog::timerEvent(event);
    }
}

void CustomMainWindow::customEvent(QEvent *event)
{
    cCustomEvent(event);
    if (int(event->type()) != ChangeSkinEvent::EventType)
        return;
    // The frame shows the title bar's colour; the bar may be told of the skin only later.
    d->m_pTitleBar->cCustomEvent(event);
    d->updateSkinParam();
    d->paintResidual();
    // Also a sheet of the same text, which may have other pictures now.
    if (d->m_bEnableScrollBar)
        d->styleScrollArea();
}

void CustomMainWindow::mousePressEvent(QMouseEvent *event)
{
    if ((windowFlags() & Qt::Popup) == Qt::Popup
        && CustomMainWindowPrivate::isOutside(
            *this, WindowGeometry::rounded(event->localPos()), WindowGeometry::rounded(event->screenPos()))) {
        const QPointer<CustomMainWindow> self(this);
        hide();
        if (self)
            QDialog::mousePressEvent(event);
        return;
    }
    d->mousePressed(WindowGeometry::rounded(event->screenPos()));
    QDialog::mousePressEvent(event);
}

void CustomMainWindow::mouseMoveEvent(QMouseEvent *event)
{
    const QPointer<CustomMainWindow> self(this);
    d->mouseMove(WindowGeometry::rounded(event->screenPos()));
    if (self)
        QDialog::mouseMoveEvent(event);
}

void CustomMainWindow::mouseReleaseEvent(QMouseEvent *event)
{
    d->mouseRelease();
    QDialog::mouseReleaseEvent(event);
}

void CustomMainWindow::keyPressEvent(QKeyEvent *event)
{
    cRespondHotKey(event);
    const QPointer<CustomMainWindow> self(this);
    const auto listeners = d->m_lstKeyPressWidgets;
    for (const QPointer<CustomWidget> &widget : listeners) {
        if (widget)
            widget->cExecKeyPressEvent(event);
    }
    if (!self)
        return;
    if (event->key() == Qt::Key_Escape || event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        event->ignore();
    else
        QDialog::keyPressEvent(event);
}

void CustomMainWindow::enterEvent(QEvent *event)
{
    if (d->m_fStrechEdges)
        d->m_oCursorTimer.start(kCursorPollMs, this);
    QDialog::enterEvent(event);
}

void CustomMainWindow::leaveEvent(QEvent *event)
{
    if (d->m_fStrechEdges) {
        d->m_oCursorTimer.stop();
        d->m_bOwnsCursor = false;
        QGuiApplication::restoreOverrideCursor();
    }
    QDialog::leaveEvent(event);
}

void CustomMainWindow::paintEvent(QPaintEvent *event)
{
    // The frame paints the window.
    QWidget::paintEvent(event);
}

void CustomMainWindow::resizeEvent(QResizeEvent *event)
{
    d->resetMask();
    QDialog::resizeEvent(event);
}

void CustomMainWindow::hideEvent(QHideEvent *event)
{
    if (d->m_pPopupLoop)
        d->m_pPopupLoop->exit(0);
    d->leaveStretch();
    CustomPrivate::removeModalWidget(this);
    QWidget::hideEvent(event);
}

void CustomMainWindow::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        d->retranslate();
    QWidget::changeEvent(event);
}
