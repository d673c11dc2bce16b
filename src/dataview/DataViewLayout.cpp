#include "dataview/DataViewLayout.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace skeldon {

namespace {

struct Place
{
    int x;
    int width;
};

struct ButtonPlace
{
    bool isBottom;
    Place english;
    Place japanese;
};

constexpr std::array<ButtonPlace, static_cast<std::size_t>(DataViewButton::Count)> Places{{
    {false, {8, 76}, {8, 76}},
    {false, {86, 76}, {86, 76}},
    {false, {164, 76}, {164, 76}},
    {false, {242, 100}, {242, 100}},
    {false, {344, 132}, {344, 120}},
    {false, {480, 94}, {468, 94}},
    {true, {8, 44}, {8, 66}},
    {true, {54, 44}, {76, 66}},
    {true, {100, 44}, {144, 66}},
    {true, {146, 80}, {212, 66}},
    {true, {228, 80}, {280, 66}},
    {true, {310, 90}, {348, 66}},
    {true, {402, 80}, {418, 66}},
    {true, {484, 80}, {486, 66}},
    {true, {566, 96}, {556, 94}},
}};

constexpr int Side = 2;
constexpr int ListTop = 36;
/// From the bottom of the window to the row of buttons and to the chart.
constexpr int BottomRow = 49;
constexpr int BelowChart = 54;
/// The list's border stays that far above the bottom.
constexpr int BelowListBorder = 234;

} // namespace

CDataViewLayout::CDataViewLayout(QSize client, bool isJapanese)
    : m_client(client)
    , m_isJapanese(isJapanese)
{}

QSize CDataViewLayout::FormSize(bool isJapanese)
{
    return isJapanese ? QSize(658, 488) : QSize(670, 488);
}

QRect CDataViewLayout::Button(DataViewButton button) const
{
    const ButtonPlace& row = Places[static_cast<std::size_t>(button)];
    const Place& place = m_isJapanese ? row.japanese : row.english;
    const int y = row.isBottom ? m_client.height() - BottomRow : TopRow;
    return {place.x, y, place.width, ButtonHeight};
}

int CDataViewLayout::ClampListBorder(int border) const
{
    return std::min(std::max(border, HighestListBorder), m_client.height() - BelowListBorder);
}

QRect CDataViewLayout::Splitter(int listBorder) const
{
    return {Side, listBorder, m_client.width() - 2 * Side, SplitterHeight};
}

QRect CDataViewLayout::List(int listBorder) const
{
    return {Side, ListTop, m_client.width() - 2 * Side, std::max(listBorder - ListTop, 0)};
}

QRect CDataViewLayout::Chart(int listBorder) const
{
    const int top = listBorder + SplitterHeight;
    return {Side, top, m_client.width() - 2 * Side,
            std::max(m_client.height() - BelowChart - top, 0)};
}

QRect CDataViewLayout::Strip() const
{
    return {0, m_client.height() - StripHeight, m_client.width(), StripHeight};
}

QRect CDataViewLayout::ConnectionIcon() const
{
    constexpr int FromRight = 64;
    constexpr int Width = 48;
    return {m_client.width() - FromRight, TopRow, Width, ButtonHeight};
}

} // namespace skeldon
