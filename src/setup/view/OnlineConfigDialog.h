#pragma once

#include <QDialog>

namespace skeldon {

class CIntComboEdit;

/// Sets how long an online recording lasts at most.
class COnlineConfigDialog : public QDialog
{
    Q_OBJECT

public:
    explicit COnlineConfigDialog(QWidget* parent = nullptr);

    /// Stores the time and closes; stays where the box is not valid, with the focus on it.
    void accept() override;

    CIntComboEdit* m_seconds;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void LayOut();
    /// The value comes into the box once the list has closed and done with it.
    void PostValue();
    void ShowValue();

    int m_value;
};

/// Shows the dialog.
void RunOnlineConfig(QWidget* parent);

} // namespace skeldon
