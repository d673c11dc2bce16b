#pragma once

#include <array>
#include <cstddef>
#include <cstring>

namespace skeldon {

/// Six numbers that are worked on two by two, as every processor of today can, which a compiler
/// does not find by itself.
class CSixValues
{
public:
    static constexpr std::size_t Count = 6;

    [[nodiscard]] static CSixValues Filled(double value)
    {
        const Pair pair{value, value};
        return {pair, pair, pair};
    }
    /// From six numbers in a row.
    [[nodiscard]] static CSixValues Loaded(const void* numbers)
    {
        CSixValues six{};
        std::memcpy(&six, numbers, sizeof six);
        return six;
    }

    // Each number by itself; one of `other` that is no number changes nothing.
    void TakeLeast(const CSixValues& other)
    {
        m_first = other.m_first < m_first ? other.m_first : m_first;
        m_second = other.m_second < m_second ? other.m_second : m_second;
        m_third = other.m_third < m_third ? other.m_third : m_third;
    }
    void TakeGreatest(const CSixValues& other)
    {
        m_first = other.m_first > m_first ? other.m_first : m_first;
        m_second = other.m_second > m_second ? other.m_second : m_second;
        m_third = other.m_third > m_third ? other.m_third : m_third;
    }
    void Add(const CSixValues& other)
    {
        m_first += other.m_first;
        m_second += other.m_second;
        m_third += other.m_third;
    }

    /// `top` less this: each times the one of `factors`, times `scale`, plus 0.5, within `limit` of
    /// zero, its fraction cut off toward zero. None may be no number.
    [[nodiscard]] std::array<int, Count> RowsBelow(int top, const CSixValues& factors, double scale,
                                                   double limit) const
    {
        std::array<int, Count> rows{};
        const auto place = [&](const Pair& pair, const Pair& factor, int* out) {
            const Pair scaled = scale * (pair * factor) + 0.5;
            const Pair most{limit, limit};
            const Pair above = scaled < most ? scaled : most;
            const Pair within = above > -most ? above : -most;
            const IntPair below = top - __builtin_convertvector(within, IntPair);
            std::memcpy(out, &below, sizeof below);
        };
        place(m_first, factors.m_first, rows.data());
        place(m_second, factors.m_second, rows.data() + 2);
        place(m_third, factors.m_third, rows.data() + 4);
        return rows;
    }

    /// These with 0 for what is no number.
    [[nodiscard]] CSixValues OrZero() const
    {
        const Pair zero{0.0, 0.0};
        return {m_first == m_first ? m_first : zero, m_second == m_second ? m_second : zero,
                m_third == m_third ? m_third : zero};
    }

    /// Whether all six are numbers.
    [[nodiscard]] bool AreNumbers() const
    {
        const auto same = (m_first == m_first) & (m_second == m_second) & (m_third == m_third);
        return same[0] != 0 && same[1] != 0;
    }

    [[nodiscard]] double operator[](std::size_t i) const
    {
        const Pair& pair = i < 2 ? m_first : i < 4 ? m_second : m_third;
        return pair[i % 2];
    }

private:
    using Pair [[gnu::vector_size(2 * sizeof(double))]] = double;
    using IntPair [[gnu::vector_size(2 * sizeof(int))]] = int;

    CSixValues() = default;
    CSixValues(const Pair& first, const Pair& second, const Pair& third)
        : m_first(first)
        , m_second(second)
        , m_third(third)
    {}

    Pair m_first{};
    Pair m_second{};
    Pair m_third{};
};

static_assert(sizeof(CSixValues) == CSixValues::Count * sizeof(double));

} // namespace skeldon
