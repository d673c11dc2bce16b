#include "korva-simulator/CommandLine.h"
#include "korva-simulator/platform/RecorderSetup.h"
#include "korva-simulator/platform/SimulatorLoop.h"

#include <exception>
#include <iostream>

using namespace skeldon;

namespace {

constexpr int Failed = 1;

void Complain(const std::string& line)
{
    std::cerr << "korva-simulator: " << line << '\n';
}

int Simulate(const SimulatorOptions& options)
{
    auto state = SetUpRecorder(options);
    if (const auto* const reason = std::get_if<std::string>(&state)) {
        Complain(*reason);
        return Failed;
    }
    CSimulatedRecorder recorder(std::get<RecorderState>(std::move(state)));
    for (const Fault& fault : options.faults)
        recorder.m_faults.Add(fault);
    CSimulatorLoop loop(
        recorder, options, [](const std::string& line) { std::cout << line << std::endl; },
        &Complain);
    return loop.Run();
}

} // namespace

int main(int argc, char** argv)
{
    try {
        const auto parsed = ParseSimulatorLine({argv + 1, argv + argc});
        if (const auto* const end = std::get_if<EarlyEnd>(&parsed)) {
            (end->status == 0 ? std::cout : std::cerr) << end->text;
            return end->status;
        }
        return Simulate(std::get<SimulatorOptions>(parsed));
    } catch (const std::exception& error) {
        // Memory that is not there: everything else is a result.
        Complain(error.what());
    }
    return Failed;
}
