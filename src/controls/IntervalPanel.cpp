#include "controls/IntervalPanel.h"

#include "setup/tables/IntervalTable.h"

namespace skeldon {

CIntervalPanel::CIntervalPanel(QWidget* parent)
    : CLcdPanel(LcdPanelKind::Interval, parent)
{}

void CIntervalPanel::SetRow(int row)
{
    SetDisplay(IntervalTable::InSeconds(row) ? PictureId::LcdIntervalSeconds
                                             : PictureId::LcdIntervalMinutes,
               false);
    SetValue(IntervalTable::Length(row));
}

} // namespace skeldon
