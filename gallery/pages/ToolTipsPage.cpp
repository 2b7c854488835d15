#include "ToolTipsPage.h"

#include "parts/Card.h"
#include "parts/Roomy.h"
#include "parts/Snapshot.h"

#include <Zanthic/CustomPushButton.h>
#include <Zanthic/CustomToolTip.h>

#include <QtWidgets/QApplication>
#include <QtWidgets/QBoxLayout>

namespace {

constexpr int Marker_Start = 80; // percent, of the library
constexpr int LineDistance_Start = 3; // px
constexpr int LineDistance_Wide = 12;
constexpr int Tip_Radius = 3;
constexpr int Pictures = 3; // the first tips differ in more than their place
constexpr int Lifetime_Short = 1000; // ms

struct Tip
{
    const char *text;
    const char *caption;
    int marker = Marker_Start;
    int distance = LineDistance_Start;
    int lifetime = 0;
};

const Tip tips[] = {
    { QT_TRANSLATE_NOOP("ToolTipsPage", "A short tip"), QT_TRANSLATE_NOOP("ToolTipsPage", "one line") },
    { QT_TRANSLATE_NOOP("ToolTipsPage", "Several lines\nstand below\neach other"),
        QT_TRANSLATE_NOOP("ToolTipsPage", "several lines") },
    { QT_TRANSLATE_NOOP("ToolTipsPage", "Several lines\nstand below\neach other"),
        QT_TRANSLATE_NOOP("ToolTipsPage", "further apart"), Marker_Start, LineDistance_Wide },
    { QT_TRANSLATE_NOOP("ToolTipsPage", "The marker is at the left"),
        QT_TRANSLATE_NOOP("ToolTipsPage", "marker at 10 %"), 10 },
    { QT_TRANSLATE_NOOP("ToolTipsPage", "The marker is in the middle"),
        QT_TRANSLATE_NOOP("ToolTipsPage", "marker at 50 %"), 50 },
    { QT_TRANSLATE_NOOP("ToolTipsPage", "Gone in a second"), QT_TRANSLATE_NOOP("ToolTipsPage", "one second"),
        Marker_Start, LineDistance_Start, Lifetime_Short },
};

/// How tips look is said for all of them; this puts it back.
class LookGuard
{
public:
    explicit LookGuard(const Tip &tip)
    {
        CustomToolTip::setSharpCornerPosition(tip.marker);
        CustomToolTip::setLineDistance(tip.distance);
    }
    ~LookGuard()
    {
        CustomToolTip::setSharpCornerPosition(Marker_Start);
        CustomToolTip::setLineDistance(LineDistance_Start);
    }
    Q_DISABLE_COPY(LookGuard)
};

/// Keeps the tips that come up from appearing on the screen.
class OffScreen : public QObject
{
public:
    OffScreen() { qApp->installEventFilter(this); }
    QWidget *tip() const { return m_pTip; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        auto *widget = event->type() == QEvent::Polish ? qobject_cast<QWidget *>(watched) : nullptr;
        if (widget && widget->windowType() == Qt::ToolTip) {
            widget->setParent(&m_host);
            m_pTip = widget;
        }
        return false;
    }

private:
    QPointer<QWidget> m_pTip;
    QWidget m_host; // stays hidden
};

QString textOf(const Tip &tip)
{
    return ToolTipsPage::tr(tip.text).replace(QLatin1Char('\n'), QLatin1String("\r\n"));
}

QPixmap pictureOf(const Tip &tip)
{
    const LookGuard guard(tip);
    const OffScreen offScreen;
    CustomToolTip::showText({}, textOf(tip), nullptr, true);
    if (!offScreen.tip())
        return {};
    return Snapshot::rounded(offScreen.tip()->grab(), Tip_Radius);
}

} // namespace

ToolTipsPage::ToolTipsPage(QWidget *parent) : GalleryPage(parent)
{
    addPictures();
    addButtons();
}

ToolTipsPage::~ToolTipsPage() = default;

void ToolTipsPage::addPictures()
{
    Card *card = addCard(QT_TR_NOOP("Looks"), QT_TR_NOOP("How far the lines of a tip are apart is up to the program."));
    QList<QWidget *> pictures;
    for (int i = 0; i < Pictures; ++i)
        pictures << captioned(new Snapshot([i] { return pictureOf(tips[i]); }), tips[i].caption);
    card->add(row(pictures));
}

void ToolTipsPage::addButtons()
{
    Card *card = addCard(
        QT_TR_NOOP("Live, to try"), QT_TR_NOOP("The tip belongs to the button, and goes when the pointer leaves it."));
    QList<QWidget *> buttons;
    for (const Tip &tip : tips) {
        auto *button = translated(new Roomy<CustomPushButton>(this, CustomPushButton::MiddleBase), tip.caption);
        connect(button, &CustomPushButton::clicked, button, [button, &tip] {
            const LookGuard guard(tip);
            const QPoint below = button->mapToGlobal(QPoint(button->width() / 2, button->height()));
            CustomToolTip::showText(below, textOf(tip), button, button->rect(), tip.lifetime, true);
        });
        buttons << button;
    }
    card->add(row(buttons, 12));
}
