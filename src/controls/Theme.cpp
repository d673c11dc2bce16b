#include "controls/Theme.h"

#include "app/SkeldonApp.h"

#include <QFrame>

namespace skeldon {

Tint TintOf(ColourRef viewBase)
{
    constexpr ColourRef LightFace = 0xD8E9EC;
    constexpr int LightAlpha = 104;
    return {viewBase == LightFace ? LightAlpha : 0};
}

QPalette FormPalette(ColourRef viewBase)
{
    constexpr ColourRef Selection = 0xB0702C;
    QPalette palette(ToColour(viewBase));
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Text, Qt::black);
    palette.setColor(QPalette::WindowText, Qt::black);
    palette.setColor(QPalette::PlaceholderText, Qt::darkGray);
    // The selected line is seen in a window that is not active, too.
    palette.setColor(QPalette::Highlight, ToColour(Selection));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    return palette;
}

void SinkIntoForm(QFrame& list)
{
    constexpr int Border = 2;
    constexpr int Shadow = 135; // the face is lighter by so many percent
    QPalette edge;
    edge.setColor(QPalette::Dark, ToColour(App().m_viewBaseColour).darker(Shadow));
    list.setPalette(edge);
    list.setFrameStyle(static_cast<int>(QFrame::Panel) | static_cast<int>(QFrame::Sunken));
    list.setLineWidth(Border);
}

} // namespace skeldon
