#pragma once

#include "data/MeasureData.h"

#include <cstdint>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace skeldon::test {

/// Makes data sets and texts of data files at random, from a seed.
class CRandomFiles
{
public:
    explicit CRandomFiles(std::uint64_t seed)
        : m_random(seed)
    {}

    [[nodiscard]] std::uint64_t Below(std::uint64_t limit) { return m_random() % limit; }
    [[nodiscard]] bool OneIn(std::uint64_t limit) { return Below(limit) == 0; }

    /// A data set of up to `most` lines; a wild one has numbers that no recorder gives.
    CMeasureData Data(std::size_t most, bool isWild);
    /// Text that is nearly a data file of `count` records; with one in `rarity` lines odd in some
    /// way: other letter case, other order, values of any kind, missing and doubled lines.
    std::string Text(std::size_t count, std::uint64_t rarity);
    /// Changes, drops, doubles and cuts bytes.
    void Spoil(std::string& text);

private:
    template <typename T, std::size_t Size>
    const T& OneOf(const T (&choice)[Size])
    {
        return choice[Below(Size)];
    }
    double Axis(bool isWild);
    double Climate(bool isWild);
    CalendarSeconds Time();
    std::string Number();
    std::string OddNumber();
    std::string DateText();
    std::vector<std::string> Header();
    std::vector<std::string> Record();
    void MakeOdd(std::vector<std::string>& lines, std::size_t at);
    void MakeOddElement(std::string& line);

    std::mt19937_64 m_random;
    CalendarSeconds m_time = 1230000000;
};

} // namespace skeldon::test
