#include <Zanthic/CustomTitleBar.h>

#include "windows/CustomTitleBar_p.h"
#include "windows/Screens_p.h"
#include "windows/WindowGeometry_p.h"

#include <Zanthic/ChangeSkinEvent.h>
#include <Zanthic/CustomLabel.h>
#include <Zanthic/CustomPushButton.h>

#include <QtCore/QTimer>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtGui/QTextDocument>
#include <QtGui/QWindow>
#include <QtWidgets/QApplication>
#include <QtWidgets/QBoxLayout>

namespace {

constexpr Qt::WindowFlags kNormalFlags(0x2000803); // a frameless dialog
constexpr int kLookAfterMs = 200;
constexpr int kLateLookAfterMs = 1500; // on a busy machine
constexpr Qt::WindowFlags kOnTopFlags(0x2000c03); // the same, past the window manager

/// A text as a tool tip that shows it as it stands.
QString plainToolTip(const QString &text)
{
    return Qt::mightBeRichText(text) ? QStringLiteral("<span>%1</span>").arg(text.toHtmlEscaped()) : text;
}

/// Gives a window that is past the window manager the keyboard at a press, which nobody else would do.
class FocusOnPress : public QObject
{
public:
    explicit FocusOnPress(QWidget *window) : QObject(window->windowHandle()), m_pWindow(window) { }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const bool isPress = event->type() == QEvent::MouseButtonPress;
        if (isPress && m_pWindow->windowFlags().testFlag(Qt::BypassWindowManagerHint) && !m_pWindow->isActiveWindow())
            m_pWindow->activateWindow();
        return QObject::eventFilter(watched, event);
    }

private:
    QWidget *m_pWindow; // outlives its window handle, which owns this
};

/// A window manager that still sees to the window's hiding may unmap it after it has been shown without its help.
void lookAfter(QWidget *window)
{
    const bool isOnTop = window->windowFlags().testFlag(Qt::BypassWindowManagerHint);
    if (!isOnTop || !window->isVisible() || window->isMinimized() || !window->windowHandle())
        return;
    if (!window->windowHandle()->isExposed()) {
        window->hide();
        window->show();
    } else if (!QApplication::activeWindow()) {
        window->activateWindow(); // it had the keyboard when it was told to stay on top
    }
}

void showOnTop(QWidget *window)
{
    window->showNormal();
    if (!window->windowHandle())
        return;
    window->windowHandle()->installEventFilter(new FocusOnPress(window));
    for (const int delay : { kLookAfterMs, kLateLookAfterMs })
        QTimer::singleShot(delay, window, [window] { lookAfter(window); });
}

} // namespace

CustomTitleBar::CustomTitleBar(QWidget *parent)
    : QWidget(parent),
      CustomObject(this, QString(), QStringLiteral("Default")),
      d(std::make_unique<CustomTitleBarPrivate>(this))
{
    cSetClassName(QString::fromLatin1(metaObject()->className()));
    d->m_pTopWidget = parent;
    d->initControlInfo();
}

CustomTitleBar::~CustomTitleBar() = default;

void CustomTitleBar::cSetTitleText(const QString &text)
{
    d->m_strTitle = text;
    d->m_pTitleLabel->setToolTip(plainToolTip(text));
    if (d->m_bTitleIsCustom) {
        d->m_pTitleLabel->setText(text);
        return;
    }
    d->showCaption();
    d->m_bNeedUpdate = true;
    if (d->m_pTopWidget)
        d->m_pTopWidget->setWindowTitle(text);
}

void CustomTitleBar::cSetTitleIcon(const QString &path)
{
    d->m_pIconLabel->cSetBackgroundImage(path, Custom::Normal, {});
    cSetTitleControls(cTitleControls() | TitleIcon);
}

void CustomTitleBar::cSetTitleControls(TitleControls controls)
{
    d->setShowControls(controls);
}

CustomTitleBar::TitleControls CustomTitleBar::cTitleControls() const
{
    return d->m_fControls;
}

void CustomTitleBar::cSetTitleIsCustom(bool custom)
{
    d->m_bTitleIsCustom = custom;
}

void CustomTitleBar::cSetCustomTextSize(QSize size)
{
    d->m_oCustomTextSize = size;
}

void CustomTitleBar::cSetCustomTitleWidgetVisible(QWidget *widget, bool visible)
{
    d->m_pCustomTitleWidget->setVisible(visible);
    if (widget)
        widget->setVisible(!visible);
}

void CustomTitleBar::cSetButtonAttributeValue(const QString &attr, const QString &value, Custom::ItemStatus status)
{
    for (CustomPushButton *button : { d->m_pStayOnTopButton, d->m_pMaxButton, d->m_pCloseButton, d->m_pMinButton })
        button->cSetAttributeValue(attr, value, status, {});
}

CustomPushButton *CustomTitleBar::cAddMenu(const QString &text, CustomMenu *menu)
{
    return d->addMenu(text, menu);
}

void CustomTitleBar::cAddMenuLayoutStretch()
{
    d->addMenuStretch();
}

void CustomTitleBar::cSetMenuPosition(Qt::AlignmentFlag position)
{
    d->m_eMenuPosition = position;
    d->m_bNeedUpdate = true;
}

CustomPushButton *CustomTitleBar::cAddToolButton(bool left, int spacing)
{
    return d->addToolButton(left, spacing);
}

QWidget *CustomTitleBar::cAddToolWidget(bool left, int spacing)
{
    return d->addToolWidget(left, spacing);
}

CustomLineWidget *CustomTitleBar::cAddToolSeparatorLine()
{
    return d->addToolSeparatorLine();
}

QWidget *CustomTitleBar::cAddCustomWidget()
{
    auto *widget = new QWidget(this);
    d->m_pCustomLayout->addWidget(widget);
    d->showAdded(widget);
    return widget;
}

void CustomTitleBar::cSetTopWidget(QWidget *widget)
{
    if (!widget)
        return;
    d->m_pTopWidget = widget;
    d->m_oNormalGeometry = widget->geometry();
}

void CustomTitleBar::cSetStayOnTop(bool on, bool unused)
{
    Q_UNUSED(unused)
    if (!d->m_pTopWidget || on == d->m_bStayOnTop)
        return;
    d->m_bStayOnTop = on;
    d->m_pStayOnTopButton->cSetStyleSelector(on ? QStringLiteral("StayOnTop") : QStringLiteral("NotStayOnTop"));
    d->m_pStayOnTopButton->update();
    d->m_pTopWidget->setWindowFlags(on ? kOnTopFlags : kNormalFlags);
    d->m_pMinButton->setEnabled(!on);
    if (on)
        showOnTop(d->m_pTopWidget);
    else
        d->m_pTopWidget->showNormal();
}

bool CustomTitleBar::cIsStayOnTop() const
{
    return d->m_bStayOnTop;
}

void CustomTitleBar::cSetEnableMove(bool enable)
{
    d->m_bEnableMove = enable;
}

bool CustomTitleBar::cEnableMove() const
{
    return d->m_bEnableMove;
}

void CustomTitleBar::cShowMaximized()
{
    if (!d->m_bMaximized)
        cOnMaximum();
}

void CustomTitleBar::cShowNormal()
{
    if (d->m_bMaximized)
        cOnMaximum();
}

bool CustomTitleBar::cIsMaximized() const
{
    return d && d->m_bMaximized;
}

void CustomTitleBar::cOnMaximum()
{
    QWidget *window = d->m_pTopWidget;
    if (!window || window->testAttribute(Qt::WA_WState_ConfigPending))
        return;
    d->m_bMaximized = !d->m_bMaximized;
    const QPointer<CustomTitleBar> self(this);
    if (d->m_bMaximized) {
        d->m_oNormalGeometry = window->geometry();
        window->setGeometry(Screens::primaryAvailableGeometry());
    } else {
        window->setGeometry(d->m_oNormalGeometry);
    }
    if (!self)
        return;
    d->m_pMaxButton->cSetStyleSelector(d->m_bMaximized ? QStringLiteral("MaxRecovery") : QStringLiteral("MaxNormal"));
    d->m_pMaxButton->update();
}

void CustomTitleBar::cOnMinimum()
{
    if (d->m_pTopWidget)
        d->m_pTopWidget->showMinimized();
}

void CustomTitleBar::cOnClose()
{
    d->m_bDragging = false;
    if (d->m_pTopWidget)
        d->m_pTopWidget->close();
}

void CustomTitleBar::cOnStayOnStop()
{
    cSetStayOnTop(!d->m_bStayOnTop, true);
}

void CustomTitleBar::setVisible(bool visible)
{
    if (visible)
        d->ensureUpdated();
    QWidget::setVisible(visible);
}

QSize CustomTitleBar::sizeHint() const
{
    d->ensureUpdated();
    return QWidget::sizeHint();
}

void CustomTitleBar::cNotifyUpdateValue(const QString &attribute, const QString &value, Custom::ItemStatus status)
{
    Q_UNUSED(attribute)
    Q_UNUSED(value)
    Q_UNUSED(status)
    if (d)
        d->m_bNeedUpdate = true;
}

void CustomTitleBar::customEvent(QEvent *event)
{
    cCustomEvent(event);
    if (int(event->type()) != ChangeSkinEvent::EventType)
        return;
    // The caption holds a copy of the bar's font and colour.
    d->m_bNeedUpdate = true;
    if (isVisible())
        d->ensureUpdated();
}

void CustomTitleBar::childEvent(QChildEvent *event)
{
    // A widget that is destroyed is none any more. Qt tells the bar's layout only, where its row may not stand just
    // now.
    if (d && event->removed() && !event->child()->metaObject()->inherits(&QWidget::staticMetaObject))
        d->forget(event->child());
    QWidget::childEvent(event);
}

// Each mouse event is left ignored, so that it goes on to the window, which stretches with it.

void CustomTitleBar::mousePressEvent(QMouseEvent *event)
{
    if (!event)
        return;
    event->ignore();
    // What a release that never came has left behind: the window was hidden or blocked in the middle of a drag.
    if (event->buttons() == event->button())
        d->m_bDragging = false;
    if (event->button() == Qt::LeftButton && d->m_bEnableMove && !d->m_bMaximized && d->m_pTopWidget) {
        d->m_oDragOffset = WindowGeometry::rounded(event->screenPos()) - d->m_pTopWidget->mapToParent(QPoint(0, 0));
        d->m_bDragging = rect().contains(event->pos());
        d->limitCursorRect(true);
    }
    QWidget::mousePressEvent(event);
}

void CustomTitleBar::mouseMoveEvent(QMouseEvent *event)
{
    if (!event)
        return;
    event->ignore();
    if (!d->m_pTopWidget || !d->m_bEnableMove || !d->m_bDragging || d->m_bMaximized)
        return;
    const QPointer<CustomTitleBar> self(this);
    d->m_pTopWidget->move(WindowGeometry::rounded(event->screenPos()) - d->m_oDragOffset);
    if (self)
        QWidget::mouseMoveEvent(event);
}

void CustomTitleBar::mouseReleaseEvent(QMouseEvent *event)
{
    if (!event)
        return;
    event->ignore();
    d->m_bDragging = false;
    d->limitCursorRect(false);
    QWidget::mouseReleaseEvent(event);
}

void CustomTitleBar::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (!event)
        return;
    event->ignore();
    if (event->button() == Qt::LeftButton && d->m_fControls.testFlag(TitleMax)) {
        const QPoint position = WindowGeometry::rounded(event->localPos());
        d->m_oDragOffset = position;
        if (!d->m_pCloseButton->isHidden() && d->m_pCloseButton->geometry().contains(position))
            return;
        if (!d->m_pIconLabel->isHidden()
            && d->m_pIconLabel->rect().contains(d->m_pIconLabel->mapFrom(this, position))) {
            cOnClose();
            return;
        }
        const QPointer<CustomTitleBar> self(this);
        if (rect().contains(position))
            cOnMaximum();
        if (!self)
            return;
    }
    QWidget::mouseDoubleClickEvent(event);
}

void CustomTitleBar::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    const QRect whole(0, 0, width(), height());
    cDrawBackground(&painter, whole, Custom::Normal, {});
    cDrawBorder(&painter, whole, Custom::Normal, {});
    painter.end();
    QWidget::paintEvent(event);
}
