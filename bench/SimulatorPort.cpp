#include "SimulatorPort.h"

#include "support/Process.h"

#include <cstdlib>
#include <map>
#include <memory>
#include <vector>

namespace skeldon::bench {

const std::string& SimulatorPort(std::size_t lines)
{
    struct Running
    {
        test::CTemporaryFolder folder;
        std::string port = folder.Path("korva").string();
        std::unique_ptr<test::CBackgroundProgram> simulator;
    };
    static std::map<std::size_t, Running> running;
    Running& own = running[lines];
    if (!own.simulator) {
        const std::string count = std::to_string(lines);
        own.simulator = std::make_unique<test::CBackgroundProgram>(
            SIMULATOR, std::vector<std::string>{"--link", own.port, "--alpha", "--lines", count,
                                                "--capacity", count});
        if (own.simulator->Ready().empty())
            std::abort();
    }
    return own.port;
}

} // namespace skeldon::bench
