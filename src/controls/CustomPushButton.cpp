#include <Zanthic/CustomPushButton.h>

#include "controls/CustomPushButton_p.h"
#include "style/StyleImages_p.h"

#include <QtCore/QPointer>
#include <QtGui/QCursor>
#include <QtGui/QKeyEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QStyleOption>

namespace {

constexpr int kClickGuardMs = 100;

QString matchSelector(CustomPushButton::StyleSelector selector)
{
    switch (selector) {
    case CustomPushButton::Default:
        return QStringLiteral("Default");
    case CustomPushButton::GrayWhite:
        return QStringLiteral("GrayWhite");
    case CustomPushButton::DarkBlack:
        return QStringLiteral("DarkBlack");
    case CustomPushButton::LittleBase:
        return QStringLiteral("LittleBase");
    case CustomPushButton::MiddleBase:
        return QStringLiteral("MiddleBase");
    }
    return QString();
}

} // namespace

int CustomPushButtonPrivate::g_nIndex = 0;

CustomPushButtonPrivate *CustomPushButtonPrivate::get(const CustomPushButton *button)
{
    return button->d.get();
}

QList<int> &CustomPushButtonPrivate::controlList()
{
    static QList<int> g_ControlList;
    return g_ControlList;
}

CustomPushButton::CustomPushButton(QWidget *parent, StyleSelector selector)
    : CustomPushButton(QString(), parent, selector)
{ }

CustomPushButton::CustomPushButton(const QString &text, QWidget *parent, StyleSelector selector)
    : QPushButton(text, parent),
      CustomObject(this, QString(), QStringLiteral("Default")),
      d(std::make_unique<CustomPushButtonPrivate>())
{
    cSetClassName(QString::fromLatin1(metaObject()->className()));
    cSetStyleSelector(matchSelector(selector));
    setAutoDefault(false);
    setDefault(false);
}

CustomPushButton::~CustomPushButton()
{
    CustomPushButtonPrivate::controlList().removeOne(d->controlIndex);
}

void CustomPushButton::cSetButtonStyleSelector(StyleSelector selector)
{
    cSetStyleSelector(matchSelector(selector));
}

void CustomPushButton::cSetIgnoreMouseEvent(bool ignore)
{
    d->ignoreMouse = ignore;
}

void CustomPushButton::cSetControlClickEvent(bool enable)
{
    d->clickBusy = false;
    if (enable) {
        d->controlIndex = ++CustomPushButtonPrivate::g_nIndex;
        CustomPushButtonPrivate::controlList().append(d->controlIndex);
    } else {
        CustomPushButtonPrivate::controlList().removeOne(d->controlIndex);
        d->controlIndex = -1;
    }
}

void CustomPushButton::cSetBaseBackgroundImage(
    const QString &path, Custom::ItemStatus status, const QStringList &selectors)
{
    cSetAttributeValue(QStringLiteral("BaseBackgroundImage"), path, status, selectors);
}

void CustomPushButton::cSetIcon(const QString &path, Custom::ItemStatus status)
{
    if (status == Custom::Normal)
        setIcon(StyleImages::icon(path));
    cSetAttributeValue(QStringLiteral("Icon"), path, status, {});
}

void CustomPushButton::cSetBackgroundAlign(Qt::Alignment alignment)
{
    cSetAttributeValue(QStringLiteral("Alignment"), QString::number(int(alignment)), Custom::Normal, {});
}

void CustomPushButton::cSetIconAlign(Qt::Alignment alignment)
{
    cSetAttributeValue(QStringLiteral("IconAlignment"), QString::number(int(alignment)), Custom::Normal, {});
}

QSize CustomPushButton::sizeHint() const
{
    if (!styleSheet().isEmpty())
        return QPushButton::sizeHint();
    QStyleOptionButton option;
    initStyleOption(&option);
    const QSize size = cSizeHint(&option);
    return size.width() >= 0 && size.height() >= 0 ? size : QPushButton::sizeHint();
}

void CustomPushButton::paintEvent(QPaintEvent *event)
{
    if (!styleSheet().isEmpty()) {
        QPushButton::paintEvent(event);
        return;
    }
    QStyleOptionButton option;
    initStyleOption(&option);
    // A pointer that has left without a release or a leave event leaves no trace.
    const bool sunken = option.state & QStyle::State_Sunken && !d->clickBusy;
    if ((sunken || option.state & QStyle::State_MouseOver) && !rect().contains(mapFromGlobal(QCursor::pos())))
        option.state &= ~(QStyle::State_MouseOver | QStyle::State_Sunken);
    QPainter painter(this);
    cDrawWidget(Custom::WidgetPushButton, &painter, QRect(0, 0, width(), height()), &option);
}

// The base class emits signals out of its handlers below, and what they are connected to may delete the button.

void CustomPushButton::mousePressEvent(QMouseEvent *event)
{
    if (d->isGuardedBusy()) {
        event->ignore();
        return;
    }
    const QPointer<CustomPushButton> self(this);
    QPushButton::mousePressEvent(event);
    if (self && d->ignoreMouse)
        event->ignore();
}

void CustomPushButton::mouseReleaseEvent(QMouseEvent *event)
{
    if (d->isGuardedBusy()) {
        event->ignore();
        return;
    }
    d->clickBusy = true;
    const QPointer<CustomPushButton> self(this);
    QAbstractButton::mouseReleaseEvent(event);
    if (!self || !CustomPushButtonPrivate::controlList().contains(d->controlIndex))
        return;
    if (d->ignoreMouse)
        event->ignore();
    d->clickTimer.start(kClickGuardMs, this);
    update();
}

void CustomPushButton::mouseMoveEvent(QMouseEvent *event)
{
    const QPointer<CustomPushButton> self(this);
    QPushButton::mouseMoveEvent(event);
    if (self && d->ignoreMouse)
        event->ignore();
}

void CustomPushButton::timerEvent(QTimerEvent *event)
{
    const QPointer<CustomPushButton> self(this);
    QPushButton::timerEvent(event);
    if (!self || event->timerId() != d->clickTimer.timerId())
        return;
    d->clickTimer.stop();
    d->clickBusy = false;
    update();
}

void CustomPushButton::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Left || event->key() == Qt::Key_Right)
        event->ignore();
    else
        QPushButton::keyPressEvent(event);
}

void CustomPushButton::resizeEvent(QResizeEvent *event)
{
    cResizeEvent();
    QWidget::resizeEvent(event);
}

void CustomPushButton::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        cLanguageChange();
    QPushButton::changeEvent(event);
}

void CustomPushButton::customEvent(QEvent *event)
{
    cCustomEvent(event);
}
