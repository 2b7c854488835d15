#include "Figures.h"
#include "Fixtures.h"

#include <QtWidgets/QApplication>
#include <QtWidgets/QStyleFactory>

#include <cstdio>
#include <cstring>

void printMemoryOf(const QString &kind);

namespace {

// The offscreen platform tells of each window mask that it can't set one, which would be measured too.
void dropMessage(QtMsgType, const QMessageLogContext &, const QString &) { }

} // namespace

int main(int argc, char *argv[])
{
    std::string jsonPath;
    QString memoryKind;
    std::vector<char *> rest{ argv[0] };
    std::string minTime = "--benchmark_min_time=0.5";
    std::string repetitions = "--benchmark_repetitions=3";
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--json") == 0 && i + 1 < argc)
            jsonPath = argv[++i];
        else if (std::strcmp(argv[i], "--memory-of") == 0 && i + 1 < argc)
            memoryKind = QString::fromLocal8Bit(argv[++i]);
        else if (std::strcmp(argv[i], "--quick") == 0) {
            minTime = "--benchmark_min_time=0.05";
            repetitions = "--benchmark_repetitions=1";
        } else
            rest.push_back(argv[i]);
    }
    rest.insert(rest.begin() + 1, { minTime.data(), repetitions.data() });

    qInstallMessageHandler(dropMessage);
    QApplication app(argc, argv);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    if (!memoryKind.isEmpty()) {
        printMemoryOf(memoryKind);
        return 0;
    }

    Fixtures::useTheme();
    int restCount = int(rest.size());
    benchmark::Initialize(&restCount, rest.data());
    if (benchmark::ReportUnrecognizedArguments(restCount, rest.data()))
        return 2;
    FigureReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    reporter.printTable();
    if (jsonPath.empty() || reporter.writeJson(jsonPath))
        return 0;
    std::fprintf(stderr, "can't write %s\n", jsonPath.c_str());
    return 1;
}
