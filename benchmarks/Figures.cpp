#include "Figures.h"

#include <algorithm>
#include <cstdio>
#include <fstream>

namespace {

double median(std::vector<double> values)
{
    if (values.empty())
        return 0.0;
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

double ratio(double a, double b)
{
    return b > 0.0 ? a / b : 0.0;
}

// "Family/size/min_time:1.000" to "Family/size".
std::string rowName(const std::string &name)
{
    std::string row = name;
    for (const char *suffix : { "/min_time:", "/iterations:", "/repeats:", "/real_time", "/manual_time" }) {
        const std::size_t at = row.find(suffix);
        if (at != std::string::npos)
            row.resize(at);
    }
    return row;
}

} // namespace

void FigureReporter::ReportRuns(const std::vector<Run> &runs)
{
    for (const Run &run : runs) {
        if (run.run_type != Run::RT_Iteration || run.iterations == 0)
            continue;
        const std::string row = rowName(run.benchmark_name());
        m_mapTimes[row].push_back(run.cpu_accumulated_time / double(run.iterations) * 1e9);
        for (const auto &counter : run.counters)
            m_mapCounters[row][counter.first] = counter.second.value;
    }
    ConsoleReporter::ReportRuns(runs);
}

double FigureReporter::nanoseconds(const std::string &row) const
{
    const auto it = m_mapTimes.find(row);
    return it == m_mapTimes.end() ? 0.0 : median(it->second);
}

double FigureReporter::counter(const std::string &row, const std::string &name) const
{
    const auto it = m_mapCounters.find(row);
    if (it == m_mapCounters.end())
        return 0.0;
    const auto value = it->second.find(name);
    return value == it->second.end() ? 0.0 : value->second;
}

std::vector<FigureReporter::Figure> FigureReporter::figures() const
{
    const double ours = nanoseconds("switch/zanthic/10000");
    const double button = nanoseconds("paint/button/zanthic");
    const auto versusSheet
        = [this](const std::string &row) { return ratio(nanoseconds(row + "/zanthic"), nanoseconds(row + "/sheet")); };
    return {
        { "switch_10000_times_faster_than_sheet", ratio(nanoseconds("switch/sheet/10000"), ours),
            "qApp->setStyleSheet / Custom::changeSkin, 10,000 buttons; at least 50" },
        { "switch_10000_ms", ours / 1e6, "the whole of Custom::changeSkin, 10,000 buttons; below 16" },
        { "switch_10000_vs_floor", ratio(ours, nanoseconds("switch/floor/10000")),
            "Custom::changeSkin / a bare sendEvent and update for each widget" },
        { "paint_button_vs_sheet", ratio(button, nanoseconds("paint/button/sheet")),
            "a button's paint / under a style sheet; at most 0.75" },
        { "paint_button_vs_calls", ratio(button, nanoseconds("paint/button/calls")),
            "a button's paint / the bare painter calls of box and text" },
        { "paint_checkbox_vs_sheet", ratio(nanoseconds("paint/checkbox/zanthic"), nanoseconds("paint/checkbox/sheet")),
            "a check box's paint / under a style sheet; at most 0.75" },
        { "paint_checkbox_vs_image_sheet",
            ratio(nanoseconds("paint/checkbox/zanthic"), nanoseconds("paint/checkbox/sheet_of_images")),
            "the same, against a sheet that draws ready images only" },
        { "paint_combo_box_vs_sheet", versusSheet("paint/combo_box"),
            "a combo box's paint / under a style sheet; at most 0.75" },
        { "paint_slider_vs_sheet", versusSheet("paint/slider"),
            "a slider's paint / under a style sheet; at most 0.75" },
        { "paint_dot_slider_vs_sheet", versusSheet("paint/dot_slider"),
            "one with dots and labels / with labels that a program paints; at most 0.75" },
        { "paint_two_handle_slider_vs_sheet", versusSheet("paint/two_handle_slider"),
            "one with two handles and values / with those that a program paints; at most 0.75" },
        { "paint_process_slider_vs_sheet", versusSheet("paint/process_slider"),
            "one with marker and value / with a value that a program paints; at most 0.75" },
        { "drag_two_handles_vs_sheet", versusSheet("drag/two_handles"), "a drag of 1,000 steps / on that slider" },
        { "memory_kib_per_button", counter("memory/zanthic", "KiB_per_button"),
            "KiB for each painted button beyond a plain one; at most 2" },
        { "memory_kib_per_button_sheet", counter("memory/sheet", "KiB_per_button"), "the same with a style sheet" },
        { "window_show_vs_sheet", ratio(nanoseconds("window/show/zanthic"), nanoseconds("window/show/sheet")),
            "a window of twenty controls to its first paint / a dialog under a style sheet; at most 1" },
        { "window_resize_vs_sheet", ratio(nanoseconds("window/resize/zanthic"), nanoseconds("window/resize/sheet")),
            "a step of a live resize / that of the dialog; at most 1" },
        { "menu_vs_sheet", ratio(nanoseconds("menu/zanthic"), nanoseconds("menu/sheet")),
            "a menu's first paint / under a style sheet; at most 1" },
        { "spin_switch_1000_vs_plain", ratio(nanoseconds("spin/zanthic/1000"), nanoseconds("spin/plain/1000")),
            "Custom::changeSkin and the repaint, 1,000 spin boxes / such as set the sheet plainly; about 1" },
        { "start_ms", nanoseconds("start/theme") / 1e6, "taking up the default theme" },
        { "read_ns", nanoseconds("read/own_key"), "one attribute by its own key" },
    };
}

void FigureReporter::printTable() const
{
    std::printf("\n%-40s %12s  %s\n", "figure", "value", "meaning");
    for (const Figure &figure : figures())
        std::printf("%-40s %12.3f  %s\n", figure.name.c_str(), figure.value, figure.meaning.c_str());
}

bool FigureReporter::writeJson(const std::string &path) const
{
    std::ofstream file(path);
    file << "{\n";
    const std::vector<Figure> all = figures();
    for (std::size_t i = 0; i < all.size(); ++i)
        file << "  \"" << all[i].name << "\": " << all[i].value << (i + 1 < all.size() ? ",\n" : "\n");
    file << "}\n";
    return bool(file.flush());
}
