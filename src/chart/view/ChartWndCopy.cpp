// The chart on the clipboard.
#include "chart/view/ChartWnd.h"

#include "app/Clipboard.h"
#include "app/SkeldonApp.h"
#include "chart/view/ChartPicture.h"
#include "chart/view/ChartSettings.h"

namespace skeldon {

bool CChartWnd::CopyToClipboard()
{
    if (!m_isPainted)
        return false;
    const QString title = ReadChartProperties(App().Settings()).title;
    // What the window shows is copied, not drawn anew.
    return CopyPictureToClipboard(
        FrameChart(m_model.Sizes(), m_colours, font(), ChartTitle(title, *m_model.m_data),
                   devicePixelRatioF(), [this](QPainter& view) { ComposeView(view); }));
}

} // namespace skeldon
