#include "AnimationPage.h"

#include "parts/Card.h"
#include "parts/LiveText.h"
#include "parts/Roomy.h"
#include "parts/SkinColors.h"

#include <Zanthic/ChangeSkinEvent.h>
#include <Zanthic/CustomDynamicWidget.h>
#include <Zanthic/CustomPushButton.h>

#include <QtCore/QEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QBoxLayout>

namespace {

constexpr int Frame_Count = 12;
constexpr int Frame_Size = 64; // px
constexpr int Interval = 80; // ms
constexpr int Dot_Radius = 5;

/// A ring of dots, one for each frame; that of \p frame is in full colour, those before it fade.
QPixmap frame(int frame, qreal scale)
{
    QPixmap picture(QSize(Frame_Size, Frame_Size) * scale);
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Custom::getDataBaseColor(SkinColor::Accent));
    painter.translate(Frame_Size / 2.0, Frame_Size / 2.0);
    painter.rotate(360.0 * frame / Frame_Count);
    for (int age = 0; age < Frame_Count; ++age) {
        painter.setOpacity(1.0 - double(age) / Frame_Count);
        painter.drawEllipse(QPointF(0, 2 * Dot_Radius - Frame_Size / 2.0), Dot_Radius, Dot_Radius);
        painter.rotate(-360.0 / Frame_Count);
    }
    return picture;
}

QList<QPixmap> frames(qreal scale)
{
    QList<QPixmap> list;
    for (int i = 0; i < Frame_Count; ++i)
        list << frame(i, scale);
    return list;
}

/// The frames beside or below each other, as \p step says.
QPixmap strip(const QList<QPixmap> &list, QPoint step)
{
    const QPixmap &first = list.constFirst();
    const int count = list.size() - 1;
    QPixmap whole(first.width() + count * step.x() * first.width(), first.height() + count * step.y() * first.height());
    whole.fill(Qt::transparent);
    QPainter painter(&whole);
    for (int i = 0; i < list.size(); ++i) {
        const QPoint place(i * step.x() * first.width(), i * step.y() * first.height());
        painter.drawPixmap(QRect(place, first.size()), list.at(i));
    }
    painter.end();
    whole.setDevicePixelRatio(first.devicePixelRatio());
    return whole;
}

} // namespace

AnimationPage::AnimationPage(QWidget *parent) : GalleryPage(parent)
{
    addAnimations();
    addSteering();
    takeFrames();
}

AnimationPage::~AnimationPage() = default;

void AnimationPage::addAnimations()
{
    Card *card = addCard(QT_TR_NOOP("Frames"),
        QT_TR_NOOP("A strip of pictures is cut into frames, side by side or one below the other; or there is a list."));
    const struct
    {
        PixmapType type;
        bool loop;
        const char *caption;
    } cases[] = {
        { PixmapHorizontal, false, QT_TR_NOOP("a horizontal strip, once") },
        { PixmapVertical, false, QT_TR_NOOP("a vertical strip, once") },
        { PixmapList, false, QT_TR_NOOP("a list, once") },
        { PixmapHorizontal, true, QT_TR_NOOP("a horizontal strip, again and again") },
        { PixmapList, true, QT_TR_NOOP("a list, again and again") },
    };
    QList<QWidget *> shown;
    for (const auto &one : cases) {
        auto *holder = new QWidget(this); // at whose origin the animation places itself
        holder->setFixedSize(Frame_Size, Frame_Size);
        auto *animation = new CustomDynamicWidget(holder);
        animation->setPixmapType(one.type);
        animation->setLoop(one.loop);
        m_animations << Animation{ animation, one.type };
        shown << captioned(holder, one.caption);
    }
    card->add(row(shown));
}

void AnimationPage::addSteering()
{
    Card *card = addCard(QT_TR_NOOP("Playing"),
        QT_TR_NOOP(
            "Stopping keeps the place. An animation that isn't played again and again tells when it has ended."));
    auto *start = translated(new Roomy<CustomPushButton>(this), QT_TR_NOOP("Start"));
    auto *stop = translated(new Roomy<CustomPushButton>(this, CustomPushButton::MiddleBase), QT_TR_NOOP("Stop"));
    auto *finished = new LiveText(
        TextLabel::Body, [this] { return tr("Finished: %1").arg(m_nFinished); }, this);
    for (const Animation &one : qAsConst(m_animations)) {
        connect(start, &CustomPushButton::clicked, one.widget, &CustomDynamicWidget::startClockwise);
        connect(stop, &CustomPushButton::clicked, one.widget, &CustomDynamicWidget::stop);
        connect(one.widget, &CustomDynamicWidget::clockwiseFinished, finished, [this, finished] {
            ++m_nFinished;
            finished->refresh();
        });
    }
    card->add(row({ start, stop, finished }, 12));
}

void AnimationPage::takeFrames()
{
    const QList<QPixmap> list = frames(devicePixelRatioF());
    for (const Animation &one : qAsConst(m_animations)) {
        one.widget->setPixmapList(list);
        const QPoint step = one.type == PixmapVertical ? QPoint(0, 1) : QPoint(1, 0);
        one.widget->setAnimation(strip(list, step), Frame_Count, Interval);
    }
}

void AnimationPage::customEvent(QEvent *event)
{
    if (int(event->type()) == ChangeSkinEvent::EventType)
        takeFrames();
}
