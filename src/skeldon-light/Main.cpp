// The window.
#include "app/DesktopPrompts.h"
#include "app/SkeldonApp.h"
#include "base/Version.h"
#include "controls/AboutBox.h"
#include "dataview/MainFrame.h"
#include "recorder/RecorderPort.h"
#include "resources/Pictures.h"
#include "resources/Translation.h"
#include "setup/view/SettingDialog.h"

#include <QApplication>
#include <QLocale>

#include <memory>
#include <thread>

using namespace skeldon;

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const std::jthread pictures(
        [ratio = application.devicePixelRatio()] { PreparePictures(ratio); });
    QApplication::setWindowIcon(ApplicationIcon());
    QApplication::setApplicationName(QStringLiteral("SKELDON Light"));
    QApplication::setApplicationVersion(QString::fromLatin1(ProgramVersion));
    QApplication::setDesktopFileName(QStringLiteral("skeldon-light"));

    CSystemClock clock;
    std::unique_ptr<CMainFrame> frame;
    AppServices services;
    services.settings = std::make_unique<CSettings>();
    services.prompts = std::make_unique<CDesktopPrompts>();
    services.finder = MakeCableFinder();
    services.opener = SystemPortOpener();
    services.clock = &clock;
    services.language = QLocale::languageToString(QLocale::system().language());
    services.makeFrame = [&frame] {
        InstallTranslation(App().IsJapanese());
        frame = std::make_unique<CMainFrame>();
        return frame.get();
    };
    services.showSettings = RunSettings;
    services.showAbout = [](QWidget* parent) { CAboutBox(parent).exec(); };
    CSkeldonApp skeldon(std::move(services));
    if (!skeldon.InitInstance(QApplication::arguments().mid(1))) {
        frame.reset();
        return 0;
    }
    const int status = QApplication::exec();
    skeldon.ExitInstance();
    frame.reset();
    return status;
}
