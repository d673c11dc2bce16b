#include "skeldonctl/Connection.h"

#include "recorder/RecorderPort.h"
#include "skeldonctl/Messages.h"

#include <string>

namespace skeldon {

namespace {

ExitStatus NoRecorder(const std::string& what)
{
    Tell("Can not connect to KORVA: " + what);
    return ExitStatus::NoRecorder;
}

} // namespace

CRecorderLink MakeLink(const PortOption& port, CClock& clock)
{
    return {MakeCableFinder(port), SystemPortOpener(), clock};
}

ExitStatus Connect(CRecorderLink& link)
{
    if (!link.FindRecorderPort())
        return NoRecorder("no cable is plugged in");
    if (!link.OpenPort())
        return NoRecorder(link.m_portName + ": " + link.LastError().message());
    if (!link.ReadStatus())
        return NoRecorder(link.m_portName + ": no status report");
    return ExitStatus::Done;
}

} // namespace skeldon
