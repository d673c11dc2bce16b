#include "app/Conversation.h"

#include "app/WaitCursor.h"

#include <QEventLoop>

#include <utility>

namespace skeldon {

CConversation::CConversation(QObject* parent)
    : QObject(parent)
    , m_worker([this] {
        QMetaObject::invokeMethod(this, &CConversation::OnEnded, Qt::QueuedConnection);
    })
{}

CConversation::~CConversation() = default;

bool CConversation::RunBeside(std::function<void()> work, std::function<void()> done)
{
    if (IsUnderWay())
        return false;
    m_done = std::move(done);
    m_worker.Start(std::move(work));
    return true;
}

void CConversation::Run(const std::function<void()>& work)
{
    const CWaitCursor wait;
    Settle();
    RunBeside(work, {});
    Settle();
}

void CConversation::Settle()
{
    if (!IsUnderWay())
        return;
    const CWaitCursor wait;
    QEventLoop loop;
    QEventLoop* const outer = std::exchange(m_loop, &loop);
    while (IsUnderWay()) {
        // Once the program is told to end no loop runs any more, while the work still has to be
        // waited for.
        constexpr int NotRun = -1;
        if (loop.exec(QEventLoop::ExcludeUserInputEvents) == NotRun)
            loop.processEvents(QEventLoop::ExcludeUserInputEvents | QEventLoop::WaitForMoreEvents);
    }
    m_loop = outer;
    // What the outer loop waits for may have ended inside of this one.
    if (outer != nullptr)
        outer->quit();
}

void CConversation::OnEnded()
{
    // A notice that comes late, of work that was already taken note of.
    if (!m_worker.IsUnderWay() || !m_worker.HasEnded())
        return;
    m_worker.Finish();
    if (const auto done = std::exchange(m_done, {}))
        done();
    if (m_loop != nullptr)
        m_loop->quit();
}

} // namespace skeldon
