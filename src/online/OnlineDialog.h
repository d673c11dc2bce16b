#pragma once

#include <QBasicTimer>
#include <QDialog>

#include <cstdint>

class QLabel;

namespace skeldon {

class CMeasureData;
class COnlineCounter;
class CSkinButton;

/// Has the recorder stream its axes for the time that the setting "OnlineSecond" tells, counts the
/// seconds meanwhile, and puts the lines into a data set at the end. Modal, without a title bar.
class COnlineDialog : public QDialog
{
    Q_OBJECT

public:
    static constexpr int StartDelayMs = 100;
    static constexpr int SecondMs = 1000;

    /// `measured` is filled before `exec` returns, which gives `QDialog::Accepted` in any case.
    COnlineDialog(CMeasureData& measured, QWidget* owner);

    /// Asks the stream to end, which it does at its next line; the window stays until then.
    void reject() override;
    /// Counts a second and looks whether the stream has ended; what the timer does.
    void OnSecond();

    CSkinButton* m_cancel;
    COnlineCounter* m_elapsedText; ///< seconds since the start
    COnlineCounter* m_totalText;   ///< seconds in all
    COnlineCounter* m_unitText;
    QLabel* m_waitText; ///< shown while no lines come

protected:
    void showEvent(QShowEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    [[nodiscard]] COnlineCounter* MakeCounter(const QRect& place, Qt::Alignment side);
    void Start();

    CMeasureData& m_measured;
    int m_elapsed = 0; ///< seconds shown so far
    std::uint32_t m_seenLines = 0;
    bool m_isStarting = false;
    bool m_isCancelled = false;
    QBasicTimer m_startTimer;
    QBasicTimer m_secondTimer;
};

} // namespace skeldon
