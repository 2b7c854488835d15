#include <Zanthic/CustomFrame.h>

#include <QtGui/QPainter>

CustomFrame::CustomFrame(QWidget *parent) : QFrame(parent), CustomObject(this, QString(), QStringLiteral("Default"))
{
    cSetClassName(QString::fromLatin1(metaObject()->className()));
}

CustomFrame::~CustomFrame() = default;

void CustomFrame::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    cDrawBackground(&painter, rect(), Custom::Normal, {});
    cDrawBorder(&painter, rect(), Custom::Normal, {});
    cDrawColorRect(&painter, rect());
}

void CustomFrame::customEvent(QEvent *event)
{
    cCustomEvent(event);
}
