#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <random>

namespace skeldon::soak {

/// Chance that a seed decides: the same seed gives the same run.
class CRandom
{
public:
    explicit CRandom(std::uint64_t seed)
        : m_engine(seed)
    {}

    /// 0 to `count` - 1; `count` is at least 1.
    [[nodiscard]] int Below(int count)
    {
        return static_cast<int>(m_engine() % static_cast<std::uint64_t>(count));
    }
    /// `from` to `to`, both included.
    [[nodiscard]] int Between(int from, int to) { return from + Below(to - from + 1); }
    /// True once in `times`.
    [[nodiscard]] bool OneIn(int times) { return Below(times) == 0; }
    template <class Value>
    [[nodiscard]] Value OneOf(std::initializer_list<Value> values)
    {
        return values.begin()[Below(static_cast<int>(values.size()))];
    }
    template <class Container>
    [[nodiscard]] const auto& AnyOf(const Container& values)
    {
        return values[static_cast<std::size_t>(Below(static_cast<int>(values.size())))];
    }

private:
    std::mt19937_64 m_engine;
};

} // namespace skeldon::soak
