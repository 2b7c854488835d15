#include "CommandLine.h"

#include "Appearance.h"
#include "pages/PageRegistry.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtXml/QDomDocument>

CommandLine::CommandLine()
    : m_pageOption(QStringLiteral("page"), QStringLiteral("Open or render the page <name>."), QStringLiteral("name")),
      m_skinOption(QStringLiteral("skin"), QStringLiteral("Use the skin <name>."), QStringLiteral("name")),
      m_languageOption(QStringLiteral("language"), QStringLiteral("Use the language <name>."), QStringLiteral("name")),
      m_documentOption(QStringLiteral("document"),
          QStringLiteral("Take up the style document <file> too; may be given more than once. The engine page shows "
                         "what it says."),
          QStringLiteral("file")),
      m_grabOption(QStringLiteral("grab"),
          QStringLiteral("Render the pages off screen into <folder> as PNG files, print their paths and exit. Without "
                         "--page, --skin or --language: each of them."),
          QStringLiteral("folder")),
      m_listOption(QStringLiteral("list"), QStringLiteral("List pages, skins and languages, and exit.")),
      m_helpOption(m_parser.addHelpOption()),
      m_versionOption(m_parser.addVersionOption())
{
    m_parser.setApplicationDescription(QStringLiteral("Every control of Zanthic, page by page."));
    m_parser.addOptions({ m_pageOption, m_skinOption, m_languageOption, m_documentOption, m_grabOption, m_listOption });
}

void CommandLine::parse(const QStringList &arguments)
{
    m_bParsed = m_parser.parse(arguments);
}

bool CommandLine::check()
{
    if (!m_bParsed) {
        m_error = m_parser.errorText();
        return false;
    }
    if (!m_parser.positionalArguments().isEmpty()) {
        m_error = QStringLiteral("Unexpected argument '%1'.").arg(m_parser.positionalArguments().constFirst());
        return false;
    }
    if (m_parser.isSet(m_grabOption) && m_parser.value(m_grabOption).isEmpty()) {
        m_error = QStringLiteral("--grab needs a folder.");
        return false;
    }
    return checkDocuments() && resolve(m_pageOption, pageNames(), &m_page)
        && resolve(m_skinOption, Appearance::skins(), &m_skin)
        && resolve(m_languageOption, Appearance::languages(), &m_language);
}

// The library passes over a document that can't be read; whoever names one here wants to know.
bool CommandLine::checkDocuments()
{
    const QStringList paths = documents();
    for (const QString &path : paths) {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly)) {
            m_error = QStringLiteral("Can't open the document '%1': %2.").arg(path, file.errorString());
            return false;
        }
        QDomDocument document;
        QString message;
        int line = 0;
        if (!document.setContent(&file, &message, &line)) {
            m_error = QStringLiteral("Can't read the document '%1', line %2: %3.").arg(path).arg(line).arg(message);
            return false;
        }
    }
    return true;
}

bool CommandLine::resolve(const QCommandLineOption &option, const QStringList &known, QString *name)
{
    *name = known.value(0);
    if (!m_parser.isSet(option))
        return true;
    const QString wanted = m_parser.value(option);
    for (const QString &candidate : known) {
        if (candidate.compare(wanted, Qt::CaseInsensitive) == 0) {
            *name = candidate;
            return true;
        }
    }
    m_error = QStringLiteral("Unknown %1 '%2'. Known: %3.")
                  .arg(option.names().constFirst(), wanted, known.join(QLatin1String(", ")));
    return false;
}

CommandLine::Mode CommandLine::mode() const
{
    if (m_parser.isSet(m_helpOption) || m_parser.isSet(m_versionOption) || m_parser.isSet(m_listOption))
        return Mode::Information;
    return m_parser.isSet(m_grabOption) || lacksDisplay() ? Mode::Grab : Mode::Window;
}

bool CommandLine::lacksDisplay() const
{
    // Asked once, before the platform is chosen: that choice itself sets the third variable.
    static const bool lacking = qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")
        && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
    return lacking || m_bDisplayRefused;
}

bool CommandLine::wantsOffscreen() const
{
    return qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") && (!m_bParsed || mode() != Mode::Window);
}

QString CommandLine::information() const
{
    if (m_parser.isSet(m_helpOption))
        return m_parser.helpText().trimmed();
    if (m_parser.isSet(m_versionOption))
        return QCoreApplication::applicationName() + QLatin1Char(' ') + Custom::version();
    const QString separator = QStringLiteral(", ");
    return QStringLiteral("pages: %1\nskins: %2\nlanguages: %3")
        .arg(pageNames().join(separator), Appearance::skins().join(separator), Appearance::languages().join(separator));
}

QStringList CommandLine::documents() const
{
    return m_parser.values(m_documentOption);
}

QString CommandLine::grabFolder() const
{
    return m_parser.isSet(m_grabOption) ? m_parser.value(m_grabOption) : QStringLiteral("build/gallery");
}

GrabPlan CommandLine::grabPlan() const
{
    GrabPlan plan;
    plan.folder = grabFolder();
    plan.pages = m_parser.isSet(m_pageOption) ? QStringList(m_page) : pageNames();
    plan.skins = m_parser.isSet(m_skinOption) ? QStringList(m_skin) : Appearance::skins();
    plan.languages = m_parser.isSet(m_languageOption) ? QStringList(m_language) : Appearance::languages();
    plan.documents = documents();
    return plan;
}
