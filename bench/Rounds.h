#pragma once

#include <benchmark/benchmark.h>
#include <cstddef>
#include <map>
#include <string>
#include <vector>

namespace skeldon::bench {

/// Where a time must and should lie, as a ratio to the peer of the same name in the same round.
/// `atLeast` and `goal` are "times as fast" where `isFaster`, else "within times".
struct Target
{
    std::string peer;
    bool isFaster = true;
    double atLeast = 0.0;
    double goal = 0.0;
};

/// One row of the table: our way of doing some work, and what a user or engineer would take
/// instead, run in turn in every round.
struct Work
{
    std::string name; ///< benchmarks are called "name/contender/lines"
    std::string title;
    std::vector<std::string> peers;
    std::vector<Target> targets;
};

/// Times in nanoseconds by benchmark name, one for each round.
using Samples = std::map<std::string, std::vector<double>>;

/// Runs all registered benchmarks once a round and gathers their times.
[[nodiscard]] Samples RunRounds(int rounds);

/// The middle one of some figures.
[[nodiscard]] double Median(std::vector<double> figures);

/// Registers one contender for 100,000 and 1,000,000 lines. `prepare` runs untimed before each
/// run; `run` is what is timed and gives a number that keeps the work from being optimised away.
void AddContender(const std::string& work, const std::string& contender,
                  double (*run)(std::size_t lines), void (*prepare)(std::size_t lines) = nullptr);

/// Registers one contender that measures by itself: `run` gives seconds.
void AddTimedContender(const std::string& work, const std::string& contender,
                       double (*run)(std::size_t lines));

inline constexpr std::size_t FewLines = 100'000;
inline constexpr std::size_t ManyLines = 1'000'000;

} // namespace skeldon::bench
