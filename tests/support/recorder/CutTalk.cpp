#include "support/recorder/CutTalk.h"

#include <algorithm>
#include <set>

namespace skeldon::test {

namespace {

/// Bytes of the wire that a name shows.
constexpr std::size_t ShownBytes = 24;

std::size_t EndOfRun(const Wire& wire, std::size_t begin)
{
    return std::min(wire.ways.find_first_not_of(wire.ways[begin], begin), wire.ways.size());
}

} // namespace

std::vector<Stage> StagesOf(const Wire& wire)
{
    std::set<std::size_t> places = {0};
    for (std::size_t begin = 0; begin < wire.ways.size(); begin = EndOfRun(wire, begin)) {
        const std::size_t end = EndOfRun(wire, begin);
        places.insert({begin + 1, begin + (end - begin) / 2, end - 1, end});
    }
    std::vector<Stage> stages;
    for (const std::size_t place : places)
        stages.push_back({place, NameOf(wire, place)});
    return stages;
}

std::string NameOf(const Wire& wire, std::size_t bytes)
{
    const std::size_t begin = bytes - std::min(bytes, ShownBytes);
    std::string name = "pulled behind " + std::to_string(bytes) + " of " +
                       std::to_string(wire.bytes.size()) + " bytes: ";
    for (std::size_t i = begin; i < std::min(bytes, wire.bytes.size()); ++i) {
        if (i == begin || wire.ways[i] != wire.ways[i - 1])
            name += std::string(" ") + wire.ways[i];
        name += wire.bytes[i] == '\r' || wire.bytes[i] == '\n' ? '|' : wire.bytes[i];
    }
    return name;
}

std::size_t SentAt(const Wire& wire, std::string_view text, std::size_t nth)
{
    const std::string way(text.size(), '>');
    for (std::size_t place = 0; (place = wire.bytes.find(text, place)) != std::string::npos;
         ++place) {
        if (wire.ways.compare(place, way.size(), way) == 0 && nth-- == 0)
            return place + text.size();
    }
    return wire.bytes.size() + 1;
}

PlayedRecorder::PlayedRecorder(const PlayedModel& model)
{
    m_recorder.Replace(model.type, model.alpha, model.lines);
    m_recorder.Plug();
}

void PlayedRecorder::PullAt(std::size_t bytes)
{
    m_recorder.SetFaults({"pull-at=" + std::to_string(bytes)});
}

void PlayedRecorder::PlugAgain()
{
    m_recorder.SetFaults({});
    m_recorder.Plug();
}

} // namespace skeldon::test
