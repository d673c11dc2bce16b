#include "base/Clock.h"
#include "skeldonctl/CommandLine.h"
#include "skeldonctl/Connection.h"
#include "skeldonctl/FileCommands.h"
#include "skeldonctl/Messages.h"
#include "skeldonctl/RecorderCommands.h"
#include "skeldonctl/picture/ChartCommand.h"
#include "skeldonctl/platform/Streams.h"

#include <exception>

using namespace skeldon;

namespace {

/// The commands that talk to a recorder.
template <class RecorderCommand>
requires requires(const RecorderCommand& command)
{
    command.port;
}
ExitStatus Run(const RecorderCommand& command)
{
    CSystemClock clock;
    CRecorderLink link = MakeLink(command.port, clock);
    return Run(command, link);
}

ExitStatus Answer(const Refusal& refusal)
{
    if (refusal.status != ExitStatus::Done) {
        WriteMessage(refusal.text);
        return refusal.status;
    }
    CStandardOutput output;
    return StandardOutputDone(output.Write(refusal.text));
}

} // namespace

int main(int argc, char** argv)
{
    IgnoreBrokenPipes();
    ExitStatus status = ExitStatus::Failed;
    try {
        const auto parsed = ParseCommandLine({argv + 1, argv + argc});
        if (const auto* const refusal = std::get_if<Refusal>(&parsed))
            status = Answer(*refusal);
        else
            status = std::visit([](const auto& command) { return Run(command); },
                                std::get<Command>(parsed));
    } catch (const std::exception& error) {
        // Memory that is not there: everything else is a result.
        Tell(error.what());
    }
    return static_cast<int>(status);
}
