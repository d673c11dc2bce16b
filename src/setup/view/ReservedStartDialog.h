#pragma once

#include "base/CalendarTime.h"

#include <QDialog>

class QDateEdit;
class QPushButton;
class QTimeEdit;

namespace skeldon {

/// Asks when a reserved measurement is to begin. Can be closed with OK only while that lies ahead.
class CReservedStartDialog : public QDialog
{
    Q_OBJECT

public:
    /// Proposes a time two minutes from now.
    explicit CReservedStartDialog(QWidget* parent = nullptr);

    /// The chosen minute.
    [[nodiscard]] CalendarSeconds StartTime() const;
    [[nodiscard]] bool IsFuture() const;

    void accept() override;

    QDateEdit* m_date;
    QTimeEdit* m_time;
    QPushButton* m_ok;

private:
    void RefreshOk();
};

} // namespace skeldon
