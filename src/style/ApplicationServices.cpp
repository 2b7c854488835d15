#include "style/CustomPrivate_p.h"

#include <Zanthic/HotKeyEvent.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QElapsedTimer>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QWidget>

#include <optional>

namespace {

constexpr int kHotKeyIntervalMs = 200;
const QLatin1String s_strVersion("V2.0.0");

// The lowest id whose combinations hold the key press.
std::optional<int> findHotKey(const QKeyEvent &event)
{
    for (auto it = CustomPrivate::m_AllHotKey.cbegin(); it != CustomPrivate::m_AllHotKey.cend(); ++it) {
        for (const auto &combination : it.value()) {
            if (combination.first == event.modifiers() && combination.second == event.key())
                return it.key();
        }
    }
    return std::nullopt;
}

// "01" to "12" for the first three letters of a month; other texts stay.
QString monthNumber(const QString &month)
{
    static const char *const names[]
        = { "Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov", "Dec" };
    for (int i = 0; i < 12; ++i) {
        if (month == QLatin1String(names[i]))
            return QStringLiteral("%1").arg(i + 1, 2, 10, QLatin1Char('0'));
    }
    return month;
}

} // namespace

QMap<int, QList<QPair<Qt::KeyboardModifiers, Qt::Key>>> CustomPrivate::m_AllHotKey;
QSet<QWidget *> CustomPrivate::m_AllModalWidget;
QPointer<QWidget> CustomPrivate::m_ShortcutWidget;
bool CustomPrivate::m_bIsFontFamilyChange = false;

void CustomPrivate::setShortcutWidget(QWidget *widget)
{
    m_ShortcutWidget = widget;
}

QWidget *CustomPrivate::shortcutWidget()
{
    return m_ShortcutWidget;
}

void CustomPrivate::addModalWidget(QWidget *widget)
{
    if (widget != m_ShortcutWidget)
        m_AllModalWidget.insert(widget);
}

void CustomPrivate::removeModalWidget(QWidget *widget)
{
    if (widget != m_ShortcutWidget)
        m_AllModalWidget.remove(widget);
}

QString CustomPrivate::versionText(const QString &date)
{
    // A day below 10 is padded with a blank, which makes a fourth, empty part.
    const QStringList parts = date.split(QLatin1Char(' '));
    if (parts.size() != 3 && parts.size() != 4)
        return s_strVersion;
    QString day = parts.at(parts.size() - 2);
    if (day.size() == 1)
        day.prepend(QLatin1Char('0'));
    return s_strVersion + QLatin1Char('_') + parts.last() + monthNumber(parts.first()) + day;
}

void Custom::registerHotKey(int id, Qt::KeyboardModifiers modifiers, Qt::Key key)
{
    CustomPrivate::m_AllHotKey[id].append(qMakePair(modifiers, key));
}

void Custom::unRegisterHotKey(int id)
{
    CustomPrivate::m_AllHotKey.remove(id);
}

void Custom::clearHotKey()
{
    CustomPrivate::m_AllHotKey.clear();
}

void Custom::activeHotKey(QKeyEvent *event)
{
    if (!event || !enableActiveShortcut())
        return;
    const std::optional<int> id = findHotKey(*event);
    if (!id)
        return;
    static bool s_bFirst = true;
    static QElapsedTimer s_CostTime;
    if (!s_bFirst && s_CostTime.elapsed() < kHotKeyIntervalMs)
        return;
    s_bFirst = false;
    s_CostTime.start();

    auto *hotKey = new HotKeyEvent(event->modifiers(), Qt::Key(event->key()));
    hotKey->setId(*id);
    event->accept();
    QCoreApplication::postEvent(CustomPrivate::shortcutWidget(), hotKey);
}

bool Custom::enableActiveShortcut()
{
    return CustomPrivate::modalWidgetCount() == 0;
}

void Custom::setMainDialog(QWidget *dialog)
{
    CustomPrivate::setShortcutWidget(dialog);
}

QWidget *Custom::mainDialog()
{
    return CustomPrivate::shortcutWidget();
}

QString Custom::version()
{
    return CustomPrivate::versionText(QStringLiteral(__DATE__));
}

QLayout *Custom::createLayout(Qt::Orientation orientation)
{
    QBoxLayout *layout = nullptr;
    if (orientation == Qt::Horizontal)
        layout = new QHBoxLayout;
    else
        layout = new QVBoxLayout;
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    return layout;
}

void Custom::removeChildLayoutItem(QLayout *layout, QLayout *child)
{
    if (!layout || !child)
        return;
    layout->removeItem(child);
    for (int i = 0; i < layout->count(); ++i) {
        QLayoutItem *item = layout->itemAt(i);
        if (item && item->layout())
            removeChildLayoutItem(item->layout(), child);
    }
}

HotKeyEvent::HotKeyEvent(Qt::KeyboardModifiers modifiers, Qt::Key key)
    : QEvent(static_cast<QEvent::Type>(EventType)), m_modifiers(modifiers), m_key(key)
{ }

HotKeyEvent::~HotKeyEvent() = default;
