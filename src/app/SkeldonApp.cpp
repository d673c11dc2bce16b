#include "app/SkeldonApp.h"

#include <utility>

namespace skeldon {

namespace {

CSkeldonApp* theApp = nullptr;

} // namespace

CSkeldonApp::CSkeldonApp(std::unique_ptr<CSettings> settings, std::unique_ptr<CPrompts> prompts)
    : m_settings(std::move(settings))
    , m_prompts(std::move(prompts))
{
    theApp = this;
}

CSkeldonApp::~CSkeldonApp()
{
    theApp = nullptr;
}

bool CSkeldonApp::IsJapanese() const
{
    return m_language.compare(QLatin1String("JAPANESE"), Qt::CaseInsensitive) == 0;
}

CSkeldonApp& App()
{
    return *theApp;
}

void SetStatusText(const QString& text)
{
    if (App().Frame() != nullptr)
        App().Frame()->SetStatusText(text);
}

void ResetStatus()
{
    if (App().Frame() != nullptr)
        App().Frame()->ResetStatus();
}

} // namespace skeldon
