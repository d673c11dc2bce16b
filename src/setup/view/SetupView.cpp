#include "setup/view/SetupView.h"

#include "app/SkeldonApp.h"

#include <QPainter>

namespace skeldon {

CSetupView::CSetupView(QWidget* parent)
    : CView(parent)
{}

void CSetupView::OnCommand(CommandId command)
{
    if (command == CommandId::ViewDataDisplay)
        App().Frame()->SwitchView(ViewIndex::Display);
    else if (command == CommandId::Exit)
        App().Frame()->CloseFrame();
}

CommandState CSetupView::StateOf(CommandId command) const
{
    return {command == CommandId::ViewDataDisplay || command == CommandId::Exit};
}

void CSetupView::OnUpdate(DocumentHint hint, int /*argument*/)
{
    if (hint == DocumentHint::ActiveView)
        ResetStatus();
}

QSize CSetupView::SmallestSize() const
{
    return {744, 450};
}

void CSetupView::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), ToColour(App().m_viewBaseColour));
}

} // namespace skeldon
