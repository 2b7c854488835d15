#include "support/StyleTest.h"
#include "windows/DialogDriver.h"
#include "windows/FileNames_p.h"

#include <Zanthic/Custom.h>

#include <QtWidgets/QLineEdit>

static const auto suffix = QStringLiteral("txt");

class FileNamesTest : public StyleTest
{
    Q_OBJECT

private Q_SLOTS:
    void suffixIsCompleted_data() { addRowsOf(QStringLiteral("windows/suffixes.txt")); }
    void suffixIsCompleted();
    void saveDialogStartsWithTheName();
    void unusableDirectoryIsWarnedOf();
    void parentMayGoMeanwhile();
};

void FileNamesTest::suffixIsCompleted()
{
    QFETCH(QStringList, fields);
    QCOMPARE(FileNames::completed(fields[0], fields[1], fields.mid(3)), fields[2]);
}

void FileNamesTest::saveDialogStartsWithTheName()
{
    const QTemporaryDir dir;
    QString filter = QStringLiteral("Pictures (*.png)");
    const DialogDriver driver([&](QFileDialog *dialog) {
        QCOMPARE(dialog->directory().absolutePath(), dir.path());
        QCOMPARE(dialog->findChild<QLineEdit *>()->text(), QStringLiteral("<b>%1"));
        QCOMPARE(dialog->selectedNameFilter(), filter);
        dialog->selectNameFilter(QStringLiteral("Texts (*.txt)"));
        DialogDriver::end(dialog, true);
    });
    const QString name = Custom::getSaveFileName(nullptr, QString(), dir.path(),
        QStringLiteral("Texts (*.txt);;Pictures (*.png)"), QStringLiteral("<b>%1"), suffix, {}, &filter);
    QCOMPARE(name, dir.filePath(QStringLiteral("<b>%1.txt")));
    QCOMPARE(filter, QStringLiteral("Texts (*.txt)"));
}

void FileNamesTest::unusableDirectoryIsWarnedOf()
{
    for (int i = 0; i < 8; ++i) {
        const bool save = i & 1, gone = i & 2, cancelled = i & 4;
        const QTemporaryDir dir;
        const QString folder = dir.filePath(QStringLiteral("folder"));
        QVERIFY(QDir().mkdir(folder));
        const DialogDriver driver([&](QFileDialog *dialog) {
            // The superuser may write everywhere, but not into what isn't there any more.
            connect(dialog, &QDialog::finished, this, [&] { gone ? QDir().rmdir(folder) : true; });
            DialogDriver::end(dialog, !cancelled);
        });
        const QString name = save ? Custom::getSaveFileName(nullptr, {}, folder, {}, QStringLiteral("a"), suffix)
                                  : Custom::getExistingDirectory(nullptr, {}, folder);
        QCOMPARE(name, cancelled ? QString() : folder + QLatin1String(save ? "/a.txt" : ""));
        QCOMPARE(driver.texts.contains(QStringLiteral("This directory is not supported")), gone && !cancelled);
        QVERIFY(!driver.texts.contains(QStringLiteral("Prompt")));
    }
}

void FileNamesTest::parentMayGoMeanwhile()
{
    QPointer<QWidget> parent(new QWidget);
    const DialogDriver driver([&](QFileDialog *) { delete parent; });
    QVERIFY(Custom::getExistingDirectory(parent).isEmpty() && parent.isNull());
}

ZANTHIC_TEST_MAIN(FileNamesTest)
#include "tst_file_names.moc"
