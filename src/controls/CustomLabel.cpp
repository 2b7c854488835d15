#include <Zanthic/CustomLabel.h>

#include "style/StyleImages_p.h"

#include <Zanthic/ChangeSkinEvent.h>

#include <QtCore/QPointer>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>

namespace {

// Read by StyleImages, since a new skin delivers another picture behind the same path.
void showPicture(CustomLabel *label, const QString &path)
{
    const QPixmap pixmap = StyleImages::pixmapForRatio(path, label->devicePixelRatioF());
    if (!pixmap.isNull())
        label->setPixmap(pixmap);
}

void setColors(CustomLabel *label, Custom::ItemStatus status)
{
    QPalette palette = label->palette();
    bool found = false;
    const QBrush background = label->cBackgroundColor(status, QRect(0, 0, label->width(), label->height()), {}, &found);
    if (found)
        palette.setBrush(label->backgroundRole(), background);
    const QColor color = label->cFontColor(status, {}, &found);
    if (found)
        palette.setBrush(label->foregroundRole(), QBrush(color));
    label->setPalette(palette);
}

void setInfo(CustomLabel *label, Custom::ItemStatus status)
{
    label->setFont(label->cFont(status, {}));
    setColors(label, status);
    showPicture(label, label->cBackgroundImage(status, {}));
}

} // namespace

CustomLabel::CustomLabel(QWidget *parent) : CustomLabel(QString(), parent) { }

CustomLabel::CustomLabel(const QString &text, QWidget *parent)
    : QLabel(text, parent), CustomObject(this, QString(), QStringLiteral("Default"))
{
    cSetClassName(QString::fromLatin1(metaObject()->className()));
}

CustomLabel::~CustomLabel() = default;

void CustomLabel::cDisplayElidedText()
{
    setText(QFontMetrics(font()).elidedText(text(), Qt::ElideRight, width()));
}

void CustomLabel::cSetStyleSelector(const QString &selector)
{
    CustomObject::cSetStyleSelector(selector);
    setInfo(this, Custom::Normal);
}

void CustomLabel::cNotifyUpdateValue(const QString &key, const QString &value, Custom::ItemStatus status)
{
    CustomObject::cNotifyUpdateValue(key, value, status);
    if (status != Custom::Normal)
        return;
    QPalette changed = palette();
    if (key == QLatin1String("FontColor")) {
        const QBrush brush(Custom::string2Color(value));
        changed.setBrush(foregroundRole(), brush);
        changed.setBrush(QPalette::Text, brush);
        setPalette(changed);
    } else if (key == QLatin1String("BackgroundColor")) {
        changed.setBrush(backgroundRole(), Custom::string2Brush(value));
        setPalette(changed);
        setAutoFillBackground(true);
    } else if (key == QLatin1String("BackgroundImage")) {
        setAlignment(Qt::AlignCenter);
        showPicture(this, value);
    }
}

bool CustomLabel::event(QEvent *event)
{
    // Without this, a label would look as the theme says only once the pointer has been there.
    if (event->type() == QEvent::Polish)
        setInfo(this, Custom::Normal);
    // Qt's style sheets have put the palette back that they had found. The font may be theirs just now.
    if (event->type() == QEvent::StyleChange)
        setColors(this, Custom::Normal);
    return QLabel::event(event);
}

void CustomLabel::paintEvent(QPaintEvent *event)
{
    // Stays open while QLabel paints over the border: within a paint event both share the window's painter.
    QPainter painter(this);
    cDrawBorder(&painter, QRect(0, 0, width(), height()), Custom::Normal, {});
    QLabel::paintEvent(event);
}

void CustomLabel::enterEvent(QEvent *event)
{
    setInfo(this, Custom::Hover);
    QLabel::enterEvent(event);
}

void CustomLabel::leaveEvent(QEvent *event)
{
    setInfo(this, Custom::Normal);
    QLabel::leaveEvent(event);
}

void CustomLabel::mouseReleaseEvent(QMouseEvent *event)
{
    const QPointer<CustomLabel> self(this);
    Q_EMIT clicked();
    if (self)
        QLabel::mouseReleaseEvent(event);
}

void CustomLabel::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        cLanguageChange();
    QLabel::changeEvent(event);
}

void CustomLabel::customEvent(QEvent *event)
{
    cCustomEvent(event);
    if (int(event->type()) == ChangeSkinEvent::EventType)
        setInfo(this, Custom::Normal);
}
