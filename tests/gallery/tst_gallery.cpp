#include "style/CaseFile.h"
#include "style/StyleHost.h"

#include "Appearance.h"
#include "GalleryWindow.h"
#include "pages/EnginePage.h"
#include "pages/PageRegistry.h"
#include "parts/Field.h"

#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLayout>
#include <QtWidgets/QScrollArea>

using CaseFile::cell;

namespace {

/// The window as the program makes it, with an appearance of its own.
struct Gallery
{
    explicit Gallery(const QString &page)
    {
        appearance.start("light"_s, "en_US"_s);
        window = std::make_unique<GalleryWindow>(&appearance);
        window->openPage(page);
        engine = qobject_cast<EnginePage *>(window->page());
    }

    Appearance appearance;
    std::unique_ptr<GalleryWindow> window;
    EnginePage *engine = nullptr;
};

/// Texts that have less room than they need, or another family than that of the language.
QStringList faults(const QWidget *window)
{
    QStringList found;
    for (const QWidget *widget : window->findChildren<QWidget *>()) {
        const auto *label = qobject_cast<const QLabel *>(widget);
        const bool sized = label || qobject_cast<const QAbstractButton *>(widget);
        if (widget->isHidden() || !(sized || qobject_cast<const QLineEdit *>(widget)))
            continue;
        const bool wraps = label && label->wordWrap();
        const QSize needed = wraps ? QSize(0, label->heightForWidth(label->width())) : widget->sizeHint();
        if (sized && (widget->width() < needed.width() || widget->height() < needed.height()))
            found << "clipped: "_s + widget->property("text").toString();
        if (widget->font().family() != Custom::globalFontFamily())
            found << widget->font().family() + ": " + widget->property("text").toString();
    }
    return found;
}

/// What the engine answers, if the page explains it so.
QString answer(const Gallery &gallery, AttributeQuery query, Custom::ItemStatus status)
{
    query.status = status;
    gallery.engine->setQuery(query);
    const QString value = gallery.engine->value();
    return value == gallery.engine->resolution().value ? value : "not as explained: " + value;
}

AttributeQuery queryFor(const QString &className, const QString &attribute)
{
    AttributeQuery query;
    query.className = className;
    query.attribute = attribute;
    return query;
}

} // namespace

class tst_Gallery : public StyleTest
{
    Q_OBJECT

private Q_SLOTS:
    void pageLooksRightInEverySkinAndLanguage_data()
    {
        QTest::addColumn<QString>("page");
        for (const QString &page : pageNames())
            QTest::newRow(qPrintable(page)) << page;
    }
    void pageLooksRightInEverySkinAndLanguage()
    {
        Gallery gallery(cell("page"));
        QCOMPARE(gallery.window->pageName(), cell("page"));
        const auto *area = gallery.window->findChild<QScrollArea *>();
        QMap<QString, QImage> pictures;
        for (int change = 0; change < 8; ++change) {
            const QImage picture = gallery.window->picture().toImage();
            QCOMPARE(faults(gallery.window.get()), QStringList());
            QVERIFY(area->widget()->minimumSizeHint().width() <= area->viewport()->width());
            // There and back gives the same picture to the pixel.
            const QString name = gallery.appearance.skin() + gallery.appearance.language();
            QVERIFY(pictures.contains(name) ? pictures.value(name) == picture : !pictures.values().contains(picture));
            pictures.insert(name, picture);
            change % 2 ? gallery.appearance.nextLanguage() : gallery.appearance.nextSkin();
        }
        QCOMPARE(pictures.size(), 4);
    }

    void keyActsOnTheWholeWindow()
    {
        Gallery gallery("engine"_s);
        gallery.window->layout()->setSizeConstraint(QLayout::SetNoConstraint); // which the platform would warn about
        gallery.window->show();
        QApplication::setActiveWindow(gallery.window.get());
        QVERIFY(QTest::qWaitForWindowActive(gallery.window.get()));
        const auto press = [&gallery](QWidget *target, Qt::Key key) -> QString {
            QTest::keyClick(target, key, Qt::ControlModifier);
            return gallery.appearance.skin() + ' ' + gallery.appearance.language()
                + (gallery.engine->isEnabled() ? "" : " off");
        };
        auto *field = gallery.window->findChild<Field *>();
        field->setFocus();
        for (const auto &[key, state] : { std::pair(Qt::Key_T, "dark en_US"_s), std::pair(Qt::Key_L, "light zh_CN"_s),
                 std::pair(Qt::Key_E, "light en_US off"_s) }) {
            QCOMPARE(press(field, key), state);
            QCOMPARE(press(gallery.window.get(), key), "light en_US"_s);
        }
    }

    void wheelOfPagesLeavesOnePage()
    {
        Gallery gallery(pageNames().constFirst());
        for (const QString &name : pageNames() + QStringList("no such page"_s))
            gallery.window->openPage(name);
        QCOMPARE(gallery.window->pageName(), pageNames().constLast());
        QCOMPARE(gallery.window->findChildren<GalleryPage *>().size(), 1);
    }

    void engineAnswers_data()
    {
        CaseFile::addRows("engine", { "parent", "selector", "subs", "attribute", "status", "value", "place" });
    }
    void engineAnswers()
    {
        Gallery gallery("engine"_s);
        Custom::addXmlPath(dataFile("engine.xml"_s));
        AttributeQuery query = queryFor("Probe"_s, cell("attribute"));
        query.parentClass = cell("parent");
        query.selector = cell("selector");
        query.subSelectors = subSelectorsOf(cell("subs"));
        QTEST(answer(gallery, query, CaseFile::status()), "value");
        const Resolution way = gallery.engine->resolution();
        QString last;
        if (way.found)
            last = way.steps.constLast().key
                + (way.steps.constLast().place == Place::Selector ? " selector" : " default")
                + (way.fellBack(gallery.engine->query()) ? " fellback" : "") + (way.isEmptyWord() ? " emptyword" : "");
        QTEST(last, "place");
    }

    void overrideWipesUntilTheDocumentIsTakenAnew()
    {
        Gallery gallery("engine"_s);
        Custom::addXmlPath(dataFile("engine.xml"_s));
        const auto answers = [&gallery]() -> QString { // the override is one of Normal, which is asked last
            const AttributeQuery query = queryFor("Probe"_s, "Color"_s);
            const QString hover = answer(gallery, query, Custom::Hover);
            return hover + answer(gallery, query, Custom::Normal);
        };
        QCOMPARE(answers(), "#202020#101010"_s);
        gallery.engine->setOverride("#ffffff"_s);
        QCOMPARE(answers(), "#ffffff#ffffff"_s);
        gallery.engine->takeDocument();
        QCOMPARE(answers(), "#202020#ffffff"_s);
        gallery.appearance.nextSkin();
        QCOMPARE(answers(), "#202020#ffffff"_s);
        gallery.engine->renewControl();
        QCOMPARE(answers(), "#202020#101010"_s);
    }

    void explanationAgreesWithTheEngine()
    {
        Gallery gallery("engine"_s);
        for (const QString &key : Custom::getAttrMap("customcheckbox"_s, "default"_s).keys()) {
            for (Custom::ItemStatus status : allStatuses())
                QVERIFY(!answer(gallery, queryFor("CustomCheckBox"_s, key), status).startsWith("not as"_s));
        }
    }
};

ZANTHIC_TEST_MAIN(tst_Gallery)
#include "tst_gallery.moc"
