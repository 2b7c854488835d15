#include "Snapshot.h"

#include <Zanthic/ChangeSkinEvent.h>

#include <QtCore/QEvent>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>

namespace {
constexpr qreal Disabled_Opacity = 0.4;
}

Snapshot::Snapshot(Take take, QWidget *parent) : QWidget(parent), m_take(std::move(take))
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

Snapshot::~Snapshot() = default;

QSize Snapshot::sizeHint() const
{
    ensureTaken();
    return (QSizeF(m_picture.size()) / m_picture.devicePixelRatio()).toSize();
}

void Snapshot::ensureTaken() const
{
    if (m_picture.isNull())
        m_picture = m_take();
}

// The picture is taken with the layout that follows: while a skin change is being told, the language in force isn't
// the user's yet.
void Snapshot::discard()
{
    m_picture = QPixmap();
    updateGeometry();
    update();
}

void Snapshot::paintEvent(QPaintEvent *)
{
    ensureTaken();
    QPainter painter(this);
    painter.setOpacity(isEnabled() ? 1 : Disabled_Opacity);
    painter.drawPixmap(0, 0, m_picture);
}

void Snapshot::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        discard();
    else if (event->type() == QEvent::EnabledChange)
        update();
    QWidget::changeEvent(event);
}

void Snapshot::customEvent(QEvent *event)
{
    if (int(event->type()) == ChangeSkinEvent::EventType)
        discard();
}

void Snapshot::showAll(QWidget *window)
{
    window->show();
    const QList<QWidget *> parts = window->findChildren<QWidget *>();
    for (QWidget *part : parts) {
        if (!part->isWindow() && !part->testAttribute(Qt::WA_WState_ExplicitShowHide))
            part->show();
    }
}

QPixmap Snapshot::ofWindow(QWidget *window, int radius)
{
    // Windows finish themselves when they are shown. As a child of what stays hidden, this one doesn't appear.
    QWidget host;
    QWidget *parent = window->parentWidget();
    const Qt::WindowFlags flags = window->windowFlags();
    window->setParent(&host);
    showAll(window);
    window->resize(window->size().expandedTo(window->minimumSizeHint()));
    const QPixmap picture = rounded(window->grab(), radius);
    window->setParent(parent, flags);
    return picture;
}

QPixmap Snapshot::rounded(const QPixmap &picture, int radius)
{
    QImage image = picture.toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const QRectF all(QPointF(), QSizeF(image.size()) / image.devicePixelRatio());
    QPainterPath inside;
    inside.addRoundedRect(all, radius, radius);
    QPainterPath outside;
    outside.addRect(all);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setCompositionMode(QPainter::CompositionMode_Clear);
    painter.fillPath(outside.subtracted(inside), Qt::black);
    painter.end();
    return QPixmap::fromImage(image);
}
