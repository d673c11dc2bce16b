#pragma once

#include "app/View.h"

namespace skeldon {

/// The form on which measurement conditions are edited.
class CSetupView : public CView
{
    Q_OBJECT

public:
    explicit CSetupView(QWidget* parent = nullptr);

    void OnInitialUpdate() override {}
    void OnCommand(CommandId command) override;
    [[nodiscard]] CommandState StateOf(CommandId command) const override;
    void OnUpdate(DocumentHint hint, int argument) override;
    [[nodiscard]] QSize SmallestSize() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace skeldon
