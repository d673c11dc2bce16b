#include "setup/view/SetupApp.h"

#include "controls/CableDialog.h"
#include "controls/SkinButton.h"
#include "controls/SpinButton.h"
#include "resources/Translation.h"
#include "setup/view/ProfileList.h"
#include "setup/view/ReservedStartDialog.h"

#include <QApplication>
#include <QPushButton>
#include <QTest>

#include <sstream>
#include <utility>

namespace skeldon::test {

namespace {

/// The bytes of one line of the trace that the host sent.
std::string HostBytes(const std::string& line)
{
    std::istringstream words(line);
    std::string time;
    std::string direction;
    words >> time >> direction;
    std::string bytes;
    if (direction != ">")
        return bytes;
    for (std::string word; words >> word && word.front() != '|';)
        bytes += static_cast<char>(std::stoi(word, nullptr, 16));
    return bytes;
}

} // namespace

bool CSetupFrame::IsConnected() const
{
    if (m_answers.empty())
        return m_connected;
    const bool answer = m_answers.front();
    m_answers.pop_front();
    return answer;
}

CSetupApp::CSetupApp(const QString& language)
{
    const std::string settings = m_wire.Path("settings.ini").string();
    AppServices services = TestServices(QString::fromStdString(settings), language, m_clock);
    m_prompts = static_cast<CScriptedPrompts*>(services.prompts.get());
    services.finder = std::make_unique<CTestCable>(m_port);
    services.opener = QuickPortOpener(m_change);
    m_app = std::make_unique<CSkeldonApp>(std::move(services));
    m_app->m_language = language;
    m_app->m_viewBaseColour = 0xD8E9EC;
    m_app->SetFrame(&m_frame);
    InstallTranslation(m_app->IsJapanese());
    m_onCable = [](CCableDialog& dialog) { dialog.m_ok->click(); };
    m_onReserved = [](CReservedStartDialog& dialog) { dialog.m_ok->click(); };
    QObject::connect(&m_watch, &QTimer::timeout, &m_watch, [this] { WatchDialogs(); });
    m_watch.start(2);
}

CSetupApp::~CSetupApp()
{
    m_view.reset();
    InstallTranslation(false);
}

void CSetupApp::Show()
{
    m_view = std::make_unique<CSetupView>();
    m_view->State().m_store = CProfileStore(m_folder.Folders());
    m_view->setFixedSize(m_view->SmallestSize());
    m_view->OnInitialUpdate();
    m_view->show();
    m_view->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_view.get()));
}

void CSetupApp::Play(std::vector<std::string> options)
{
    m_port = m_wire.Path("korva").string();
    const std::string trace = m_wire.Path("trace").string();
    options.insert(options.end(), {"--link", m_port, "--trace", trace});
    m_recorder.reset();
    std::filesystem::remove(trace);
    m_recorder = std::make_unique<CBackgroundProgram>(SIMULATOR, options);
    QVERIFY(!m_recorder->Ready().empty());
    m_traceRead = 0;
    QVERIFY(m_app->Link().FindRecorderPort());
    QVERIFY(m_app->Link().ReadStatus());
    m_frame.m_connected = true;
    m_view->OnUpdate(DocumentHint::Connection, 1);
    QCOMPARE(Sent("mp"), QByteArray("mp"));
}

void CSetupApp::Unplug()
{
    m_recorder.reset();
    m_port.clear();
}

QByteArray CSetupApp::Sent(const QByteArray& expected)
{
    std::size_t end = 0;
    QByteArray sent;
    // The trace comes a little behind the wire.
    [[maybe_unused]] const bool isThere = QTest::qWaitFor([&] {
        const std::string trace = ReadText(m_wire.Path("trace"));
        end = trace.rfind('\n') + 1;
        sent.clear();
        std::istringstream lines(trace.substr(m_traceRead, end - m_traceRead));
        for (std::string line; std::getline(lines, line);)
            sent += QByteArray::fromStdString(HostBytes(line));
        return sent.size() >= expected.size();
    });
    m_traceRead = end;
    return sent;
}

void CSetupApp::Click(SetupButton button)
{
    QTest::mouseClick(&Button(button), Qt::LeftButton);
}

void CSetupApp::ClickLine(int position)
{
    CProfileList& list = *Form().m_list;
    list.scrollToItem(list.item(position));
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                      list.visualItemRect(list.item(position)).center());
}

void CSetupApp::Press(SetupStep step)
{
    QTest::mouseClick(&Form().Spin(step), Qt::LeftButton);
}

QStringList CSetupApp::Lines()
{
    QStringList lines;
    for (int i = 0; i < Form().m_list->count(); ++i)
        lines << Form().m_list->item(i)->text();
    return lines;
}

void CSetupApp::DuringTheTalk(std::function<void()> act, std::function<bool()> isTime)
{
    auto* const look = new QTimer(m_view.get());
    QObject::connect(look, &QTimer::timeout, look,
                     [this, look, act = std::move(act), isTime = std::move(isTime)] {
                         if (!m_app->Conversation().IsUnderWay() || (isTime && !isTime()))
                             return;
                         look->stop();
                         look->deleteLater();
                         act();
                     });
    look->start(1);
}

void CSetupApp::Load(const CMeasureCondition& condition)
{
    State().TakeEdited(condition);
    Form().ShowConditions(condition);
    View().RefreshControls();
}

void CSetupApp::WatchDialogs()
{
    QWidget* const dialog = QApplication::activeModalWidget();
    if (dialog == m_seen)
        return;
    m_seen = dialog;
    if (auto* const cable = qobject_cast<CCableDialog*>(dialog)) {
        ++m_cableDialogs;
        m_onCable(*cable);
    } else if (auto* const reserved = qobject_cast<CReservedStartDialog*>(dialog)) {
        ++m_reservedDialogs;
        m_onReserved(*reserved);
    }
}

} // namespace skeldon::test
