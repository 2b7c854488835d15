#include "StyleHost.h"

#include "style/CustomPrivate_p.h"

#include <Zanthic/HotKeyEvent.h>

#include <QtCore/QElapsedTimer>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QGridLayout>

namespace {

constexpr int kIntervalMs = 200;

// An application's main dialog, with hot keys and without an earlier one that would keep the next one off.
class MainDialog : public QWidget
{
public:
    MainDialog()
    {
        Custom::setMainDialog(this);
        Custom::registerHotKey(7, Qt::ControlModifier, Qt::Key_A);
        Custom::registerHotKey(3, Qt::ControlModifier, Qt::Key_B);
        Custom::registerHotKey(3, Qt::ControlModifier, Qt::Key_A);
        Custom::registerHotKey(-2, Qt::AltModifier, Qt::Key_A);
        Custom::registerHotKey(1, Qt::NoModifier, Qt::Key_F5);
        QTest::qSleep(kIntervalMs + 5);
    }
    // The ids that have come.
    QString taken()
    {
        QCoreApplication::sendPostedEvents(this);
        return m_strTaken.trimmed();
    }

protected:
    void customEvent(QEvent *event) override
    {
        QCOMPARE(int(event->type()), 5097);
        m_strTaken += QStringLiteral(" %1").arg(static_cast<HotKeyEvent *>(event)->id());
    }

private:
    QString m_strTaken;
};

// Presses keys; true when the press was accepted as a hot key.
bool press(const QString &keys)
{
    const int modifiers = QKeySequence(keys)[0] & int(Qt::KeyboardModifierMask);
    QKeyEvent event(QEvent::KeyPress, QKeySequence(keys)[0] & ~modifiers, Qt::KeyboardModifiers(modifiers));
    event.ignore();
    StyleHost().cRespondHotKey(&event);
    return event.isAccepted();
}

} // namespace

class TestServices : public StyleTest
{
    Q_OBJECT

private Q_SLOTS:
    void lowestIdWithExactlyTheseModifiersWins_data() { addRowsOf("cases/hotkeys.txt"_s, { "gone", "keys", "id" }); }
    void lowestIdWithExactlyTheseModifiersWins()
    {
        MainDialog dialog;
        Custom::unRegisterHotKey(int(number("gone")));
        QCOMPARE(press(cell("keys")), !cell("id").isEmpty());
        QTEST(dialog.taken(), "id");
    }

    void oneHotKeyInTwoHundredMilliseconds()
    {
        MainDialog dialog;
        QElapsedTimer sinceFirst;
        sinceFirst.start();
        QVERIFY(press("Ctrl+A"_s));
        // Over all hot keys together, and what is dropped doesn't put the next one off.
        int dropped = 0;
        for (; !press("F5"_s) && sinceFirst.elapsed() < 5000; ++dropped)
            QTest::qSleep(2);
        QVERIFY2(sinceFirst.elapsed() >= kIntervalMs && dropped > 0, qPrintable(QString::number(sinceFirst.elapsed())));
        QCOMPARE(dialog.taken(), "3 1"_s);
    }

    void mainDialogMayBeMissing()
    {
        delete new MainDialog;
        expectWarning("null receiver"_s);
        QVERIFY(!Custom::mainDialog() && press("Ctrl+A"_s));
    }

    void modalWindowsSwitchHotKeysOff()
    {
        MainDialog dialog;
        QWidget window;
        CustomPrivate::addModalWidget(&dialog);
        QVERIFY(Custom::enableActiveShortcut());
        CustomPrivate::addModalWidget(&window);
        CustomPrivate::addModalWidget(&window);
        QVERIFY(!press("Ctrl+A"_s) && CustomPrivate::modalWidgetCount() == 1);
        // A window that has become the main dialog since stays counted.
        for (QWidget *main : { &window, static_cast<QWidget *>(&dialog) }) {
            Custom::setMainDialog(main);
            CustomPrivate::removeModalWidget(&window);
            QCOMPARE(press("Ctrl+A"_s), main == &dialog);
        }
        Custom::clearHotKey();
        QVERIFY(CustomPrivate::m_AllHotKey.isEmpty() && dialog.taken() == "3"_s);
    }

    void versionText_data() { addRowsOf("cases/versions.txt"_s, { "date", "version" }); }
    void versionText() { QTEST(CustomPrivate::versionText(cell("date")), "version"); }

    void childLayoutsAreTakenFromAnyDepth()
    {
        QWidget window;
        QGridLayout outer(&window);
        QLayout *middle = Custom::createLayout(Qt::Vertical);
        QLayout *inner = Custom::createLayout(Qt::Horizontal);
        QVERIFY(qobject_cast<QVBoxLayout *>(middle) && qobject_cast<QHBoxLayout *>(inner));
        QVERIFY(inner->contentsMargins().isNull() && inner->spacing() == 0 && !inner->parent());
        outer.addWidget(new QWidget);
        outer.addLayout(middle, 1, 1);
        middle->addWidget(new QWidget);
        middle->addItem(inner);
        Custom::removeChildLayoutItem(nullptr, inner);
        Custom::removeChildLayoutItem(&outer, nullptr);
        Custom::removeChildLayoutItem(middle, &outer); // is no child of it
        QVERIFY(outer.count() == 2 && middle->count() == 2);
        Custom::removeChildLayoutItem(&outer, inner);
        QVERIFY(outer.count() == 2 && middle->count() == 1);
        delete inner; // it isn't deleted
    }
};

ZANTHIC_TEST_MAIN(TestServices)
#include "tst_services.moc"
