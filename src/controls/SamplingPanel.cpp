#include "controls/SamplingPanel.h"

#include "setup/tables/SamplingTable.h"

namespace skeldon {

CSamplingPanel::CSamplingPanel(QWidget* parent)
    : CLcdPanel(LcdPanelKind::Sampling, parent)
{}

void CSamplingPanel::SetRow(int row)
{
    SetDisplay(SamplingTable::IsTrace(row) ? PictureId::LcdSamplingTrace : PictureId::LcdSampling,
               false);
    SetValue(SamplingTable::Period(row));
}

} // namespace skeldon
