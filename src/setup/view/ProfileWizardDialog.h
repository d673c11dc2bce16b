#pragma once

#include "setup/conditions/MeasureCondition.h"

#include <QDialog>

#include <vector>

class QPushButton;
class QStackedWidget;

namespace skeldon {

class CProfileWizardPage;

/// Leads through the nine conditions, a page for each. Works on a copy of its own, which the caller
/// takes if the wizard is finished.
class CProfileWizardDialog : public QDialog
{
    Q_OBJECT

public:
    explicit CProfileWizardDialog(const CMeasureCondition& condition, QWidget* parent = nullptr);
    ~CProfileWizardDialog() override;

    [[nodiscard]] int CurrentPage() const;
    [[nodiscard]] CProfileWizardPage& Page(int page) const;

    CMeasureCondition m_condition; ///< what the pages work on

    QPushButton* m_back;
    QPushButton* m_next;
    QPushButton* m_finish;
    QPushButton* m_cancel;

private:
    void OnInitDialog();
    /// Shows a page and the buttons that it offers.
    void SetActive(int page);

    QStackedWidget* m_stack;
    std::vector<CProfileWizardPage*> m_pages;
};

} // namespace skeldon
