#pragma once

#include "online/log/MonitorPending.h"
#include "recorder/TrafficSink.h"

#include <QDialog>
#include <QTimer>

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace skeldon {

class CMonitorList;
class CMonitorModel;

/// The service window: a running log of all that passes between the program and the recorder, a box
/// for commands as the recorder knows them, and the calibration. It exists, hidden, from the start
/// of the program to its end; the link owns it.
class CMonitorDialog : public QDialog, public CTrafficSink
{
    Q_OBJECT

public:
    /// How often pending lines go into the list.
    static constexpr int IntervalMs = 100;
    /// Limits that "Set" holds the number of lines to.
    static constexpr int LeastMaxLines = 100;
    static constexpr int MostMaxLines = 9'999'999;

    CMonitorDialog();
    ~CMonitorDialog() override;

    void ReportCommand(std::string_view text) override { m_pending.ReportCommand(text); }
    void ReportBytes(std::string_view bytes) override { m_pending.ReportBytes(bytes); }
    /// May be called by any thread; takes effect in this window's.
    void SetEnabled(bool enabled) override;
    void ShowMonitor() override;
    /// Whether a recorder is plugged in.
    void SetConnected(bool connected);

    /// Moves pending lines into the list; what the timer does.
    void Tick();
    void reject() override;

    QCheckBox* m_alwaysWatched = nullptr;
    QLineEdit* m_maxLinesEdit = nullptr;
    QPushButton* m_set = nullptr;
    QPushButton* m_calibrate = nullptr;
    QLabel* m_commandLabel = nullptr;
    QLineEdit* m_command = nullptr;
    CMonitorList* m_list = nullptr;
    QPushButton* m_copy = nullptr;
    QPushButton* m_clear = nullptr;
    QPushButton* m_close = nullptr;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void MakeControls();
    void LayOut();
    void StandInTheMiddle();
    void RestorePlacement();
    void ApplyEnabled();
    void OnSet();
    void OnCopy();
    void OnClear();
    void OnCommand();
    void OnCalibrate();

    CMonitorPending m_pending;
    CMonitorModel* m_lines;
    bool m_enabled = true;    ///< no transfer is running
    bool m_connected = false; ///< a recorder is connected
    QTimer m_timer;
};

} // namespace skeldon
