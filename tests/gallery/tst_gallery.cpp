#include "style/StyleHost.h"

#include "Appearance.h"
#include "GalleryWindow.h"
#include "pages/EnginePage.h"
#include "pages/PageRegistry.h"

#include <Zanthic/CustomLineEdit.h>
#include <Zanthic/CustomPushButton.h>

#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QAction>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLayout>
#include <QtWidgets/QScrollArea>


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
        if (widget->window() != window || widget->isHidden() || !(sized || qobject_cast<const QLineEdit *>(widget)))
            continue;
        const bool wraps = label && label->wordWrap();
        const QSize needed = wraps ? QSize(0, label->heightForWidth(label->width())) : widget->sizeHint();
        if (sized && widget->size() != widget->size().expandedTo(needed))
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

} // namespace

class tst_Gallery : public StyleTest
{
    Q_OBJECT

private Q_SLOTS:
    void pagesLookRightInEverySkinAndLanguage()
    {
        for (const QString &page : pageNames()) {
            Gallery gallery(page);
            QMap<QString, QImage> pictures;
            for (int change = 0; change < 8; ++change) {
                // A page made anew looks like one that was changed.
                gallery.window->openPage(change > 3 ? page : "no such page"_s);
                const QImage picture = gallery.window->picture().toImage();
                QCOMPARE(gallery.window->pageName(), page);
                QCOMPARE(faults(gallery.window.get()).join('\n'), QString());
                const auto *area = gallery.window->findChild<QScrollArea *>("page"_s);
                QVERIFY2(area->widget()->minimumSizeHint().width() <= area->viewport()->width(), qPrintable(page));
                // There and back gives the same picture to the pixel.
                const QString name = gallery.appearance.skin() + gallery.appearance.language();
                QVERIFY2(
                    pictures.value(name, picture) == picture && pictures.key(picture, name) == name, qPrintable(page));
                pictures.insert(name, picture);
                change % 2 ? gallery.appearance.nextLanguage() : gallery.appearance.nextSkin();
            }
            QVERIFY(pictures.size() == 4 && gallery.window->findChildren<GalleryPage *>().size() == 1);
        }
    }

    void keyActsOnTheWholeWindow()
    {
        Gallery gallery("engine"_s);
        gallery.window->layout()->setSizeConstraint(QLayout::SetNoConstraint); // which the platform would warn about
        gallery.window->show();
        QVERIFY(QTest::qWaitForWindowActive(gallery.window.get()));
        const auto press = [&gallery](QWidget *target, Qt::Key key) -> QString {
            QTest::keyClick(target, key, Qt::ControlModifier);
            return gallery.appearance.skin() + ' ' + gallery.appearance.language()
                + (gallery.engine->isEnabled() ? "" : " off");
        };
        auto *field = gallery.window->findChild<CustomLineEdit *>();
        field->setFocus();
        for (const auto &[key, state] : { std::pair(Qt::Key_T, "dark en_US"_s), std::pair(Qt::Key_L, "light zh_CN"_s),
                 std::pair(Qt::Key_E, "light en_US off"_s) }) {
            QCOMPARE(press(field, key), state);
            QCOMPARE(press(gallery.window.get(), key), "light en_US"_s);
        }
    }

    void menusChooseForTheWholeProgram()
    {
        Gallery gallery("boxes"_s);
        const auto item = [&gallery](const QString &name) { return gallery.window->findChild<QAction *>(name); };
        for (const auto &name : { "dark"_s, "zh_CN"_s, "menus"_s })
            item(name)->trigger();
        QCOMPARE(
            gallery.appearance.skin() + gallery.appearance.language() + gallery.window->pageName(), "darkzh_CNmenus"_s);
        gallery.appearance.nextSkin();
        QVERIFY(item("light"_s)->isChecked() && !item("dark"_s)->isChecked() && item("menus"_s)->isChecked());
        // The library's own texts come along.
        QCOMPARE(CustomMainWindow::tr("OK"), QString::fromUtf16(u"\u786e\u5b9a"));
        item("en_US"_s)->trigger();
        QCOMPARE(CustomMainWindow::tr("OK"), "OK"_s);
    }

    void everySampleOpensAndCloses()
    {
        for (const auto &page : { "menus"_s, "windows"_s, "dialogs"_s }) {
            Gallery gallery(page);
            gallery.window->show();
            int opened = 0;
            QTimer closer;
            connect(&closer, &QTimer::timeout, [&] {
                for (QWidget *widget : QApplication::topLevelWidgets()) {
                    if (widget != gallery.window.get() && widget->isVisible())
                        opened += int(widget->close());
                }
            });
            closer.start(10);
            for (auto *button : gallery.window->page()->findChildren<CustomPushButton *>()) {
                if (button->window() != gallery.window.get())
                    continue; // one that stands in a menu
                const int before = opened;
                button->click();
                QTRY_VERIFY2(opened > before, qPrintable(button->text()));
            }
        }
    }

    void answers_data() { addRowsOf("cases/engine.txt"_s, { "in", "selector", "subs", "key", "status", "value", "last" }); }
    void answers()
    {
        Gallery gallery("engine"_s);
        Custom::addXmlPath(dataFile("engine.xml"_s));
        AttributeQuery query;
        query.className = "Probe"_s;
        query.attribute = cell("key");
        query.parentClass = cell("in");
        query.selector = cell("selector");
        query.subSelectors = subSelectorsOf(cell("subs"));
        QTEST(answer(gallery, query, status()), "value");
        const Resolution way = gallery.engine->resolution();
        QString last;
        if (way.found)
            last = way.steps.constLast().key
                + (way.steps.constLast().place == Place::Selector ? " selector" : " default")
                + (way.fellBack(gallery.engine->query()) ? " fellback" : "") + (way.isEmptyWord() ? " emptyword" : "");
        QTEST(last, "last");
    }

    void overrideWipesUntilTheDocumentIsTakenAnew()
    {
        Gallery gallery("engine"_s);
        Custom::addXmlPath(dataFile("engine.xml"_s));
        AttributeQuery query;
        query.className = "Probe"_s;
        query.attribute = "Color"_s;
        QCOMPARE(answer(gallery, query, Custom::Normal), "#101010"_s);
        gallery.engine->setOverride("#ffffff"_s);
        QCOMPARE(answer(gallery, query, Custom::Hover), "#ffffff"_s);
        gallery.engine->takeDocument();
        QCOMPARE(answer(gallery, query, Custom::Hover), "#202020"_s);
        QCOMPARE(answer(gallery, query, Custom::Normal), "#ffffff"_s);
        gallery.engine->renewControl();
        QCOMPARE(answer(gallery, query, Custom::Normal), "#101010"_s);
    }
};

ZANTHIC_TEST_MAIN(tst_Gallery)
#include "tst_gallery.moc"
