#include <Zanthic/CustomToolTip.h>

#include "render/PainterTools_p.h"
#include "style/CustomStyleSheetData_p.h"
#include "windows/CustomToolTip_p.h"
#include "windows/ToolTipLayout_p.h"

#include <Zanthic/ChangeSkinEvent.h>
#include <Zanthic/Custom.h>

#include <QtGui/QBitmap>
#include <QtGui/QMouseEvent>
#include <QtGui/QScreen>
#include <QtGui/QTextDocument>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDesktopWidget>
#include <QtWidgets/QStyle>

namespace {

constexpr int kHideDelayMs = 300;
constexpr int kTextFlags = Qt::AlignTop | Qt::AlignVCenter | Qt::TextExpandTabs | Qt::TextForceLeftToRight;

// Marks a tip as being shown or closed. What happens then may bring up another tip.
class BusyGuard
{
public:
    explicit BusyGuard(TipLabel *tip) : m_pTip(tip), m_bWasBusy(tip->busy) { tip->busy = true; }
    ~BusyGuard()
    {
        if (m_pTip)
            m_pTip->busy = m_bWasBusy;
    }
    Q_DISABLE_COPY(BusyGuard)

private:
    QPointer<TipLabel> m_pTip;
    bool m_bWasBusy;
};

// Where several screens make up one desktop the position says which one, else the widget.
QRect tipScreenGeometry(const QPoint &pos, const QWidget *widget)
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    if (screen && screen->virtualSiblings().size() > 1) {
        if (const QScreen *under = QGuiApplication::screenAt(pos))
            screen = under;
    } else if (widget) {
        screen = QGuiApplication::screens().value(QApplication::desktop()->screenNumber(widget));
    }
    return screen ? screen->geometry() : QRect();
}

} // namespace

TipLabel *TipLabel::instance = nullptr;
int TipLabel::s_nSharpCornerPosition = 80;
int TipLabel::s_nLineDistance = 3;
const QSize TipLabel::s_extraSize(5, 5);
const int TipLabel::s_nSharpCornerWidth = 0;
const int TipLabel::s_nSharpCornerHeight = 0;

QFont &TipLabel::tipFont()
{
    static QFont s_Font(QString(), 11);
    return s_Font;
}

TipLabel::TipLabel(const QString &text, QWidget *w, int msecDisplayTime) : QLabel(w, Qt::ToolTip)
{
    // A tip may be the first to use the style system, and asks for colours and a family only.
    Custom::initXmlInfo(QLatin1String(Custom::c_szBaseXmlPath));
    tipFont().setFamily(Custom::globalFontFamily());
    takePlaceOf(instance);
    instance = this;
    const BusyGuard guard(this);
    // What is painted is the text itself, and so is what is measured.
    setTextFormat(Qt::PlainText);
    ensurePolished();
    setMargin(1 + style()->pixelMetric(QStyle::PM_ToolTipLabelFrameWidth, nullptr, this));
    setFrameStyle(0);
    setAlignment(Qt::AlignLeft);
    setIndent(1);
    qApp->installEventFilter(this);
    setPalette(QPalette());
    setAutoFillBackground(true);
    setAttribute(Qt::WA_MouseTracking);
    reuseTip(text, msecDisplayTime);
}

void TipLabel::takePlaceOf(TipLabel *old)
{
    if (!old)
        return;
    // A tip that was asked for on top of the old one would go with it.
    if (parentWidget() && parentWidget()->window() == old)
        setParent(old->parentWidget(), windowFlags());
    if (!old->busy) {
        delete old;
        return;
    }
    // It is in the middle of its own functions.
    qApp->removeEventFilter(old);
    old->deleteLater();
}

TipLabel::~TipLabel()
{
    if (instance == this)
        instance = nullptr;
    hideTimer.stop();
    expireTimer.stop();
}

void TipLabel::reuseTip(const QString &text, int msec)
{
    setFont(tipFont());
    setWordWrap(Qt::mightBeRichText(text));
    setText(text);
    resize(
        ToolTipLayout::tipSize(sizeHint(), text.count(QLatin1String("\r\n"), Qt::CaseSensitive) + 1, s_nLineDistance));
    restartExpireTimer(msec);
}

void TipLabel::restartExpireTimer(int msec)
{
    expireTimer.start(ToolTipLayout::lifetime(msec, text().length()), this);
    hideTimer.stop();
}

void TipLabel::hideTip()
{
    if (!hideTimer.isActive())
        hideTimer.start(kHideDelayMs, this);
}

void TipLabel::hideTipImmediately()
{
    const QPointer<TipLabel> self(this);
    const BusyGuard guard(this);
    close();
    if (self)
        deleteLater();
}

void TipLabel::setTipRect(QWidget *w, const QRect &r)
{
    if (Q_UNLIKELY(!r.isNull() && !w)) {
        qWarning("CustomToolTip::setTipRect: Cannot pass null widget if rect is set");
        return;
    }
    widget = w;
    rect = r;
}

void TipLabel::placeTip(const QPoint &pos, QWidget *w)
{
    move(ToolTipLayout::place(pos, size(), tipScreenGeometry(pos, w), s_nSharpCornerPosition));
}

bool TipLabel::tipChanged(const QPoint &pos, const QString &newText, const QObject *o) const
{
    if (newText != text() || o != widget.data())
        return true;
    return !rect.isNull() && !rect.contains(pos);
}

QPainterPath TipLabel::creatPath() const
{
    return ToolTipLayout::outline(size(), s_nSharpCornerPosition);
}

bool TipLabel::eventFilter(QObject *object, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Leave:
        hideTip();
        break;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::FocusIn:
    case QEvent::FocusOut:
    case QEvent::Close:
    case QEvent::WindowActivate:
    case QEvent::WindowDeactivate:
    case QEvent::Wheel:
        hideTipImmediately();
        break;
    case QEvent::MouseMove:
        if (object == widget.data() && !rect.isNull()
            && !rect.contains(static_cast<QMouseEvent *>(event)->localPos().toPoint()))
            hideTip();
        break;
    default:
        break;
    }
    return false;
}

void TipLabel::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != hideTimer.timerId() && event->timerId() != expireTimer.timerId()) {
        QLabel::timerEvent(event);
        return;
    }
    hideTimer.stop();
    expireTimer.stop();
    hideTipImmediately();
}

void TipLabel::mouseMoveEvent(QMouseEvent *event)
{
    if (!rect.isNull() && !rect.contains(widget ? widget->mapFromGlobal(event->globalPos()) : event->globalPos()))
        hideTip();
    QLabel::mouseMoveEvent(event);
}

void TipLabel::resizeEvent(QResizeEvent *event)
{
    doSetMask();
    QLabel::resizeEvent(event);
}

void TipLabel::customEvent(QEvent *event)
{
    if (int(event->type()) == ChangeSkinEvent::EventType)
        update();
}

void TipLabel::doSetMask()
{
    QBitmap mask(size());
    if (mask.isNull())
        return;
    mask.fill(Qt::white);
    QPainter painter(&mask);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QBrush(Qt::black, Qt::SolidPattern));
    painter.drawPath(creatPath());
    painter.end();
    setMask(mask);
}

void TipLabel::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    if (!isUsable(&painter))
        return;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(QRect(QPoint(0, 0), QPoint(width() - 1, height() - 1)),
        Custom::getDataBaseColor(QStringLiteral("Custom_ToolTip_Background")));
    painter.setPen(QPen(Custom::getDataBaseColor(QStringLiteral("Custom_ToolTip_Border")).color(), 1));
    painter.drawPath(creatPath());
    painter.drawLines(ToolTipLayout::borderLines(size(), s_nSharpCornerPosition));

    painter.setFont(tipFont());
    painter.setPen(Custom::getDataBaseColor(QStringLiteral("Custom_ToolTip_Font")).color());
    const QStringList lines = ToolTipLayout::lines(text());
    const QVector<QRect> rects = ToolTipLayout::lineRects(size(), lines.size(), s_nLineDistance);
    for (int i = 0; i < lines.size(); ++i)
        style()->drawItemText(
            &painter, rects.at(i), kTextFlags, QPalette(), isEnabled(), lines.at(i), QPalette::NoRole);
}

void CustomToolTip::showText(
    const QPoint &pos, const QString &text, QWidget *w, const QRect &rect, int msecShowTime, bool forceNew)
{
    TipLabel *tip = TipLabel::instance;
    if (!forceNew && tip && tip->isVisible()) {
        if (text.isEmpty()) {
            tip->hideTip();
            return;
        }
        if (!tip->fadingOut) {
            if (tip->tipChanged(w ? w->mapFromGlobal(pos) : pos, text, w)) {
                tip->reuseTip(text, msecShowTime);
                tip->setTipRect(w, rect);
                tip->placeTip(pos, w);
            }
            return;
        }
    }
    if (text.isEmpty())
        return;
    const QPointer<QWidget> owner(w); // may be the old tip, which goes
    tip = new TipLabel(text, w, msecShowTime);
    if (tip != TipLabel::instance)
        return;
    tip->setTipRect(owner, w && !owner ? QRect() : rect);
    tip->placeTip(pos, owner);
    tip->setObjectName(QStringLiteral("CustomToolTip_label"));
    const BusyGuard guard(tip);
    tip->showNormal();
}

void CustomToolTip::showText(const QPoint &pos, const QString &text, QWidget *w, const QRect &rect, bool forceNew)
{
    showText(pos, text, w, rect, -1, forceNew);
}

void CustomToolTip::showText(const QPoint &pos, const QString &text, QWidget *w, bool forceNew)
{
    showText(pos, text, w, QRect(), -1, forceNew);
}

void CustomToolTip::setFont(const QFont &font)
{
    TipLabel::tipFont() = font;
}

void CustomToolTip::setSharpCornerPosition(int percent)
{
    TipLabel::s_nSharpCornerPosition = percent;
}

void CustomToolTip::setLineDistance(int distance)
{
    TipLabel::s_nLineDistance = distance;
}
