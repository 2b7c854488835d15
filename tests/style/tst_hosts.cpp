#include "StyleHost.h"
#include "support/Probe.h"

#include "style/CustomPrivate_p.h"

#include <Zanthic/Zanthic.h>

using Custom::En_us;
using Custom::Zh_cn;

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

namespace {

// The family in force after a change of language, and whether the controls have to follow.
QString changedTo(Custom::Language language)
{
    Custom::setLanguage(language);
    return Custom::globalFontFamily() + (CustomPrivate::isFontFamilyChange() ? " changes" : "");
}

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

class TestHosts : public StyleTest
{
    Q_OBJECT

private:
    void addSheet(const QByteArray &tag, const QByteArray &path)
    {
        addDocument("<Class Name='Q'><QSS><" + tag + ">" + path + "</" + tag + "></QSS></Class>");
    }

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
        QByteArray text = classXml(
            "Sample", "Default", "<FontSize>9</FontSize><WidgetWidth>30</WidgetWidth><WidgetHeight>20</WidgetHeight>");
        const QString path = addDocument(text);
        QWidget window;
        StyleHost host("Sample"_s, "Default"_s, &window);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        host.cSetBackgroundColor("#123456"_s);
        overwrite(path, "<Style>" + text.replace("9", "12").replace("0", "1") + "</Style>");
        Custom::changeSkin();
        host.data()->dirty = false;
        for (const int type : { 5097, 5099, 5098 }) {
            QCoreApplication::processEvents();
            host.paints = 0;
            QEvent event{ QEvent::Type(type) };
            event.accept();
            host.cCustomEvent(&event);
            const bool isSkin = type == 5098;
            QVERIFY(event.isAccepted() != isSkin && host.data()->dirty == isSkin);
            QVERIFY(host.data()->parameters == Custom::ParamBackgroundColor && host.data()->localValues.size() == 1);
            QCoreApplication::processEvents();
            QCOMPARE(host.paints > 0, isSkin);
        }
        // Font and size follow at the next read.
        QVERIFY(host.size() == QSize(30, 20) && host.font().pixelSize() == 9);
        host.cFont();
        QVERIFY(host.size() == QSize(31, 21) && host.font().pixelSize() == 12);
    }

    void readyHostsPaintTheirBox()
    {
        Custom::addXmlPath(dataFile("box.xml"_s));
        ForgetfulWidget widget; // is styled by the name of its base
        CustomFrame frame;
        frame.cSetClassName("CustomWidget"_s);
        const auto colors = [](auto &host) -> QString {
            host.resize(40, 30);
            host.cSetColorRect(0, QRect(10, 10, 5, 5), Qt::red);
            const QImage image = Probe::grab(&host);
            return Probe::colorAt(image, 1, 12) + Probe::colorAt(image, 5, 12) + Probe::colorAt(image, 12, 12);
        };
        // Colour rectangles are the frame's alone.
        QCOMPARE(colors(widget), "#ff0000ff#ff00ff00#ff00ff00"_s);
        QCOMPARE(colors(frame), "#ff0000ff#ff00ff00#ffff0000"_s);
        widget.cSetStyleSelector(Custom::GrayWhite);
        QCOMPARE(colors(widget), "#ff0000ff#ffff00ff#ffff00ff"_s);
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
            Custom::setLanguage(En_us);
            QCOMPARE(sheetHost.color(), "#ff0000ff"_s);
            if (own)
                sheetHost.cSetPrivateFontFamily("Mine"_s);
            Custom::setLanguage(Zh_cn);
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
        Custom::setGlobalFontFamily(Zh_cn, QString());
        host.cSetPrivateFontFamily("Again"_s);
        QCOMPARE(host.styleSheet(), "A{font:'Mine'}B{font:'Mine'}C{font:'family en'}"_s);
    }

    void families_data() { addRowsOf("cases/families.txt"_s, { "attributes", "zh", "en", "inForce", "toZh", "toEn" }); }
    void families()
    {
        addDocument(classXml("Global", "Default", cell("attributes").toUtf8()));
        QTEST(Custom::globalFontFamily(), "inForce");
        QTEST(changedTo(Zh_cn), "toZh");
        QTEST(changedTo(En_us), "toEn");
        QCOMPARE(Custom::language(), En_us);
        QTEST(Custom::globalFontFamily(En_us), "en"); // which files an empty one
        QTEST(Custom::globalFontFamily(Zh_cn), "zh");
    }

    void nextDocumentSetsTheFirstFamilyAgain()
    {
        Custom::addXmlPath(dataFile("families.xml"_s));
        QCOMPARE(changedTo(En_us), "Family En changes"_s);
        QCOMPARE(changedTo(En_us), "Family En"_s); // only the second comparison shows
        Custom::addXmlPath("/no/such/document"_s);
        QCOMPARE(Custom::globalFontFamily(), "Family En"_s);
        addDocument(classXml("Global", "Default", "<FontFamily:En_us>New</FontFamily:En_us>"));
        QVERIFY(Custom::globalFontFamily() == "Family Zh"_s && Custom::language() == En_us);
        Custom::setGlobalFontFamily(Zh_cn, "Newer"_s); // which tells nobody
        QCOMPARE(Custom::globalFontFamily(), "Family Zh"_s);
        QCOMPARE(changedTo(En_us), "New changes"_s);
    }

    void sheetsOfAllTypes_data() { addRowsOf("cases/sheets.txt"_s, { "type", "tag" }); }
    void sheetsOfAllTypes()
    {
        const int type = int(number("type"));
        addSheet(cell("tag").toUtf8(), scratchFile("sheet").toUtf8());
        addSheet(cell("tag").toLower().toUtf8(), "/no/such/file"); // tags keep their case
        for (int i = -1; i <= 11; ++i)
            QCOMPARE(Custom::styleSheet(Custom::StyleSheetType(i)), i == type ? "sheet"_s : QString());
    }

    void placeholders_data() { addRowsOf("cases/placeholders.txt"_s, { "file", "sheet" }); }
    void placeholders()
    {
        Custom::addXmlPath(dataFile("families.xml"_s));
        addSheet("CustomTabBar", scratchFile(cell("file").toUtf8()).toUtf8());
        QTEST(Custom::styleSheet(Custom::SheetTabBar), "sheet");
    }

    void sheetsAreBuiltOnceForASkin()
    {
        const QString path = scratchFile(QByteArray("one ##EnusFontFamily##\0rest", 27)); // ends at the NUL
        addSheet("CustomSlider", path.toUtf8());
        Custom::addXmlPath(dataFile("families.xml"_s));
        QCOMPARE(Custom::styleSheet(Custom::SheetSlider), "one Family En"_s);
        overwrite(path, "two ##EnusFontFamily##");
        Custom::setGlobalFontFamily(En_us, "New"_s);
        addDocument(QByteArray());
        QCOMPARE(Custom::styleSheet(Custom::SheetSlider), "one Family En"_s);
        Custom::changeSkin(); // reads the families of the documents again, too
        QCOMPARE(Custom::styleSheet(Custom::SheetSlider), "two Family En"_s);
    }

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
        auto *middle = new QVBoxLayout;
        QLayout *deep = Custom::createLayout(Qt::Vertical);
        QLayout *inner = Custom::createLayout(Qt::Horizontal);
        QVERIFY(qobject_cast<QVBoxLayout *>(deep) && qobject_cast<QHBoxLayout *>(inner));
        QVERIFY(inner->contentsMargins().isNull() && inner->spacing() == 0 && !inner->parent());
        outer.addWidget(new QWidget);
        outer.addLayout(middle, 1, 1);
        middle->addWidget(new QWidget);
        middle->addItem(deep);
        deep->addItem(inner);
        Custom::removeChildLayoutItem(nullptr, inner);
        Custom::removeChildLayoutItem(&outer, nullptr);
        Custom::removeChildLayoutItem(middle, &outer); // is no child of it
        QVERIFY(deep->count() == 1);
        Custom::removeChildLayoutItem(&outer, inner);
        QVERIFY(outer.count() == 2 && middle->count() == 2 && deep->count() == 0);
        delete inner; // it isn't deleted
    }
};

ZANTHIC_TEST_MAIN(TestHosts)
#include "tst_hosts.moc"
