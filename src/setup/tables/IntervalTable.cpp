#include "setup/tables/IntervalTable.h"

#include "setup/tables/TableSearch.h"

#include <array>

namespace skeldon {

namespace {

struct IntervalRow
{
    int code;
    int length;
    bool seconds;
    char character;
};

constexpr std::array<IntervalRow, IntervalTable::Count> Rows = {{
    {0, 30, false, '^'},
    {1, 20, false, 'T'},
    {2, 15, false, 'O'},
    {3, 10, false, 'J'},
    {4, 5, false, 'E'},
    {5, 4, false, 'D'},
    {6, 3, false, 'C'},
    {7, 2, false, 'B'},
    {8, 1, false, 'A'},
    {9, 30, true, 'f'},
    {10, 20, true, 'e'},
    {14, 15, true, 'd'},
    {11, 10, true, 'c'},
    {12, 5, true, 'b'},
    {13, 1, true, 'a'},
}};

} // namespace

int IntervalTable::Length(int row)
{
    return ClampedRow(Rows, row).length;
}

bool IntervalTable::InSeconds(int row)
{
    return ClampedRow(Rows, row).seconds;
}

int IntervalTable::Code(int row)
{
    return IsRow(Rows, row) ? ClampedRow(Rows, row).code : -1;
}

char IntervalTable::Character(int row)
{
    return IsRow(Rows, row) ? ClampedRow(Rows, row).character : '\0';
}

int IntervalTable::RowOfCode(int code)
{
    return FindRow(Rows, &IntervalRow::code, code);
}

int IntervalTable::RowOfCharacter(char character)
{
    return character == 0 ? -1 : FindRow(Rows, &IntervalRow::character, character);
}

} // namespace skeldon
