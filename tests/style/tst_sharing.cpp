#include "StyleHost.h"
#include "support/StyleTest.h"

using Custom::Hover;
using Custom::Normal;
using Custom::Pressed;

namespace {

const QStringList s_lstNone;
const QStringList s_lstItem{ QStringLiteral("item") };

QString text(const char *latin1)
{
    return QString::fromLatin1(latin1);
}

QString value(const CustomObject &object, const char *attribute, Custom::ItemStatus status = Normal,
    const QStringList &subs = s_lstNone)
{
    return object.cAttributeValue(text(attribute), status, subs);
}

// What the painters read, held against the getters that look everything up anew.
void comparePaths(const StyleHost &host, Custom::ItemStatus status, const QStringList &subs)
{
    const std::shared_ptr<const ResolvedStyle> style = host.data()->resolved(status, subs);
    bool ok = false;
    for (const QRect &rect : { QRect(0, 0, 70, 30), QRect(5, 5, 1, 900), QRect() }) {
        QCOMPARE(
            style->background.scaledTo(rect.isEmpty() ? host.rect() : rect), host.cBackgroundColor(status, rect, subs));
        const QBrush common = host.cBorderColor(Custom::AllEdge, status, subs, rect, &ok);
        QCOMPARE(style->commonColor.scaledTo(rect), common);
        QCOMPARE(style->hasCommonColor, ok);
        for (int i = 0; i < 4; ++i) {
            const QBrush edge = host.cBorderColor(Custom::BorderEdge(i), status, subs, rect, &ok);
            QCOMPARE(style->edgeColors[i].scaledTo(rect), edge);
            QCOMPARE(style->hasEdgeColor[i], ok);
        }
    }
    for (int i = 0; i < 4; ++i) {
        const int width = host.cBorderWidth(Custom::BorderEdge(i), status, subs, &ok);
        QCOMPARE(style->widths[i], ok ? width : host.cBorderWidth(Custom::AllEdge, status, subs));
        const int own = host.cBorderRadius(Custom::BorderCorner(i), status, subs, &ok);
        const int radius = ok ? own : host.cBorderRadius(Custom::AllCorner, status, subs);
        QCOMPARE(style->radii[i], QSize(radius, radius));
    }
    QCOMPARE(style->backgroundImage.path(), host.cBackgroundImage(status, subs));
    QCOMPARE(style->borderImage.path(), host.cBorderImage(status, subs));
    QCOMPARE(style->baseBackgroundImage.path(), value(host, "BaseBackgroundImage", status, subs));
    QCOMPARE(style->fontColor, host.cFontColor(status, subs));
    QCOMPARE(style->fontFamily, value(host, "FontFamily", status, subs));
    QCOMPARE(style->fontSize, value(host, "FontSize", status, subs).toInt());
    QCOMPARE(style->icon.isNull(), value(host, "Icon", status, subs).isEmpty());
}

void compareAllPaths(const StyleHost &host)
{
    for (int status = -1; status < 5; ++status) {
        for (const QStringList &subs : { s_lstNone, s_lstItem, QStringList({ "item", "checked" }), QStringList({ "" }),
                 QStringList({ "unknown" }), QStringList({ "ITEM" }) }) {
            comparePaths(host, Custom::ItemStatus(status), subs);
            if (QTest::currentTestFailed())
                QFAIL(qPrintable(QStringLiteral("status %1, %2").arg(status).arg(subs.join(QLatin1Char(':')))));
        }
    }
}

} // namespace

class TestSharing : public StyleTest
{
    Q_OBJECT

private Q_SLOTS:
    void hostThatExistsBeforeTheDocument();
    void copyTakesValues();
    void equalControlsShare();
    void cachedPathEqualsPlainPath_data();
    void cachedPathEqualsPlainPath();
};

void TestSharing::hostThatExistsBeforeTheDocument()
{
    StyleHost early;
    StyleHost asked;
    asked.cSetFontColor(text("#010101"));
    addDocument(richDocument());
    QCOMPARE(early.cFontSize(), 14);
    // A control that was asked before keeps what it found until the next rebuild.
    QCOMPARE(value(asked, "FontSize"), QString());
    compareAllPaths(asked);
    Custom::changeSkin();
    QCOMPARE(asked.cFontSize(), 14);
    QCOMPARE(value(asked, "FontColor"), text("#010101"));
    compareAllPaths(asked);
}

void TestSharing::copyTakesValues()
{
    addDocument(richDocument() + classXml("Other", "Gray", "<FontSize>30</FontSize>"));
    StyleHost source(text("Sample"), text("Gray"));
    source.cSetBorderWidth(8, Custom::Left);
    source.cSetColorRect(1, QRect(0, 0, 1, 1), Qt::red);
    source.cSetParentClassName(text("Outer"));
    StyleHost copy(text("Other"));
    copy.cSetFontColor(text("#fff"));
    const QStringList cleared = copy.data()->clearedAttributes;
    copy.data()->sizeHintCache = QSize(3, 3);
    copy.cCopyAttribute(nullptr);
    QCOMPARE(value(copy, "FontColor"), text("#fff"));

    copy.cCopyAttribute(&source);
    QVERIFY(!source.data()->dirty && !copy.data()->dirty);
    QCOMPARE(copy.cStyleSelector(), text("Gray"));
    QCOMPARE(copy.data()->parentClassName, text("Outer"));
    QCOMPARE(copy.data()->parameters, source.data()->parameters);
    QCOMPARE(copy.data()->localValues, source.data()->localValues);
    QVERIFY(copy.data()->styleValues.isSharedWith(source.data()->styleValues));
    QCOMPARE(copy.cFontSize(), 9);
    QCOMPARE(copy.data()->className, text("Other"));
    QCOMPARE(copy.data()->clearedAttributes, cleared);
    QVERIFY(copy.data()->colorRects.isEmpty());
    QCOMPARE(copy.data()->sizeHintCache, QSize(3, 3));
    compareAllPaths(copy);
    // A rebuild takes the control's own class: there is no "Other" in "Outer".
    copy.cResetAllValue();
    QCOMPARE(value(copy, "FontSize"), QString());
    copy.cSetParentClassName(QString());
    QCOMPARE(copy.cFontSize(), 30);
    compareAllPaths(copy);
}

void TestSharing::equalControlsShare()
{
    addDocument(richDocument());
    StyleHost a(text("Sample"));
    StyleHost b(text("Sample"));
    const auto style = [](const StyleHost &host) { return host.data()->resolved(Hover, s_lstItem).get(); };
    const auto share = [&] {
        a.data()->initData();
        b.data()->initData();
        return a.data()->styleValues.isSharedWith(b.data()->styleValues);
    };
    QVERIFY(share());
    QCOMPARE(style(a), style(b));
    QCOMPARE(style(a), style(a));
    const auto held = a.data()->resolved(Hover, s_lstItem);
    const QMap<QString, QString> values = a.data()->styleValues;

    a.cSetBackgroundColor(text("#abcdef"), Hover, s_lstItem);
    QVERIFY(!share());
    QVERIFY(style(a) != style(b));
    QCOMPARE(style(b), held.get());
    QCOMPARE(style(a), style(a));
    QCOMPARE(value(b, "BackgroundColor", Normal), text(kGradient));

    b.cClearValue(text("FontColor"));
    QCOMPARE(values.value(text("fontcolor")), text("#111111"));
    b.cResetAllValue();
    QCOMPARE(style(b), held.get());
    // An override of what the document doesn't name leaves the table shared and its control apart.
    b.cSetAttributeValue(text("Own"), text("x"));
    QVERIFY(b.data()->styleValues.isSharedWith(values));
    QVERIFY(style(b) != held.get());

    StyleHost c(text("Sample"));
    QCOMPARE(style(c), held.get());
    addColors("<Color Id='A' Value='#00ff00'/>");
    QVERIFY(style(c) != held.get());
    QVERIFY(c.data()->styleValues.isSharedWith(values));
    Custom::changeSkin();
    StyleHost d(text("Sample"));
    QCOMPARE(style(c), style(d));
    QVERIFY(!c.data()->styleValues.isSharedWith(values));
}

void TestSharing::cachedPathEqualsPlainPath_data()
{
    QTest::addColumn<QString>("selector");
    QTest::addColumn<QString>("parentClass");
    for (const char *selector : { "Default", "Gray", "Alias", "Unknown" }) {
        for (const char *parent : { "", "Outer" })
            QTest::addRow("%s in '%s'", selector, parent) << text(selector) << text(parent);
    }
}

void TestSharing::cachedPathEqualsPlainPath()
{
    QFETCH(QString, selector);
    QFETCH(QString, parentClass);
    addDocument(richDocument());
    StyleHost host(text("Sample"), selector);
    StyleHost untouched(text("Sample"), selector);
    host.cSetParentClassName(parentClass);
    const auto check = [&](const char *step) {
        compareAllPaths(host);
        if (!QTest::currentTestFailed())
            compareAllPaths(untouched);
        if (QTest::currentTestFailed())
            QFAIL(step);
    };
    const std::pair<const char *, std::function<void()>> steps[] = {
        { "document", [] {} },
        { "colour", [&] { addColors("<Color Id='A' Value='#00ff00'/><Color Id='Shade' Value='DB_COLOR_B'/>"); } },
        { "resized", [&] { host.resize(33, 44); } },
        { "override", [&] { host.cSetBorderWidth(9, Custom::Left, Hover); } },
        { "override again", [&] { host.cSetBorderWidth(11, Custom::Left, Hover); } },
        { "second override", [&] { host.cSetBackgroundColor(text("DB_COLOR_Shade"), Pressed, s_lstItem); } },
        { "later colour", [&] { addColors(QByteArray("<Color Id='B' Value='") + kGradient + "'/>"); } },
        { "cleared", [&] { host.cClearValue(text("Font")); } },
        { "empty override", [&] { host.cSetAttributeValue(text("BorderColor:AllEdge"), text("#Empty#"), Hover); } },
        { "reset", [&] { host.cResetAllValue(); } },
        { "selector", [&] { host.cSetStyleSelector(text("Gray")); } },
        { "class", [&] { host.cSetClassName(text("Outer")); } },
        { "second document", [&] { addDocument(classXml("Sample", "Default", "<FontSize>77</FontSize>")); } },
        { "skin", [] { Custom::changeSkin(); } },
        { "copy", [&] { host.cCopyAttribute(&untouched); } },
        { "copy of an override", [&] { untouched.cSetFontSize(3), host.cCopyAttribute(&untouched); } },
    };
    for (const auto &step : steps) {
        step.second();
        check(step.first);
        if (QTest::currentTestFailed())
            return;
    }
}

ZANTHIC_TEST_MAIN(TestSharing)
#include "tst_sharing.moc"
