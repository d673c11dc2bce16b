#pragma once

#include "chart/model/PagePlan.h"
#include "data/MeasureData.h"
#include "dataview/ListText.h"

#include <QFont>
#include <QPainter>

namespace skeldon {

/// One printed page of the measured list.
struct ListPage
{
    int width = 0;      ///< of all columns, device pixels
    int lineHeight = 0; ///< likewise
    PrintLines lines;
    int page = 1;
    int pageCount = 1;
    bool tintsMarked = false;    ///< the numbers of marked lines
    bool tintsExtracted = false; ///< the cells that met an extract condition
};

/// Draws the page from the device's left top on: its head in three rows, then the lines. `device`
/// goes by device pixels; `font` is the list's, `rowHeight` the height of its rows on the screen.
void PaintListPage(QPainter& device, const ListPage& page, const CMeasureData& data,
                   CListText& text, const QFont& font, int rowHeight);

} // namespace skeldon
