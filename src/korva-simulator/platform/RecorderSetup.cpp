#include "korva-simulator/platform/RecorderSetup.h"

#include "korva-simulator/StateText.h"
#include "korva-simulator/platform/StateFile.h"

#include <algorithm>

namespace skeldon {

namespace {

std::variant<RecorderState, std::string> WithRecords(const SimulatorOptions& options)
{
    std::error_code error;
    const std::string text = ReadWholeFile(options.records, error);
    if (error)
        return options.records + ": " + error.message();
    RecorderState recorder = options.recorder;
    TakeRecordLines(recorder.memory, text);
    recorder.capacity = std::max(recorder.capacity, recorder.memory.Count());
    const int year = ToRecorderFields(recorder.clock).year;
    recorder.begun = options.fromGiven
                         ? options.lines.from
                         : BeginningOf(recorder.memory, year).value_or(recorder.clock);
    return recorder;
}

} // namespace

std::variant<RecorderState, std::string> SetUpRecorder(const SimulatorOptions& options)
{
    if (!options.state.empty()) {
        std::error_code error;
        const std::string text = ReadWholeFile(options.state, error);
        if (!error) {
            auto state = ParseStateText(text, Now());
            if (auto* const reason = std::get_if<std::string>(&state))
                *reason = options.state + ": " + *reason;
            return state;
        }
        if (error != std::errc::no_such_file_or_directory)
            return options.state + ": " + error.message();
    }
    if (!options.records.empty())
        return WithRecords(options);
    RecorderState recorder = options.recorder;
    if (options.lines.count > 0)
        FillMemory(recorder, options.lines);
    return recorder;
}

} // namespace skeldon
