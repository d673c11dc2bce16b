#pragma once

#include "chart/model/PrintSettings.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace skeldon {

/// The part of a sheet that a printer can print on.
struct PrintPaper
{
    int dpiX = 0; ///< device pixels per inch
    int dpiY = 0;
    int width = 0; ///< device pixels
    int height = 0;
};

/// Size of a page's contents before it is scaled, in pixels of the screen.
struct NaturalSize
{
    int width = 0;
    int height = 0;     ///< of the chart, or of one line of the list
    int headHeight = 0; ///< of the list's page head
};

/// First and last line of a list, counted from 1.
struct PrintLines
{
    int first = 1;
    int last = 1;

    bool operator==(const PrintLines&) const = default;
};

/// Where a page's contents lie and how they are spread over pages. All sizes in device pixels, from
/// the left top of what the printer can print on.
struct PagePlan
{
    int left = 0;
    int top = 0;
    int width = 0; ///< of the page's picture, which nothing leaves
    int height = 0;
    int drawWidth = 0;  ///< of the contents
    int drawHeight = 0; ///< of the chart, or of one line of the list
    int headHeight = 0; ///< of the list
    int linesPerPage = 0;
    int pageCount = 1;

    bool operator==(const PagePlan&) const = default;
};

/// No side of a page's picture may be shorter, in device pixels.
inline constexpr int ShortestPageSide = 50;

/// Plans the pages. Nothing if the paper less its margins is too small: a side of the picture is
/// shorter than `ShortestPageSide`, or no line of a list fits on a page.
[[nodiscard]] std::optional<PagePlan> PlanPages(const PrintSettings& settings,
                                                const PrintPaper& paper, const NaturalSize& natural,
                                                const PrintLines& lines);

/// The lines on page `page`, from 1, of a list.
[[nodiscard]] PrintLines LinesOfPage(const PagePlan& plan, const PrintLines& lines, int page);

/// Printing finer than that takes memory and time for what no eye sees.
inline constexpr int FinestPrintDpi = 600;

/// Device pixels of a line that is `weight` pixels wide on a printer of 300 dpi. Finer printers
/// give more pixels, so that the line does not fade; coarser ones no fewer.
[[nodiscard]] int PrintedLineWidth(int weight, int dpi);

/// Rows from `top` to below `bottom`.
struct RowBand
{
    int top = 0;
    int bottom = 0;

    bool operator==(const RowBand&) const = default;
};

/// A picture of a part of a page may take so many bytes.
inline constexpr std::int64_t PageBandBytes = std::int64_t{128} * 1024 * 1024;

/// Splits the rows of a picture so that no part takes more than `limit` bytes, though each has at
/// least one row of its own. A part begins `overlap` rows above the end of the one before, where
/// there is room for that, so that no seam shows.
[[nodiscard]] std::vector<RowBand> PlanBands(const RowBand& rows, std::int64_t bytesPerRow,
                                             std::int64_t limit, int overlap);

} // namespace skeldon
