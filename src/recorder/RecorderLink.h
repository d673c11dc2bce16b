#pragma once

#include "base/CalendarTime.h"
#include "data/MeasureData.h"
#include "recorder/ReceptionBuffer.h"
#include "recorder/RecordStream.h"
#include "recorder/RecorderStatus.h"
#include "recorder/RecorderTransport.h"

#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <functional>
#include <mutex>
#include <optional>
#include <string_view>
#include <thread>
#include <utility>

namespace skeldon {

class CMeasureCondition;

/// The one connection to a recorder: its commands, its status and its transfers. It belongs to one
/// thread at a time: in the window to that of the conversation, or to the window's while there is
/// none. Operations block until the recorder has answered, at most the silence of 15 s. Every
/// operation opens the port if it is closed, which takes 300 ms and sends the wake-up byte.
class CRecorderLink : public CRecorderTransport, public RecorderStatus
{
public:
    /// `StartDownload`'s failures.
    static constexpr int NoStatus = -1;
    static constexpr int NoGetCommand = -2;
    static constexpr int NoMemory = -3;

    /// Nothing is opened yet. `clock` must outlive the link.
    CRecorderLink(std::unique_ptr<CCableFinder> finder, PortOpener opener, CClock& clock);
    /// Ends a transfer that still runs.
    ~CRecorderLink() override;

    /// The last status report's fields.
    [[nodiscard]] const RecorderStatus& Status() const { return *this; }

    // --- status and conditions ---

    /// Asks for the status report, reads it into the fields, and closes the port. False without a
    /// reply, with one that the cable's end cut short, while a transfer runs, or if the reply is no
    /// report: the port stays open in this last case.
    bool ReadStatus();
    /// The same; `condition` takes what the recorder holds.
    bool ReadStatus(CMeasureCondition& condition);
    /// Sends the conditions that the connected model knows and closes the port. False as soon as a
    /// command gets no complete reply, or while a transfer runs.
    bool WriteConditions(const CMeasureCondition& condition);
    /// Conditions, the PC's time if `setClock`, and the start. The recorder measures once the
    /// cable is pulled.
    bool StartMeasuring(CMeasureCondition condition, bool setClock);
    /// The same, to begin at the minute of `reserveTime` within the coming year.
    bool StartReserved(CMeasureCondition condition, CalendarSeconds reserveTime, bool setClock);

    // --- service ---

    /// Starts the calibration with a magnet; true if the recorder answered.
    bool Calibrate();
    /// Switches to the other maximum scanning level; true if the recorder answered. The status is
    /// out of date then, as `m_rangeChanged` tells.
    bool ChangeRange();
    /// Sends raw text and reports all that comes until the silence of 15 s, or the program's end.
    /// The port stays open unless its cable was pulled.
    bool SendMonitorCommand(std::string_view text);

    // --- download ---

    /// Reads the status, sends the get command and starts the thread that receives the lines.
    /// Gives the number of lines to expect, 0 if the recorder holds none, or one of the failures
    /// above.
    int StartDownload();
    /// The next line, waiting for it; see `CRecordStream`. False at the end of the stream.
    bool NextRecord(CMeasureRecord& record);
    /// Has `step` called every few hundredths of a second while `NextRecord` waits.
    void SetWhileWaiting(std::function<void()> step)
    {
        m_rxBuffer.SetWhileWaiting(std::move(step));
    }
    /// Waits for the thread, which may take the silence of 15 s, and closes the port. Tells `data`
    /// which quantities its lines carry.
    void FinishDownload(CMeasureData& data);

    // --- live stream ---

    /// Has the recorder send its axes 200 times a second and starts the thread that receives at
    /// most `lines` of them.
    bool StartOnline(std::uint32_t lines);
    /// Waits for the thread, closes the port and puts the lines received into `data`, 5 ms apart
    /// from the start time on.
    void FinishOnline(CMeasureData& data);
    /// Waits up to `milliseconds` for the end of a transfer; `m_threadDone`.
    bool WaitForThread(std::uint32_t milliseconds);

    std::atomic<bool> m_threadDone = true;        ///< the thread has finished; set last
    std::uint32_t m_onlineLimit = 0;              ///< lines to take at most in the live stream
    std::atomic<std::uint32_t> m_onlineLines = 0; ///< lines received so far
    std::atomic<bool> m_stopRequest = false;      ///< the user asked to stop the stream
    CalendarSeconds m_onlineStart = 0;            ///< when the stream began, by the PC's clock

private:
    using ThreadWork = void (CRecorderLink::*)();

    /// One command of several; a failure closes the port.
    bool SendOrClose(std::string_view text);
    void ReportUntilSilence();
    bool StartThread(ThreadWork work);
    void RunThread(ThreadWork work);
    void ReceiveDownload();
    void ReceiveOnline();
    bool ReceiveOnlineLines();
    void EndTransfer();
    void FillOnline(std::string_view bytes, CMeasureData& data) const;

    CReceptionBuffer m_rxBuffer;
    std::optional<CRecordStream> m_records;
    std::thread m_thread;
    std::mutex m_doneLock;
    std::condition_variable m_doneSignal;
};

} // namespace skeldon
