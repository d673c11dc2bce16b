#include "WindowDownloads.h"

#include "AnyFault.h"
#include "Growth.h"
#include "dataview/FrameApp.h"

#include <QGuiApplication>
#include <QTest>
#include <QTimer>

#include <iostream>

namespace skeldon::soak {

namespace {

class CWindowDownloads
{
public:
    explicit CWindowDownloads(const SoakOptions& options)
        : m_soak(options, "window")
        , m_random(options.seed)
        , m_growth(options.judgesMemory)
    {
        // Nobody waits in earnest for the end of a silence.
        constexpr int PatienceMs = 300;
        QObject::connect(&m_patience, &QTimer::timeout, &m_patience, [this] {
            if (m_isFaulty)
                m_app.m_clock.MoveOn(CRecorderTransport::TimeoutMs);
        });
        m_patience.start(PatienceMs);
    }

    void Run()
    {
        constexpr int MarkEvery = 20;
        m_soak.Check(m_app.Start(), "the program does not start");
        while (m_soak.Next(m_soak.Options().downloads)) {
            Download();
            if (m_soak.Step() % MarkEvery == 0)
                m_soak.Log(m_growth.Mark().Text());
        }
        std::cout << "window: " << m_soak.Step() << " downloads, " << m_whole << " of them whole; "
                  << m_growth.Text() << std::endl;
        const std::string grown = m_growth.Judgement();
        m_soak.Check(grown.empty(), grown);
    }

private:
    void Download()
    {
        m_isFaulty = !m_random.OneIn(3);
        const int lines = m_random.Between(1, 2000);
        std::vector<std::string> options{"--lines", std::to_string(lines), "--type",
                                         m_random.OneOf({"oldest", "pl04", "pl20", "qm70"})};
        std::string all = std::to_string(lines) + " lines";
        while (m_isFaulty && (options.size() == 4 || m_random.OneIn(3))) {
            options.insert(options.end(), {"--fault", AnyFault(m_random, lines)});
            all += " " + options.back();
        }
        m_soak.Log(all);
        CRecorderLink& link = m_app.m_app->Link();
        link.FindRecorderPort();
        m_app.PlugIn(options);
        if (m_app.Connect()) {
            m_app.View().Data().StoreSignature();
            m_app.View().OnCommand(CommandId::GetData);
            m_soak.Log(std::to_string(m_app.View().Data().GetSize()) + " lines held");
        }
        CheckAtRest(lines);
        m_app.Pull();
        m_soak.Check(m_app.Connect(false), "the window does not see that the cable is gone");
        m_app.m_prompts->m_shown.clear();
        m_app.m_hints.clear();
    }

    void CheckAtRest(int lines)
    {
        m_soak.Check(QTest::qWaitFor([&] { return !m_app.m_app->Conversation().IsUnderWay(); }),
                     "a conversation does not end");
        m_soak.Check(!m_app.m_app->Link().m_busy, "the link stays busy");
        m_soak.Check(m_app.View().CanOperate(), "the view stays busy");
        m_soak.Check(QGuiApplication::overrideCursor() == nullptr, "the wait cursor stays");
        if (m_isFaulty)
            return;
        m_soak.Check(m_app.View().Data().GetSize() == static_cast<std::size_t>(lines),
                     "a sound download is not whole");
        m_soak.Check(m_app.m_prompts->Boxes().isEmpty(), "a sound download is complained about");
        ++m_whole;
    }

    CSoak m_soak;
    CRandom m_random;
    test::CFrameApp m_app;
    CGrowth m_growth;
    QTimer m_patience;
    bool m_isFaulty = false;
    int m_whole = 0;
};

} // namespace

void DownloadThroughWindow(const SoakOptions& options)
{
    CWindowDownloads(options).Run();
}

} // namespace skeldon::soak
