#include "controls/LcdPanel.h"

#include "controls/Caption.h"
#include "resources/StringTable.h"
#include "resources/TextFormat.h"

#include <QEvent>
#include <QPainter>

namespace skeldon {

QColor ToColour(DigitColour colour)
{
    constexpr ColourRef Green = 0x00FF00;
    constexpr ColourRef Yellow = 0x00FFFF;
    constexpr ColourRef Red = 0x0000FF;
    if (colour == DigitColour::Red)
        return ToColour(Red);
    return ToColour(colour == DigitColour::Yellow ? Yellow : Green);
}

CLcdPanel::CLcdPanel(LcdPanelKind kind, QWidget* parent)
    : QWidget(parent)
    , m_layout(LcdLayoutOf(kind))
    , m_display(m_layout.display)
    , m_digits(DigitCodes(0, m_layout.leastDigits))
{
    setFixedSize(m_layout.size);
}

void CLcdPanel::SetCaption(const QString& caption)
{
    m_caption = caption;
    setAccessibleName(caption);
    Changed(true);
}

void CLcdPanel::SetValue(int value)
{
    m_value = value;
    m_isBlank = false;
    m_digits = DigitCodes(value, m_layout.leastDigits);
    if (m_layout.reading == LcdReading::Lamp)
        m_display = value != 0 ? PictureId::LcdOn : PictureId::LcdOff;
    Changed(true);
    AnnounceValue(this);
}

void CLcdPanel::SetBlank(bool redraw)
{
    m_isBlank = true;
    Changed(redraw);
    AnnounceValue(this);
}

void CLcdPanel::SetDigitColour(DigitColour colour, bool redraw)
{
    m_digitColour = colour;
    Changed(redraw);
}

void CLcdPanel::SetDisplay(PictureId display, bool redraw)
{
    m_display = display;
    Changed(redraw);
}

void CLcdPanel::SetTint(const Tint& tint)
{
    m_tint = tint;
    Changed(true);
}

void CLcdPanel::Changed(bool redraw)
{
    m_surface = {};
    if (redraw)
        update();
}

std::vector<DigitCell> CLcdPanel::Cells() const
{
    return PlaceDigits(m_digits, m_layout.offsets);
}

QAccessible::Role CLcdPanel::AccessibleRole() const
{
    return QAccessible::StaticText;
}

QString CLcdPanel::AccessibleValue() const
{
    if (m_isBlank)
        return Text(StringId::ValueBlank);
    // Digits that found no cell are not read out either.
    const int shown = QString::fromStdString(DigitText(Cells())).toInt();
    switch (m_layout.reading) {
    case LcdReading::Lamp:
        return Text(m_display == PictureId::LcdOn ? StringId::ValueOn : StringId::ValueOff);
    case LcdReading::TenthsOfG:
        return FormatText(Text(StringId::ValueAcceleration), {shown / 10.0});
    case LcdReading::Period:
        return FormatText(Text(m_display == PictureId::LcdSamplingTrace
                                   ? StringId::ValueSamplingTrace
                                   : StringId::ValueSampling),
                          {shown});
    case LcdReading::Length:
        return FormatText(Text(m_display == PictureId::LcdIntervalSeconds ? StringId::ValueSeconds
                                                                          : StringId::ValueMinutes),
                          {shown});
    case LcdReading::Number:
        break;
    }
    return QString::number(shown);
}

void CLcdPanel::paintEvent(QPaintEvent* /*event*/)
{
    const double ratio = devicePixelRatioF();
    if (m_surface.IsNull() || m_surface.Ratio() != ratio)
        Compose(ratio);
    QPainter(this).drawImage(0, 0, m_surface.Image());
}

void CLcdPanel::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        Changed(true);
}

void CLcdPanel::Compose(double ratio)
{
    m_surface = CSurface(m_layout.size, ratio);
    const QRect whole(QPoint(), m_layout.size);
    m_surface.DrawPart(Picture(m_layout.background, ratio), whole, whole);
    m_surface.LayTint(m_tint);
    m_captionBackground = m_surface.ColourAtMiddle(LcdCaptionArea);

    const QRect area = m_layout.displayArea;
    const QImage display = Picture(m_display, ratio);
    m_surface.DrawPart(display, QRect(QPoint(), area.size()), area);
    const QImage digits = Picture(PictureId::LcdDigits, ratio);
    if (!m_isBlank) {
        for (const DigitCell& cell : Cells())
            m_surface.DrawPart(digits,
                               QRect(QPoint(cell.code * LcdCellSize.width(), 0), LcdCellSize),
                               QRect(area.topLeft() + QPoint(cell.x, 0), LcdCellSize));
    }
    if (!display.isNull())
        MultiplyColour(m_surface.Image(), PicturePixels(area, ratio),
                       m_isBlank ? QColor(Qt::black) : ToColour(m_digitColour));
    DrawCaption();
}

void CLcdPanel::DrawCaption()
{
    if (m_caption.isEmpty())
        return;
    const bool isSeen = m_captionBackground.alpha() != 0;
    const QColor back = isSeen ? m_captionBackground : palette().color(QPalette::Window);
    const FittedCaption caption = FitCaption(m_caption, font(), LcdCaptionArea.width());
    QPainter painter(&m_surface.Image());
    painter.setFont(caption.font);
    painter.setPen(InkOn(back));
    painter.drawText(LcdCaptionArea, Qt::AlignCenter | Qt::TextSingleLine, caption.text);
}

} // namespace skeldon
