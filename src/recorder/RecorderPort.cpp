#include "recorder/RecorderPort.h"

#include "recorder/FixedPortFinder.h"
#include "recorder/platform/PosixSerialPort.h"
#include "recorder/platform/UsbCableFinder.h"

#include <cstdlib>

namespace skeldon {

std::unique_ptr<CCableFinder> MakeCableFinder(std::string_view path)
{
    if (path.empty()) {
        if (const char* const named = std::getenv("SKELDON_PORT"))
            path = named;
    }
    if (!path.empty())
        return std::make_unique<CFixedPortFinder>(path);
    return std::make_unique<CUsbCableFinder>();
}

PortOpener SystemPortOpener()
{
    return &CPosixSerialPort::Open;
}

} // namespace skeldon
