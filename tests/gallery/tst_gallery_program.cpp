#include "style/StyleHost.h"

#include <QtCore/QProcess>
#include <QtXml/QDomDocument>


namespace {

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
QStringList faults(const QString &path)
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

class tst_GalleryProgram : public StyleTest
{
    Q_OBJECT

private Q_SLOTS:
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

    void translationIsComplete_data()
    {
        QTest::addColumn<QString>("file");
        QTest::newRow("gallery") << "gallery_zh_CN.ts";
        QTest::newRow("src") << "zanthic_zh_CN.ts";
    }
    void translationIsComplete()
    {
        const QString sources = PROJECT_FOLDER "/"_s + QTest::currentDataTag();
        QFETCH(QString, file);
        const QString committed = sources + "/translations/" + file;
        QCOMPARE(faults(committed), QStringList());
        // A copy brought up to date would hold what the sources have and the committed file lacks, and the reverse.
        const QString updated = scratchFile(QByteArray(), ".ts"_s);
        QVERIFY(QFile::remove(updated) && QFile::copy(committed, updated));
        const QStringList arguments{ "-locations"_s, "none"_s, sources, "-ts"_s, updated };
        QCOMPARE(QProcess::execute(QStringLiteral(LUPDATE_PROGRAM), arguments), 0);
        QCOMPARE(faults(updated), QStringList());
    }
};

ZANTHIC_TEST_MAIN(tst_GalleryProgram)
#include "tst_gallery_program.moc"
