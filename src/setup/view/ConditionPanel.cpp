#include "setup/view/ConditionPanel.h"

#include "app/SkeldonApp.h"
#include "controls/IntervalPanel.h"
#include "controls/SamplingPanel.h"
#include "controls/Theme.h"
#include "setup/conditions/MeasureCondition.h"
#include "setup/view/SetupLayout.h"

namespace skeldon {

namespace {

CLcdPanel* MakePanel(LcdPanelKind kind, QWidget* parent)
{
    if (kind == LcdPanelKind::Sampling)
        return new CSamplingPanel(parent);
    if (kind == LcdPanelKind::Interval)
        return new CIntervalPanel(parent);
    return new CLcdPanel(kind, parent);
}

} // namespace

CLcdPanel* MakeConditionPanel(SetupPanel panel, QWidget* parent)
{
    const SetupPanelForm& form = SetupPanels()[static_cast<std::size_t>(panel)];
    CLcdPanel* const display = MakePanel(form.kind, parent);
    display->SetCaption(Text(form.caption));
    display->SetTint(TintOf(App().m_viewBaseColour));
    return display;
}

void ShowCondition(CLcdPanel& display, SetupPanel panel, const CMeasureCondition& condition)
{
    switch (panel) {
    case SetupPanel::Interval:
        return static_cast<CIntervalPanel&>(display).SetRow(condition.GetInterval());
    case SetupPanel::Sampling:
        return static_cast<CSamplingPanel&>(display).SetRow(condition.GetSampling());
    case SetupPanel::StartOption:
        return display.SetValue(condition.StartOpt);
    case SetupPanel::Threshold:
        return display.SetValue(condition.Threshold);
    case SetupPanel::Hazard:
        return display.SetValue(condition.Hazard);
    case SetupPanel::DetectOver:
        return display.SetValue(condition.OverThreshold ? 1 : 0);
    case SetupPanel::Endless:
        return display.SetValue(condition.Endless ? 1 : 0);
    case SetupPanel::Id:
        return display.SetValue(condition.SerialNo);
    case SetupPanel::Buzzer:
        return display.SetValue(condition.Buzzer ? 1 : 0);
    case SetupPanel::Records:
    case SetupPanel::Count:
        return;
    }
}

} // namespace skeldon
