#include "Growth.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <malloc.h>
#include <unistd.h>

namespace skeldon::soak {

namespace {

int EntriesOf(const char* folder)
{
    return static_cast<int>(std::distance(std::filesystem::directory_iterator(folder), {}));
}

} // namespace

std::string Usage::Text() const
{
    return "heap " + std::to_string(heapKb) + " KB, resident " + std::to_string(residentKb) +
           " KB, " + std::to_string(descriptors) + " descriptors, " + std::to_string(threads) +
           " threads";
}

Usage PresentUsage()
{
    constexpr std::size_t Kb = 1024;
    malloc_trim(0);
    const struct mallinfo2 heap = mallinfo2();
    std::size_t total = 0;
    std::size_t resident = 0;
    std::ifstream("/proc/self/statm") >> total >> resident;
    // Great blocks stand outside of the heap: room kept for a million lines that were announced is
    // no growth while nothing was written to it, and resident memory shows the rest.
    return {heap.uordblks / Kb, resident * static_cast<std::size_t>(sysconf(_SC_PAGESIZE)) / Kb,
            EntriesOf("/proc/self/fd"), EntriesOf("/proc/self/task")};
}

const Usage& CGrowth::Mark()
{
    return m_marks.emplace_back(PresentUsage());
}

std::string CGrowth::Judgement() const
{
    constexpr std::size_t FewestMarks = 9;
    // What an allocator may keep in corners, of more than one thread.
    constexpr std::size_t HeapSlackKb = 8192;
    constexpr std::size_t ResidentSlackKb = 65536;
    if (m_marks.size() < FewestMarks)
        return {};
    const auto third = static_cast<std::ptrdiff_t>(m_marks.size() / 3);
    const auto grows = [&](auto member, auto slack) {
        const auto first =
            std::ranges::max(std::vector(m_marks.begin(), m_marks.begin() + third), {}, member);
        const auto last =
            std::ranges::min(std::vector(m_marks.end() - third, m_marks.end()), {}, member);
        return last.*member > first.*member + slack;
    };
    std::string what;
    if (grows(&Usage::descriptors, 0))
        what += "descriptors ";
    if (grows(&Usage::threads, 0))
        what += "threads ";
    if (m_judgesMemory && grows(&Usage::heapKb, HeapSlackKb))
        what += "heap ";
    if (m_judgesMemory && grows(&Usage::residentKb, ResidentSlackKb))
        what += "resident memory ";
    return what.empty() ? what : what + "grow: " + Text();
}

std::string CGrowth::Text() const
{
    if (m_marks.empty())
        return "no marks";
    return m_marks.front().Text() + " -> " + m_marks.back().Text() + " (" +
           std::to_string(m_marks.size()) + " marks)";
}

} // namespace skeldon::soak
