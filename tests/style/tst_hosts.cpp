#include "StyleHost.h"
#include "support/Probe.h"

#include "style/CustomPrivate_p.h"

#include <Zanthic/ChangeSkinEvent.h>
#include <Zanthic/CustomFrame.h>
#include <Zanthic/CustomWidget.h>

#include <QtWidgets/QGraphicsDropShadowEffect>

// A control that is styled by a style sheet. Outside of the anonymous namespace, so that a sheet can name it.
class SheetHost : public QWidget, public CustomQssHelper
{
    Q_OBJECT
    Q_PROPERTY(QString StyleSelector READ cStyleSelector WRITE cSetStyleSelector)
    Q_PROPERTY(QString LanguageString READ cLanguageString)

public:
    SheetHost() : CustomQssHelper(this)
    {
        setAttribute(Qt::WA_StyledBackground);
        setStyleSheet("SheetHost { background: blue; } SheetHost[StyleSelector=\"GrayWhite\"] { background: red; } "
                      "SheetHost[LanguageString=\"Zh_cn\"] { background: lime; }"_s);
    }
    QString color() { return Probe::colorAt(Probe::grab(this), 5, 5); }
};

class ForgetfulWidget : public CustomWidget
{
    Q_OBJECT
};

class TestHosts : public StyleTest
{
    Q_OBJECT

private Q_SLOTS:
    void sheetSelectsOnTheSelectorWhenPolishedAgain()
    {
        SheetHost host;
        host.cSetStyleSelector(Custom::GrayWhite);
        QCOMPARE(host.color(), "#ffff0000"_s);
        host.cSetStyleSelector(Custom::CommonStyleSelector(7));
        QCOMPARE(host.cStyleSelector() + host.color(), "Default#ffff0000"_s);
        host.style()->unpolish(&host);
        host.style()->polish(&host);
        QCOMPARE(host.color(), "#ff0000ff"_s);
    }

    void onlySkinEventsCount()
    {
        addDocument(classXml("Sample", "Default", "<ObjectParameter>6</ObjectParameter><FontSize>9</FontSize>"));
        StyleHost host;
        host.show();
        QVERIFY(QTest::qWaitForWindowExposed(&host));
        host.cSetFontColor("#123456"_s);
        for (const int type : { 5097, 5099, 5098 }) {
            QCoreApplication::processEvents();
            host.paints = 0;
            QEvent event{ QEvent::Type(type) };
            event.accept();
            host.cCustomEvent(&event);
            const bool isSkin = type == 5098;
            QVERIFY(event.isAccepted() != isSkin && host.data()->dirty == isSkin);
            QVERIFY(host.data()->parameters == 6 && host.data()->localValues.size() == 1);
            QCoreApplication::processEvents();
            QCOMPARE(host.paints > 0, isSkin);
        }
        QVERIFY(host.cFontSize() == 9 && host.cFontColor() == QColor(0x12, 0x34, 0x56));
    }

    void skinChangeReachesFontAndSizeAtTheNextRead()
    {
        QByteArray text = classXml(
            "Sample", "Default", "<FontSize>9</FontSize><WidgetWidth>30</WidgetWidth><WidgetHeight>20</WidgetHeight>");
        const QString path = addDocument(text);
        StyleHost host;
        host.cFont();
        overwrite(path, "<Style>" + text.replace("9", "12").replace("0", "1") + "</Style>");
        Custom::changeSkin();
        QVERIFY(host.size() == QSize(30, 20) && host.font().pixelSize() == 9);
        host.cFont();
        QVERIFY(host.size() == QSize(31, 21) && host.font().pixelSize() == 12);
    }

    void readyHostsPaintTheirBox()
    {
        addDocument("<Class Name='CustomWidget'><Selector Name='Default'><ObjectParameter>286</ObjectParameter>"
                    "<BackgroundColor>#00ff00</BackgroundColor><BorderWidth:AllEdge>3</BorderWidth:AllEdge>"
                    "<BorderColor:AllEdge>#0000ff</BorderColor:AllEdge></Selector><Selector Name='GrayWhite'>"
                    "<BackgroundColor>#ff00ff</BackgroundColor></Selector></Class>");
        ForgetfulWidget widget; // is styled by the name of its base
        CustomFrame frame;
        frame.cSetClassName("CustomWidget"_s);
        const auto colors = [](QWidget *host, CustomObject *object) -> QString {
            host->resize(40, 30);
            object->cSetColorRect(0, QRect(10, 10, 5, 5), Qt::red);
            const QImage image = Probe::grab(host);
            return Probe::colorAt(image, 1, 12) + Probe::colorAt(image, 5, 12) + Probe::colorAt(image, 12, 12);
        };
        // Colour rectangles are the frame's alone.
        QCOMPARE(colors(&widget, &widget), "#ff0000ff#ff00ff00#ff00ff00"_s);
        QCOMPARE(colors(&frame, &frame), "#ff0000ff#ff00ff00#ffff0000"_s);
        widget.cSetStyleSelector(Custom::GrayWhite);
        QCOMPARE(colors(&widget, &widget), "#ff0000ff#ffff00ff#ffff00ff"_s);
        Custom::changeSkin();
        QVERIFY(CustomObjectData::get(&widget)->dirty && CustomObjectData::get(&frame)->dirty);
    }

    void languageReachesWhatFollows()
    {
        Custom::addXmlPath(dataFile("families.xml"_s));
        // The flag and the control's own family decide; both mix-ins ask the same.
        for (const auto &[changed, own] : { std::pair(true, false), std::pair(false, false), std::pair(true, true) }) {
            StyleHost host;
            host.cFont();
            host.setFont(QFont("Before"_s, 23, QFont::Bold));
            host.cSetIsUserFontFamily(own);
            SheetHost sheetHost;
            Custom::setLanguage(Custom::En_us);
            QCOMPARE(sheetHost.color(), "#ff0000ff"_s);
            if (own)
                sheetHost.cSetPrivateFontFamily("Mine"_s);
            Custom::setLanguage(Custom::Zh_cn);
            CustomPrivate::setIsFontFamilyChange(changed);
            host.cLanguageChange();
            sheetHost.cLanguageChange();
            const bool follows = changed && !own;
            QCOMPARE(host.font().family(), follows ? "Family Zh"_s : "Before"_s);
            QVERIFY(host.font().bold() && host.font().pointSize() == 23);
            QCOMPARE(sheetHost.color(), follows ? "#ff00ff00"_s : "#ff0000ff"_s);
        }
    }

    void privateFamilyReplacesBothInTheSheetAndStays()
    {
        Custom::addXmlPath(dataFile("families.xml"_s));
        StyleHost host;
        host.setStyleSheet("A{font:'Family Zh'}B{font:'Family En'}C{font:'family en'}"_s);
        host.cSetPrivateFontFamily("Mine"_s);
        Custom::changeSkin();
        QVERIFY(host.cFontFamily() == "Mine"_s && host.font().family() == "Mine"_s);
        // An empty family would be found between all characters.
        Custom::setGlobalFontFamily(Custom::Zh_cn, QString());
        host.cSetPrivateFontFamily("Again"_s);
        QCOMPARE(host.styleSheet(), "A{font:'Mine'}B{font:'Mine'}C{font:'family en'}"_s);
    }

    void shadowIsInert()
    {
        StyleHost host;
        host.cSetShadowEnable(true, nullptr);
        host.cSetShadowBulrRadius(5.0F);
        host.cSetShadowColor(Qt::red);
        QVERIFY(!host.graphicsEffect() && !host.cShadowEnable());
        QVERIFY(host.cShadowBulrRadius() == 0.0F && !host.cShadowColor().isValid());
    }
};

ZANTHIC_TEST_MAIN(TestHosts)
#include "tst_hosts.moc"
