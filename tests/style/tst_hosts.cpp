#include "StyleHost.h"
#include "support/Probe.h"
#include "support/StyleTest.h"

#include "style/CustomPrivate_p.h"
#include "style/CustomStyleSheetData_p.h"

#include <Zanthic/ChangeSkinEvent.h>
#include <Zanthic/CustomFrame.h>
#include <Zanthic/CustomWidget.h>

#include <QtGui/QKeyEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QGraphicsDropShadowEffect>
#include <QtWidgets/QStyleOption>

namespace {

QString text(const char *latin1)
{
    return QString::fromLatin1(latin1);
}

const char kFamilies[] = "<FontFamily:Zh_cn>Family Zh</FontFamily:Zh_cn><FontFamily:En_us>Family En</FontFamily:En_us>";

class NullHelper : public CustomQssHelper
{
public:
    NullHelper() : CustomQssHelper(static_cast<CustomQssHelperData *>(nullptr)) { }
};

class NullObject : public CustomObject
{
public:
    NullObject() : CustomObject(nullptr, QString(), QString())
    {
        delete std::exchange(CustomQssHelper::d, nullptr);
        d = nullptr;
    }
};

class ForgetfulWidget : public CustomWidget
{
    Q_OBJECT
};

class NamedWidget : public CustomWidget
{
    Q_OBJECT

public:
    NamedWidget() { cSetClassName(QString::fromLatin1(metaObject()->className())); }
    int keys = 0;

protected:
    void keyPressEvent(QKeyEvent *) override { ++keys; }
};

} // namespace

// A control that is styled by a style sheet. Outside of the anonymous namespace, so that a sheet can name it.
class SheetHost : public QWidget, public CustomQssHelper
{
    Q_OBJECT
    Q_PROPERTY(QString StyleSelector READ cStyleSelector WRITE cSetStyleSelector)
    Q_PROPERTY(QString LanguageString READ cLanguageString)

public:
    SheetHost() : CustomQssHelper(this) { setAttribute(Qt::WA_StyledBackground); }
};

class TestHosts : public StyleTest
{
    Q_OBJECT

private Q_SLOTS:
    void sheetSelectsOnProperties();
    void onlySkinEventsCount();
    void skinChangeKeepsOverrides();
    void selectorWaitsForTheNextPaint();
    void readyHostsPaintTheirBox();
    void classNameIsTheConstructorsOwn();
    void languageChangeReachesWhatFollows();
    void privateFamilyReplacesBothInTheSheet();
    void privateFamilyWithoutSheet();
    void shadowIsInert();
    void userData();
    void nullHelperDoesNothing();
    void nullObjectDoesNothing();
    void mixInWithoutHost();
};

void TestHosts::sheetSelectsOnProperties()
{
    addDocument(classXml("Global", "Default", kFamilies));
    SheetHost host;
    QCOMPARE(host.property("StyleSelector"), QVariant(QString()));
    QCOMPARE(host.property("LanguageString"), QVariant(text("En_us")));
    host.setStyleSheet(text("SheetHost { background: #0000ff; } SheetHost[StyleSelector=\"GrayWhite\"] { background: "
                            "#ff0000; } SheetHost[LanguageString=\"Zh_cn\"] { background: #00ff00; }"));
    const auto color = [&host] { return Probe::colorAt(Probe::grab(&host), 5, 5); };
    QCOMPARE(color(), text("#ff0000ff"));
    host.cSetStyleSelector(Custom::GrayWhite);
    QCOMPARE(host.cStyleSelector(), text("GrayWhite"));
    QCOMPARE(color(), text("#ff0000ff")); // until it is polished again
    host.style()->unpolish(&host);
    host.style()->polish(&host);
    QCOMPARE(color(), text("#ffff0000"));
    QVERIFY(host.setProperty("StyleSelector", text("Other")));
    QCOMPARE(host.cStyleSelector(), text("Other"));
    host.cSetStyleSelector(Custom::CommonStyleSelector(7));
    QCOMPARE(host.cStyleSelector(), text("Default"));
    Custom::setLanguage(Custom::Zh_cn);
    CustomPrivate::setIsFontFamilyChange(true);
    host.cLanguageChange();
    QCOMPARE(color(), text("#ff00ff00"));
}

void TestHosts::onlySkinEventsCount()
{
    addDocument(classXml("Sample", "Default", "<ObjectParameter>6</ObjectParameter><FontSize>9</FontSize>"));
    StyleHost host;
    host.show();
    QVERIFY(QTest::qWaitForWindowExposed(&host));
    host.cSetFontColor(text("#123456"));
    for (const int type : { 5097, 5099, int(QEvent::User), int(QEvent::StyleChange), 5098 }) {
        QCoreApplication::processEvents();
        host.paints = 0;
        QEvent event{ QEvent::Type(type) };
        event.accept();
        host.cCustomEvent(&event);
        const bool isSkin = type == 5098;
        QCOMPARE(event.isAccepted(), !isSkin);
        QCOMPARE(host.data()->dirty, isSkin);
        QCOMPARE(host.data()->styleValues.isEmpty(), isSkin);
        QCOMPARE(host.data()->parameters, quint32(6));
        QCOMPARE(host.data()->localValues.size(), 1);
        QCoreApplication::processEvents();
        QCOMPARE(host.paints > 0, isSkin);
    }
    host.cCustomEvent(nullptr);
    QCOMPARE(host.cFontSize(), 9);
    QCOMPARE(host.cFontColor(), QColor(0x12, 0x34, 0x56));
}

void TestHosts::skinChangeKeepsOverrides()
{
    const QString path = addDocument(classXml("Sample", "Default",
        "<FontSize>9</FontSize><ObjectParameter>1</ObjectParameter><WidgetWidth>30</WidgetWidth>"
        "<WidgetHeight>20</WidgetHeight>"));
    StyleHost host;
    host.cSetParameter(Custom::ParamBorderImage, true);
    host.cSetAttributeValue(text("Own"), text("mine"));
    QCOMPARE(host.size(), QSize(30, 20));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("<Style>"
        + classXml("Sample", "Default",
            "<FontSize>12</FontSize><ObjectParameter>2</ObjectParameter>"
            "<WidgetWidth>31</WidgetWidth><WidgetHeight>21</WidgetHeight>")
        + "</Style>");
    file.close();
    Custom::changeSkin();
    // Font and size follow at the next read, not at the event.
    QCOMPARE(host.size(), QSize(30, 20));
    QCOMPARE(host.font().pixelSize(), 9);
    QCOMPARE(host.cAttributeValue(text("Own")), text("mine"));
    QCOMPARE(host.size(), QSize(31, 21));
    QCOMPARE(host.font().pixelSize(), 12);
    QCOMPARE(host.data()->parameters, quint32(35));
}

void TestHosts::selectorWaitsForTheNextPaint()
{
    addDocument("<Class Name='CustomWidget'><Selector Name='Default'><ObjectParameter>2</ObjectParameter>"
                "<BackgroundColor>#ff0000</BackgroundColor></Selector><Selector Name='GrayWhite'>"
                "<BackgroundColor>#00ff00</BackgroundColor></Selector></Class>");
    CustomWidget host;
    QCOMPARE(Probe::colorAt(Probe::grab(&host), 3, 3), text("#ffff0000"));
    host.cSetStyleSelector(Custom::GrayWhite);
    QVERIFY(CustomObjectData::get(&host)->dirty);
    QCOMPARE(Probe::colorAt(Probe::grab(&host), 3, 3), text("#ff00ff00"));
}

void TestHosts::readyHostsPaintTheirBox()
{
    const QByteArray attributes = "<ObjectParameter>286</ObjectParameter><BorderRadius:AllCorner>4</"
                                  "BorderRadius:AllCorner><BackgroundColor>#00ff00</BackgroundColor>"
                                  "<BorderWidth:AllEdge>3</BorderWidth:AllEdge>"
                                  "<BorderColor:AllEdge>#0000ff</BorderColor:AllEdge>";
    addDocument(classXml("CustomWidget", "Default", attributes) + classXml("CustomFrame", "Default", attributes));
    CustomWidget widget;
    CustomFrame frame;
    const auto at = [](QWidget &host, CustomObject &object, int x) {
        host.resize(40, 30);
        object.cSetColorRect(0, QRect(10, 10, 5, 5), Qt::red);
        return Probe::colorAt(Probe::grab(&host), x, 12);
    };
    for (const int x : { 1, 38 }) {
        QCOMPARE(at(widget, widget, x), text("#ff0000ff"));
        QCOMPARE(at(frame, frame, x), text("#ff0000ff"));
    }
    QCOMPARE(at(widget, widget, 5), text("#ff00ff00"));
    QCOMPARE(at(frame, frame, 5), text("#ff00ff00"));
    // Colour rectangles are the frame's alone.
    QCOMPARE(at(widget, widget, 12), text("#ff00ff00"));
    QCOMPARE(at(frame, frame, 12), text("#ffff0000"));

    QEvent skin{ QEvent::Type(ChangeSkinEvent::EventType) };
    QCoreApplication::sendEvent(&widget, &skin);
    QCoreApplication::sendEvent(&frame, &skin);
    QVERIFY(CustomObjectData::get(&widget)->dirty && CustomObjectData::get(&frame)->dirty);
    QVERIFY(widget.windowFlags() == QWidget().windowFlags() && frame.windowFlags() == QFrame().windowFlags());
}

void TestHosts::classNameIsTheConstructorsOwn()
{
    addDocument(classXml("CustomWidget", "Default", "<FontSize>5</FontSize>")
        + classXml("NamedWidget", "Default", "<FontSize>6</FontSize>")
        + classXml("(anonymous namespace)::NamedWidget", "Default", "<FontSize>6</FontSize>"));
    QCOMPARE(ForgetfulWidget().cFontSize(), 5);
    NamedWidget named;
    QCOMPARE(named.cFontSize(), 6);
    QCOMPARE(named.cStyleSelector(), text("Default"));
    QKeyEvent event(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier);
    named.cExecKeyPressEvent(&event);
    QCOMPARE(named.keys, 1);
}

void TestHosts::languageChangeReachesWhatFollows()
{
    addDocument(classXml("Global", "Default", kFamilies));
    // The flag and the control's own family decide; both mix-ins ask the same.
    const struct
    {
        bool changed;
        bool own;
        bool follows;
    } rows[] = { { true, false, true }, { false, false, false }, { true, true, false } };
    for (const auto &row : rows) {
        StyleHost host;
        host.data()->initData();
        host.setFont(QFont(text("Before"), 23, QFont::Bold));
        host.cSetIsUserFontFamily(row.own);
        SheetHost sheetHost;
        sheetHost.setStyleSheet(text("SheetHost { background: #0000ff; } SheetHost[LanguageString=\"Zh_cn\"] "
                                     "{ background: #00ff00; }"));
        Custom::setLanguage(Custom::En_us);
        Probe::grab(&sheetHost);
        if (row.own)
            sheetHost.cSetPrivateFontFamily(text("Mine"));
        Custom::setLanguage(Custom::Zh_cn);
        CustomPrivate::setIsFontFamilyChange(row.changed);
        host.cLanguageChange();
        sheetHost.cLanguageChange();
        QCOMPARE(host.font().family(), text(row.follows ? "Family Zh" : "Before"));
        QVERIFY(host.font().bold() && host.font().pointSize() == 23);
        QCOMPARE(Probe::colorAt(Probe::grab(&sheetHost), 5, 5), text(row.follows ? "#ff00ff00" : "#ff0000ff"));
    }
}

void TestHosts::privateFamilyReplacesBothInTheSheet()
{
    addDocument(classXml("Global", "Default", kFamilies));
    SheetHost host;
    host.setStyleSheet(text("A{font-family:'Family Zh'}B{font-family:'Family En'}C{font-family:'family en'}"));
    host.cSetPrivateFontFamily(text("Mine"));
    const QString replaced = text("A{font-family:'Mine'}B{font-family:'Mine'}C{font-family:'family en'}");
    QCOMPARE(host.styleSheet(), replaced);
    // An empty family would be found between all characters.
    Custom::setGlobalFontFamily(Custom::Zh_cn, QString());
    host.cSetPrivateFontFamily(text("Again"));
    QCOMPARE(host.styleSheet(), replaced);
    Custom::setGlobalFontFamily(Custom::Zh_cn, text("Family Zh"));
    // The text is replaced once: a sheet that is set later stays as it is.
    host.setStyleSheet(text("A{font-family:'Family Zh'}"));
    QCOMPARE(host.styleSheet(), text("A{font-family:'Family Zh'}"));

    StyleHost object;
    object.setStyleSheet(text("A{font-family:'Family Zh'}"));
    object.cSetPrivateFontFamily(text("Mine"));
    QCOMPARE(object.styleSheet(), text("A{font-family:'Mine'}"));
    QVERIFY(object.cHasParameter(Custom::ParamUserFontFamily));
    QCOMPARE(object.notified, QStringList("FontFamily=Mine@0"));
}

void TestHosts::privateFamilyWithoutSheet()
{
    addDocument(classXml("Global", "Default", kFamilies));
    StyleHost host;
    host.cSetPrivateFontFamily(text("Mine"));
    QVERIFY(host.styleSheet().isEmpty());
    QVERIFY(host.data()->hasParameter(Custom::ParamUserFontFamily));
    QCOMPARE(host.font().family(), text("Mine"));
    // It stays through a language, a skin and a rebuild.
    Custom::setLanguage(Custom::En_us);
    host.cLanguageChange();
    Custom::changeSkin();
    QCOMPARE(host.cFontFamily(), text("Mine"));
    QCOMPARE(host.font().family(), text("Mine"));
    host.cSetIsUserFontFamily(false);
    QCOMPARE(host.font().family(), text("Mine"));
    host.cResetAllValue();
    QCOMPARE(host.font().family(), text("Family Zh"));
}

void TestHosts::shadowIsInert()
{
    StyleHost host;
    QWidget target;
    host.cSetShadowEnable(true, nullptr);
    host.cSetShadowEnable(true, &target);
    host.cSetShadowBulrRadius(5.0F);
    host.cSetShadowOffset(QPointF(3, 4));
    host.cSetShadowColor(Qt::red);
    QVERIFY(!host.graphicsEffect() && !target.graphicsEffect());
    QVERIFY(!host.cShadowEnable() && !host.cShadowColor().isValid());
    QCOMPARE(host.cShadowBulrRadius(), 0.0F);
    QCOMPARE(host.cShadowOffset(), QPointF(0, 0));
    QCOMPARE(host.data()->shadowEffect(true), nullptr);
    host.cSetShadowEnable(false, &target);
}

void TestHosts::userData()
{
    StyleHost host;
    QVERIFY(!host.cUserData().isValid());
    host.cSetUserData(42);
    Custom::changeSkin();
    QCOMPARE(host.cUserData(), QVariant(42));
}

void TestHosts::nullHelperDoesNothing()
{
    NullHelper null;
    null.cSetStyleSelector(text("A"));
    null.cSetStyleSelector(Custom::GrayWhite);
    null.cSetPrivateFontFamily(text("F"));
    null.cSetShadowEnable(true, nullptr);
    null.cSetShadowBulrRadius(1);
    null.cSetShadowOffset(QPointF(1, 1));
    null.cSetShadowColor(Qt::red);
    null.cSetUserData(1);
    null.cRespondHotKey(nullptr);
    CustomPrivate::setIsFontFamilyChange(true);
    null.cLanguageChange();
    QVERIFY(null.cStyleSelector().isEmpty() && null.cLanguageString().isEmpty() && !null.cShadowEnable());
    QVERIFY(null.cShadowBulrRadius() == 0.0F && null.cShadowOffset().isNull() && !null.cShadowColor().isValid());
    QCOMPARE(null.cUserData().type(), QVariant::String);
    QVERIFY(null.cUserData().toString().isEmpty());
}

void TestHosts::nullObjectDoesNothing()
{
    NullObject null;
    StyleHost other;
    other.cSetFontSize(4);
    QEvent skin{ QEvent::Type(ChangeSkinEvent::EventType) };
    skin.accept();
    null.cCustomEvent(&skin);
    QVERIFY(skin.isAccepted());
    null.cSetClassName(text("A"));
    null.cSetParentClassName(text("A"));
    null.cSetStyleSelector(text("A"));
    null.cSetAttributeValue(text("A"), text("b"));
    null.cClearValue(text("A"));
    null.cResetAllValue();
    null.cCopyAttribute(&other);
    other.cCopyAttribute(&null);
    QCOMPARE(other.cFontSize(), 4);
    null.cSetParameter(Custom::ParamBorderColor, true);
    null.cSetIsUserFontFamily(true);
    null.cSetPrivateFontFamily(text("F"));
    null.cSetFont(QFont());
    null.cSetFontSize(3);
    null.cSetBorderWidth(3);
    null.cSetBorderRadius(3);
    null.cSetBorderColor(text("#fff"));
    null.cSetBackgroundColor(text("#fff"));
    null.cSetBorderImage(text("i"));
    CustomPrivate::setIsFontFamilyChange(true);
    null.cLanguageChange();
    null.cResizeEvent();
    null.cSetColorRect(0, QRect(), QBrush());

    bool ok = true;
    QVERIFY(null.cAttributeValue(text("A"), Custom::Hover, {}, &ok).isEmpty() && !ok);
    QVERIFY(null.cFontSize() == 0 && null.cFontFamily().isEmpty() && !null.cFontColor().isValid());
    QVERIFY(null.cBorderWidth(Custom::Left) == 0 && null.cBorderRadius(Custom::LeftTop) == 0);
    QVERIFY(null.cBackgroundColor() == QBrush() && null.cBorderColor(Custom::Top) == QBrush());
    QVERIFY(null.cFont() == QFont() && !null.cHasParameter(Custom::ParamBorderColor));
    QVERIFY(null.cBackgroundImage().isEmpty() && null.cBorderImage().isEmpty());

    QStyleOption option;
    int borders[4] = { 7, 7, 7, 7 };
    null.cGetBorderParameter(borders, nullptr, nullptr, QRect());
    QCOMPARE(borders[0], 7);
    const QImage image = Probe::painted(QSize(9, 9), [&](QPainter *painter) {
        const QRect rect(0, 0, 9, 9);
        QVERIFY(!null.cDrawBackground(painter, rect) && !null.cDrawBorder(painter, rect));
        null.cDrawColorRect(painter, rect);
        for (int type = -1; type < 10; ++type)
            null.cDrawWidget(Custom::CustomWidgetType(type), painter, rect, &option);
    });
    QVERIFY(Probe::bounds(image, [](const QColor &color) { return color.alpha() > 0; }).isNull());
    QCOMPARE(null.cSizeHint(&option), QSize(-1, -1));
    QVERIFY(!null.cDrawContent(nullptr, nullptr));
}

void TestHosts::mixInWithoutHost()
{
    addDocument(classXml("Sample", "Default", "<WidgetWidth>5</WidgetWidth><WidgetHeight>5</WidgetHeight>"));
    CustomObject bare(nullptr, text("Ignored"), text("GrayWhite"));
    QCOMPARE(CustomObjectData::get(&bare)->className, QString());
    QCOMPARE(bare.cStyleSelector(), text("GrayWhite"));
    bare.cSetClassName(text("Sample"));
    QCOMPARE(bare.cAttributeValue(text("WidgetWidth")), text("5"));
    QEvent skin{ QEvent::Type(ChangeSkinEvent::EventType) };
    bare.cCustomEvent(&skin);
    QVERIFY(CustomObjectData::get(&bare)->dirty && !skin.isAccepted());
    bare.cSetPrivateFontFamily(text("F"));
    QVERIFY(bare.cHasParameter(Custom::ParamUserFontFamily));
    CustomPrivate::setIsFontFamilyChange(true);
    bare.cLanguageChange();
    bare.cSetShadowEnable(true);
    bare.cResizeEvent();
    CustomQssHelper helper(static_cast<QWidget *>(nullptr));
    helper.cSetPrivateFontFamily(text("F"));
    helper.cLanguageChange();
    QVERIFY(helper.cStyleSelector().isEmpty());
}

ZANTHIC_TEST_MAIN(TestHosts)
#include "tst_hosts.moc"
