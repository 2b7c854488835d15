#include "StyleHost.h"
#include "support/StyleTest.h"

#include "style/CustomPrivate_p.h"

#include <Zanthic/HotKeyEvent.h>

#include <QtCore/QElapsedTimer>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QGridLayout>

namespace {

constexpr int kIntervalMs = 200;

// An application's main dialog: the hot keys that reach it.
class MainDialog : public QWidget
{
public:
    MainDialog() { Custom::setMainDialog(this); }
    QStringList taken()
    {
        QCoreApplication::sendPostedEvents(this);
        QStringList result;
        result.swap(m_lstTaken);
        return result;
    }

protected:
    void customEvent(QEvent *event) override
    {
        QCOMPARE(int(event->type()), 5097);
        const auto *hotKey = static_cast<HotKeyEvent *>(event);
        m_lstTaken.append(
            QStringLiteral("%1 %2 %3").arg(hotKey->id()).arg(int(hotKey->modifiers()), 0, 16).arg(int(hotKey->key())));
    }

private:
    QStringList m_lstTaken;
};

// Presses a key; true when the press was accepted as a hot key.
bool press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::ControlModifier)
{
    QKeyEvent event(QEvent::KeyPress, key, modifiers);
    event.ignore();
    Custom::activeHotKey(&event);
    return event.isAccepted();
}

void waitForInterval()
{
    QTest::qSleep(kIntervalMs + 5);
}

} // namespace

class TestServices : public StyleTest
{
    Q_OBJECT

private Q_SLOTS:
    void lowestIdWins();
    void combinationsMatchExactly();
    void oneHotKeyInTwoHundredMilliseconds();
    void nullMainDialog();
    void modalWindowsSwitchHotKeysOff();
    void controlsHandKeysOn();
    void mainDialogMayGo();
    void versionText();
    void layouts();
    void childLayoutsAreTakenFromAnyDepth();
};

void TestServices::lowestIdWins()
{
    MainDialog dialog;
    Custom::registerHotKey(7, Qt::ControlModifier, Qt::Key_A);
    Custom::registerHotKey(3, Qt::ControlModifier, Qt::Key_B);
    Custom::registerHotKey(3, Qt::ControlModifier, Qt::Key_A);
    Custom::registerHotKey(-2, Qt::AltModifier, Qt::Key_A);
    const QString sixtyFive = QStringLiteral(" 4000000 65");
    waitForInterval();
    QVERIFY(press(Qt::Key_A));
    QCOMPARE(dialog.taken(), QStringList(QStringLiteral("3") + sixtyFive));
    Custom::unRegisterHotKey(99);
    Custom::unRegisterHotKey(3);
    waitForInterval();
    QVERIFY(!press(Qt::Key_B));
    QVERIFY(press(Qt::Key_A));
    QCOMPARE(dialog.taken(), QStringList(QStringLiteral("7") + sixtyFive));
    Custom::clearHotKey();
    waitForInterval();
    QVERIFY(!press(Qt::Key_A));
    QVERIFY(dialog.taken().isEmpty());
    QVERIFY(CustomPrivate::m_AllHotKey.isEmpty());
    QCOMPARE(HotKeyEvent(Qt::NoModifier, Qt::Key_A).id(), -1);
}

void TestServices::combinationsMatchExactly()
{
    MainDialog dialog;
    Custom::registerHotKey(1, Qt::ControlModifier, Qt::Key_S);
    Custom::registerHotKey(1, Qt::NoModifier, Qt::Key_F5);
    waitForInterval();
    QVERIFY(!press(Qt::Key_S, Qt::NoModifier));
    QVERIFY(!press(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier));
    QVERIFY(!press(Qt::Key_S, Qt::ControlModifier | Qt::KeypadModifier));
    QVERIFY(!press(Qt::Key_F5, Qt::ControlModifier));
    QVERIFY(!press(Qt::Key_T));
    QVERIFY(press(Qt::Key_F5, Qt::NoModifier));
    QCOMPARE(dialog.taken().size(), 1);
}

void TestServices::oneHotKeyInTwoHundredMilliseconds()
{
    MainDialog dialog;
    Custom::registerHotKey(1, Qt::ControlModifier, Qt::Key_A);
    Custom::registerHotKey(2, Qt::ControlModifier, Qt::Key_B);
    waitForInterval();
    QElapsedTimer sinceFirst;
    sinceFirst.start();
    QVERIFY(press(Qt::Key_A));
    QVERIFY(!press(Qt::Key_Z));
    // Over all hot keys together, and what is dropped doesn't put the next one off.
    int dropped = 0;
    while (!press(Qt::Key_B)) {
        ++dropped;
        QVERIFY(sinceFirst.elapsed() < 5000);
        QTest::qSleep(2);
    }
    QVERIFY2(sinceFirst.elapsed() >= kIntervalMs, qPrintable(QString::number(sinceFirst.elapsed())));
    QVERIFY(dropped > 0);
    QCOMPARE(dialog.taken().size(), 2);
}

void TestServices::nullMainDialog()
{
    QCOMPARE(Custom::mainDialog(), nullptr);
    Custom::registerHotKey(1, Qt::ControlModifier, Qt::Key_A);
    Custom::activeHotKey(nullptr);
    waitForInterval();
    expectWarning(QStringLiteral("null receiver"));
    QVERIFY(press(Qt::Key_A));
}

void TestServices::modalWindowsSwitchHotKeysOff()
{
    MainDialog dialog;
    QWidget window;
    QWidget other;
    Custom::registerHotKey(1, Qt::ControlModifier, Qt::Key_A);
    waitForInterval();
    QVERIFY(Custom::enableActiveShortcut());
    CustomPrivate::addModalWidget(&dialog);
    QCOMPARE(CustomPrivate::modalWidgetCount(), 0);
    CustomPrivate::addModalWidget(&window);
    CustomPrivate::addModalWidget(&window);
    CustomPrivate::addModalWidget(&other);
    QCOMPARE(CustomPrivate::modalWidgetCount(), 2);
    CustomPrivate::removeModalWidget(&other);
    CustomPrivate::removeModalWidget(&other);
    QVERIFY(!Custom::enableActiveShortcut());
    QVERIFY(!press(Qt::Key_A));
    QVERIFY(dialog.taken().isEmpty());
    // A window that has become the main dialog since stays counted.
    Custom::setMainDialog(&window);
    CustomPrivate::removeModalWidget(&window);
    QCOMPARE(CustomPrivate::modalWidgetCount(), 1);
    Custom::setMainDialog(&dialog);
    CustomPrivate::removeModalWidget(&window);
    QVERIFY(press(Qt::Key_A));
    QCOMPARE(dialog.taken().size(), 1);
}

void TestServices::controlsHandKeysOn()
{
    MainDialog dialog;
    StyleHost host;
    Custom::registerHotKey(5, Qt::AltModifier, Qt::Key_Q);
    waitForInterval();
    QKeyEvent event(QEvent::KeyPress, Qt::Key_Q, Qt::AltModifier);
    host.cRespondHotKey(&event);
    QCOMPARE(dialog.taken().size(), 1);
}

void TestServices::mainDialogMayGo()
{
    {
        const MainDialog dialog;
        QCOMPARE(Custom::mainDialog(), &dialog);
    }
    QCOMPARE(Custom::mainDialog(), nullptr);
}

void TestServices::versionText()
{
    const char *const months[] = { "Jan 01", "Feb 02", "Mar 03", "Apr 04", "May 05", "Jun 06", "Jul 07", "Aug 08",
        "Sep 09", "Oct 10", "Nov 11", "Dec 12" };
    for (const QByteArray month : months)
        QCOMPARE(CustomPrivate::versionText(QString::fromLatin1(month.left(3) + " 29 2024")),
            QString::fromLatin1("V2.0.0_2024" + month.mid(4) + "29"));
    QCOMPARE(CustomPrivate::versionText(QStringLiteral("Feb  9 2024")), QStringLiteral("V2.0.0_20240209"));
    for (const char *bad : { "", "2024", "Feb 2024", "Feb 9 20 2 4", "Feb   9 2024" })
        QCOMPARE(CustomPrivate::versionText(QString::fromLatin1(bad)), QStringLiteral("V2.0.0"));
    QVERIFY(QRegularExpression(QStringLiteral("^V2\\.0\\.0_20\\d\\d(0[1-9]|1[0-2])[0-3]\\d$"))
                .match(Custom::version())
                .hasMatch());
}

void TestServices::layouts()
{
    const std::unique_ptr<QLayout> row(Custom::createLayout(Qt::Horizontal));
    const std::unique_ptr<QLayout> column(Custom::createLayout(Qt::Vertical));
    const std::unique_ptr<QLayout> other(Custom::createLayout(Qt::Orientation(9)));
    QVERIFY(qobject_cast<QHBoxLayout *>(row.get()) && qobject_cast<QVBoxLayout *>(column.get())
        && qobject_cast<QVBoxLayout *>(other.get()));
    for (const QLayout *layout : { row.get(), column.get(), other.get() }) {
        QCOMPARE(layout->contentsMargins(), QMargins());
        QCOMPARE(layout->spacing(), 0);
        QCOMPARE(layout->parent(), nullptr);
    }
}

void TestServices::childLayoutsAreTakenFromAnyDepth()
{
    QWidget window;
    auto *outer = new QVBoxLayout(&window);
    auto *grid = new QGridLayout;
    auto *inner = new QHBoxLayout;
    auto *child = new QHBoxLayout;
    outer->addWidget(new QWidget);
    outer->addLayout(grid);
    grid->addWidget(new QWidget, 0, 0);
    grid->addLayout(inner, 1, 1);
    inner->addSpacing(3);
    inner->addLayout(child);
    Custom::removeChildLayoutItem(nullptr, child);
    Custom::removeChildLayoutItem(outer, nullptr);
    Custom::removeChildLayoutItem(grid, outer); // is no child of it
    QVERIFY(outer->count() == 2 && grid->count() == 2 && inner->count() == 2);
    QPointer<QLayout> watched = child;
    Custom::removeChildLayoutItem(outer, child);
    QVERIFY(outer->count() == 2 && grid->count() == 2 && inner->count() == 1);
    QVERIFY(watched);
    Custom::removeChildLayoutItem(outer, grid);
    QCOMPARE(outer->count(), 1);
    delete child;
    delete grid;
}

ZANTHIC_TEST_MAIN(TestServices)
#include "tst_services.moc"
