#include "style/StyleHost.h"
#include "support/Probe.h"

#include <Zanthic/Zanthic.h>

namespace {

// Every control in a shown window. No layout: a control may be as large as the theme says without making the window so.
class Window : public QWidget
{
public:
    Window()
    {
        for (const auto &text : { ""_s, "&Text"_s }) {
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
                    option.text = "Text"_s;
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

constexpr auto kNumbers = " #Empty# -1 -100000 0 100000 2147483647 -2147483648 99999999999999999999 ten 1e9 3.7 NaN";
constexpr auto kImages
    = "Icon,BackgroundImage,BackgroundImage:checked,BackgroundImage:unchecked,BaseBackgroundImage,BorderImage";

// Flags, attributes that share a value, values. 511 are all flags, 509 those without a colour, so that the base image
// is drawn, and 286 those of a drawn box. @40 stands for an image cut off after 40 bytes.
constexpr const char *kHostile[][3] = {
    { "286",
        "FontSize BorderWidth:AllEdge BorderWidth:Left BorderRadius:AllCorner BorderRadius:RightTop IconAlignment "
        "Alignment FontSize,BorderWidth:AllEdge,BorderWidth:Left,BorderRadius:AllCorner,IconAlignment,Alignment",
        kNumbers },
    { "511",
        "FontSize,BorderWidth:AllEdge,BorderWidth:Left,BorderRadius:AllCorner,BorderRadius:RightTop,IconAlignment,"
        "Alignment WidgetWidth,WidgetHeight ObjectParameter",
        kNumbers },
    { "286", "FontColor,BackgroundColor,BorderColor:AllEdge,BorderColor:Top",
        " # #zzzzzz rgba( rgba() rgba(999,-1,x,70000) DB_COLOR_ DB_COLOR_A DB_COLOR_C DB_COLOR_Unknown /none.png "
        "qlineargradient( qlineargradient(**) "
        "qlineargradient(x1:nan;y1:inf;x2:-1e308;y2:1e308**stop:0_#ff0000;stop:9_#00ff00;stop:x_DB_COLOR_A;)" },
    { "511", kImages, "/none.png @40" },
    { "509", kImages, "/none.png @0 / @99" },
    { "511", "BorderWidth:AllEdge,BorderRadius:AllCorner", "100000" },
};

} // namespace

class BrokenThemeTest : public StyleTest
{
    Q_OBJECT

private:
    void check()
    {
        Window window;
        exercise(&window);
        Custom::changeSkin();
        exercise(&window);
    }

private Q_SLOTS:
    void valuesDoNoHarm_data()
    {
        for (const char *column : { "flags", "names", "value" })
            QTest::addColumn<QString>(column);
        for (const auto &[flags, groups, values] : kHostile) {
            for (const QString &names : QString(groups).split(' ')) {
                for (const QString &value : QString(values).split(' '))
                    QTest::addRow("%s %s=%s", flags, qPrintable(names), qPrintable(value)) << flags << names << value;
            }
        }
    }
    void valuesDoNoHarm()
    {
        // A circle of names, and one that names itself.
        addColors("<Color Id='A' Value='DB_COLOR_B'/><Color Id='B' Value='DB_COLOR_A'/>"
                  "<Color Id='C' Value='DB_COLOR_C'/>");
        QString value = cell("value").replace(QRegularExpression("(\\d|x)_"_s), "\\1 "_s);
        if (value.startsWith('@')) {
            value = picture(Qt::red);
            QVERIFY(QFile::resize(value, cell("value").mid(1).toInt()));
        }
        QByteArray values = attributesXml("ObjectParameter="_s + cell("flags")
            + " FontSize=9 BorderWidth:AllEdge=3 BorderRadius:AllCorner=3 FontColor=#336699 BackgroundColor=#336699 "
              "BorderColor:AllEdge=#336699 BorderImage=@red16x16");
        for (const QString &name : list("names")) {
            for (const char *status : { "", ":Hover" })
                values += QStringLiteral("<%1%2>%3</%1%2>").arg(name, QLatin1String(status), value).toUtf8();
        }
        for (const char *name :
            { "CustomPushButton", "CustomCheckBox", "CustomRadioButton", "CustomWidget", "CustomFrame" })
            addDocument(classXml(name, "Default", values));
        check();
    }

    void emptyClassesDoNoHarm()
    {
        addDocument("<Class/><Class Name=''/><Class Name='CustomPushButton'/>"
                    "<Class Name='CustomCheckBox'><Selector/><Selector Name=''/><Selector Name='Default'/></Class>");
        QVERIFY(QFile::remove(addStyle("CustomPushButton", "FontSize=20"_s))); // gone at the change of skin
        check();
    }

    void controlMayBeDeletedDuringASkinChange()
    {
        const QString document = addStyle("CustomPushButton", "BackgroundColor=#ff0000"_s);
        Window window;
        for (int i = 0; i < 20; ++i) {
            auto *killer = new Killer(&window);
            killer->victim = new CustomPushButton(&window);
            new CustomCheckBox(killer->victim);
        }
        auto *survivor = window.findChild<CustomPushButton *>();
        QCOMPARE(survivor->cBackgroundColor(), QBrush(Qt::red));
        overwrite(document,
            "<Style>" + classXml("CustomPushButton", "Default", "<BackgroundColor>#0000ff</BackgroundColor>")
                + "</Style>");
        Custom::changeSkin();
        QCOMPARE(window.findChildren<CustomPushButton *>().size(), 2);
        QCOMPARE(survivor->cBackgroundColor(), QBrush(Qt::blue));
        exercise(&window);
    }
};

ZANTHIC_TEST_MAIN(BrokenThemeTest)
#include "tst_broken_theme.moc"
