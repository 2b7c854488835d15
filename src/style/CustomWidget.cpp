#include <Zanthic/CustomWidget.h>

#include <QtGui/QPainter>

CustomWidget::CustomWidget(QWidget *parent) : QWidget(parent), CustomObject(this, QString(), QStringLiteral("Default"))
{
    cSetClassName(QString::fromLatin1(metaObject()->className()));
}

CustomWidget::~CustomWidget() = default;

void CustomWidget::cExecKeyPressEvent(QKeyEvent *event)
{
    keyPressEvent(event);
}

void CustomWidget::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    cDrawBackground(&painter, rect(), Custom::Normal, {});
    cDrawBorder(&painter, rect(), Custom::Normal, {});
}

void CustomWidget::customEvent(QEvent *event)
{
    cCustomEvent(event);
}
