#include "support/StyleTest.h"

#include <QtCore/QDirIterator>
#include <QtCore/QProcess>
#include <QtGui/QImage>
#include <QtXml/QDomDocument>

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
    Run result;
    if (!process.waitForFinished(120000) || process.exitStatus() != QProcess::NormalExit)
        return result;
    result.status = process.exitCode();
    result.output = QString::fromUtf8(process.readAllStandardOutput());
    for (const QByteArray &line : process.readAllStandardError().split('\n')) {
        // Qt's remark on a session without a runtime folder says nothing about the program.
        if (!line.isEmpty() && !line.startsWith("QStandardPaths:"))
            result.errors += QString::fromUtf8(line) + QLatin1Char('\n');
    }
    return result;
}

const QString Program = QStringLiteral(GALLERY_PROGRAM);

/// Everything that keeps a translation from being complete.
QStringList faults(const QString &path)
{
    QFile file(path);
    QDomDocument document;
    if (!file.open(QIODevice::ReadOnly) || !document.setContent(&file))
        return { QStringLiteral("can't read ") + path };
    QStringList found;
    const QDomNodeList messages = document.elementsByTagName(QStringLiteral("message"));
    if (messages.isEmpty())
        found << QStringLiteral("no messages");
    for (int i = 0; i < messages.size(); ++i) {
        const QDomElement message = messages.at(i).toElement();
        const QString source = message.firstChildElement(QStringLiteral("source")).text();
        const QDomElement translation = message.firstChildElement(QStringLiteral("translation"));
        if (translation.hasAttribute(QStringLiteral("type")))
            found << translation.attribute(QStringLiteral("type")) + QLatin1String(": ") + source;
        else if (translation.text().isEmpty())
            found << QStringLiteral("empty: ") + source;
        else if (translation.text().count(QLatin1String("%1")) != source.count(QLatin1String("%1")))
            found << QStringLiteral("other arguments: ") + source;
    }
    return found;
}

} // namespace

class tst_GalleryProgram : public StyleTest
{
    Q_OBJECT

private Q_SLOTS:
    void commandLine_data();
    void commandLine();
    void grabsWhatIsChosen();
    void unwritableFolderIsAnError();
    void withoutDisplayItRendersOffScreen();
    void pictureGrowsWithTheScale();
    void translationIsComplete();
};

void tst_GalleryProgram::commandLine_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("output");
    QTest::addColumn<QString>("errors");
    const auto row
        = [](const char *name, const QStringList &arguments, int status, const char *output, const char *errors) {
              QTest::newRow(name) << arguments << status << QString::fromLatin1(output) << QString::fromLatin1(errors);
          };
    const auto text = [](const char *words) { return QString::fromLatin1(words); };
    row("unknown page", { text("--page"), text("nope") }, 2, "", "'nope'. Known: boxes, buttons, checks, engine");
    row("unknown skin", { text("--skin"), text("nope") }, 2, "", "'nope'. Known: light, dark");
    row("unknown language", { text("--language"), text("zh") }, 2, "", "'zh'. Known: en_US, zh_CN");
    row("empty name", { text("--page=") }, 2, "", "Known: boxes");
    row("unknown option", { text("--bogus") }, 2, "", "bogus");
    row("value missing", { text("--page") }, 2, "", "page");
    row("stray word", { text("boxes") }, 2, "", "boxes");
    row("unknown page to grab", { text("--grab"), text("."), text("--page"), text("nope") }, 2, "", "Known: boxes");
    row("list", { text("--list") }, 0,
        "pages: boxes, buttons, checks, engine\nskins: light, dark\nlanguages: en_US, zh_CN\n", "");
    row("list with an error", { text("--list"), text("--skin"), text("nope") }, 2, "", "Known: light, dark");
    row("version", { text("--version") }, 0, "zanthic-gallery V", "");
    row("help", { text("--help") }, 0, "--grab <folder>", "");
}

void tst_GalleryProgram::commandLine()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, status);
    QFETCH(QString, output);
    QFETCH(QString, errors);
    const Run result = run(Program, arguments);
    QCOMPARE(result.status, status);
    QVERIFY2(result.output.contains(output), qPrintable(result.output));
    QVERIFY2(result.errors.contains(errors), qPrintable(result.errors));
    QVERIFY(output.isEmpty() == result.output.isEmpty());
}

void tst_GalleryProgram::grabsWhatIsChosen()
{
    QTemporaryDir folder;
    const QString into = folder.filePath(QStringLiteral("a/b"));
    const QStringList common = { QStringLiteral("--grab"), into, QStringLiteral("--page"), QStringLiteral("CHECKS") };
    const Run one = run(Program,
        common
            + QStringList{ QStringLiteral("--skin"), QStringLiteral("Dark"), QStringLiteral("--language"),
                QStringLiteral("EN_us") });
    QCOMPARE(one.status, 0);
    QCOMPARE(one.output, into + QLatin1String("/checks-dark-en_US.png\n"));
    QCOMPARE(one.errors, QString());

    const Run all = run(Program, common);
    QCOMPARE(all.status, 0);
    QStringList files = QDir(into).entryList(QDir::Files);
    QCOMPARE(files,
        QStringList({ QStringLiteral("checks-dark-en_US.png"), QStringLiteral("checks-dark-zh_CN.png"),
            QStringLiteral("checks-light-en_US.png"), QStringLiteral("checks-light-zh_CN.png") }));
    QCOMPARE(all.output.count(QLatin1Char('\n')), files.size());
    for (const QString &file : qAsConst(files))
        QVERIFY(!QImage(QDir(into).filePath(file)).isNull());
}

void tst_GalleryProgram::unwritableFolderIsAnError()
{
    const QString file = scratchFile("in the way");
    const Run result = run(Program, { QStringLiteral("--grab"), file + QLatin1String("/below") });
    QCOMPARE(result.status, 1);
    QVERIFY(result.errors.contains(file));
    QCOMPARE(result.output, QString());
}

void tst_GalleryProgram::withoutDisplayItRendersOffScreen()
{
    QTemporaryDir folder;
    QProcessEnvironment bare = QProcessEnvironment::systemEnvironment();
    for (const char *name : { "DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM" })
        bare.remove(QString::fromLatin1(name));
    const Run result = run(Program, { QStringLiteral("--page"), QStringLiteral("boxes") }, bare, folder.path());
    QCOMPARE(result.status, 0);
    const QStringList lines = result.output.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    QCOMPARE(lines.size(), 5);
    QVERIFY(lines.constFirst().startsWith(QLatin1String("No display")));
    for (const QString &path : lines.mid(1)) {
        QVERIFY(path.startsWith(QLatin1String("build/gallery/boxes-")));
        QVERIFY(QFile::exists(folder.filePath(path)));
    }
}

void tst_GalleryProgram::pictureGrowsWithTheScale()
{
    QTemporaryDir folder;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    QVector<QSize> sizes;
    for (const char *scale : { "1", "2" }) {
        environment.insert(QStringLiteral("QT_SCALE_FACTOR"), QString::fromLatin1(scale));
        const Run result = run(Program,
            { QStringLiteral("--grab"), folder.path(), QStringLiteral("--page"), QStringLiteral("checks"),
                QStringLiteral("--skin"), QStringLiteral("light"), QStringLiteral("--language"),
                QStringLiteral("en_US") },
            environment);
        QCOMPARE(result.status, 0);
        sizes << QImage(folder.filePath(QStringLiteral("checks-light-en_US.png"))).size();
    }
    QVERIFY(!sizes.at(0).isEmpty());
    QCOMPARE(sizes.at(1).width(), 2 * sizes.at(0).width());
    // Texts are a little higher or lower at another scale, and the page with them.
    QVERIFY(qAbs(sizes.at(1).height() - 2 * sizes.at(0).height()) <= sizes.at(0).height() / 20);
}

void tst_GalleryProgram::translationIsComplete()
{
    const QString sources = QStringLiteral(GALLERY_SOURCES);
    const QString committed = sources + QLatin1String("/translations/gallery_zh_CN.ts");
    QCOMPARE(faults(committed), QStringList());

    // A copy brought up to date would hold what the sources have and the committed file lacks, and the reverse.
    const QString updated = scratchFile(QByteArray(), QStringLiteral(".ts"));
    QVERIFY(QFile::remove(updated) && QFile::copy(committed, updated));
    const Run lupdate = run(QStringLiteral(LUPDATE_PROGRAM),
        { QStringLiteral("-locations"), QStringLiteral("none"), sources, QStringLiteral("-ts"), updated });
    QCOMPARE(lupdate.status, 0);
    QCOMPARE(faults(updated), QStringList());
}

ZANTHIC_TEST_MAIN(tst_GalleryProgram)
#include "tst_gallery_program.moc"
