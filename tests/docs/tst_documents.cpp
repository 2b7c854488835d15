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
    void readmeShowsTheExample();
    void linksLeadSomewhere();
};

void TestDocuments::readmeShowsTheExample()
{
    const QString readme = readFile(QStringLiteral("README.md"));
    for (const char *file : { "cpp docs/examples/hello/main.cpp", "cmake docs/examples/hello/CMakeLists.txt" }) {
        const QStringList words = QString::fromLatin1(file).split(QLatin1Char(' '));
        const QString text = readFile(words[1]);
        QVERIFY2(!text.isEmpty() && readme.contains(QStringLiteral("```%1\n%2```\n").arg(words[0], text)), file);
    }
}

void TestDocuments::linksLeadSomewhere()
{
    static const QRegularExpression form(QStringLiteral("\\]\\(([^)\\s]+)\\)|src=\"([^\"]+)\""));
    for (const char *name :
        { "README.md", "CONTRIBUTING.md", "CHANGELOG.md", "docs/architecture.md", "docs/theming.md" }) {
        const QString text = readFile(QString::fromLatin1(name));
        QVERIFY2(!text.isEmpty(), name);
        const QDir folder = QFileInfo(kProject.filePath(QString::fromLatin1(name))).dir();
        for (auto it = form.globalMatch(text); it.hasNext();) {
            const QRegularExpressionMatch match = it.next();
            const QString link = match.captured(1) + match.captured(2);
            const QString target = link.section(QLatin1Char('#'), 0, 0);
            if (link.startsWith(QLatin1String("https://")))
                continue;
            QVERIFY2(target.isEmpty() || folder.exists(target), qPrintable(link));
            const QString anchor = link.section(QLatin1Char('#'), 1);
            const QString there
                = target.isEmpty() ? text : readFile(kProject.relativeFilePath(folder.filePath(target)));
            QVERIFY2(anchor.isEmpty() || anchors(there).contains(anchor), qPrintable(link));
        }
    }
}

ZANTHIC_TEST_MAIN(TestDocuments)
#include "tst_documents.moc"
