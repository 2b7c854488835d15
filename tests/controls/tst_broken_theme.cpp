#include "support/Probe.h"
#include "support/StyleTest.h"

#include <Zanthic/CustomCheckBox.h>
#include <Zanthic/CustomFrame.h>
#include <Zanthic/CustomPushButton.h>
#include <Zanthic/CustomRadioButton.h>
#include <Zanthic/CustomWidget.h>

#include <QtGui/QPainter>
#include <QtWidgets/QStyleOption>

namespace {

// Every control in a shown window. No layout: a control may be as large as the theme says without making the window so.
class Window : public QWidget
{
public:
    Window()
    {
        for (const QString &text : { QString(), QStringLiteral("&Text") }) {
            new CustomPushButton(text, this);
            new CustomCheckBox(text, this, CustomCheckBox::GraySwitch);
            new CustomRadioButton(text, this);
        }
        new CustomWidget(this);
        (new CustomFrame(this))->cSetColorRect(0, QRect(0, 0, 10, 10), Qt::red);
        for (QWidget *control : findChildren<QWidget *>())
            control->setGeometry(10, 10, 200, 30);
        resize(300, 400);
        show();
    }
};

bool paintWith(QPainter *painter, CustomObject *object, int type, const QRect &rect, QStyleOption *option)
{
    object->cDrawWidget(Custom::CustomWidgetType(type), painter, rect, option);
    object->cDrawColorRect(painter, rect);
    const bool background = object->cDrawBackground(painter, rect);
    return object->cDrawBorder(painter, rect) || background;
}

// Shown, grabbed, measured, and painted in every status, as every type, in odd sizes and with a painter that can't
// paint.
void exercise(QWidget *window)
{
    QVERIFY(QTest::qWaitForWindowExposed(window));
    QPainter inactive;
    for (QWidget *widget : window->findChildren<QWidget *>()) {
        widget->sizeHint();
        if (widget->width() < 2000 && widget->height() < 2000)
            Probe::grab(widget, 2);
        auto *object = dynamic_cast<CustomObject *>(widget);
        for (const int state : { 0, 0x2001, 0x25 }) { // disabled; hovered; pressed and on
            for (const QSize &size : { QSize(0, 0), QSize(1, 1), QSize(-5, 3), QSize(120, 30) }) {
                for (const int type : { 0, 1, 2, 3, 4, 5, 99 }) {
                    QStyleOptionButton option;
                    option.initFrom(widget);
                    option.state = QStyle::State(state);
                    option.text = QStringLiteral("Text");
                    const QRect rect(QPoint(0, 0), size);
                    Probe::painted({ 120, 30 }, [&](QPainter *p) { paintWith(p, object, type, rect, &option); });
                    QVERIFY(!paintWith(&inactive, object, type, rect, &option));
                }
            }
        }
    }
}

// Deletes another widget when the skin changes.
class Killer : public CustomWidget
{
public:
    using CustomWidget::CustomWidget;
    QPointer<QWidget> victim;

protected:
    void customEvent(QEvent *event) override
    {
        CustomWidget::customEvent(event);
        delete victim.data();
    }
};

} // namespace

class BrokenThemeTest : public StyleTest
{
    Q_OBJECT

private Q_SLOTS:
    void valuesDoNoHarm_data() { addRowsOf(QStringLiteral("controls/hostile.txt")); }
    void valuesDoNoHarm();
    void emptyClassesDoNoHarm();
    void hugeDocumentIsReadToItsEnd();
    void controlMayBeDeletedDuringASkinChange();
};

void BrokenThemeTest::valuesDoNoHarm()
{
    QFETCH(QStringList, fields);
    // A circle of names, and one that names itself.
    addColors("<Color Id='A' Value='DB_COLOR_B'/><Color Id='B' Value='DB_COLOR_A'/><Color Id='C' Value='DB_COLOR_C'/>");
    QString value = fields[2];
    if (value.startsWith(QLatin1Char('@'))) {
        value = picture(Qt::red);
        QVERIFY(QFile::resize(value, fields[2].mid(1).toInt()));
    }
    QByteArray values = "<ObjectParameter>" + fields[0].toUtf8() + "</ObjectParameter>"
        + attributesXml(QStringLiteral("FontSize=9 BorderWidth:AllEdge=3 BorderRadius:AllCorner=3 FontColor=#336699 "
                                       "BackgroundColor=#336699 BorderColor:AllEdge=#336699 BorderImage=@red16x16"));
    for (const QString &name : fields[1].split(QLatin1Char(' '))) {
        for (const char *status : { "", ":Hover" })
            values += QStringLiteral("<%1%2>%3</%1%2>").arg(name, QLatin1String(status), value).toUtf8();
    }
    for (const char *name :
        { "CustomPushButton", "CustomCheckBox", "CustomRadioButton", "CustomWidget", "CustomFrame" })
        addDocument(classXml(name, "Default", values));
    Window window;
    exercise(&window);
    Custom::changeSkin();
    exercise(&window);
}

void BrokenThemeTest::emptyClassesDoNoHarm()
{
    addDocument("<Class/><Class Name=''/><Class Name='CustomPushButton'/>"
                "<Class Name='CustomCheckBox'><Selector/><Selector Name=''/><Selector Name='Default'/></Class>");
    QVERIFY(QFile::remove(addStyle("CustomPushButton", QStringLiteral("FontSize=20"))));
    Window window;
    exercise(&window);
    Custom::changeSkin(); // its document is gone
    exercise(&window);
}

void BrokenThemeTest::hugeDocumentIsReadToItsEnd()
{
    QByteArray values = "<ObjectParameter>286</ObjectParameter><Note>" + QByteArray(2 * 1024 * 1024, 'x') + "</Note>";
    values.reserve(11 * 1024 * 1024);
    for (int i = 0; values.size() < 10 * 1024 * 1024; ++i)
        values += QStringLiteral("<Attribute%1>DB_COLOR_Some_Name</Attribute%1>\n").arg(i).toLatin1();
    addDocument(classXml("CustomPushButton", "Default", values + "<BackgroundColor>#ff0000</BackgroundColor>"));
    Window window;
    exercise(&window);
    QCOMPARE(window.findChild<CustomPushButton *>()->cBackgroundColor(), QBrush(Qt::red));
}

void BrokenThemeTest::controlMayBeDeletedDuringASkinChange()
{
    const QString document = addStyle("CustomPushButton", QStringLiteral("BackgroundColor=#ff0000"));
    Window window;
    QList<Killer *> killers;
    for (int i = 0; i < 20; ++i) {
        killers += new Killer(&window);
        killers.last()->victim = new CustomPushButton(&window);
        new CustomCheckBox(killers.last()->victim);
    }
    auto *survivor = window.findChild<CustomPushButton *>();
    QCOMPARE(survivor->cBackgroundColor(), QBrush(Qt::red));
    const QString next = addStyle("CustomPushButton", QStringLiteral("BackgroundColor=#0000ff"));
    QVERIFY(QFile::remove(document) && QFile::rename(next, document));
    Custom::changeSkin();
    for (const Killer *killer : qAsConst(killers))
        QVERIFY(killer->victim.isNull());
    QCOMPARE(survivor->cBackgroundColor(), QBrush(Qt::blue));
    exercise(&window);
}

ZANTHIC_TEST_MAIN(BrokenThemeTest)
#include "tst_broken_theme.moc"
