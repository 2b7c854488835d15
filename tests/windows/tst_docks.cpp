#include "support/Literal.h"
#include "support/Probe.h"
#include "support/StyleTest.h"

#include <Zanthic/Zanthic.h>

class DocksTest : public StyleTest
{
    Q_OBJECT

private Q_SLOTS:
    void dockIsAFramelessWindowInTheSkinsColor()
    {
        addColors("<Color Id='Custom_DockWidget_Background' Value='#123456'/>");
        QMainWindow window;
        auto *dock = new CustomDockWidget("Dock"_s, &window, Qt::Tool);
        QCOMPARE(int(dock->windowFlags()), 0x801);
        dock->resize(80, 60);
        dock->show();
        QCOMPARE(Probe::colorAt(dock->grab().toImage(), 40, 50), "#ff123456"_s);
        QVERIFY(dock->styleSheet().startsWith(QLatin1String(
            "CustomDockWidget{background-color: #123456;outline:0px;border:0px;margin:0px;padding:0px;}\t")));
        QVERIFY(dock->styleSheet().endsWith(QLatin1String(" QDockWidget::title{height:31px;}")));
        QVERIFY(dock->property("StyleSelector").isValid() && dock->property("LanguageString").isValid());
    }

    void titleBar()
    {
        CustomDockWidget dock;
        auto *bar = new CustomDockTitleBar(&dock);
        dock.setTitleBarWidget(bar);
        const auto buttons = bar->findChildren<CustomPushButton *>(QString(), Qt::FindDirectChildrenOnly);
        auto *title = bar->findChild<CustomLabel *>();
        CustomPushButton *close = buttons.at(0);
        CustomPushButton *expand = buttons.at(1);
        dock.resize(300, 100);
        dock.show();
        QCOMPARE(bar->cAttributeValue("BackgroundColor"_s), "DB_COLOR_Custom_DockTitleBar_Background"_s);
        QVERIFY(title->x() - 14 == 0 && expand->geometry().right() == bar->width() - 11);
        QVERIFY(close->geometry().right() == expand->x() - 1 && close->size() == QSize(16, 16));
        QCOMPARE(close->cStyleSelector(), "Default"_s);
        QVERIFY(title->cFontSize() == 14 && expand->size() == QSize(16, 16));
        QCOMPARE(title->cAttributeValue("FontColor"_s), "DB_COLOR_Custom_DockTitleBarLabel_Font"_s);
        QSignalSpy spy(bar, &CustomDockTitleBar::SigExpandBtn);
        for (const bool isExpanded : { true, false, true }) {
            const auto word = isExpanded ? "Collapse"_s : "Expand"_s;
            QVERIFY(expand->cStyleSelector() == "DockTitle" + word && expand->toolTip() == word);
            QCOMPARE(title->isVisible(), isExpanded);
            close->setToolTip(QString());
            QEvent language(QEvent::LanguageChange);
            QCoreApplication::sendEvent(bar, &language);
            QCOMPARE(close->toolTip(), "Close"_s);
            QTest::mouseClick(expand, Qt::LeftButton);
            QCOMPARE(spy.takeFirst().first().toBool(), !isExpanded);
        }
        for (int controls = 0; controls < 8; ++controls) {
            bar->cSetTitleControls(CustomDockTitleBar::TitleControls(controls));
            QCOMPARE(close->isVisible(), controls == 1 || controls == 3);
            QCOMPARE(expand->isVisible(), controls == 2 || controls == 3);
        }
        QCOMPARE(bar->sizeHint(), QSize(200, 17));
        dock.setFeatures(QDockWidget::DockWidgetVerticalTitleBar);
        QCOMPARE(bar->minimumSizeHint(), QSize(17, 200));
        bar->cSetTitleControls(CustomDockTitleBar::DockTitleClose);
        QTest::mouseClick(close, Qt::LeftButton);
        QVERIFY(!dock.isVisible());
    }

    void toolBar()
    {
        CustomToolBar bar;
        auto *own = new CustomLabel;
        QCOMPARE(bar.cAddLabel(own), own);
        const CustomComboBox *combo = bar.cAddCommBox();
        bar.cAddSpacing(7);
        const CustomLineWidget *line = bar.cAddSeperator();
        bar.cAddEnd();
        const CustomPushButton *button = bar.cAddButton();
        QVERIFY(own->parentWidget() == &bar && combo->cStyleSelector() == QLatin1String("DarkBlack"));
        bar.resize(500, 40);
        bar.show();
        QVERIFY(combo->x() == own->geometry().right() + 1 && line->x() == combo->geometry().right() + 8);
        QCOMPARE(line->cAttributeValue("BackgroundColor"_s), "DB_COLOR_Custom_ToolBar_Background"_s);
        QVERIFY(line->size() == QSize(1, 18) && button->geometry().right() == 499);
        const QRect place = button->geometry();
        bar.cClear();
        bar.resize(600, 40);
        QVERIFY(button->parentWidget() == &bar && button->isVisible() && button->geometry() == place);
        const CustomLabel *first = bar.cAddLabel();
        QCoreApplication::processEvents();
        QVERIFY(first->x() == 0 && bar.layout()->count() == 1);
        delete bar.layout();
        QCOMPARE(bar.cAddLabel(own), own);
        QVERIFY(!bar.cAddSeperator() && !bar.cAddButton() && !bar.cAddCommBox());
    }
};

ZANTHIC_TEST_MAIN(DocksTest)
#include "tst_docks.moc"
