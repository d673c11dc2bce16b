#pragma once

#include <QDialog>
#include <QTimer>

class QPushButton;

namespace skeldon {

class CRecorderLink;

/// Asks to pull the cable, and closes by itself once that is done.
class CCableDialog : public QDialog
{
    Q_OBJECT

public:
    static constexpr int IntervalMs = 500;

    /// `link` must outlive the dialog.
    explicit CCableDialog(CRecorderLink& link, QWidget* parent = nullptr);

    QPushButton* m_ok;

private:
    void Tick();

    CRecorderLink& m_link;
    QTimer m_timer;
};

} // namespace skeldon
