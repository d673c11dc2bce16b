#include "chart/model/PagePlan.h"

#include "chart/model/Rounding.h"

#include <algorithm>

namespace skeldon {

namespace {

constexpr double InchesPerMillimetre = 0.03937007874015748; // 1 / 25.4
/// A pixel of the screen counts as one point, 72 of which are an inch, and zooms are percents.
constexpr double ZoomFactor = 0.0001388888888888889; // 1 / 7200
/// What margins take besides themselves.
constexpr int SpareMillimetre = 1;

int DevicePixels(int dpi, std::int64_t millimetres)
{
    return Truncate(dpi * static_cast<double>(millimetres) * InchesPerMillimetre);
}

int Zoomed(int dpi, int size, int zoom)
{
    return Truncate(static_cast<double>(dpi) * size * zoom * ZoomFactor);
}

/// Place and size of the picture on the paper.
PagePlan PlacePicture(const PrintMargins& blank, const PrintPaper& paper)
{
    const auto sum = [](int a, int b) { return std::int64_t{a} + b + SpareMillimetre; };
    PagePlan plan;
    plan.left = DevicePixels(paper.dpiX, blank.left);
    plan.top = DevicePixels(paper.dpiY, blank.top);
    plan.width = paper.width - DevicePixels(paper.dpiX, sum(blank.left, blank.right));
    plan.height = paper.height - DevicePixels(paper.dpiY, sum(blank.top, blank.bottom));
    return plan;
}

void SizeChart(PagePlan& plan, const PageForm& form, const PrintPaper& paper,
               const NaturalSize& natural)
{
    if (form.match == 0) {
        plan.width = Zoomed(paper.dpiX, natural.width, form.zoom);
        plan.height = Zoomed(paper.dpiY, natural.height, form.zoom);
    }
    plan.drawWidth = plan.width;
    plan.drawHeight = plan.height;
}

void SizeList(PagePlan& plan, const PageForm& form, const PrintPaper& paper,
              const NaturalSize& natural)
{
    if (form.match == 0) {
        plan.drawWidth = Zoomed(paper.dpiX, natural.width, form.zoom);
        plan.drawHeight = Zoomed(paper.dpiY, natural.height, form.zoom);
        plan.headHeight = Zoomed(paper.dpiY, natural.headHeight, form.zoom);
        return;
    }
    const int factor = plan.width / std::max(natural.width, 1);
    const auto fitted = [&](int height) {
        return Truncate(static_cast<double>(height) * factor / paper.dpiX * paper.dpiY);
    };
    plan.drawWidth = plan.width;
    plan.drawHeight = fitted(natural.height);
    plan.headHeight = fitted(natural.headHeight);
}

/// False if no line fits on a page.
bool CountPages(PagePlan& plan, const PrintLines& lines)
{
    if (plan.drawHeight < 1)
        return false;
    plan.linesPerPage = (plan.height - plan.headHeight) / plan.drawHeight;
    if (plan.linesPerPage < 1)
        return false;
    const int count = lines.last - lines.first + 1;
    plan.pageCount = count / plan.linesPerPage + (count % plan.linesPerPage != 0 ? 1 : 0);
    return true;
}

} // namespace

std::optional<PagePlan> PlanPages(const PrintSettings& settings, const PrintPaper& paper,
                                  const NaturalSize& natural, const PrintLines& lines)
{
    const PageForm& form = settings.Form();
    PagePlan plan = PlacePicture(form.blank, paper);
    if (plan.width < ShortestPageSide || plan.height < ShortestPageSide)
        return std::nullopt;
    if (settings.IsChart()) {
        SizeChart(plan, form, paper, natural);
        return plan;
    }
    SizeList(plan, form, paper, natural);
    if (!CountPages(plan, lines))
        return std::nullopt;
    return plan;
}

PrintLines LinesOfPage(const PagePlan& plan, const PrintLines& lines, int page)
{
    const std::int64_t first = lines.first + std::int64_t{page - 1} * plan.linesPerPage;
    const std::int64_t last = std::min<std::int64_t>(first + plan.linesPerPage - 1, lines.last);
    return {static_cast<int>(first), static_cast<int>(last)};
}

int PrintedLineWidth(int weight, int dpi)
{
    constexpr double UsualDpi = 300.0;
    return std::max(weight, RoundPixel(weight * dpi / UsualDpi));
}

std::vector<RowBand> PlanBands(const RowBand& rows, std::int64_t bytesPerRow, std::int64_t limit,
                               int overlap)
{
    const std::int64_t most =
        std::max<std::int64_t>(limit / std::max<std::int64_t>(bytesPerRow, 1), 1);
    const std::int64_t step = std::max<std::int64_t>(most - overlap, 1);
    std::vector<RowBand> bands;
    for (std::int64_t top = rows.top; top < rows.bottom; top += step) {
        const std::int64_t bottom = std::min<std::int64_t>(top + most, rows.bottom);
        bands.push_back({static_cast<int>(top), static_cast<int>(bottom)});
        if (bottom == rows.bottom)
            break;
    }
    return bands;
}

} // namespace skeldon
