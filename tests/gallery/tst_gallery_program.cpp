#include "style/CaseFile.h"
#include "style/StyleHost.h"

#include <QtCore/QProcess>
#include <QtXml/QDomDocument>

using CaseFile::cell;

namespace {

struct Run
{
    int status = -1;
    QString output;
    QString errors;
};

Run run(const QString &program, const QStringList &arguments,
    const QProcessEnvironment &environment = QProcessEnvironment::systemEnvironment(),
    const QString &folder = QString())
{
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(folder);
    process.start(program, arguments);
    if (!process.waitForFinished(120000) || process.exitStatus() != QProcess::NormalExit)
        return {};
    // Qt's remark on a session without a runtime folder says nothing about the program.
    static const QRegularExpression s_oRemark("^QStandardPaths:.*\n"_s, QRegularExpression::MultilineOption);
    return { process.exitCode(), process.readAllStandardOutput(),
        QString::fromUtf8(process.readAllStandardError()).remove(s_oRemark) };
}

/// Everything that keeps a translation from being complete.
QStringList faults(const QString &path)
{
    QFile file(path);
    QDomDocument document;
    if (!file.open(QIODevice::ReadOnly) || !document.setContent(&file))
        return { path };
    QStringList found;
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

private:
    const QString m_strProgram = QStringLiteral(GALLERY_PROGRAM);

private Q_SLOTS:
    void commandLine_data() { CaseFile::addRows("command-lines", { "arguments", "status", "output", "errors" }); }
    void commandLine()
    {
        const Run result = run(m_strProgram, cell("arguments").split(' '));
        QTEST(QString::number(result.status), "status");
        QVERIFY2(result.output.contains(cell("output")), qPrintable(result.output));
        QVERIFY2(result.errors.contains(cell("errors")), qPrintable(result.errors));
        QCOMPARE(result.output.isEmpty(), cell("output").isEmpty());
    }

    void grabsWhatIsChosen()
    {
        QTemporaryDir folder;
        const QString into = folder.filePath("a/b"_s);
        const QStringList common{ "--grab"_s, into, "--page"_s, "CHECKS"_s };
        const Run one = run(m_strProgram, common + "--skin Dark --language EN_us"_s.split(' '));
        QCOMPARE(one.output + one.errors, into + "/checks-dark-en_US.png\n");
        QCOMPARE(run(m_strProgram, common).output.count('\n'), 4);
        QCOMPARE(QDir(into).entryList(QDir::Files).join(' '),
            "checks-dark-en_US.png checks-dark-zh_CN.png checks-light-en_US.png checks-light-zh_CN.png"_s);
    }

    void withoutDisplayItRendersOffScreen()
    {
        QTemporaryDir folder;
        QProcessEnvironment bare = QProcessEnvironment::systemEnvironment();
        for (const auto &name : { "DISPLAY"_s, "WAYLAND_DISPLAY"_s, "QT_QPA_PLATFORM"_s })
            bare.remove(name);
        const Run result = run(m_strProgram, { "--page"_s, "boxes"_s }, bare, folder.path());
        const QStringList lines = result.output.split('\n', Qt::SkipEmptyParts);
        QVERIFY(result.status == 0 && lines.size() == 5 && lines.constFirst().startsWith("No display"_s));
        for (const QString &path : lines.mid(1))
            QVERIFY(path.startsWith("build/gallery/boxes-"_s) && !QImage(folder.filePath(path)).isNull());
    }

    void pictureGrowsWithTheScale()
    {
        QTemporaryDir folder;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        QSize sizes[2];
        for (int i = 0; i < 2; ++i) {
            environment.insert("QT_SCALE_FACTOR"_s, QString::number(i + 1));
            run(m_strProgram, { "--grab"_s, folder.path(), "--page"_s, "checks"_s }, environment);
            sizes[i] = QImage(folder.filePath("checks-light-en_US.png"_s)).size();
        }
        QVERIFY(!sizes[0].isEmpty() && sizes[1].width() == 2 * sizes[0].width());
        // Texts are a little higher or lower at another scale, and the page with them.
        QVERIFY(qAbs(sizes[1].height() - 2 * sizes[0].height()) <= sizes[0].height() / 20);
    }

    void translationIsComplete()
    {
        const QString sources = QStringLiteral(GALLERY_SOURCES);
        const QString committed = sources + "/translations/gallery_zh_CN.ts";
        QCOMPARE(faults(committed), QStringList());
        // A copy brought up to date would hold what the sources have and the committed file lacks, and the reverse.
        const QString updated = scratchFile(QByteArray(), ".ts"_s);
        QVERIFY(QFile::remove(updated) && QFile::copy(committed, updated));
        const QStringList arguments{ "-locations"_s, "none"_s, sources, "-ts"_s, updated };
        QCOMPARE(run(QStringLiteral(LUPDATE_PROGRAM), arguments).status, 0);
        QCOMPARE(faults(updated), QStringList());
    }
};

ZANTHIC_TEST_MAIN(tst_GalleryProgram)
#include "tst_gallery_program.moc"
