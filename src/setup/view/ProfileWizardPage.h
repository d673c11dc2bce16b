#pragma once

#include "setup/conditions/ProfileStore.h"

#include <QWidget>

class QLabel;
class QPlainTextEdit;

namespace skeldon {

class CLcdPanel;
class CMeasureCondition;
class CSpinButton;
enum class SpinKind;
struct WizardPage;

/// A page of the wizard. Its number decides what it shows.
class CProfileWizardPage : public QWidget
{
    Q_OBJECT

public:
    /// `condition` must outlive the page.
    CProfileWizardPage(CMeasureCondition& condition, int page, QWidget* parent = nullptr);
    ~CProfileWizardPage() override;

    /// Comes before each showing of the page. The first time the page reads what it works with.
    void OnSetActive();

    QLabel* m_heading;
    QPlainTextEdit* m_description;
    CLcdPanel* m_panel;
    CSpinButton* m_up = nullptr;     ///< null on a page with a toggle
    CSpinButton* m_down = nullptr;   ///< the same
    CSpinButton* m_toggle = nullptr; ///< null on a page with arrows

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    using Step = void (*)(CMeasureCondition& condition, const CProfileStore& profiles);

    void OnInitDialog();
    CSpinButton* MakeSpin(SpinKind kind, Step step);
    void LayOut();
    void ShowValue();

    CMeasureCondition& m_condition;
    const WizardPage& m_rule;
    CProfileStore m_profiles; ///< read where the page needs to know what is in use
    bool m_isOpened = false;
};

} // namespace skeldon
