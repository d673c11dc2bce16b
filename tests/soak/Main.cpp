// Works the program at random for a time, part by part: nothing may be lost, hang or grow.
#include "Commands.h"
#include "LinkDownloads.h"
#include "Polls.h"
#include "WindowDownloads.h"

#include <CLI/CLI.hpp>
#include <QApplication>
#include <QTemporaryDir>

#include <array>
#include <iostream>
#include <map>
#include <random>

using namespace skeldon::soak;

namespace {

/// Nothing that is done here may reach the home of whoever runs it.
void LeaveHome(const QTemporaryDir& folder)
{
    const QByteArray home = folder.path().toLocal8Bit();
    for (const char* const name : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR"})
        qputenv(name, home);
    qputenv("TZ", "Europe/Berlin");
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
}

const std::map<std::string, void (*)(const SoakOptions&)> Parts{
    {"link", &DownloadOverLink},
    {"window", &DownloadThroughWindow},
    {"poll", &LookForTheCable},
    {"commands", &GiveCommands},
};

/// The platform without a screen complains each time of what it can not do with a window.
void WithoutOffscreenComplaints(QtMsgType /*type*/, const QMessageLogContext& /*context*/,
                                const QString& text)
{
    if (!text.startsWith(QLatin1String("This plugin does not support")))
        std::cerr << text.toStdString() << std::endl;
}

int RunParts(const std::vector<std::string>& parts, const SoakOptions& options)
{
    for (const std::string& part : parts) {
        std::cout << part << ": " << options.seconds << " s, seed " << options.seed << ", log "
                  << options.log.string() << std::endl;
        try {
            Parts.at(part)(options);
        } catch (const std::exception& found) {
            std::cout << "FAILED: " << found.what() << "\nagain: skeldon-soak --seed "
                      << options.seed << " --seconds " << options.seconds << " --lines "
                      << options.lines << " " << part << std::endl;
            return 1;
        }
    }
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    SoakOptions options;
    options.seed = std::random_device()();
    options.log = "soak.log";
    std::vector<std::string> parts;
    CLI::App line("Works SKELDON Light at random for a time.");
    line.add_option("--seed", options.seed, "Of the chance: the same one gives the same run");
    line.add_option("--seconds", options.seconds, "For each part")->capture_default_str();
    line.add_option("--lines", options.lines, "Lines of the large data file")
        ->capture_default_str();
    line.add_option("--downloads", options.downloads, "At most so many, 0 without a limit");
    line.add_option("--ticks", options.ticks, "Looks for the cable at most, likewise");
    line.add_option("--steps", options.steps, "Random commands at most, likewise");
    line.add_option("--step-seconds", options.stepSeconds, "A step that lasts longer hangs")
        ->capture_default_str();
    line.add_flag("!--no-memory", options.judgesMemory, "Do not judge the use of memory");
    line.add_option("--log", options.log, "What was done")->capture_default_str();
    line.add_option("parts", parts, "Parts to run; without one, all");
    CLI11_PARSE(line, argc, argv);
    for (const auto& [name, run] : Parts) {
        if (line.count("parts") == 0)
            parts.push_back(name);
    }
    QTemporaryDir home;
    LeaveHome(home);
    // One of the pixel ratios that screens have, by the seed as all else.
    const std::array ratios{"1", "1.5", "2"};
    if (!qEnvironmentVariableIsSet("QT_SCALE_FACTOR"))
        qputenv("QT_SCALE_FACTOR", ratios[options.seed % ratios.size()]);
    qInstallMessageHandler(WithoutOffscreenComplaints);
    int toolkitCount = 1;
    QApplication application(toolkitCount, argv);
    return RunParts(parts, options);
}
