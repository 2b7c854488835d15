#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

/// Prints the rows as they come, keeps the median of each, and works out the figures that compare them.
class FigureReporter : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run> &runs) override;

    /// The median processor time of a row in ns, which other programs disturb less than the time that passes; 0 when it
    /// did not run.
    double nanoseconds(const std::string &row) const;
    /// A counter of a row; 0 when it did not run.
    double counter(const std::string &row, const std::string &name) const;

    struct Figure
    {
        std::string name;
        double value;
        std::string meaning;
    };
    std::vector<Figure> figures() const;
    void printTable() const;
    bool writeJson(const std::string &path) const;

private:
    std::map<std::string, std::vector<double>> m_mapTimes;
    std::map<std::string, std::map<std::string, double>> m_mapCounters;
};
