#include "support/StyleTest.h"
#include "windows/DialogDriver.h"
#include "windows/FileNames_p.h"

#include <Zanthic/Custom.h>

class FileNamesTest : public StyleTest
{
    Q_OBJECT

private Q_SLOTS:
    void suffixIsCompleted_data() { addRowsOf(QStringLiteral("windows/suffixes.txt")); }
    void suffixIsCompleted();
    void unusableDirectoryIsWarnedOf();
};

void FileNamesTest::suffixIsCompleted()
{
    QFETCH(QStringList, fields);
    QCOMPARE(FileNames::completed(fields[0], fields[1], fields.mid(3)), fields[2]);
}

void FileNamesTest::unusableDirectoryIsWarnedOf()
{
    for (int i = 0; i < 8; ++i) {
        const bool save = i & 1, gone = i & 2, cancelled = i & 4;
        const QTemporaryDir dir;
        const QString folder = dir.filePath(QStringLiteral("folder"));
        QVERIFY(QDir().mkdir(folder));
        QString filter = QStringLiteral("B (*.b)");
        const DialogDriver driver([&](QFileDialog *dialog) {
            // The superuser may write everywhere, but not into what isn't there any more.
            connect(dialog, &QDialog::finished, this, [&] { gone ? QDir().rmdir(folder) : true; });
            QCOMPARE(dialog->selectedNameFilter(), save ? filter : dialog->selectedNameFilter());
            dialog->selectNameFilter(QStringLiteral("A (*.a)"));
            DialogDriver::end(dialog, !cancelled);
        });
        const QString name = save ? Custom::getSaveFileName(nullptr, {}, folder, QStringLiteral("A (*.a);;B (*.b)"),
                                 QStringLiteral("<b>%1"), QStringLiteral("txt"), {}, &filter)
                                  : Custom::getExistingDirectory(nullptr, {}, folder);
        QCOMPARE(name, cancelled ? QString() : folder + QLatin1String(save ? "/<b>%1.txt" : ""));
        QCOMPARE(filter.startsWith(QLatin1Char('A')), save && !cancelled);
        QCOMPARE(driver.texts.contains(QStringLiteral("This directory is not supported")), gone && !cancelled);
        QVERIFY(!driver.texts.contains(QStringLiteral("Prompt")));
    }
}

ZANTHIC_TEST_MAIN(FileNamesTest)
#include "tst_file_names.moc"
