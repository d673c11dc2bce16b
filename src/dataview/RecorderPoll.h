#pragma once

#include <QObject>
#include <QString>
#include <QTimer>

namespace skeldon {

struct RecorderStatus;

/// What the status bar shows of a connected recorder.
struct RecorderPanes
{
    QString model;   ///< model and full scale
    QString release; ///< release of the firmware
};

/// Of the last report of a recorder.
[[nodiscard]] RecorderPanes PanesOf(const RecorderStatus& status);

/// Looks once a second whether a recorder is plugged in, and asks a new one what it is, beside the
/// window: a recorder that does not answer holds nobody up and is asked again at the next tick. A
/// cable that went during a conversation counts as pulled even if it is back by the next look.
class CRecorderPoll : public QObject
{
    Q_OBJECT

public:
    static constexpr int IntervalMs = 1000;

    explicit CRecorderPoll(QObject* parent = nullptr);

    void Start();
    void Stop();
    /// One look; what the timer does.
    void Tick();
    /// Whether a recorder was connected when last looked for.
    [[nodiscard]] bool IsConnected() const { return m_bConnected; }

signals:
    /// The cable was found or missed where that is news, before a recorder has answered.
    void CableSeen(bool present);
    /// The connection has changed, or the recorder's range (`isForced`).
    void Changed(bool connected, bool isForced);

private:
    void OnAnswer(bool isAnswered, bool isForced);
    void Announce(bool connected, bool isForced);

    QTimer m_timer;
    bool m_bConnected = false;
};

} // namespace skeldon
