#include <Zanthic/CustomDynamicWidget.h>

#include "composite/CustomDynamicWidget_p.h"

#include <QtCore/QTimer>
#include <QtGui/QPainter>

void CustomDynamicWidgetPrivate::cutFrames(const QPixmap &strip)
{
    m_lstFrames.clear();
    const int count = m_nFrameCount;
    if (count < 1)
        return;
    const QSize across(strip.width() / count, strip.height());
    const QSize down(strip.width(), strip.height() / count);
    // Qt takes an empty rectangle for the whole picture.
    for (int i = 0; i < count && m_ePixmapType == PixmapHorizontal && !across.isEmpty(); ++i)
        m_lstFrames += strip.copy(QRect(QPoint(i * across.width(), 0), across));
    for (int i = 0; i < count && m_ePixmapType == PixmapVertical && !down.isEmpty(); ++i)
        m_lstFrames += strip.copy(QRect(QPoint(0, i * down.height()), down));
    if (m_ePixmapType == PixmapList)
        m_lstFrames = m_lstPixmaps;
}

CustomDynamicWidget::CustomDynamicWidget(QWidget *parent)
    : QWidget(parent), d(std::make_unique<CustomDynamicWidgetPrivate>())
{ }

CustomDynamicWidget::~CustomDynamicWidget() = default;

void CustomDynamicWidget::setPixmapType(PixmapType type)
{
    d->m_ePixmapType = type;
}

void CustomDynamicWidget::setPixmapList(const QList<QPixmap> &pixmaps)
{
    d->m_lstPixmaps = pixmaps;
}

void CustomDynamicWidget::setAnimation(const QPixmap &strip, short count, int intervalMs)
{
    d->m_nFrameCount = count;
    d->m_nCurrentFrame = 0;
    if (!d->m_pTimer) {
        d->m_pTimer = new QTimer(this);
        d->m_pTimer->setInterval(qMax(0, intervalMs));
        connect(d->m_pTimer, &QTimer::timeout, this, &CustomDynamicWidget::updateClockwise);
    }
    d->cutFrames(strip);
    d->m_oCurrent = d->frameCount() > 0 ? d->m_lstFrames.first() : QPixmap();
    if (!d->m_oCurrent.isNull())
        setGeometry(QRect(QPoint(0, 0), d->m_oCurrent.size() / d->m_oCurrent.devicePixelRatio()));
    update();
}

void CustomDynamicWidget::setLoop(bool loop)
{
    d->m_bLoop = loop;
}

bool CustomDynamicWidget::isLoop() const
{
    return d->m_bLoop;
}

void CustomDynamicWidget::startClockwise()
{
    if (d->m_pTimer)
        d->m_pTimer->start();
}

void CustomDynamicWidget::stop()
{
    if (d->m_pTimer)
        d->m_pTimer->stop();
}

void CustomDynamicWidget::updateClockwise()
{
    const int count = d->frameCount();
    if (d->m_nCurrentFrame < count) {
        d->m_oCurrent = d->m_lstFrames.at(d->m_nCurrentFrame);
        update();
        if (d->m_nCurrentFrame < count - 1) {
            ++d->m_nCurrentFrame;
            return;
        }
        if (d->m_bLoop) {
            d->m_nCurrentFrame = 0;
            return;
        }
    }
    d->m_pTimer->stop();
    d->m_nCurrentFrame = 0;
    Q_EMIT clockwiseFinished();
}

void CustomDynamicWidget::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    if (d->m_oCurrent.isNull())
        return;
    QPainter painter(this);
    painter.drawPixmap(rect(), d->m_oCurrent);
}
