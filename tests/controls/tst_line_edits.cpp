#include "style/CustomPrivate_p.h"
#include "support/StyleTest.h"
#include "windows/DialogDriver.h"

#include <Zanthic/CustomFolderSelectWidget.h>
#include <Zanthic/CustomPushButton.h>
#include <Zanthic/CustomSelectWidget.h>
#include <Zanthic/HotKeyEvent.h>

#include <QtGui/QHelpEvent>
#include <QtWidgets/QToolTip>

namespace {

const auto kText = QStringLiteral("Text");

// A shown window with a line edit; counts the keys that reach it.
struct Window : QWidget
{
    explicit Window(CustomLineEdit *line = new CustomLineEdit(kText)) : edit(line)
    {
        edit->setParent(this);
        edit->setGeometry(10, 10, 200, 32);
        show();
        activateWindow();
        QApplication::processEvents();
    }
    QString clicked() const
    {
        QTest::mouseClick(edit, Qt::LeftButton, {}, { 60, 16 });
        return edit->selectedText();
    }
    void keyPressEvent(QKeyEvent *) override { ++keys; }
    void customEvent(QEvent *event) override { hotKeys += event->type() == HotKeyEvent::EventType ? 1 : 0; }

    QPointer<CustomLineEdit> edit;
    int keys = 0;
    int hotKeys = 0;
};

} // namespace

class LineEditsTest : public StyleTest
{
    Q_OBJECT

private Q_SLOTS:
    void buttonComesWithTheNextShow();
    void firstClickSelectsAll();
    void readOnlyLeavesKeysToTheParent();
    void buttonShowsNoToolTip();
    void folderWidgetTakesWhatIsChosen();
    void placeholderDiffersFromText();
};

void LineEditsTest::buttonComesWithTheNextShow()
{
    const QString sheet = scratchFile("QLineEdit { padding: *PaddingLeft*px *PaddingLeft*px }");
    addDocument("<Class Name='A'><QSS><CustomLineEdit>" + sheet.toUtf8() + "</CustomLineEdit></QSS></Class>");
    const Window window(new CustomLineEdit(nullptr, CustomLineEdit::DarkBlack));
    const CustomPushButton *button = window.edit->getSearchButton();
    QCOMPARE(window.edit->styleSheet(), QStringLiteral("QLineEdit { padding: 0px 0px }"));
    window.edit->cSetEnableSearchButton(true);
    QVERIFY(window.edit->styleSheet().contains(QLatin1String("41px 41px")));
    QVERIFY(!button->isVisible() && button->cStyleSelector() == window.edit->property("StyleSelector").toString());
    window.edit->show();
    QVERIFY(button->isVisible() && button->geometry().right() == 198);
    window.edit->setStyleSheet(QString());
    Custom::changeSkin();
    QCOMPARE(window.edit->styleSheet(), QStringLiteral("QLineEdit { padding: 41px 41px }"));
}

void LineEditsTest::firstClickSelectsAll()
{
    const Window window;
    QCOMPARE(window.clicked(), kText);
    QCOMPARE(window.clicked(), QString());
    window.edit->clearFocus();
    window.edit->setFocus();
    window.edit->setSelection(0, 2);
    QTest::mouseClick(window.edit, Qt::LeftButton, Qt::ShiftModifier, { 20, 16 });
    QVERIFY(window.edit->selectedText().size() < 4); // a selection stays what it is
    QCOMPARE(window.clicked(), kText);
    window.edit->clearFocus();
    window.edit->cSetEnableIntoSelected(false);
    QCOMPARE(window.clicked(), QString());
}

void LineEditsTest::readOnlyLeavesKeysToTheParent()
{
    Window window;
    Custom::setMainDialog(&window);
    Custom::registerHotKey(1, Qt::NoModifier, Qt::Key_A);
    for (const bool readOnly : { true, false }) {
        window.edit->setReadOnly(readOnly);
        QTest::keyClick(window.edit, Qt::Key_A);
        QApplication::processEvents();
        QVERIFY(window.keys == 1 && window.hotKeys == (readOnly ? 0 : 1));
    }
    QCOMPARE(window.edit->text(), QStringLiteral("Texta")); // served, and typed
}

void LineEditsTest::buttonShowsNoToolTip()
{
    auto *select = new CustomSelectWidget;
    const Window window(select);
    select->setToolTip(kText);
    const auto showsTip = [select](const QPoint &point) {
        QHelpEvent event(QEvent::ToolTip, point, select->mapToGlobal(point));
        QApplication::sendEvent(select, &event);
        return QToolTip::isVisible();
    };
    QVERIFY(!showsTip(select->getSearchButton()->geometry().center()) && showsTip({ 2, 16 }));
    QToolTip::hideText();
    QTRY_VERIFY(!QToolTip::isVisible());
    select->cSetEnableSearchButton(false);
    QVERIFY(showsTip(select->getSearchButton()->geometry().center()));
    QSignalSpy spy(select, &CustomSelectWidget::SigSelectBtn);
    QTest::mouseClick(select->getSearchButton(), Qt::LeftButton);
    QVERIFY(spy.count() == 1 && !select->isReadOnly() && select->height() == 32);
}

void LineEditsTest::folderWidgetTakesWhatIsChosen()
{
    const QString all = QStringLiteral("All (*)");
    const QFileInfo program(QCoreApplication::applicationFilePath());
    for (const QStringList &row :
        { QStringList{ {}, {}, {} }, QStringList{ all, {}, {} }, QStringList{ {}, QDir::rootPath(), QDir::tempPath() },
            QStringList{ all, program.path(), program.filePath() } }) { // filter, text, what is chosen
        auto *folder = new CustomFolderSelectWidget(nullptr, row[0]);
        const Window window(folder);
        int dialogs = 0;
        const auto click = [&](bool cancels) {
            folder->setText(row[1]);
            const DialogDriver driver([&](QFileDialog *dialog) {
                ++dialogs;
                QCOMPARE(dialog->directory().path(), row[1].isEmpty() ? QDir::homePath() : row[1]);
                QCOMPARE(dialog->fileMode(), row[0].isEmpty() ? QFileDialog::Directory : QFileDialog::ExistingFile);
                dialog->findChild<QLineEdit *>()->setText(row[2]);
                DialogDriver::end(dialog, !cancels && !row[2].isEmpty());
                if (dialogs == 3)
                    delete folder;
            });
            QTest::mouseClick(folder->getSearchButton(), Qt::LeftButton);
            QVERIFY(driver.texts.isEmpty()); // nothing more came up
        };
        folder->cSetAutoSelectFolder(true);
        folder->cSetAutoSelectFolder(false);
        click(false); // is left to the application
        folder->cSetAutoSelectFolder(true);
        folder->cSetAutoSelectFolder(true);
        click(true);
        QVERIFY(dialogs == 1 && folder->text() == row[1]);
        click(false);
        QVERIFY(dialogs == 2 && folder->text() == (row[2].isEmpty() ? row[1] : row[2]) && folder->isReadOnly());
        click(false);
        QVERIFY(dialogs == 3 && !window.edit);
    }
}

void LineEditsTest::placeholderDiffersFromText()
{
    const QString sheet = scratchFile("QLineEdit { color: #ff0000 } QLineEdit:disabled { color: #0000ff }");
    addDocument("<Class Name='A'><QSS><CustomLineEdit>" + sheet.toUtf8() + "</CustomLineEdit></QSS></Class>");
    const Window window;
    for (int skins = 0; skins < 2; ++skins) {
        const QPalette colors = window.edit->palette();
        QCOMPARE(colors.color(QPalette::Active, QPalette::PlaceholderText).name(QColor::HexArgb), "#a6ff0000");
        QCOMPARE(colors.color(QPalette::Disabled, QPalette::PlaceholderText).name(QColor::HexArgb), "#a60000ff");
        Custom::changeSkin();
        CustomPrivate::setIsFontFamilyChange(true);
        QEvent language(QEvent::LanguageChange);
        QCoreApplication::sendEvent(window.edit, &language);
    }
}

ZANTHIC_TEST_MAIN(LineEditsTest)
#include "tst_line_edits.moc"
