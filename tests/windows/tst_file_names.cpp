#include "support/Literal.h"
#include "support/StyleTest.h"
#include "windows/DialogDriver.h"
#include "windows/FileNames_p.h"

#include <Zanthic/Zanthic.h>

class FileNamesTest : public StyleTest
{
    Q_OBJECT

private Q_SLOTS:
    void suffixIsCompleted_data() { addRowsOf("windows/suffixes.txt"_s); }
    void suffixIsCompleted()
    {
        QFETCH(QStringList, fields);
        QCOMPARE(FileNames::completed(fields[0], fields[1], fields.mid(3)), fields[2]);
    }

    void unusableDirectoryIsWarnedOf()
    {
        for (int i = 0; i < 8; ++i) {
            const bool save = i & 1, gone = i & 2, cancelled = i & 4;
            const QTemporaryDir dir;
            const QString folder = dir.filePath("folder"_s);
            QVERIFY(QDir().mkdir(folder));
            QString filter = "B (*.b)"_s;
            const DialogDriver driver([&](QFileDialog *dialog) {
                // The superuser may write everywhere, but not into what isn't there any more.
                connect(dialog, &QDialog::finished, this, [&] { gone ? QDir().rmdir(folder) : true; });
                QCOMPARE(dialog->selectedNameFilter(), save ? filter : dialog->selectedNameFilter());
                dialog->selectNameFilter("A (*.a)"_s);
                DialogDriver::end(dialog, !cancelled);
            });
            const QString name = save
                ? Custom::getSaveFileName(nullptr, {}, folder, "A (*.a);;B (*.b)"_s, "<b>%1"_s, "txt"_s, {}, &filter)
                : Custom::getExistingDirectory(nullptr, {}, folder);
            QCOMPARE(name, cancelled ? QString() : folder + QLatin1String(save ? "/<b>%1.txt" : ""));
            QCOMPARE(filter.startsWith('A'), save && !cancelled);
            QCOMPARE(driver.texts.contains("This directory is not supported"_s), gone && !cancelled);
            QVERIFY(!driver.texts.contains("Prompt"_s));
        }
    }
};

ZANTHIC_TEST_MAIN(FileNamesTest)
#include "tst_file_names.moc"
