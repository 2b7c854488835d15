#include "support/Probe.h"
#include "support/StyleTest.h"

#include <Zanthic/CustomCheckBox.h>
#include <Zanthic/CustomRadioButton.h>

#include <QtWidgets/QStyleOption>

class CheckRadioTest : public StyleTest
{
    Q_OBJECT

private Q_SLOTS:
    void selectors_data();
    void selectors();
    void startsWithItsFont();
    void suffixes();
    void indicatorIsWhatReacts_data();
    void indicatorIsWhatReacts();
    void indicatorOfTheStyleFollowsQt();
    void radioReactsEverywhere();
    void signalTellsOfTheUserOnly();
    void imageFollowsStateAndStatus();
    void styleSheetMakesAPlainControl();
    void mayBeDeletedByItsClick();
    void imagesFollowTheSkin();
    void languageChangesTheFont();

private:
    QString picture(const QColor &color, QString path = QString())
    {
        if (path.isEmpty())
            path = scratchFile("", QStringLiteral(".png"));
        QImage image(16, 16, QImage::Format_ARGB32);
        image.fill(color);
        return image.save(path) ? path : QString();
    }
    // Unchecked red, checked blue, partially checked green.
    QByteArray images()
    {
        return "<BackgroundImage:unchecked>" + picture(Qt::red).toUtf8()
            + "</BackgroundImage:unchecked><BackgroundImage:checked>" + picture(Qt::blue).toUtf8()
            + "</BackgroundImage:checked><BackgroundImage:partiallyChecked>" + picture(Qt::green).toUtf8()
            + "</BackgroundImage:partiallyChecked>";
    }
};

namespace {

const auto kRed = QStringLiteral("#ffff0000");
const auto kGreen = QStringLiteral("#ff00ff00");
const auto kBlue = QStringLiteral("#ff0000ff");

QString indicatorColor(QWidget *widget)
{
    return Probe::colorAt(Probe::grab(widget), 8, widget->height() / 2);
}

} // namespace

void CheckRadioTest::selectors_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("name");
    QTest::newRow("0") << 0 << "Default";
    QTest::newRow("1") << 1 << "GrayWhite";
    QTest::newRow("2") << 2 << "DarkBlack";
    QTest::newRow("3") << 3 << "GraySwitch";
    QTest::newRow("4") << 4 << "DarkSwitch";
    QTest::newRow("unknown") << 5 << "";
}

void CheckRadioTest::selectors()
{
    QFETCH(int, value);
    QTEST(CustomCheckBox(nullptr, CustomCheckBox::StyleSelector(value)).cStyleSelector(), "name");
    CustomCheckBox labelled(QStringLiteral("Text"), nullptr, CustomCheckBox::StyleSelector(value));
    QTEST(labelled.cStyleSelector(), "name");
    QCOMPARE(labelled.text(), QStringLiteral("Text"));
}

void CheckRadioTest::startsWithItsFont()
{
    addDocument(classXml("CustomCheckBox", "GrayWhite", "<FontSize>33</FontSize>")
        + classXml("CustomRadioButton", "Default", "<FontSize>35</FontSize>"));
    // Both read their values when they are made.
    QCOMPARE(CustomCheckBox(nullptr, CustomCheckBox::GrayWhite).font().pixelSize(), 33);
    QVERIFY(CustomCheckBox().font().pixelSize() != 33);
    CustomRadioButton radio(QStringLiteral("Text"));
    QCOMPARE(radio.font().pixelSize(), 35);
    QCOMPARE(radio.text(), QStringLiteral("Text"));
    QCOMPARE(radio.cStyleSelector(), QStringLiteral("Default"));
}

void CheckRadioTest::suffixes()
{
    const CustomCheckBox box;
    QCOMPARE(box.cSuffixString(Qt::Checked), QStringLiteral("checked"));
    QCOMPARE(box.cSuffixString(Qt::Unchecked), QStringLiteral("unchecked"));
    QCOMPARE(box.cSuffixString(Qt::PartiallyChecked), QStringLiteral("partiallyChecked"));
    const CustomRadioButton radio;
    QCOMPARE(radio.cSuffixString(true), QStringLiteral("checked"));
    QCOMPARE(radio.cSuffixString(false), QStringLiteral("unchecked"));
    box.initCheckBoxOption(nullptr);
    radio.initRadioButtonOption(nullptr);
    QStyleOptionButton option;
    CustomRadioButton(QStringLiteral("Text")).initRadioButtonOption(&option);
    QCOMPARE(option.text, QStringLiteral("Text"));
}

void CheckRadioTest::indicatorIsWhatReacts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<QPoint>("point");
    QTest::addColumn<bool>("toggles");
    // 120 x 30 with an indicator of 16 x 16 in the middle of the leading edge.
    QTest::newRow("indicator") << "Text" << Qt::LeftToRight << QPoint(0, 7) << true;
    QTest::newRow("indicator's last pixel") << "Text" << Qt::LeftToRight << QPoint(15, 22) << true;
    QTest::newRow("right of it") << "Text" << Qt::LeftToRight << QPoint(16, 15) << false;
    QTest::newRow("above it") << "Text" << Qt::LeftToRight << QPoint(8, 6) << false;
    QTest::newRow("label") << "Text" << Qt::LeftToRight << QPoint(40, 15) << false;
    QTest::newRow("right to left") << "Text" << Qt::RightToLeft << QPoint(104, 15) << true;
    QTest::newRow("right to left, label") << "Text" << Qt::RightToLeft << QPoint(103, 15) << false;
    QTest::newRow("no text: everywhere") << QString() << Qt::LeftToRight << QPoint(118, 2) << true;
}

void CheckRadioTest::indicatorIsWhatReacts()
{
    QFETCH(QString, text);
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(QPoint, point);
    QFETCH(bool, toggles);
    addDocument(classXml("CustomCheckBox", "Default", images()));
    QWidget window;
    CustomCheckBox box(text, &window);
    box.setGeometry(10, 10, 120, 30);
    box.setLayoutDirection(direction);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QTest::mouseClick(&box, Qt::LeftButton, {}, point);
    QCOMPARE(box.isChecked(), toggles);
}

void CheckRadioTest::indicatorOfTheStyleFollowsQt()
{
    QWidget window;
    CustomCheckBox box(QStringLiteral("Text"), &window);
    box.setGeometry(10, 10, 120, 30);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(30, 15)); // the label
    QVERIFY(box.isChecked());
    QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(118, 2)); // beyond it
    QVERIFY(box.isChecked());
}

void CheckRadioTest::radioReactsEverywhere()
{
    addDocument(classXml("CustomRadioButton", "Default", images()));
    for (const QString &sheet : { QString(), QStringLiteral("color: red") }) {
        QWidget window;
        CustomRadioButton radio(QStringLiteral("T"), &window);
        radio.setGeometry(10, 10, 120, 30);
        radio.setStyleSheet(sheet);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QTest::mouseClick(&radio, Qt::LeftButton, {}, QPoint(118, 2));
        QVERIFY(radio.isChecked());
    }
}

void CheckRadioTest::signalTellsOfTheUserOnly()
{
    QWidget window;
    CustomCheckBox box(&window);
    box.setGeometry(10, 10, 30, 30);
    box.setTristate(true);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QSignalSpy spy(&box, &CustomCheckBox::sigStateChanged);
    QSignalSpy qtSpy(&box, &QCheckBox::stateChanged);
    box.setChecked(true);
    box.setCheckState(Qt::Unchecked);
    box.click();
    QTest::keyClick(&box, Qt::Key_Space);
    QCOMPARE(qtSpy.count(), 4);
    QCOMPARE(spy.count(), 0);
    box.setCheckState(Qt::Unchecked);
    for (const int state : { Qt::PartiallyChecked, Qt::Checked, Qt::Unchecked }) {
        QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(8, 15));
        QCOMPARE(spy.takeFirst().first().toInt(), state);
    }
    // A release outside changes nothing.
    QTest::mousePress(&box, Qt::LeftButton, {}, QPoint(8, 15));
    QTest::mouseMove(&box, QPoint(200, 200));
    QTest::mouseRelease(&box, Qt::LeftButton, {}, QPoint(200, 200));
    QCOMPARE(spy.count(), 0);
}

void CheckRadioTest::imageFollowsStateAndStatus()
{
    addDocument(classXml("CustomCheckBox", "Default",
                    images() + "<BackgroundImage:checked:Disabled>" + picture(Qt::green).toUtf8()
                        + "</BackgroundImage:checked:Disabled>")
        + classXml("CustomRadioButton", "Default", images()));
    CustomCheckBox box(QStringLiteral("Text"));
    box.resize(100, 30);
    box.setTristate(true);
    QCOMPARE(indicatorColor(&box), kRed);
    box.setCheckState(Qt::PartiallyChecked);
    QCOMPARE(indicatorColor(&box), kGreen);
    box.setCheckState(Qt::Checked);
    QCOMPARE(indicatorColor(&box), kBlue);
    box.setEnabled(false);
    QCOMPARE(indicatorColor(&box), kGreen);
    box.setCheckState(Qt::Unchecked);
    QCOMPARE(indicatorColor(&box), kRed);
    CustomRadioButton radio(QStringLiteral("Text"));
    radio.resize(100, 30);
    QCOMPARE(indicatorColor(&radio), kRed);
    radio.setChecked(true);
    QCOMPARE(indicatorColor(&radio), kBlue);
}

void CheckRadioTest::styleSheetMakesAPlainControl()
{
    addDocument(classXml("CustomCheckBox", "Default", images()) + classXml("CustomRadioButton", "Default", images()));
    QWidget window;
    CustomCheckBox box(QStringLiteral("Text"), &window);
    CustomRadioButton radio(QStringLiteral("Text"), &window);
    QList<QAbstractButton *> buttons{ &box, &radio };
    for (QAbstractButton *button : buttons) {
        button->resize(120, 30);
        QCOMPARE(indicatorColor(button), kRed);
        button->setStyleSheet(QStringLiteral("*::indicator { width: 40px; height: 20px; background: #00ff00; }"));
        QCOMPARE(indicatorColor(button), kGreen);
        QVERIFY(button->sizeHint().width() > 40);
    }
    QCOMPARE(box.sizeHint(), box.QCheckBox::sizeHint());
    box.move(10, 10);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(50, 15)); // Qt's rule: the label reacts
    QVERIFY(box.isChecked());
}

void CheckRadioTest::mayBeDeletedByItsClick()
{
    QWidget window;
    QList<QAbstractButton *> buttons{ new CustomCheckBox(&window), new CustomRadioButton(&window) };
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    for (QAbstractButton *button : buttons) {
        const QPointer<QAbstractButton> guard(button);
        connect(button, &QAbstractButton::clicked, button, [button] { delete button; });
        QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(8, button->height() / 2));
        QVERIFY(guard.isNull());
    }
}

void CheckRadioTest::imagesFollowTheSkin()
{
    const QString path = picture(Qt::red);
    addDocument(classXml(
        "CustomCheckBox", "Default", "<BackgroundImage:unchecked>" + path.toUtf8() + "</BackgroundImage:unchecked>"));
    CustomCheckBox box;
    box.resize(16, 16);
    QCOMPARE(indicatorColor(&box), kRed);
    QVERIFY(!picture(Qt::blue, path).isEmpty());
    Custom::changeSkin();
    QCOMPARE(indicatorColor(&box), kBlue);
}

void CheckRadioTest::languageChangesTheFont()
{
    addDocument("");
    Custom::setGlobalFontFamily(Custom::En_us, QStringLiteral("Family A"));
    Custom::setGlobalFontFamily(Custom::Zh_cn, QStringLiteral("Family B"));
    Custom::setLanguage(Custom::En_us);
    CustomCheckBox box;
    CustomRadioButton radio;
    Custom::setLanguage(Custom::Zh_cn);
    for (QWidget *widget : QList<QWidget *>{ &box, &radio }) {
        QCOMPARE(widget->font().family(), QStringLiteral("Family A"));
        QEvent event(QEvent::LanguageChange);
        QApplication::sendEvent(widget, &event);
        QCOMPARE(widget->font().family(), QStringLiteral("Family B"));
    }
}

ZANTHIC_TEST_MAIN(CheckRadioTest)
#include "tst_check_radio.moc"
