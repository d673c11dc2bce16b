#pragma once

namespace skeldon {

/// Margins of a printed page in millimetres.
struct PrintMargins
{
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    bool operator==(const PrintMargins&) const = default;
};

/// How one of the two kinds of page lies on the paper. Numbers are kept as the settings store has
/// them.
struct PageForm
{
    int match = 0; ///< other than 0: fit to the paper instead of using the zoom
    int horz = 1;  ///< other than 0: landscape
    PrintMargins blank;
    int zoom = 100; ///< percent

    bool operator==(const PageForm&) const = default;
};

/// What is printed and how: the choices that outlast the program.
struct PrintSettings
{
    int graph = 1; ///< other than 0: the chart, else the list
    PageForm list;
    PageForm chart;
    int mark = 1;    ///< list: other than 0 tints marked lines
    int extract = 1; ///< list: other than 0 tints extracted cells

    bool operator==(const PrintSettings&) const = default;

    [[nodiscard]] bool IsChart() const { return graph != 0; }
    /// The form of the pages that will be printed.
    [[nodiscard]] const PageForm& Form() const { return IsChart() ? chart : list; }
};

/// What the print dialog puts in place of all earlier choices, whatever was chosen in it: the
/// chart, fitted to a landscape page without margins.
inline constexpr PrintSettings PrintDialogSettings{
    1, {1, 1, {}, 100}, {1, 1, {}, 100}, 0, 0,
};

} // namespace skeldon
