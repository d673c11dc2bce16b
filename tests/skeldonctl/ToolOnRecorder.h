#pragma once

#include "Tool.h"

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace skeldon::test {

/// The tool and a simulated recorder on a real pseudo terminal.
class ToolOnRecorder : public ::testing::Test
{
protected:
    std::unique_ptr<CBackgroundProgram> Simulator(std::vector<std::string> options)
    {
        options.insert(options.end(), {"--link", m_port});
        auto simulator = std::make_unique<CBackgroundProgram>(SIMULATOR, options);
        EXPECT_NE(simulator->Ready(), "") << "the simulator did not start";
        return simulator;
    }
    Outcome OnPort(std::vector<std::string> arguments)
    {
        arguments.insert(arguments.end(), {"--port", m_port});
        return Tool(arguments);
    }
    std::string WriteProfile(const std::string& conditions)
    {
        const std::string path = m_folder.Path("crate.skp").string();
        WriteText(path, "[Configuration]\r\n" + conditions);
        return path;
    }

    CTemporaryFolder m_folder;
    std::string m_port = m_folder.Path("korva").string();
    std::string m_data = m_folder.Path("out.skd").string();
    std::string m_csv = m_folder.Path("out.csv").string();
};

} // namespace skeldon::test
