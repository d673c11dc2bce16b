#include "dataview/ListPage.h"

#include "app/DataText.h"
#include "chart/view/ScaledPainter.h"
#include "dataview/MeasuredListModel.h"
#include "resources/StringTable.h"
#include "resources/TextFormat.h"

#include <algorithm>
#include <array>

namespace skeldon {

namespace {

constexpr ColourRef MarkedBack = 0xC0C0F8;
constexpr ColourRef ExtractedBack = 0xF8D2CC;
constexpr ColourRef White = 0xFFFFFF;
constexpr ColourRef Black = 0x000000;

constexpr int HeadRows = 3;
constexpr int TitleRow = 2;

/// Column widths in units of half the font's height.
constexpr std::array<int, ListColumnCount> Widths{8, 14, 14, 10, 10, 10, 10, 10, 10};
constexpr int Unit = 6;

/// Left edge of a column; of the one behind the last, the list's right edge.
constexpr int LeftOf(int column)
{
    int left = 0;
    for (int i = 0; i < column; ++i)
        left += Widths[static_cast<std::size_t>(i)] * Unit;
    return left;
}

constexpr int FullWidth = LeftOf(ListColumnCount);

/// The bit of a line's flag word that says that a column's value met an extract condition; 0 for a
/// column without such values.
std::uint16_t ExtractionBit(ListColumn column)
{
    switch (column) {
    case ListColumn::X:
        return RecordFlag::HitX;
    case ListColumn::Y:
        return RecordFlag::HitY;
    case ListColumn::Z:
        return RecordFlag::HitZ;
    case ListColumn::Resultant:
        return RecordFlag::HitResultant;
    case ListColumn::Temperature:
        return RecordFlag::HitTemperature;
    case ListColumn::Humidity:
        return RecordFlag::HitHumidity;
    default:
        return 0;
    }
}

class CListPagePainter
{
public:
    CListPagePainter(QPainter& device, const ListPage& page, const QFont& font, int rowHeight)
        : m_page(page)
        , m_rowHeight(rowHeight)
        , m_painter(device, font, static_cast<double>(page.width) / FullWidth,
                    static_cast<double>(page.lineHeight) / rowHeight)
        , m_frameWidth(PrintedLineWidth(1, device.device()->logicalDpiX()))
    {}

    void PaintHead(const QString& fileName)
    {
        m_painter.DrawTextScaled(
            FormatText(Text(StringId::PrintListHead), {fileName, m_page.page, m_page.pageCount}), 0,
            0, FullWidth, m_rowHeight, Qt::AlignRight, Black);
        for (int column = 0; column < ListColumnCount; ++column)
            PaintCell(TitleRow, column, TitleOf(static_cast<ListColumn>(column)), White);
    }

    void PaintLine(int row, const CMeasureData& data, std::size_t line, CListText& text)
    {
        for (int i = 0; i < ListColumnCount; ++i) {
            const auto column = static_cast<ListColumn>(i);
            PaintCell(HeadRows + row, i, text.CellText(data, line, column),
                      BackOf(data.Records()[line], column));
        }
    }

private:
    [[nodiscard]] ColourRef BackOf(const CMeasureRecord& record, ListColumn column) const
    {
        if (column == ListColumn::Number)
            return m_page.tintsMarked && record.HasFlag(RecordFlag::Marked) ? MarkedBack : White;
        return m_page.tintsExtracted && record.HasFlag(ExtractionBit(column)) ? ExtractedBack
                                                                              : White;
    }

    void PaintCell(int row, int column, const QString& text, ColourRef back)
    {
        const int left = LeftOf(column);
        const int right = LeftOf(column + 1);
        const int top = row * m_rowHeight;
        const int bottom = top + m_rowHeight;
        m_painter.FillRectScaled(left, top, right, bottom, back);
        Frame(left, top, right, bottom);
        m_painter.DrawFittedText(text, left + 1, top + 1, right - 1, bottom - 1, Qt::AlignRight,
                                 Black);
    }

    /// Neighbours share a line; those at the right edge lie inside of the page.
    void Frame(int left, int top, int right, int bottom)
    {
        const int x1 = m_painter.DeviceX(left);
        const int x2 = std::min(m_painter.DeviceX(right), m_page.width - m_frameWidth);
        const int y1 = m_painter.DeviceY(top);
        const int y2 = m_painter.DeviceY(bottom);
        QPainter& device = m_painter.Painter();
        for (const int x : {x1, x2})
            device.fillRect(x, y1, m_frameWidth, y2 - y1 + m_frameWidth, Qt::black);
        for (const int y : {y1, y2})
            device.fillRect(x1, y, x2 - x1 + m_frameWidth, m_frameWidth, Qt::black);
    }

    const ListPage& m_page;
    int m_rowHeight;
    CScaledPainter m_painter;
    int m_frameWidth;
};

} // namespace

void PaintListPage(QPainter& device, const ListPage& page, const CMeasureData& data,
                   CListText& text, const QFont& font, int rowHeight)
{
    device.save();
    {
        CListPagePainter painter(device, page, font, rowHeight);
        painter.PaintHead(FromDataText(data.m_fileName));
        for (int line = page.lines.first; line <= page.lines.last; ++line)
            painter.PaintLine(line - page.lines.first, data, static_cast<std::size_t>(line - 1),
                              text);
    }
    device.restore();
}

} // namespace skeldon
