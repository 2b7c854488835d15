#include "support/StyleTest.h"

#include "Appearance.h"
#include "GalleryWindow.h"
#include "pages/EnginePage.h"
#include "pages/PageRegistry.h"
#include "parts/Field.h"

#include <Zanthic/CustomObject.h>

#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLayout>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QScrollArea>

namespace {

/// The window as the program makes it, with an appearance of its own.
struct Gallery
{
    explicit Gallery(const QString &page, const QString &skin = QStringLiteral("light"),
        const QString &language = QStringLiteral("en_US"))
    {
        appearance.start(skin, language);
        window = std::make_unique<GalleryWindow>(&appearance);
        window->openPage(page);
    }
    QImage picture() const { return window->picture().toImage(); }

    Appearance appearance;
    std::unique_ptr<GalleryWindow> window;
};

QString describe(const QWidget *widget)
{
    const QVariant text = widget->property("text");
    return QStringLiteral("%1 '%2' is %3 x %4 px, needs %5 x %6")
        .arg(QLatin1String(widget->metaObject()->className()), text.toString())
        .arg(widget->width())
        .arg(widget->height())
        .arg(widget->sizeHint().width())
        .arg(widget->sizeHint().height());
}

/// Texts that have less room than they need.
QStringList clippedTexts(const QWidget *window)
{
    QStringList clipped;
    for (const QWidget *widget : window->findChildren<QWidget *>()) {
        const auto *label = qobject_cast<const QLabel *>(widget);
        const bool isButton = qobject_cast<const QAbstractButton *>(widget) != nullptr;
        if (widget->isHidden() || !(label || isButton))
            continue;
        const int needed = label && label->wordWrap() ? 0 : widget->sizeHint().width();
        const int neededHeight
            = label && label->wordWrap() ? label->heightForWidth(label->width()) : widget->sizeHint().height();
        if (widget->width() < needed || widget->height() < neededHeight)
            clipped << describe(widget);
    }
    return clipped;
}

/// Texts in another family than that of the language.
QStringList textsInOtherFamily(const QWidget *window)
{
    QStringList others;
    for (const QWidget *widget : window->findChildren<QWidget *>()) {
        const bool hasText = qobject_cast<const QLabel *>(widget) || qobject_cast<const QAbstractButton *>(widget)
            || qobject_cast<const QLineEdit *>(widget);
        if (hasText && !widget->isHidden() && widget->font().family() != Custom::globalFontFamily())
            others << describe(widget) + QLatin1String(" in ") + widget->font().family();
    }
    return others;
}

void addPages()
{
    for (const QString &page : pageNames())
        QTest::newRow(qPrintable(page)) << page;
}

} // namespace

class tst_Gallery : public StyleTest
{
    Q_OBJECT

private Q_SLOTS:
    void pageOpens_data();
    void pageOpens();
    void changeThereAndBackGivesTheSamePicture_data();
    void changeThereAndBackGivesTheSamePicture();
    void fontFollowsTheLanguage_data();
    void fontFollowsTheLanguage();
    void keyActsOnTheWholeWindow_data();
    void keyActsOnTheWholeWindow();
    void wheelOfPagesLeavesOnePage();
    void engineAnswers_data();
    void engineAnswers();
    void overrideWipesUntilTheDocumentIsTakenAnew();
    void explanationAgreesWithTheEngine();
};

void tst_Gallery::pageOpens_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("skin");
    QTest::addColumn<QString>("language");
    for (const QString &page : pageNames()) {
        for (const QString &skin : Appearance::skins()) {
            for (const QString &language : Appearance::languages())
                QTest::addRow("%s %s %s", qPrintable(page), qPrintable(skin), qPrintable(language))
                    << page << skin << language;
        }
    }
}

void tst_Gallery::pageOpens()
{
    QFETCH(QString, page);
    QFETCH(QString, skin);
    QFETCH(QString, language);
    Gallery gallery(page, skin, language);
    QVERIFY(!gallery.picture().isNull());
    QCOMPARE(gallery.window->pageName(), page);
    const QStringList clipped = clippedTexts(gallery.window.get());
    QVERIFY2(clipped.isEmpty(), qPrintable(clipped.join(QLatin1Char('\n'))));
    const auto *area = gallery.window->findChild<QScrollArea *>();
    QVERIFY(area->widget()->minimumSizeHint().width() <= area->viewport()->width());
}

void tst_Gallery::changeThereAndBackGivesTheSamePicture_data()
{
    QTest::addColumn<QString>("page");
    addPages();
}

void tst_Gallery::changeThereAndBackGivesTheSamePicture()
{
    QFETCH(QString, page);
    Gallery gallery(page);
    const QImage before = gallery.picture();

    gallery.appearance.nextSkin();
    const QImage otherSkin = gallery.picture();
    QVERIFY(otherSkin != before);
    gallery.appearance.nextSkin();
    QCOMPARE(gallery.picture(), before);

    gallery.appearance.nextLanguage();
    QVERIFY(gallery.picture() != before);
    gallery.appearance.nextSkin();
    gallery.appearance.nextLanguage();
    QCOMPARE(gallery.picture(), otherSkin);
}

void tst_Gallery::fontFollowsTheLanguage_data()
{
    QTest::addColumn<QString>("page");
    addPages();
}

void tst_Gallery::fontFollowsTheLanguage()
{
    QFETCH(QString, page);
    Gallery gallery(page);
    const auto others = [&gallery] {
        gallery.picture();
        return textsInOtherFamily(gallery.window.get()).join(QLatin1Char('\n'));
    };
    QCOMPARE(others(), QString());
    gallery.appearance.nextSkin();
    QCOMPARE(others(), QString());
    gallery.appearance.nextLanguage();
    QCOMPARE(others(), QString());
    gallery.appearance.nextSkin();
    QCOMPARE(others(), QString());
}

void tst_Gallery::keyActsOnTheWholeWindow_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("state"); // after the key
    QTest::newRow("Ctrl+T") << int(Qt::Key_T) << QStringLiteral("dark en_US enabled");
    QTest::newRow("Ctrl+L") << int(Qt::Key_L) << QStringLiteral("light zh_CN enabled");
    QTest::newRow("Ctrl+E") << int(Qt::Key_E) << QStringLiteral("light en_US disabled");
}

void tst_Gallery::keyActsOnTheWholeWindow()
{
    QFETCH(int, key);
    QFETCH(QString, state);
    Gallery gallery(QStringLiteral("engine"));
    GalleryWindow &window = *gallery.window;
    window.layout()->setSizeConstraint(QLayout::SetNoConstraint); // limits that the platform would warn about
    window.show();
    QApplication::setActiveWindow(&window);
    QVERIFY(QTest::qWaitForWindowActive(&window));
    const auto current = [&gallery] {
        return QStringList{ gallery.appearance.skin(), gallery.appearance.language(),
            gallery.window->page()->isEnabled() ? QStringLiteral("enabled") : QStringLiteral("disabled") }
            .join(QLatin1Char(' '));
    };
    QTest::keyClick(&window, Qt::Key(key), Qt::ControlModifier);
    QCOMPARE(current(), state);
    for (int more = 0; current() != QLatin1String("light en_US enabled") && more < 2; ++more)
        QTest::keyClick(&window, Qt::Key(key), Qt::ControlModifier);
    QCOMPARE(current(), QStringLiteral("light en_US enabled"));

    auto *field = window.findChild<Field *>();
    field->setFocus();
    QTest::keyClick(field, Qt::Key(key), Qt::ControlModifier);
    QCOMPARE(current(), state);
}

void tst_Gallery::wheelOfPagesLeavesOnePage()
{
    Gallery gallery(pageNames().constFirst());
    for (const QString &name : pageNames())
        gallery.window->openPage(name);
    gallery.window->openPage(QStringLiteral("no such page"));
    QCOMPARE(gallery.window->pageName(), pageNames().constLast());
    QCOMPARE(gallery.window->findChildren<GalleryPage *>().size(), 1);
}

void tst_Gallery::engineAnswers_data()
{
    QTest::addColumn<QString>("parent");
    QTest::addColumn<QString>("selector");
    QTest::addColumn<QString>("subs");
    QTest::addColumn<QString>("attribute");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("place"); // the last step: key, place, and what is special
    const auto row = [](const char *name, const char *parent, const char *selector, const char *subs,
                         const char *attribute, Custom::ItemStatus status, const char *value, const char *place) {
        QTest::newRow(name) << QString::fromLatin1(parent) << QString::fromLatin1(selector) << QString::fromLatin1(subs)
                            << QString::fromLatin1(attribute) << int(status) << QString::fromLatin1(value)
                            << QString::fromLatin1(place);
    };
    using namespace Custom;
    row("selector", "", "Wide", "", "Size", Normal, "20", "size selector");
    row("default selector", "", "Wide", "", "Color", Normal, "#101010", "color default");
    row("own status", "", "Default", "", "Color", Hover, "#202020", "color:hover default");
    row("fallback to Normal", "", "Wide", "", "Size", Pressed, "20", "size selector fellback");
    row("status of Default before Normal of the selector", "", "Wide", "", "Color", Hover, "#202020",
        "color:hover default");
    row("empty word", "", "Default", "", "Color", Disabled, "", "color:disabled default emptyword");
    row("sub-selectors", "", "Default", "item, checked", "Mark", Hover, "yes", "mark:item:checked default fellback");
    row("other sub-selector", "", "Default", "item", "Mark", Normal, "", "");
    row("nested class", "Outer", "Default", "", "Color", Normal, "#303030", "color default");
    row("unknown class", "Elsewhere", "Default", "", "Color", Normal, "", "");
    row("any case", "", "wide", "", "sIZE", Normal, "20", "size selector");
}

void tst_Gallery::engineAnswers()
{
    QFETCH(QString, parent);
    QFETCH(QString, selector);
    QFETCH(QString, subs);
    QFETCH(QString, attribute);
    QFETCH(int, status);
    QFETCH(QString, value);
    QFETCH(QString, place);
    Gallery gallery(QStringLiteral("engine"));
    addDocument("<Class Name='Probe'><Selector Name='Default'><Color>#101010</Color><Color:Hover>#202020</Color:Hover>"
                "<Color:Disabled>#Empty#</Color:Disabled><Mark:item:checked>yes</Mark:item:checked></Selector>"
                "<Selector Name='Wide'><Size>20</Size></Selector></Class>"
                "<Class Name='Outer'>"
        + classXml("Probe", "Default", "<Color>#303030</Color>") + "</Class>");
    auto *page = qobject_cast<EnginePage *>(gallery.window->page());
    AttributeQuery query;
    query.className = QStringLiteral("Probe");
    query.parentClass = parent;
    query.selector = selector;
    query.subSelectors = subSelectorsOf(subs);
    query.attribute = attribute;
    query.status = Custom::ItemStatus(status);
    page->setQuery(query);

    QCOMPARE(page->value(), value);
    const Resolution way = page->resolution();
    QCOMPARE(way.value, value);
    QStringList last;
    if (way.found) {
        const ResolutionStep &step = way.steps.constLast();
        last << step.key << (step.place == Place::Selector ? QStringLiteral("selector") : QStringLiteral("default"));
        if (way.fellBack(query))
            last << QStringLiteral("fellback");
        if (way.isEmptyWord())
            last << QStringLiteral("emptyword");
    }
    QCOMPARE(last.join(QLatin1Char(' ')), place);
}

void tst_Gallery::overrideWipesUntilTheDocumentIsTakenAnew()
{
    Gallery gallery(QStringLiteral("engine"));
    addDocument(classXml("Probe", "Default", "<Color>#101010</Color><Color:Hover>#202020</Color:Hover>"));
    auto *page = qobject_cast<EnginePage *>(gallery.window->page());
    AttributeQuery query;
    query.className = QStringLiteral("Probe");
    query.attribute = QStringLiteral("Color");
    page->setQuery(query);
    page->setOverride(QStringLiteral("#ffffff"));
    const auto answer = [page, &query](Custom::ItemStatus status) {
        query.status = status;
        page->setQuery(query);
        const QString value = page->value();
        return value == page->resolution().value ? value : QStringLiteral("not as explained: ") + value;
    };
    QCOMPARE(answer(Custom::Normal), QStringLiteral("#ffffff"));
    QCOMPARE(answer(Custom::Hover), QStringLiteral("#ffffff"));
    page->takeDocument();
    QCOMPARE(answer(Custom::Normal), QStringLiteral("#ffffff"));
    QCOMPARE(answer(Custom::Hover), QStringLiteral("#202020"));
    page->setOverride(QStringLiteral("#eeeeee"));
    QCOMPARE(answer(Custom::Hover), QStringLiteral("#eeeeee"));
    gallery.appearance.nextSkin();
    QCOMPARE(answer(Custom::Normal), QStringLiteral("#ffffff"));
    page->renewControl();
    QCOMPARE(answer(Custom::Normal), QStringLiteral("#101010"));
}

void tst_Gallery::explanationAgreesWithTheEngine()
{
    Gallery gallery(QStringLiteral("engine"));
    auto *page = qobject_cast<EnginePage *>(gallery.window->page());
    int compared = 0;
    for (const QString &className : { QStringLiteral("CustomPushButton"), QStringLiteral("CustomCheckBox") }) {
        for (const QString &selector : { QStringLiteral("Default"), QStringLiteral("GrayWhite") }) {
            const QStringList keys = Custom::getAttrMap(className.toLower(), selector.toLower(), QString()).keys();
            for (const QString &key : keys) {
                AttributeQuery query;
                query.className = className;
                query.selector = selector;
                query.attribute = key;
                for (Custom::ItemStatus status : allStatuses()) {
                    query.status = status;
                    page->setQuery(query);
                    QCOMPARE(page->resolution().value, page->value());
                    ++compared;
                }
            }
        }
    }
    QVERIFY(compared > 100);
}

ZANTHIC_TEST_MAIN(tst_Gallery)
#include "tst_gallery.moc"
