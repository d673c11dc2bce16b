// Runs every contender in turn, round by round, and prints the table of docs/benchmarks.md.
//   skeldon-bench [rounds] [work...]
#include "Benchmarks.h"
#include "MemoryUse.h"
#include "PlainOutput.h"
#include "Rounds.h"
#include "SampleData.h"
#include "WindowBench.h"

#include "files/CsvFile.h"
#include "files/DataFile.h"

#include <QApplication>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

using namespace skeldon;
using namespace skeldon::bench;

namespace {

constexpr int DefaultRounds = 7;
constexpr double NanosecondsInMillisecond = 1e6;

std::string NameOf(const Work& work, const std::string& contender, std::size_t lines)
{
    return work.name + '/' + contender + '/' + std::to_string(lines);
}

/// Ours to the peer's, or the other way round, in each round; the median of that.
double Ratio(const Samples& samples, const Work& work, const std::string& peer, bool isFaster,
             std::size_t lines)
{
    const std::vector<double>& ours = samples.at(NameOf(work, "skeldon", lines));
    const std::vector<double>& theirs = samples.at(NameOf(work, peer, lines));
    std::vector<double> ratios;
    for (std::size_t i = 0; i < ours.size(); ++i)
        ratios.push_back(isFaster ? theirs[i] / ours[i] : ours[i] / theirs[i]);
    return Median(ratios);
}

double Milliseconds(const Samples& samples, const std::string& name)
{
    return Median(samples.at(name)) / NanosecondsInMillisecond;
}

void PrintTimes(const Samples& samples, const std::vector<Work>& works)
{
    std::printf("| work | how | 100,000 lines, ms | 1,000,000 lines, ms | growth |\n"
                "|---|---|---:|---:|---:|\n");
    for (const Work& work : works) {
        std::vector<std::string> contenders{"skeldon"};
        contenders.insert(contenders.end(), work.peers.begin(), work.peers.end());
        for (const std::string& contender : contenders) {
            const double few = Milliseconds(samples, NameOf(work, contender, FewLines));
            const double many = Milliseconds(samples, NameOf(work, contender, ManyLines));
            std::printf("| %s | %s | %.4g | %.4g | %.1f |\n", work.title.c_str(),
                        contender == "skeldon" ? "**SKELDON Light**" : contender.c_str(), few, many,
                        many / few);
        }
    }
}

std::string Wanted(double figure, const char* form)
{
    if (figure <= 0.0)
        return "-";
    char text[32];
    std::snprintf(text, sizeof text, form, figure);
    return text;
}

void PrintRatios(const Samples& samples, const std::vector<Work>& works)
{
    std::printf("\n| work, 1,000,000 lines | beside | ratio | must | goal |\n"
                "|---|---|---:|---:|---:|\n");
    for (const Work& work : works) {
        for (const Target& target : work.targets) {
            const double ratio = Ratio(samples, work, target.peer, target.isFaster, ManyLines);
            const char* const form = target.isFaster ? "%.1f times as fast" : "within %.2f times";
            std::printf(
                "| %s | %s | %s | %s | %s |\n", work.title.c_str(), target.peer.c_str(),
                Wanted(ratio, target.isFaster ? "%.1f times as fast" : "%.2f times").c_str(),
                Wanted(target.atLeast, form).c_str(), Wanted(target.goal, form).c_str());
        }
    }
}

void PrintMemory()
{
    constexpr double Megabyte = 1e6;
    const auto load = PeakMemoryOf([] {
        static CMeasureData data;
        if (!ReadFile(data, SampleFile(ManyLines)))
            std::abort();
        return data.GetSize() * sizeof(CMeasureRecord);
    });
    const auto save = PeakMemoryOf([] {
        CPlainOutput output(OutputPath("memory.skd"));
        (void)FormatDataFile(SampleData(ManyLines), 0, output);
        return std::size_t{0};
    });
    const auto csv = PeakMemoryOf([] {
        CPlainOutput output(OutputPath("memory.csv"));
        (void)FormatCsv(SampleData(ManyLines), {}, {}, {}, output);
        return std::size_t{0};
    });
    std::printf("\n| memory, 1,000,000 lines | figure | must |\n|---|---:|---:|\n"
                "| a line of the data set | %zu bytes | 80 bytes |\n"
                "| loading, beyond the data set | %.1f MB | 16 MB |\n"
                "| saving, beyond the data set | %.1f MB | 4 MB |\n"
                "| CSV export, beyond the data set | %.1f MB | 4 MB |\n",
                sizeof(CMeasureRecord), double(load) / Megabyte, double(save) / Megabyte,
                double(csv) / Megabyte);
}

/// The rows of the table that are asked for; all where none is named.
std::vector<Work> AddWorks(const std::vector<std::string>& names)
{
    constexpr std::array<std::pair<std::string_view, Work (*)()>, 14> Makers{{
        {"load", AddLoad},
        {"save", AddSave},
        {"csv", AddCsv},
        {"decode", AddDecode},
        {"analysis-file", AddAnalysisOfFile},
        {"analysis-download", AddAnalysisOfDownload},
        {"signature", AddSignature},
        {"download", AddDownload},
        {"monitor", AddMonitor},
        {"chart-whole", AddChartWhole},
        {"chart-noise", AddChartNoise},
        {"chart-part", AddChartPart},
        {"chart-bars", AddChartBars},
        {"chart-index", AddChartIndex},
    }};
    std::vector<Work> works;
    for (const auto& [name, make] : Makers) {
        if (names.empty() || std::ranges::find(names, name) != names.end())
            works.push_back(make());
    }
    return works;
}

} // namespace

int main(int argc, char** argv)
{
    const int rounds = argc > 1 ? std::atoi(argv[1]) : DefaultRounds;
    const std::vector<std::string> names(argv + std::min(argc, 2), argv + argc);
    int count = 1;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(count, argv);
    benchmark::Initialize(&count, argv);
    const std::vector<Work> works = AddWorks(names);
    const Samples samples = RunRounds(rounds);
    PrintTimes(samples, works);
    PrintRatios(samples, works);
    if (names.empty())
        PrintMemory();
    if (names.empty() || names.front() == "window")
        PrintWindowActions(rounds);
    RemoveFiles();
    return 0;
}
