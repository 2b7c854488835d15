#pragma once

#include "Grabber.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QString>

/// What the user asked for on the command line. parse() works before there is an application object, so that the
/// platform can still be chosen, and is called again with what that object leaves; check() comes after both.
class CommandLine
{
public:
    enum class Mode { Window, Grab, Information };
    enum ExitStatus { Success = 0, Failure = 1, UsageError = 2 };

    CommandLine();

    void parse(const QStringList &arguments);
    /// Resolves the names of page, skin and language. False when one is unknown or an option can't be read; error()
    /// then says which ones there are.
    bool check();

    Mode mode() const;
    bool lacksDisplay() const; ///< there is no display and no platform was chosen
    void setDisplayRefused() { m_bDisplayRefused = true; } ///< a display is named, but can't be reached
    bool wantsOffscreen() const; ///< nothing is to be shown, and the user chose no platform
    QString error() const { return m_error; }
    QString information() const; ///< the text of --help, --version or --list

    QString page() const { return m_page; } ///< the first page, unless one is given
    QString skin() const { return m_skin; }
    QString language() const { return m_language; }
    QStringList documents() const; ///< style documents to take up beside the theme's, in order
    QString grabFolder() const;
    GrabPlan grabPlan() const;

private:
    bool checkDocuments();
    bool resolve(const QCommandLineOption &option, const QStringList &known, QString *name);

    QCommandLineParser m_parser;
    QCommandLineOption m_pageOption;
    QCommandLineOption m_skinOption;
    QCommandLineOption m_languageOption;
    QCommandLineOption m_documentOption;
    QCommandLineOption m_grabOption;
    QCommandLineOption m_listOption;
    QCommandLineOption m_helpOption;
    QCommandLineOption m_versionOption;
    bool m_bParsed = false;
    bool m_bDisplayRefused = false;
    QString m_error;
    QString m_page;
    QString m_skin;
    QString m_language;
};
