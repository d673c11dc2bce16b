#include "OnlineApp.h"

#include "online/MonitorList.h"
#include "resources/Translation.h"

#include <QFile>
#include <QTest>

namespace skeldon::test {

COnlineApp::COnlineApp(const QString& language, const QString& settings)
    : CTestApp(language, settings)
{
    InstallTranslation(App().IsJapanese());
}

COnlineApp::~COnlineApp()
{
    m_app.reset();
    InstallTranslation(false);
}

CMonitorDialog& COnlineApp::MakeMonitor()
{
    auto monitor = std::make_unique<CMonitorDialog>();
    m_monitor = monitor.get();
    Link().SetMonitor(std::move(monitor));
    return *m_monitor;
}

bool COnlineApp::ShowUp()
{
    Link().ShowMonitor();
    return QTest::qWaitForWindowActive(m_monitor);
}

QStringList COnlineApp::Log()
{
    m_monitor->Tick();
    QStringList lines;
    const QAbstractItemModel& model = *m_monitor->m_list->model();
    for (int row = 0; row < model.rowCount(); ++row)
        lines << model.index(row, 0).data(Qt::AccessibleTextRole).toString();
    return lines;
}

bool COnlineApp::Attach(const std::string& port)
{
    m_port = port;
    return Link().FindRecorderPort();
}

void COnlineApp::PlugIn(std::vector<std::string> options, Trace trace)
{
    const std::string link = m_folder.filePath(QStringLiteral("korva")).toStdString();
    options.insert(options.end(), {"--link", link});
    if (trace == Trace::On)
        options.insert(options.end(), {"--trace", TraceFile()});
    m_simulator = std::make_unique<CBackgroundProgram>(SIMULATOR, options);
    QVERIFY2(!m_simulator->Ready().empty(), "the simulator did not start");
    QVERIFY(Attach(link));
}

QString COnlineApp::Heard() const
{
    QString heard;
    for (const QString& line : QString::fromStdString(ReadText(TraceFile())).split('\n')) {
        const qsizetype bar = line.indexOf(QLatin1Char('|'));
        if (bar >= 0 && line.contains(QLatin1String(" > ")))
            heard += line.mid(bar + 1, line.lastIndexOf(QLatin1Char('|')) - bar - 1) + ' ';
    }
    return heard.trimmed();
}

void COnlineApp::Set(const char* key, int value)
{
    Settings().WriteInt(SystemSection, QString::fromLatin1(key), value);
}

std::string COnlineApp::TraceFile() const
{
    return m_folder.filePath(QStringLiteral("trace")).toStdString();
}

} // namespace skeldon::test
