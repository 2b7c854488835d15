#include "Appearance.h"
#include "CommandLine.h"
#include "GalleryWindow.h"
#include "Grabber.h"

#include <QtWidgets/QApplication>

#include <cstdio>

namespace {

void say(FILE *stream, const QString &text)
{
    std::fputs(qPrintable(text), stream);
    std::fputc('\n', stream);
}

QStringList argumentList(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    return arguments;
}

int grabPages(const CommandLine &line)
{
    const GrabResult result = grabAll(line.grabPlan());
    for (const QString &path : result.paths)
        say(stdout, path);
    if (!result.error.isEmpty())
        say(stderr, result.error);
    return result.error.isEmpty() ? CommandLine::Success : CommandLine::Failure;
}

int openWindow(const CommandLine &line)
{
    Appearance appearance;
    appearance.start(line.skin(), line.language(), line.documents());
    GalleryWindow window(&appearance);
    window.openPage(line.page());
    window.show();
    return QApplication::exec();
}

} // namespace

int main(int argc, char *argv[])
{
    CommandLine line;
    line.parse(argumentList(argc, argv));
    const bool platformChosen = !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
    const bool wantsOffscreen = line.wantsOffscreen();
    if (wantsOffscreen)
        qputenv("QT_QPA_PLATFORM", "offscreen");
    else if (!platformChosen)
        // Tried in turn: the display that is named may be one of yesterday's session.
        qputenv("QT_QPA_PLATFORM",
            qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") ? "xcb;offscreen" : "wayland;xcb;offscreen");
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication application(argc, argv);
    if (!platformChosen && !wantsOffscreen && QGuiApplication::platformName() == QLatin1String("offscreen"))
        line.setDisplayRefused();
    setUpApplication();
    line.parse(QCoreApplication::arguments());

    if (!line.check()) {
        say(stderr, line.error());
        return CommandLine::UsageError;
    }
    switch (line.mode()) {
    case CommandLine::Mode::Information:
        say(stdout, line.information());
        return CommandLine::Success;
    case CommandLine::Mode::Grab:
        if (line.lacksDisplay())
            say(stdout, QStringLiteral("No display: rendering the pages off screen into %1").arg(line.grabFolder()));
        return grabPages(line);
    case CommandLine::Mode::Window:
        break;
    }
    return openWindow(line);
}
