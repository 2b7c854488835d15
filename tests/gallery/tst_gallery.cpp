#include "style/StyleHost.h"

#include "Appearance.h"
#include "GalleryWindow.h"
#include "pages/EnginePage.h"
#include "pages/PageRegistry.h"

#include <Zanthic/Zanthic.h>

#include <QtXml/QDomDocument>

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

/// The program, run in a folder with variables of the environment replaced.
struct Run
{
    explicit Run(const QStringList &arguments, const QMap<QString, QString> &variables = {}, const QString &folder = {})
    {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (auto it = variables.cbegin(); it != variables.cend(); ++it)
            environment.insert(it.key(), it.value());
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(folder);
        process.start(QStringLiteral(GALLERY_PROGRAM), arguments);
        if (process.waitForFinished(120000) && process.exitStatus() == QProcess::NormalExit)
            status = process.exitCode();
        output = process.readAllStandardOutput();
        // Qt's remark on a session without a runtime folder says nothing about the program.
        const QRegularExpression remark("^QStandardPaths:.*\n"_s, QRegularExpression::MultilineOption);
        errors = QString::fromUtf8(process.readAllStandardError()).remove(remark);
    }
    int status = -1;
    QString output;
    QString errors;
};

/// Everything that keeps a translation from being complete.
QStringList translationFaults(const QString &path)
{
    QFile file(path);
    QDomDocument document;
    QStringList found;
    if (file.open(QIODevice::ReadOnly))
        document.setContent(&file);
    const QDomNodeList messages = document.elementsByTagName("message"_s);
    for (int i = 0; i < messages.size(); ++i) {
        const QString source = messages.at(i).firstChildElement("source"_s).text();
        const QDomElement translation = messages.at(i).firstChildElement("translation"_s);
        if (translation.hasAttribute("type"_s) || translation.text().isEmpty()
            || translation.text().count("%1"_s) != source.count("%1"_s))
            found << translation.attribute("type"_s) + ": " + source;
    }
    return messages.isEmpty() ? QStringList("no messages"_s) : found;
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
            closer.callOnTimeout([&] {
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

    void liveTextsFollowTheUserInEveryLanguage()
    {
        const std::tuple<QString, QString, QString> cases[]
            = { { "combos"_s, "days"_s, "4"_s }, { "sliders"_s, "staged"_s, "60000"_s },
                  { "switches"_s, "choice"_s, "1"_s }, { "switches"_s, "dots5"_s, "4"_s } };
        for (const auto &[page, name, value] : cases) {
            Gallery gallery(page);
            gallery.window->show();
            auto *control = gallery.window->findChild<QWidget *>(name);
            const auto *words = gallery.window->findChild<QLabel *>(name + "Text");
            control->grab(); // may be scrolled out of view, and takes clicks where it was painted
            QPoint spot(control->width() - 6, control->height() / 2);
            if (const auto *combo = qobject_cast<CustomComboBox *>(control)) {
                control = combo->view()->findChild<CustomCheckBox *>();
                spot = QPoint(10, control->height() / 2);
            }
            QWidget *target = control->childAt(spot) ? control->childAt(spot) : control;
            QTest::mouseClick(target, Qt::LeftButton, {}, target->mapFrom(control, spot));
            QTRY_VERIFY2(words->text().contains(value), qPrintable(words->text()));
            const QString english = words->text();
            gallery.appearance.nextLanguage();
            QTRY_VERIFY2(words->text() != english && words->text().contains(value), qPrintable(words->text()));
        }
    }

    void answers_data()
    {
        addRowsOf("cases/engine.txt"_s, { "in", "selector", "subs", "key", "status", "value", "last" });
    }
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
        const auto answers = [&]() -> QString {
            return answer(gallery, query, Custom::Normal) + answer(gallery, query, Custom::Hover);
        };
        QCOMPARE(answers(), "#101010#202020"_s);
        gallery.engine->setOverride("#ffffff"_s);
        QCOMPARE(answers(), "#ffffff#ffffff"_s);
        gallery.engine->takeDocument();
        QCOMPARE(answers(), "#ffffff#202020"_s);
        gallery.engine->renewControl();
        QCOMPARE(answers(), "#101010#202020"_s);
    }

    void commandLine_data() { addRowsOf("cases/command-lines.txt"_s, { "arguments", "status", "output", "errors" }); }
    void commandLine()
    {
        const Run result(cell("arguments").split(' '));
        QTEST(QString::number(result.status), "status");
        QVERIFY2(result.output.contains(cell("output")), qPrintable(result.output));
        QVERIFY2(result.errors.contains(cell("errors")), qPrintable(result.errors));
        QCOMPARE(result.output.isEmpty(), cell("output").isEmpty());
    }

    void grabsWhatIsChosenAtTheScaleOfTheScreen()
    {
        const QString picture = scratchFile({}) + ".d/below/checks-dark-en_US.png";
        const QString words = "--page CHECKS --skin Dark --language EN_us --grab "_s + QFileInfo(picture).path();
        QSize sizes[2];
        for (int i = 0; i < 2; ++i) {
            const Run result(words.split(' '), { { "QT_SCALE_FACTOR"_s, QString::number(i + 1) } });
            QCOMPARE(result.output + result.errors, picture + '\n');
            sizes[i] = QImage(picture).size();
        }
        // Texts are a little higher or lower at another scale, and the page with them.
        QVERIFY(!sizes[0].isEmpty() && sizes[1].width() == 2 * sizes[0].width());
        QVERIFY(qAbs(sizes[1].height() - 2 * sizes[0].height()) <= sizes[0].height() / 20);
    }

    void withoutDisplayItRendersEverySkinAndLanguageOffScreen()
    {
        QTemporaryDir folder;
        const Run result({ "--page"_s, "boxes"_s },
            { { "DISPLAY"_s, {} }, { "WAYLAND_DISPLAY"_s, {} }, { "QT_QPA_PLATFORM"_s, {} } }, folder.path());
        QVERIFY(result.status == 0 && result.output.startsWith("No display"_s) && result.errors.isEmpty());
        for (const auto &name : { "light-en_US"_s, "light-zh_CN"_s, "dark-en_US"_s, "dark-zh_CN"_s }) {
            const QString path = "build/gallery/boxes-"_s + name + ".png";
            QVERIFY(result.output.contains(path) && !QImage(folder.filePath(path)).isNull());
        }
    }

    void translationIsComplete()
    {
        for (const auto &[folder, file] :
            { std::pair("gallery"_s, "gallery_zh_CN.ts"_s), std::pair("src"_s, "zanthic_zh_CN.ts"_s) }) {
            const QString sources = PROJECT_FOLDER "/"_s + folder;
            // A copy brought up to date holds what the sources have and the committed file lacks, and the reverse.
            const QString updated = scratchFile(QByteArray(), ".ts"_s);
            QVERIFY(QFile::remove(updated) && QFile::copy(sources + "/translations/" + file, updated));
            const QStringList arguments{ "-locations"_s, "none"_s, sources, "-ts"_s, updated };
            QCOMPARE(QProcess::execute(QStringLiteral(LUPDATE_PROGRAM), arguments), 0);
            QCOMPARE(translationFaults(updated), QStringList());
        }
    }
};

ZANTHIC_TEST_MAIN(tst_Gallery)
#include "tst_gallery.moc"
