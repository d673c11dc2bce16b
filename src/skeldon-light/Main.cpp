// The window.
#include "app/DesktopPrompts.h"
#include "app/PasteGuard.h"
#include "app/SkeldonApp.h"
#include "base/Version.h"
#include "controls/AboutBox.h"
#include "controls/ProgramStyle.h"
#include "dataview/MainFrame.h"
#include "recorder/RecorderPort.h"
#include "resources/Pictures.h"
#include "resources/Translation.h"
#include "setup/view/SettingDialog.h"

#include <QApplication>
#include <QLocale>
#include <QThread>

#include <algorithm>
#include <memory>

using namespace skeldon;

namespace {

struct WaitAndDelete
{
    void operator()(QThread* thread) const
    {
        thread->wait();
        delete thread;
    }
};

/// Draws the pictures while the window comes up, on time that nobody else wants. The icon comes
/// when it has been drawn: the first window does not wait for it.
std::unique_ptr<QThread, WaitAndDelete> DrawPicturesBeside(QApplication& application)
{
    std::unique_ptr<QThread, WaitAndDelete> thread(
        QThread::create([&application, ratio = application.devicePixelRatio()] {
            PreparePictures(ratio);
            QMetaObject::invokeMethod(
                &application, [] { QApplication::setWindowIcon(ApplicationIcon()); },
                Qt::QueuedConnection);
        }));
    thread->start(QThread::IdlePriority);
    return thread;
}

} // namespace

int main(int argc, char** argv)
{
    // The two bars change places in the window itself.
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeMenuBar);
    // The toolkit has words of its own, "-display" among them, and would take what stands behind:
    // it gets the program's name alone.
    int toolkitCount = std::min(argc, 1);
    QApplication application(toolkitCount, argv);
    // Which style is the desktop's is known only now.
    QApplication::setStyle(new CProgramStyle(QApplication::style()));
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
    services.supportAddress = QStringLiteral(SKELDON_SUPPORT_ADDRESS);
    services.showAbout = [](QWidget* parent) { CAboutBox(parent).exec(); };
    CSkeldonApp skeldon(std::move(services));
    CPasteGuard guard;
    application.installEventFilter(&guard);
    if (!skeldon.InitInstance(WordsOf(argc, argv))) {
        frame.reset();
        return 0;
    }
    const auto pictures = DrawPicturesBeside(application);
    const int status = QApplication::exec();
    skeldon.ExitInstance();
    frame.reset();
    return status;
}
