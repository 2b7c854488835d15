// Taking up the default theme, and reading one attribute.

#include "Fixtures.h"

#include <Zanthic/CustomPushButton.h>
#include <Zanthic/ZanthicTheme.h>

#include <benchmark/benchmark.h>

namespace {

void startTheme(benchmark::State &state)
{
    for (auto _ : state)
        ZanthicTheme::applySkin(QStringLiteral("light"));
}

void readAttribute(benchmark::State &state, const char *attribute, Custom::ItemStatus status)
{
    Fixtures::useTheme();
    const CustomPushButton button(QStringLiteral("Button"));
    const QString name = QLatin1String(attribute);
    for (auto _ : state)
        benchmark::DoNotOptimize(button.cAttributeValue(name, status));
}

} // namespace

BENCHMARK(startTheme)->Name("start/theme")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(readAttribute, own, "BackgroundColor", Custom::Hover)->Name("read/own_key");
BENCHMARK_CAPTURE(readAttribute, fallback, "FontSize", Custom::Hover)->Name("read/fallback");
