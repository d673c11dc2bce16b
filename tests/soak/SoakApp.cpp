#include "SoakApp.h"

#include "app/PumpMessages.h"
#include "controls/AboutBox.h"
#include "dataview/PrintApp.h"
#include "resources/Translation.h"
#include "setup/view/SettingDialog.h"
#include "support/window/TestServices.h"

#include <QApplication>
#include <QTest>

namespace skeldon::soak {

CSoakApp::CSoakApp(const QString& folder, const QString& language, test::CVirtualClock& clock,
                   test::CVirtualRecorder& recorder, CRandom& random)
    : m_user(random)
    , m_folder(folder)
{
    AppServices services =
        test::TestServices(m_folder + QStringLiteral("/settings.ini"), language, clock);
    auto prompts = std::make_unique<CRandomPrompts>(random, m_user);
    m_prompts = prompts.get();
    services.prompts = std::move(prompts);
    services.finder = recorder.MakeFinder();
    services.opener = recorder.Opener();
    services.makeFrame = [this] {
        InstallTranslation(App().IsJapanese());
        m_frame = std::make_unique<CMainFrame>();
        return m_frame.get();
    };
    services.showSettings = RunSettings;
    services.showAbout = [](QWidget* parent) { CAboutBox(parent).exec(); };
    m_app = std::make_unique<CSkeldonApp>(std::move(services));
}

CSoakApp::~CSoakApp()
{
    if (m_frame)
        m_app->ExitInstance();
    m_frame.reset();
    m_app.reset();
    InstallTranslation(false);
}

bool CSoakApp::Start(const QStringList& words)
{
    if (!m_app->InitInstance(words))
        return false;
    m_frame->activateWindow();
    auto printers = std::make_unique<test::CTestPrinters>();
    printers->m_folder = m_folder;
    View().SetPrinters(std::move(printers));
    return QTest::qWaitForWindowActive(m_frame.get());
}

bool CSoakApp::Settle()
{
    constexpr int LongestMs = 60000;
    return QTest::qWaitFor(
        [this] {
            QCoreApplication::processEvents();
            return QApplication::activeModalWidget() == nullptr &&
                   QApplication::activePopupWidget() == nullptr && !IsPumping() &&
                   !m_app->Conversation().IsUnderWay();
        },
        LongestMs);
}

} // namespace skeldon::soak
