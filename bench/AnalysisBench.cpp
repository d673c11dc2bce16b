#include "Benchmarks.h"
#include "Rounds.h"
#include "SampleData.h"

#include <cstdint>
#include <cstring>
#include <map>

namespace skeldon::bench {

namespace {

CMeasureData& Copy(std::size_t lines)
{
    static std::map<std::size_t, CMeasureData> made;
    const auto known = made.find(lines);
    return known != made.end() ? known->second
                               : made.emplace(lines, SampleData(lines)).first->second;
}

double AnalyseFile(std::size_t lines)
{
    Copy(lines).m_fromFile = true;
    Copy(lines).Analyse({0, 0, 2'000'000'000});
    return Copy(lines).m_maxAbs;
}

double AnalyseDownload(std::size_t lines)
{
    Copy(lines).m_fromFile = false;
    Copy(lines).Analyse({3, 1, 2'000'000'000});
    return Copy(lines).m_maxAbs;
}

double Signature(std::size_t lines)
{
    return static_cast<double>(Copy(lines).ComputeSignature());
}

double SignatureAThousandTimes(std::size_t lines)
{
    double sum = 0.0;
    for (int i = 0; i < 1000; ++i)
        sum += Signature(lines);
    return sum;
}

/// Sums the same memory as whole words.
double SumMemory(std::size_t lines)
{
    const auto records = Copy(lines).Records();
    std::uint64_t sum = 0;
    for (const CMeasureRecord& record : records) {
        std::uint64_t words[sizeof record / sizeof(std::uint64_t)];
        std::memcpy(words, &record, sizeof words);
        for (const std::uint64_t word : words)
            sum += word;
    }
    return static_cast<double>(sum);
}

void Prepare(std::size_t lines)
{
    (void)Copy(lines);
}

void ChangeOneLine(std::size_t lines)
{
    Copy(lines).SetRecord(0, Copy(lines).GetRecord(0));
}

Work AddPass(const std::string& name, const std::string& title, double (*run)(std::size_t),
             double atLeast, double goal)
{
    AddContender(name, "skeldon", run, Prepare);
    AddContender(name, "sum of the same memory", SumMemory, Prepare);
    return {name,
            title,
            {"sum of the same memory"},
            {{"sum of the same memory", false, atLeast, goal}}};
}

} // namespace

Work AddAnalysisOfFile()
{
    return AddPass("analysis-file", "Analysis pass, data from a file", AnalyseFile, 2.0, 1.3);
}

Work AddAnalysisOfDownload()
{
    return AddPass("analysis-download", "Analysis pass, data from a download", AnalyseDownload, 3.0,
                   2.0);
}

Work AddSignature()
{
    AddContender("signature", "skeldon", Signature, ChangeOneLine);
    AddContender("signature", "sum of the same memory", SumMemory, Prepare);
    AddContender("signature", "asked again a thousand times", SignatureAThousandTimes,
                 [](std::size_t lines) { (void)Signature(lines); });
    return {"signature",
            "Signature",
            {"sum of the same memory", "asked again a thousand times"},
            {{"sum of the same memory", false, 1.5, 1.1}}};
}

} // namespace skeldon::bench
