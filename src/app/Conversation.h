#pragma once

#include "recorder/LinkWorker.h"

#include <QObject>

#include <functional>

class QEventLoop;

namespace skeldon {

/// Lets the user interface's thread talk with the recorder without standing still: one conversation
/// at a time, in a thread of its own. Between the start and the end of a conversation the link
/// belongs to it.
class CConversation : public QObject
{
    Q_OBJECT

public:
    explicit CConversation(QObject* parent = nullptr);
    ~CConversation() override;

    /// Begins `work` and returns; `done` is called from the event loop when it has ended. False,
    /// with nothing begun, where a conversation is under way.
    bool RunBeside(std::function<void()> work, std::function<void()> done);
    /// Runs `work` to its end, behind a conversation that is under way. Windows go on painting
    /// meanwhile, while keys and the mouse wait.
    void Run(const std::function<void()>& work);
    /// Waits for the end of what `RunBeside` began, so that the link may be used.
    void Settle();
    [[nodiscard]] bool IsUnderWay() const { return m_worker.IsUnderWay(); }

private:
    void OnEnded();

    std::function<void()> m_done;
    QEventLoop* m_loop = nullptr; ///< the loop of `Run` or `Settle`
    CLinkWorker m_worker;
};

} // namespace skeldon
