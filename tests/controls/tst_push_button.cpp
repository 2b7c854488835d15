#include "controls/CustomPushButton_p.h"
#include "support/Probe.h"
#include "support/StyleTest.h"

#include <Zanthic/CustomPushButton.h>

#include <QtCore/QElapsedTimer>
#include <QtGui/QMouseEvent>
#include <QtWidgets/QDialog>

namespace {

const auto kRed = QStringLiteral("#ffff0000");
const auto kGreen = QStringLiteral("#ff00ff00");
const auto kBlue = QStringLiteral("#ff0000ff");
const auto kWhite = QStringLiteral("#ffffffff");

// Normal red, hover green, pressed blue, disabled white.
const QByteArray kColors = "<ObjectParameter>2</ObjectParameter><BackgroundColor>#ff0000</BackgroundColor>"
                           "<BackgroundColor:Hover>#00ff00</BackgroundColor:Hover>"
                           "<BackgroundColor:Pressed>#0000ff</BackgroundColor:Pressed>"
                           "<BackgroundColor:Disabled>#ffffff</BackgroundColor:Disabled>";

// A shown window with a button in its middle; counts what reaches it.
class Window : public QWidget
{
public:
    Window() : button(QStringLiteral("Text"), this)
    {
        resize(200, 100);
        move(40, 40);
        button.setGeometry(50, 30, 100, 40);
        show();
    }

    int events = 0;
    int keys = 0;
    CustomPushButton button;

protected:
    void mousePressEvent(QMouseEvent *) override { ++events; }
    void mouseReleaseEvent(QMouseEvent *) override { ++events; }
    void mouseMoveEvent(QMouseEvent *) override { ++events; }
    void keyPressEvent(QKeyEvent *) override { ++keys; }
};

bool shown(QWidget *window)
{
    return QTest::qWaitForWindowExposed(window);
}

QString colorOf(QWidget *widget)
{
    return Probe::colorAt(Probe::grab(widget), 2, 2);
}

} // namespace

class PushButtonTest : public StyleTest
{
    Q_OBJECT

private Q_SLOTS:
    void startsAsDescribed();
    void selectors_data();
    void selectors();
    void attributesOfTheSetters();
    void colorFollowsTheStatus();
    void pointerThatLeftLeavesNoTrace();
    void styleSheetMakesAPlainButton();
    void guardIgnoresAQuickSecondClick_data();
    void guardIgnoresAQuickSecondClick();
    void guardNumbers();
    void mouseEventsGoOnToTheParent();
    void arrowKeysGoOnToTheParent();
    void mayBeDeletedByItsClick();
    void languageChangesTheFont();
    void imagesFollowTheSkin();

private:
    QString picture(const QColor &color, QString path = QString())
    {
        if (path.isEmpty())
            path = scratchFile("", QStringLiteral(".png"));
        QImage image(16, 16, QImage::Format_ARGB32);
        image.fill(color);
        return image.save(path) ? path : QString();
    }
};

void PushButtonTest::startsAsDescribed()
{
    addDocument(classXml("CustomPushButton", "Default", "<FontSize>33</FontSize>"));
    QDialog dialog;
    CustomPushButton button(&dialog);
    CustomPushButton labelled(QStringLiteral("Text"), &dialog, CustomPushButton::LittleBase);
    QCOMPARE(button.parentWidget(), &dialog);
    QCOMPARE(labelled.text(), QStringLiteral("Text"));
    QCOMPARE(labelled.cStyleSelector(), QStringLiteral("LittleBase"));
    QVERIFY(!button.autoDefault());
    QVERIFY(!button.isDefault());
    // It reads nothing before it is asked.
    QVERIFY(button.font().pixelSize() != 33);
    QCOMPARE(button.cFontSize(), 33);
    QCOMPARE(button.font().pixelSize(), 33);
}

void PushButtonTest::selectors_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("name");
    QTest::newRow("0") << 0 << "Default";
    QTest::newRow("1") << 1 << "GrayWhite";
    QTest::newRow("2") << 2 << "DarkBlack";
    QTest::newRow("3") << 3 << "LittleBase";
    QTest::newRow("4") << 4 << "MiddleBase";
    QTest::newRow("unknown") << 5 << "";
    QTest::newRow("negative") << -1 << "";
}

void PushButtonTest::selectors()
{
    QFETCH(int, value);
    QFETCH(QString, name);
    addDocument(classXml("CustomPushButton", "Default", "<FontSize>9</FontSize>"));
    const auto selector = CustomPushButton::StyleSelector(value);
    CustomPushButton made(nullptr, selector);
    QCOMPARE(made.cStyleSelector(), name);
    CustomPushButton changed(nullptr, CustomPushButton::DarkBlack);
    changed.cSetButtonStyleSelector(selector);
    QCOMPARE(changed.cStyleSelector(), name);
    QCOMPARE(changed.cFontSize(), 9); // Default stands below every selector, also below the empty one
}

void PushButtonTest::attributesOfTheSetters()
{
    CustomPushButton button;
    const QString path = picture(Qt::red);
    button.cSetIcon(path, Custom::Hover);
    QVERIFY(button.icon().isNull());
    QCOMPARE(button.cAttributeValue(QStringLiteral("Icon"), Custom::Hover), path);
    QCOMPARE(button.cAttributeValue(QStringLiteral("Icon"), Custom::Pressed), QString());
    button.cSetIcon(path, Custom::Normal);
    QVERIFY(!button.icon().isNull());
    QCOMPARE(button.cAttributeValue(QStringLiteral("Icon"), Custom::Pressed), path);
    button.cSetIconAlign(Qt::AlignTop | Qt::AlignRight);
    QCOMPARE(button.cAttributeValue(QStringLiteral("IconAlignment")), QStringLiteral("34"));
    button.cSetBackgroundAlign(Qt::AlignBottom | Qt::AlignHCenter);
    QCOMPARE(button.cAttributeValue(QStringLiteral("Alignment")), QStringLiteral("68"));
    button.cSetBaseBackgroundImage(path, Custom::Pressed, { QStringLiteral("part") });
    QCOMPARE(button.cAttributeValue(
                 QStringLiteral("BaseBackgroundImage"), Custom::Pressed, QStringList(QStringLiteral("part"))),
        path);
    QVERIFY(!button.cHasParameter(Custom::ParamBaseBackgroundImage));
}

void PushButtonTest::colorFollowsTheStatus()
{
    addDocument(classXml("CustomPushButton", "Default", kColors));
    Window window;
    QVERIFY(shown(&window));
    QCOMPARE(colorOf(&window.button), kRed);
    QCursor::setPos(window.button.mapToGlobal(QPoint(10, 10)));
    QTRY_COMPARE(colorOf(&window.button), kGreen);
    QTest::mousePress(&window.button, Qt::LeftButton, {}, QPoint(10, 10));
    QCOMPARE(colorOf(&window.button), kBlue);
    QTest::mouseRelease(&window.button, Qt::LeftButton, {}, QPoint(10, 10));
    QCOMPARE(colorOf(&window.button), kGreen);
    window.button.setEnabled(false);
    QCOMPARE(colorOf(&window.button), kWhite);
}

void PushButtonTest::pointerThatLeftLeavesNoTrace()
{
    addDocument(classXml("CustomPushButton", "Default", kColors));
    Window window;
    CustomPushButton &button = window.button;
    QVERIFY(shown(&window));
    QCursor::setPos(button.mapToGlobal(QPoint(10, 10)));
    button.setDown(true);
    QCOMPARE(colorOf(&button), kBlue);
    QCursor::setPos(0, 0);
    button.setDown(true);
    QCOMPARE(colorOf(&button), kRed);
    button.setDown(false);
    button.setAttribute(Qt::WA_UnderMouse, true);
    QCOMPARE(colorOf(&button), kRed);
    // In a busy period being sunken doesn't ask for the pointer, but being hovered does.
    CustomPushButtonPrivate::get(&button)->clickBusy = true;
    button.setDown(true);
    QCOMPARE(colorOf(&button), kRed);
    button.setAttribute(Qt::WA_UnderMouse, false);
    QCOMPARE(colorOf(&button), kBlue);
}

void PushButtonTest::styleSheetMakesAPlainButton()
{
    addDocument(classXml("CustomPushButton", "Default", kColors));
    CustomPushButton button(QStringLiteral("Text"));
    button.resize(60, 30);
    QCOMPARE(colorOf(&button), kRed);
    button.setStyleSheet(QStringLiteral("QPushButton { background: #0000ff; border: none }"));
    QCOMPARE(colorOf(&button), kBlue);
    button.setStyleSheet(QString());
    QCOMPARE(colorOf(&button), kRed);
}

void PushButtonTest::guardIgnoresAQuickSecondClick_data()
{
    QTest::addColumn<bool>("guarded");
    QTest::addColumn<int>("pause"); // ms
    QTest::addColumn<int>("clicks");
    QTest::newRow("guarded, 50 ms") << true << 50 << 1;
    QTest::newRow("guarded, 150 ms") << true << 150 << 2;
    QTest::newRow("plain, at once") << false << 0 << 2;
}

void PushButtonTest::guardIgnoresAQuickSecondClick()
{
    QFETCH(bool, guarded);
    QFETCH(int, pause);
    QFETCH(int, clicks);
    // A machine that is too busy for 50 ms gets further tries.
    for (int attempt = 0;; ++attempt) {
        QVERIFY(attempt < 20);
        Window window;
        window.button.cSetControlClickEvent(guarded);
        QVERIFY(shown(&window));
        QSignalSpy spy(&window.button, &QAbstractButton::clicked);
        QElapsedTimer timer;
        timer.start();
        QTest::mouseClick(&window.button, Qt::LeftButton);
        QCOMPARE(spy.count(), 1);
        QCOMPARE(CustomPushButtonPrivate::get(&window.button)->clickTimer.isActive(), guarded);
        QTest::qWait(pause);
        QTest::mouseClick(&window.button, Qt::LeftButton);
        if (clicks == 1 && timer.elapsed() > 90)
            continue;
        QCOMPARE(spy.count(), clicks);
        // Dropped presses and releases go on to the parent.
        QCOMPARE(window.events, clicks == 1 ? 2 : 0);
        if (guarded) {
            QTRY_VERIFY(!CustomPushButtonPrivate::get(&window.button)->clickBusy);
            QVERIFY(!CustomPushButtonPrivate::get(&window.button)->clickTimer.isActive());
        }
        return;
    }
}

void PushButtonTest::guardNumbers()
{
    CustomPushButton first;
    CustomPushButton second;
    QCOMPARE(CustomPushButtonPrivate::get(&first)->controlIndex, -1);
    const int start = CustomPushButtonPrivate::g_nIndex;
    first.cSetControlClickEvent(true);
    QCOMPARE(CustomPushButtonPrivate::get(&first)->controlIndex, start + 1);
    QVERIFY(CustomPushButtonPrivate::controlList().contains(start + 1));
    first.cSetControlClickEvent(false);
    QCOMPARE(CustomPushButtonPrivate::get(&first)->controlIndex, -1);
    QVERIFY(!CustomPushButtonPrivate::controlList().contains(start + 1));
    second.cSetControlClickEvent(true);
    QCOMPARE(CustomPushButtonPrivate::get(&second)->controlIndex, start + 2);
    second.cSetControlClickEvent(false);
}

void PushButtonTest::mouseEventsGoOnToTheParent()
{
    Window window;
    CustomPushButton &button = window.button;
    QVERIFY(shown(&window));
    QSignalSpy spy(&button, &QAbstractButton::clicked);
    const auto send = [&button](QEvent::Type type) {
        QMouseEvent event(type, QPointF(10, 10), button.mapToGlobal(QPoint(10, 10)),
            type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton, Qt::LeftButton, {});
        QApplication::sendEvent(&button, &event);
    };
    const auto click = [&] {
        window.events = 0;
        for (const QEvent::Type type : { QEvent::MouseButtonPress, QEvent::MouseMove, QEvent::MouseButtonRelease })
            send(type);
        return window.events;
    };
    QCOMPARE(click(), 0);
    button.cSetIgnoreMouseEvent(true);
    QCOMPARE(click(), 2); // the release goes on only where clicks are guarded
    button.cSetControlClickEvent(true);
    QCOMPARE(click(), 3);
    QCOMPARE(spy.count(), 3);
    button.cSetControlClickEvent(false);
}

void PushButtonTest::arrowKeysGoOnToTheParent()
{
    Window window;
    QVERIFY(shown(&window));
    window.button.setFocus();
    QSignalSpy spy(&window.button, &QAbstractButton::clicked);
    QTest::keyClick(&window.button, Qt::Key_Left);
    QTest::keyClick(&window.button, Qt::Key_Right);
    QCOMPARE(window.keys, 2);
    QTest::keyClick(&window.button, Qt::Key_Space);
    QCOMPARE(window.keys, 2);
    QCOMPARE(spy.count(), 1);
}

void PushButtonTest::mayBeDeletedByItsClick()
{
    for (const bool guarded : { false, true }) {
        QWidget window;
        auto *button = new CustomPushButton(&window);
        const QPointer<CustomPushButton> guard(button);
        button->cSetControlClickEvent(guarded);
        button->cSetIgnoreMouseEvent(true);
        connect(button, &QAbstractButton::clicked, button, [button] { delete button; });
        window.show();
        QVERIFY(shown(&window));
        QTest::mouseClick(button, Qt::LeftButton);
        QVERIFY(guard.isNull());
    }
}

void PushButtonTest::languageChangesTheFont()
{
    Custom::initStyleSheetDataPointer();
    addDocument("");
    Custom::setGlobalFontFamily(Custom::En_us, QStringLiteral("Family A"));
    Custom::setGlobalFontFamily(Custom::Zh_cn, QStringLiteral("Family B"));
    Custom::setLanguage(Custom::En_us);
    CustomPushButton button;
    CustomPushButton own;
    own.cSetPrivateFontFamily(QStringLiteral("Family C"));
    QCOMPARE(button.cFontFamily(), QStringLiteral("Family A"));
    Custom::setLanguage(Custom::Zh_cn);
    for (CustomPushButton *each : { &button, &own }) {
        QEvent event(QEvent::LanguageChange);
        QApplication::sendEvent(each, &event);
    }
    QCOMPARE(button.font().family(), QStringLiteral("Family B"));
    QCOMPARE(own.cFontFamily(), QStringLiteral("Family C"));
}

void PushButtonTest::imagesFollowTheSkin()
{
    const QString path = picture(Qt::red);
    const QString document
        = addDocument(classXml("CustomPushButton", "Default", "<BackgroundColor>#ffffff</BackgroundColor>"));
    CustomPushButton icon;
    icon.cSetIcon(path);
    icon.cSetBackgroundColor(QStringLiteral("#ffffff"));
    CustomPushButton image;
    image.cSetBackgroundImage(path);
    CustomPushButton border;
    border.cSetBorderImage(path);
    const QList<CustomPushButton *> buttons{ &icon, &image, &border };
    const auto colors = [&buttons] {
        QStringList result;
        for (CustomPushButton *button : buttons) {
            button->setIconSize({ 16, 16 });
            button->resize(40, 30);
            result += Probe::colorAt(Probe::grab(button), 20, 15);
        }
        return result;
    };
    QCOMPARE(colors(), QStringList({ kRed, kRed, kRed }));
    // Another picture of the same size and time at the same path.
    QFile file(path);
    const QDateTime time = QFileInfo(path).lastModified();
    QVERIFY(!picture(Qt::blue, path).isEmpty());
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.setFileTime(time, QFileDevice::FileModificationTime));
    file.close();
    Custom::changeSkin();
    QCOMPARE(colors(), QStringList({ kBlue, kBlue, kBlue }));
}

ZANTHIC_TEST_MAIN(PushButtonTest)
#include "tst_push_button.moc"
