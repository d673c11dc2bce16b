#include "FrameApp.h"

#include "files/DataFile.h"
#include "recorder/FixedPortFinder.h"
#include "resources/Translation.h"

#include <QApplication>
#include <QFile>
#include <QMenu>
#include <QMenuBar>
#include <QTest>

#include <fstream>
#include <utility>

namespace skeldon::test {

CFrameApp::CFrameApp(const QString& language, const QString& settings, const Adjust& adjust)
    : m_settingsFile(settings.isEmpty() ? m_folder.filePath(QStringLiteral("settings.ini"))
                                        : settings)
{
    AppServices services = TestServices(m_settingsFile, language, m_clock);
    m_prompts = static_cast<CScriptedPrompts*>(services.prompts.get());
    services.finder = std::make_unique<CFixedPortFinder>(Port().toStdString());
    services.makeFrame = [this]() -> CFrame* {
        InstallTranslation(App().IsJapanese());
        m_frame = std::make_unique<CMainFrame>();
        QObject::connect(&m_frame->Document(), &CSkeldonDoc::Updated, m_frame.get(),
                         [this](DocumentHint hint, int argument) {
                             m_hints +=
                                 QStringLiteral("%1:%2 ").arg(static_cast<int>(hint)).arg(argument);
                         });
        if (m_made)
            m_made();
        return m_frame.get();
    };
    services.showAbout = [this](QWidget* /*parent*/) { ++m_abouts; };
    services.supportAddress = QString::fromLatin1(SupportAddress);
    services.showSettings = [this](QWidget* /*parent*/) {
        ++m_sheets;
        return m_acceptsSheet;
    };
    if (adjust)
        adjust(services);
    m_app = std::make_unique<CSkeldonApp>(std::move(services));
}

CFrameApp::~CFrameApp()
{
    End();
    m_app.reset();
    InstallTranslation(false);
}

bool CFrameApp::Start(const QStringList& words)
{
    if (!m_app->InitInstance(words))
        return false;
    m_frame->activateWindow();
    return QTest::qWaitForWindowActive(m_frame.get());
}

bool CFrameApp::StartWith(std::vector<std::string> options)
{
    if (!Start())
        return false;
    PlugIn(std::move(options));
    return Connect();
}

void CFrameApp::End()
{
    if (m_frame)
        m_app->ExitInstance();
    m_frame.reset();
}

void CFrameApp::PlugIn(std::vector<std::string> options)
{
    const std::string control = m_folder.filePath(QStringLiteral("control")).toStdString();
    options.insert(options.end(), {"--link", Port().toStdString(), "--control", control});
    m_simulator.reset(); // takes its link away
    m_simulator = std::make_unique<CBackgroundProgram>(SIMULATOR, options);
    QVERIFY2(!m_simulator->Ready().empty(), "the simulator did not start");
}

void CFrameApp::Pull()
{
    Control("pull");
    QTRY_VERIFY(!QFile::exists(Port()));
}

void CFrameApp::PlugInAgain()
{
    Control("plug");
    QTRY_VERIFY(QFile::exists(Port()));
}

void CFrameApp::PlugInJunk()
{
    QFile file(Port());
    QVERIFY(file.open(QIODevice::WriteOnly));
}

void CFrameApp::RemoveJunk()
{
    QVERIFY(QFile::remove(Port()));
}

bool CFrameApp::Connect(bool connected)
{
    return QTest::qWaitFor([&] {
        m_frame->Poll().Tick();
        return m_frame->IsConnected() == connected;
    });
}

namespace {

CMeasureData Lines(std::size_t count)
{
    constexpr CalendarSeconds Start = 1'740'000'000;
    constexpr double Degrees = 20.0;
    CMeasureData data;
    data.m_hasTemperature = true;
    for (std::size_t i = 0; i < count; ++i) {
        CMeasureRecord record(Start);
        const double value = 0.1 * static_cast<double>(i % 10);
        record.SetValues(Start + static_cast<CalendarSeconds>(i), 0, value, -value, 1.0, Degrees,
                         0.0);
        data.AddRecord(record);
    }
    return data;
}

QAction* EntryBelow(const QList<QAction*>& actions, const QString& text)
{
    for (QAction* const action : actions) {
        if (action->text() == text)
            return action;
        QAction* const below =
            action->menu() != nullptr ? EntryBelow(action->menu()->actions(), text) : nullptr;
        if (below != nullptr)
            return below;
    }
    return nullptr;
}

} // namespace

void CFrameApp::TakeLines(std::size_t count)
{
    const QString name = QStringLiteral("lines.skd");
    m_prompts->m_paths.push_front(WriteLines(name, count));
    View().OnCommand(CommandId::Open);
    View().Data().m_signature = 0;
    View().RefreshControls();
}

QString CFrameApp::WriteLines(const QString& name, std::size_t count)
{
    const QString path = m_folder.filePath(name);
    if (WriteFile(Lines(count), path.toStdString()))
        qFatal("the data file could not be written");
    return path;
}

QAction* CFrameApp::Entry(ViewIndex view, const QString& text) const
{
    return EntryBelow(m_frame->MenuOf(view)->actions(), text);
}

void CFrameApp::Press(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    // Here no window system gives the focus back when a dialog has gone.
    if (QApplication::activeModalWidget() == nullptr && !m_frame->isActiveWindow()) {
        m_frame->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_frame.get()));
    }
    QTest::keyClick(m_frame->windowHandle(), key, modifiers);
}

void CFrameApp::Control(const char* line)
{
    std::ofstream(m_folder.filePath(QStringLiteral("control")).toStdString()) << line << std::endl;
}

} // namespace skeldon::test
