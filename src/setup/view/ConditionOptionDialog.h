#pragma once

#include "setup/conditions/MeasureCondition.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QGridLayout;

namespace skeldon {

class CFloatComboEdit;
class CIntComboEdit;
class CProfileStore;

/// The card form: all conditions in one dialog. Works on a copy, which the caller takes after OK.
class CConditionOptionDialog : public QDialog
{
    Q_OBJECT

public:
    /// `store` must outlive the dialog.
    CConditionOptionDialog(const CMeasureCondition& condition, const CProfileStore& store,
                           QWidget* parent = nullptr);

    /// Takes the boxes over and closes. Where one is not valid, or the host number is in use, the
    /// user is told, that box has the focus, and the dialog stays. Hazard, endless and buzzer are
    /// shown but not taken.
    void accept() override;

    CMeasureCondition m_condition;

    QComboBox* m_sampling;
    QComboBox* m_interval;
    CFloatComboEdit* m_threshold;
    QCheckBox* m_overThreshold;
    QCheckBox* m_endless;
    QCheckBox* m_buzzer;
    CIntComboEdit* m_hostNumber;
    CIntComboEdit* m_startOption;
    CFloatComboEdit* m_hazard;

private:
    void FillLists();
    void ShowConditions();
    void LayOut();
    [[nodiscard]] bool TakeConditions();
    /// Tells the user that the number in the box is in use.
    void RefuseHostNumber(int number);

    const CProfileStore& m_store;
};

} // namespace skeldon
