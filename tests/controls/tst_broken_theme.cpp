#include "support/Probe.h"
#include "support/StyleTest.h"

#include <Zanthic/ChangeSkinEvent.h>
#include <Zanthic/CustomCheckBox.h>
#include <Zanthic/CustomFrame.h>
#include <Zanthic/CustomPushButton.h>
#include <Zanthic/CustomRadioButton.h>
#include <Zanthic/CustomWidget.h>

#include <QtGui/QPainter>
#include <QtWidgets/QStyleOption>

namespace {

const QList<QByteArray> kClasses{ "CustomPushButton", "CustomCheckBox", "CustomRadioButton", "CustomWidget",
    "CustomFrame" };
const QList<QByteArray> kColorAttributes{ "FontColor", "BackgroundColor", "BorderColor:AllEdge", "BorderColor:Top" };
const QList<QByteArray> kNumberAttributes{ "FontSize", "BorderWidth:AllEdge", "BorderWidth:Left",
    "BorderRadius:AllCorner", "BorderRadius:RightTop", "IconAlignment", "Alignment" };
const QList<QByteArray> kImageAttributes{ "Icon", "BackgroundImage", "BackgroundImage:checked",
    "BackgroundImage:unchecked", "BaseBackgroundImage", "BorderImage" };
const QByteArray kAllFlags = "511";
const QByteArray kNoColorFlags = "509"; // so that the base image is drawn

const QList<QStyle::State> kStates{ QStyle::State_None, QStyle::State_Enabled | QStyle::State_MouseOver,
    QStyle::State_Enabled | QStyle::State_Sunken | QStyle::State_On };

QByteArray attributes(const QList<QByteArray> &names, const QByteArray &value)
{
    QByteArray result;
    for (const QByteArray &name : names) {
        result += '<' + name + '>' + value + "</" + name + '>';
        result += '<' + name + ":Hover>" + value + "</" + name + ":Hover>";
    }
    return result;
}

// Every control in a shown window, with texts and a colour rectangle. No layout: a control may be as large as the
// theme says without making the window so.
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
        const QList<QWidget *> controls = findChildren<QWidget *>();
        for (int i = 0; i < controls.size(); ++i)
            controls[i]->setGeometry(10, 10 + i * 40, 200, 30);
        resize(300, 400);
        show();
    }
};

// Shown, grabbed at two scales, painted in every status and measured; paints of odd sizes too.
void exercise(QWidget *window)
{
    QVERIFY(QTest::qWaitForWindowExposed(window));
    QCoreApplication::processEvents();
    for (QWidget *widget : window->findChildren<QWidget *>()) {
        widget->sizeHint();
        if (!widget->size().isEmpty() && widget->width() < 2000 && widget->height() < 2000)
            Probe::grab(widget, 2);
        auto *object = dynamic_cast<CustomObject *>(widget);
        QVERIFY(object);
        for (const QStyle::State &state : kStates) {
            for (const QSize &size : { QSize(0, 0), QSize(1, 1), QSize(-5, 3), QSize(120, 30) }) {
                for (const int type : { 0, 1, 2, 3, 4, 5, 99 }) {
                    QStyleOptionButton option;
                    option.initFrom(widget);
                    option.state = state;
                    option.text = QStringLiteral("Text");
                    option.rect = QRect(QPoint(0, 0), size);
                    Probe::painted(QSize(120, 30), [&](QPainter *painter) {
                        object->cDrawWidget(Custom::CustomWidgetType(type), painter, option.rect, &option);
                        object->cDrawColorRect(painter, option.rect);
                    });
                }
            }
        }
    }
}

// Deletes another widget when the skin changes.
class Killer : public CustomWidget
{
public:
    explicit Killer(QWidget *parent) : CustomWidget(parent) { }
    QList<QPointer<QWidget>> victims;

protected:
    void customEvent(QEvent *event) override
    {
        CustomWidget::customEvent(event);
        for (const QPointer<QWidget> &victim : qAsConst(victims))
            delete victim.data();
        victims.clear();
    }
};

} // namespace

class BrokenThemeTest : public StyleTest
{
    Q_OBJECT

private Q_SLOTS:
    void valuesDoNoHarm_data();
    void valuesDoNoHarm();
    void emptyClassesDoNoHarm();
    void hugeDocument();
    void controlDeletedDuringASkinChange();

private:
    QByteArray image(int bytes)
    {
        const QString path = scratchFile("", QStringLiteral(".png"));
        QImage picture(16, 16, QImage::Format_ARGB32);
        picture.fill(Qt::red);
        return picture.save(path) && QFile::resize(path, bytes) ? path.toUtf8() : QByteArray();
    }
    QString styleAll(const QByteArray &values)
    {
        QByteArray document;
        for (const QByteArray &name : kClasses)
            document += classXml(name, "Default", values);
        return addDocument(document);
    }
};

void BrokenThemeTest::valuesDoNoHarm_data()
{
    QTest::addColumn<QByteArray>("values");
    const auto flags
        = [](const QByteArray &bits) -> QByteArray { return "<ObjectParameter>" + bits + "</ObjectParameter>"; };
    const QByteArray sane = attributes(kNumberAttributes, "3") + attributes(kColorAttributes, "#336699");
    for (const QByteArray &number : QList<QByteArray>{ "", "#Empty#", "-1", "-100000", "0", "100000", "2147483647",
             "-2147483648", "99999999999999999999", "ten", "1e9", "3.7", "NaN" }) {
        QTest::addRow("numbers %s", number.constData())
            << flags(kAllFlags) + sane + attributes(kNumberAttributes, number);
        QTest::addRow("drawn border, numbers %s", number.constData())
            << flags("286") + sane + attributes(kNumberAttributes, number);
        for (const QByteArray &name : kNumberAttributes)
            QTest::addRow("%s %s", name.constData(), number.constData())
                << flags("286") + sane + attributes({ name }, number);
        QTest::addRow("size %s", number.constData()) << flags(kAllFlags) + sane + "<WidgetWidth>" + number
                + "</WidgetWidth><WidgetHeight>" + number + "</WidgetHeight>";
        QTest::addRow("flags %s", number.constData()) << flags(number) + sane;
    }
    for (const QByteArray &color : QList<QByteArray>{ "", "#", "#zzzzzz", "rgba(", "rgba()", "rgba(999,-1,x,70000)",
             "DB_COLOR_", "DB_COLOR_A", "DB_COLOR_Unknown", "/none.png", "qlineargradient(", "qlineargradient(**)",
             "qlineargradient(x1:nan;y1:inf;x2:-1e308;y2:1e308**stop:0 #ff0000;stop:9 #00ff00;stop:x DB_COLOR_A;)" })
        QTest::addRow("colours %s", color.constData()) << flags("286") + sane + attributes(kColorAttributes, color);
    QTest::newRow("unknown images") << flags(kAllFlags) + sane + attributes(kImageAttributes, "/none.png");
    QTest::newRow("unknown images, base") << flags(kNoColorFlags) + sane + attributes(kImageAttributes, "/none.png");
    QTest::newRow("truncated images") << flags(kAllFlags) + sane + attributes(kImageAttributes, "@40");
    QTest::newRow("images of no bytes") << flags(kNoColorFlags) + sane + attributes(kImageAttributes, "@0");
    QTest::newRow("folders as images") << flags(kNoColorFlags) + sane + attributes(kImageAttributes, "/");
    QTest::newRow("wide margins of an image")
        << flags(kAllFlags) + attributes(kNumberAttributes, "100000") + attributes(kImageAttributes, "@99");
}

void BrokenThemeTest::valuesDoNoHarm()
{
    QFETCH(QByteArray, values);
    // A circle of names, and one that names itself.
    addColors("<Color Id='A' Value='DB_COLOR_B'/><Color Id='B' Value='DB_COLOR_A'/><Color Id='C' Value='DB_COLOR_C'/>");
    for (const int bytes : { 40, 0, 99 })
        values.replace("@" + QByteArray::number(bytes) + "<", image(bytes) + "<");
    styleAll(values);
    Window window;
    exercise(&window);
    Custom::changeSkin();
    exercise(&window);
}

void BrokenThemeTest::emptyClassesDoNoHarm()
{
    addDocument("<Class/><Class Name=''/><Class Name='CustomPushButton'/>"
                "<Class Name='CustomCheckBox'><Selector/><Selector Name=''/><Selector Name='Default'/></Class>");
    Window window;
    exercise(&window);
    QVERIFY(QFile::remove(addDocument(classXml("CustomPushButton", "Default", "<FontSize>20</FontSize>"))));
    Custom::changeSkin(); // its document is gone
    exercise(&window);
}

void BrokenThemeTest::hugeDocument()
{
    // 10 MB: many attributes, and one value of 2 MB.
    QByteArray values = "<ObjectParameter>286</ObjectParameter><Note>" + QByteArray(2 * 1024 * 1024, 'x') + "</Note>";
    values.reserve(11 * 1024 * 1024);
    for (int i = 0; values.size() < 10 * 1024 * 1024; ++i)
        values
            += "<Attribute" + QByteArray::number(i) + ">DB_COLOR_Some_Name</Attribute" + QByteArray::number(i) + ">\n";
    addDocument(classXml("CustomPushButton", "Default", values + "<BackgroundColor>#ff0000</BackgroundColor>"));
    Window window;
    exercise(&window);
    auto *button = window.findChild<CustomPushButton *>();
    QCOMPARE(button->cBackgroundColor(), QBrush(Qt::red)); // read to its end
}

void BrokenThemeTest::controlDeletedDuringASkinChange()
{
    const QString document = styleAll("<ObjectParameter>2</ObjectParameter><BackgroundColor>#ff0000</BackgroundColor>");
    QWidget window;
    QList<QPointer<QWidget>> victims;
    QList<Killer *> killers;
    for (int i = 0; i < 20; ++i) {
        killers += new Killer(&window);
        victims += new CustomPushButton(&window);
        victims += new CustomCheckBox(victims.last());
    }
    auto *survivor = new CustomPushButton(&window);
    for (int i = 0; i < killers.size(); ++i)
        killers[i]->victims = victims.mid(2 * i, 2);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCOMPARE(survivor->cBackgroundColor(), QBrush(Qt::red));
    QFile file(document);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("<Style>"
        + classXml("CustomPushButton", "Default",
            "<ObjectParameter>2</ObjectParameter><BackgroundColor>#0000ff</BackgroundColor>")
        + "</Style>");
    file.close();
    Custom::changeSkin();
    for (const QPointer<QWidget> &victim : qAsConst(victims))
        QVERIFY(victim.isNull());
    QCOMPARE(survivor->cBackgroundColor(), QBrush(Qt::blue));
    exercise(&window);
}

ZANTHIC_TEST_MAIN(BrokenThemeTest)
#include "tst_broken_theme.moc"
