#include "support/window/TestServices.h"

#include "recorder/RecorderPort.h"
#include "support/window/TestApp.h"

#include <QFileInfo>

#include <sys/mman.h>
#include <unistd.h>

namespace skeldon::test {

namespace {

struct OwnBlock
{
    OwnBlock() = default;
    OwnBlock(const OwnBlock&) = delete;
    OwnBlock& operator=(const OwnBlock&) = delete;
    ~OwnBlock() { shm_unlink(('/' + m_name).c_str()); }

    const std::string m_name = "skeldon test " + std::to_string(getpid());
};

} // namespace

const std::string& SharedName()
{
    static const OwnBlock own;
    return own.m_name;
}

AppServices TestServices(const QString& settingsFile, const QString& language, CClock& clock)
{
    // Lock files of programs of this user that may be running are none of a test's.
    qputenv("XDG_RUNTIME_DIR", QFileInfo(settingsFile).path().toLocal8Bit());
    AppServices services;
    services.settings = std::make_unique<CSettings>(settingsFile);
    services.prompts = std::make_unique<CScriptedPrompts>();
    services.opener = SystemPortOpener();
    services.clock = &clock;
    services.language = language;
    services.sharedBlock = SharedName();
    services.sharedMutex = SharedName();
    return services;
}

} // namespace skeldon::test
