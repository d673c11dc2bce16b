#include "korva-simulator/CommandLine.h"
#include "korva-simulator/platform/SimulatorLoop.h"

#include <exception>
#include <iostream>

using namespace skeldon;

namespace {

int Simulate(SimulatorOptions options)
{
    FillMemory(options.recorder, options.lines);
    CSimulatedRecorder recorder(std::move(options.recorder));
    CSimulatorLoop loop(recorder, options.link,
                        [](const std::string& line) { std::cout << line << std::endl; });
    std::error_code error = loop.Plug();
    if (!error)
        error = loop.Run();
    if (!error)
        return 0;
    std::cerr << "korva-simulator: " << error.message() << '\n';
    return 1;
}

} // namespace

int main(int argc, char** argv)
{
    try {
        auto parsed = ParseSimulatorLine({argv + 1, argv + argc});
        if (const auto* const end = std::get_if<EarlyEnd>(&parsed)) {
            (end->status == 0 ? std::cout : std::cerr) << end->text;
            return end->status;
        }
        return Simulate(std::get<SimulatorOptions>(std::move(parsed)));
    } catch (const std::exception& error) {
        std::cerr << "korva-simulator: " << error.what() << '\n';
    }
    return 1;
}
