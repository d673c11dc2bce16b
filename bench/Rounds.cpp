#include "Rounds.h"

#include <algorithm>

namespace skeldon::bench {

namespace {

class CCollector : public benchmark::BenchmarkReporter
{
public:
    explicit CCollector(Samples& samples)
        : m_samples(samples)
    {}

    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override
    {
        for (const Run& run : runs)
            m_samples[run.run_name.function_name].push_back(
                run.real_accumulated_time / static_cast<double>(run.iterations) * 1e9);
    }

private:
    Samples& m_samples;
};

} // namespace

Samples RunRounds(int rounds)
{
    Samples samples;
    for (int round = 0; round < rounds; ++round) {
        CCollector collector(samples);
        benchmark::RunSpecifiedBenchmarks(&collector);
    }
    return samples;
}

double Median(std::vector<double> figures)
{
    const auto middle = figures.begin() + static_cast<std::ptrdiff_t>(figures.size() / 2);
    std::nth_element(figures.begin(), middle, figures.end());
    return *middle;
}

void AddContender(const std::string& work, const std::string& contender, double (*run)(std::size_t),
                  void (*prepare)(std::size_t))
{
    for (const std::size_t lines : {FewLines, ManyLines}) {
        const std::string name = work + '/' + contender + '/' + std::to_string(lines);
        benchmark::RegisterBenchmark(name.c_str(),
                                     [=](benchmark::State& state) {
                                         for (auto _ : state) {
                                             if (prepare != nullptr) {
                                                 state.PauseTiming();
                                                 prepare(lines);
                                                 state.ResumeTiming();
                                             }
                                             benchmark::DoNotOptimize(run(lines));
                                         }
                                     })
            ->Iterations(1)
            ->UseRealTime();
    }
}

void AddTimedContender(const std::string& work, const std::string& contender,
                       double (*run)(std::size_t))
{
    for (const std::size_t lines : {FewLines, ManyLines}) {
        const std::string name = work + '/' + contender + '/' + std::to_string(lines);
        benchmark::RegisterBenchmark(name.c_str(),
                                     [=](benchmark::State& state) {
                                         for (auto _ : state)
                                             state.SetIterationTime(run(lines));
                                     })
            ->Iterations(1)
            ->UseManualTime();
    }
}

} // namespace skeldon::bench
