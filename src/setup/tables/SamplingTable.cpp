#include "setup/tables/SamplingTable.h"

#include "setup/tables/TableSearch.h"

#include <array>

namespace skeldon {

namespace {

struct SamplingRow
{
    int code;
    int period;
    bool trace;
    char forType0;
    char forOthers;
};

constexpr std::array<SamplingRow, SamplingTable::Count> Rows = {{
    {20, 5000, false, '0', 0},
    {21, 1600, false, '1', 0},
    {0, 1250, false, '2', '2'},
    {1, 625, false, '3', '3'},
    {2, 312, false, '5', '5'},
    {3, 312, true, 0, '4'},
    {4, 200, false, 0, '6'},
    {5, 200, true, 0, '8'},
    {6, 100, false, 0, '7'},
    {7, 100, true, 0, '9'},
}};

} // namespace

int SamplingTable::Period(int row)
{
    return ClampedRow(Rows, row).period;
}

bool SamplingTable::IsTrace(int row)
{
    return ClampedRow(Rows, row).trace;
}

int SamplingTable::Code(int row)
{
    return IsRow(Rows, row) ? ClampedRow(Rows, row).code : -1;
}

char SamplingTable::CharacterForType0(int row)
{
    return IsRow(Rows, row) ? ClampedRow(Rows, row).forType0 : '\0';
}

char SamplingTable::CharacterForOthers(int row)
{
    return IsRow(Rows, row) ? ClampedRow(Rows, row).forOthers : '\0';
}

char SamplingTable::CharacterFor(int type, int row)
{
    return type == 0 ? CharacterForType0(row) : CharacterForOthers(row);
}

int SamplingTable::RowOfCode(int code)
{
    return FindRow(Rows, &SamplingRow::code, code);
}

int SamplingTable::RowOfCharacterForType0(char character)
{
    return character == 0 ? -1 : FindRow(Rows, &SamplingRow::forType0, character);
}

int SamplingTable::RowOfCharacterForOthers(char character)
{
    return character == 0 ? -1 : FindRow(Rows, &SamplingRow::forOthers, character);
}

int SamplingTable::RowOfCharacterFor(int type, char character)
{
    return type == 0 ? RowOfCharacterForType0(character) : RowOfCharacterForOthers(character);
}

} // namespace skeldon
