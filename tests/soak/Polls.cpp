#include "Polls.h"

#include "AnyFault.h"
#include "Growth.h"
#include "SoakApp.h"
#include "online/MonitorDialog.h"

#include <QCoreApplication>
#include <QTemporaryDir>

#include <iostream>

namespace skeldon::soak {

namespace {

class CLooks
{
public:
    explicit CLooks(const SoakOptions& options)
        : m_soak(options, "poll")
        , m_random(options.seed)
        , m_recorder(m_clock, options.seed)
        , m_app(m_folder.path(), QStringLiteral("English"), m_clock, m_recorder, m_random)
        , m_growth(options.judgesMemory)
    {}

    void Run()
    {
        constexpr int MarkEvery = 2000;
        m_soak.Check(m_app.Start({QStringLiteral("-display"), QStringLiteral("-mon")}),
                     "the program does not start");
        Poll().Stop();
        QObject::connect(&Poll(), &CRecorderPoll::Changed, [this](bool, bool isForced) {
            ++m_changes;
            m_beeps += isForced ? 0 : 1;
        });
        while (m_soak.Next(m_soak.Options().ticks)) {
            MoveCable();
            m_clock.SleepMs(CRecorderPoll::IntervalMs);
            Poll().Tick();
            if (m_random.OneIn(4))
                QCoreApplication::processEvents();
            if (m_random.OneIn(50))
                CheckAtRest();
            if (m_soak.Step() % MarkEvery == 0) {
                CheckAtRest();
                m_soak.Log(m_growth.Mark().Text());
            }
        }
        CheckAtRest();
        std::cout << "poll: " << m_soak.Step() << " looks, " << m_changes << " changes; "
                  << m_growth.Text() << std::endl;
        const std::string grown = m_growth.Judgement();
        m_soak.Check(grown.empty(), grown);
    }

private:
    [[nodiscard]] CRecorderPoll& Poll() { return m_app.Frame().Poll(); }

    void MoveCable()
    {
        if (m_random.OneIn(20)) {
            if (m_recorder.IsPlugged()) {
                m_soak.Log("pull");
                m_recorder.Pull();
            } else {
                PlugAny();
            }
        } else if (m_random.OneIn(100)) {
            m_app.Frame().SwitchView(m_random.OneOf({ViewIndex::Display, ViewIndex::Setup}));
        } else if (m_random.OneIn(300)) {
            m_soak.Log("monitor");
            m_app.Program().Link().ShowMonitor();
        } else if (m_random.OneIn(200)) {
            m_app.Frame().Monitor().close();
        }
    }

    void PlugAny()
    {
        const int type = m_random.OneOf({OldestType, 1, 10, 50});
        m_recorder.Replace(type, type != OldestType && m_random.OneIn(2),
                           static_cast<std::size_t>(m_random.Below(20)));
        std::vector<std::string> faults;
        if (m_random.OneIn(3))
            faults.push_back(AnyFault(m_random, 20));
        m_soak.Log("plug " + std::to_string(type) + (faults.empty() ? "" : " " + faults[0]));
        m_recorder.SetFaults(faults);
        m_recorder.Plug();
    }

    /// With the faults gone, the window soon shows what is.
    void CheckAtRest()
    {
        constexpr int MostLooks = 4;
        m_recorder.SetFaults({});
        m_soak.Check(m_app.Settle(), "a conversation does not end");
        for (int looks = 0; looks < MostLooks && !IsInStep(); ++looks) {
            Poll().Tick();
            m_soak.Check(m_app.Settle(), "a conversation does not end");
        }
        m_soak.Check(IsInStep(), "the window does not show whether the cable is there");
        const bool isNamed = !m_app.Frame().PaneText(1).isEmpty();
        m_soak.Check(isNamed == m_recorder.IsPlugged(), "the status bar does not follow");
        m_soak.Check(m_app.View().CanGetData() == m_recorder.IsPlugged(),
                     "what can be done does not follow");
        m_soak.Check(m_app.m_prompts->m_beeps == m_beeps, "beeps and changes differ");
    }

    [[nodiscard]] bool IsInStep() { return m_app.Frame().IsConnected() == m_recorder.IsPlugged(); }

    CSoak m_soak;
    CRandom m_random;
    QTemporaryDir m_folder;
    test::CVirtualClock m_clock;
    test::CVirtualRecorder m_recorder;
    CSoakApp m_app;
    CGrowth m_growth;
    int m_changes = 0;
    int m_beeps = 0;
};

} // namespace

void LookForTheCable(const SoakOptions& options)
{
    CLooks(options).Run();
}

} // namespace skeldon::soak
