// The documents agree with the files that they show and lead to.

#include "support/StyleTest.h"

#include <QtCore/QDir>
#include <QtCore/QRegularExpression>

namespace {

const QDir kProject(QStringLiteral(PROJECT_FOLDER));

QString readFile(const QString &name)
{
    QFile file(kProject.filePath(name));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

// The anchor of a heading: lower case, blanks as hyphens, without punctuation.
QStringList anchors(const QString &document)
{
    QStringList result;
    for (const QString &line : document.split(QLatin1Char('\n'))) {
        if (!line.startsWith(QLatin1Char('#')))
            continue;
        QString anchor = line.section(QLatin1Char(' '), 1).toLower();
        anchor.remove(QRegularExpression(QStringLiteral("[^a-z0-9 -]")));
        result += anchor.replace(QLatin1Char(' '), QLatin1Char('-'));
    }
    return result;
}

} // namespace

class TestDocuments : public StyleTest
{
    Q_OBJECT

private Q_SLOTS:
    void readmeShowsTheExample_data();
    void readmeShowsTheExample();
    void linksLeadSomewhere_data();
    void linksLeadSomewhere();
};

void TestDocuments::readmeShowsTheExample_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("file");
    QTest::newRow("program") << "cpp"
                             << "docs/examples/hello/main.cpp";
    QTest::newRow("build file") << "cmake"
                                << "docs/examples/hello/CMakeLists.txt";
}

void TestDocuments::readmeShowsTheExample()
{
    QFETCH(QString, language);
    QFETCH(QString, file);
    const QString text = readFile(file);
    QVERIFY(!text.isEmpty());
    const QString block = QStringLiteral("```%1\n%2```\n").arg(language, text);
    QVERIFY2(readFile(QStringLiteral("README.md")).contains(block), "the README shows another text than the file has");
}

void TestDocuments::linksLeadSomewhere_data()
{
    QTest::addColumn<QString>("document");
    for (const char *name :
        { "README.md", "CONTRIBUTING.md", "CHANGELOG.md", "docs/architecture.md", "docs/theming.md" })
        QTest::newRow(name) << QString::fromLatin1(name);
}

void TestDocuments::linksLeadSomewhere()
{
    QFETCH(QString, document);
    const QString text = readFile(document);
    QVERIFY(!text.isEmpty());
    const QDir folder = QFileInfo(kProject.filePath(document)).dir();
    static const QRegularExpression form(QStringLiteral("\\]\\(([^)\\s]+)\\)|src=\"([^\"]+)\""));
    for (auto it = form.globalMatch(text); it.hasNext();) {
        const QRegularExpressionMatch match = it.next();
        const QString link = match.captured(1) + match.captured(2);
        if (link.startsWith(QLatin1String("https://")))
            continue;
        const QString target = link.section(QLatin1Char('#'), 0, 0);
        QVERIFY2(target.isEmpty() || folder.exists(target), qPrintable(link));
        const QString anchor = link.section(QLatin1Char('#'), 1);
        const QString there = target.isEmpty() ? text : readFile(kProject.relativeFilePath(folder.filePath(target)));
        QVERIFY2(anchor.isEmpty() || anchors(there).contains(anchor), qPrintable(link));
    }
}

ZANTHIC_TEST_MAIN(TestDocuments)
#include "tst_documents.moc"
