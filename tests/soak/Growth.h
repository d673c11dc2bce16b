#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace skeldon::soak {

/// What the process holds at one moment.
struct Usage
{
    std::size_t heapKb = 0; ///< given out by the allocator; 0 under a sanitizer
    std::size_t residentKb = 0;
    int descriptors = 0;
    int threads = 0;

    [[nodiscard]] std::string Text() const;
};

[[nodiscard]] Usage PresentUsage();

/// Whether a process that does the same work over and over holds more and more.
class CGrowth
{
public:
    explicit CGrowth(bool judgesMemory)
        : m_judgesMemory(judgesMemory)
    {}

    /// To be called where nothing is under way and the same is loaded each time.
    const Usage& Mark();
    /// What has grown: the least of the last third is more than the most of the first. Empty where
    /// nothing has, or there are too few marks to tell.
    [[nodiscard]] std::string Judgement() const;
    /// First and last mark.
    [[nodiscard]] std::string Text() const;

private:
    bool m_judgesMemory;
    std::vector<Usage> m_marks;
};

} // namespace skeldon::soak
